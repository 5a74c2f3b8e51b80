// Comparison of upload frames.
#pragma once

#include "support/RawBuilder.h"

#include <gtest/gtest.h>
#include <string>

namespace Traces::Testing {

/// Reports the first differing position, which says which field it is.
inline void ExpectFrame(const std::string& frame, const RawBuilder& expected)
{
    const std::string wanted = expected.AsText();
    ASSERT_EQ(frame.size(), wanted.size());
    for (std::size_t i = 0; i < frame.size(); ++i)
        ASSERT_EQ(static_cast<int>(frame[i]), static_cast<int>(wanted[i])) << "position " << i + 1;
}

} // namespace Traces::Testing
