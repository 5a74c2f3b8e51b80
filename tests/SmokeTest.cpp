#include "formats/LibraryValues.h"

#include <gtest/gtest.h>

TEST(LibraryValues, StartAtZero) { EXPECT_EQ(Traces::Library().TraceVersionValue, 0); }
