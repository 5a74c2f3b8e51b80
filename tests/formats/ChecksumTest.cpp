#include "formats/Checksum.h"

#include "formats/Files.h"
#include "support/TraceFiles.h"

#include <gtest/gtest.h>

namespace Traces {
namespace {

TEST(Checksums, AreTheCrcOfTheBytesAroundTheField)
{
    const struct {
        std::string_view Before, After, Sum;
    } cases[] = {
        {"123456789", "", "3421780262"}, // the check value of this CRC
        {"", "123456789", "3421780262"}, {"1234", "56789", "3421780262"}, {"", "", "0000000000"},
        {"", "a", "3904355907"},         {"", "b70", "0046945988"}, // leading zeros count as digits
    };
    for (const auto& each : cases)
        for (const std::string_view field : {"0000000000", "987654321\n"}) {
            const std::string text = std::string(each.Before).append(field).append(each.After);
            EXPECT_EQ(ComputeChecksum(text, each.Before.size()), each.Sum) << text;
        }
}

TEST(Checksums, TheFieldIsTheTenCharactersBehindItsKey)
{
    const std::pair<std::string_view, std::string_view> cases[] = {
        {"CHECKSUM=1234567890\r\n", "1234567890"},
        {"CHECKSUM=1234567890", "1234567890"},
        {"Date:\tx\r\nCHECKSUM=1234567890", "1234567890"},
        {"CHECKSUM=12345678\r\n", "12345678\r\n"}, // any characters
        {"CHECKSUM=123456789", ""},
        {"CHECKSUM=CHECKSUM=1234567890", "CHECKSUM=1"}, // the first place decides
        {"Checksum=1234567890", ""},
        {"CHECKSUM:1234567890", ""},
        {"", ""},
    };
    for (const auto& [text, field] : cases) {
        EXPECT_EQ(ReadChecksumField(text), field) << text;
        EXPECT_EQ(FindChecksumField(text) == std::string_view::npos, field.empty()) << text;
    }
}

TEST(Checksums, AreWrittenInPlaceAndTheKeyTellsWhichResultIsSuccess)
{
    const Testing::TemporaryFolder folder;
    const std::string file = folder / "a.vna";
    const std::string wanted = "Model:\tTRC\r\nCHECKSUM=3418451314\r\nend";
    for (const char* stored : {"0000000000", "9999999999"}) {
        const std::string text = std::string(wanted).replace(21, ChecksumWidth, stored);
        ASSERT_TRUE(WriteWholeFile(file, text));
        EXPECT_EQ(RewriteChecksum(file, SaveChecksumKey), 0);
        EXPECT_EQ(ReadWholeFile(file), wanted);
        EXPECT_EQ(RewriteChecksum(file, VerifyChecksumKey), 1);
        EXPECT_EQ(ReadWholeFile(file), wanted) << "the key doesn't enter the sum";
    }
    ASSERT_TRUE(WriteWholeFile(file, "CHECKSUM=123456789"));
    for (const std::string& bad : {file, folder / "none"}) {
        EXPECT_NE(RewriteChecksum(bad, SaveChecksumKey), 0);
        EXPECT_EQ(RewriteChecksum(bad, VerifyChecksumKey), 0);
    }
    EXPECT_EQ(ReadWholeFile(file), "CHECKSUM=123456789");
}

} // namespace
} // namespace Traces
