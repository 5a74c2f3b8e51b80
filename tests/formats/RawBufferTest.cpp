#include "formats/RawBuffer.h"

#include <gtest/gtest.h>
#include <vector>

namespace Traces {
namespace {

const std::uint8_t Bytes[] = {0x12, 0x34, 0x56, 0x78, 0xFF, 0xFF, 0xFF, 0xFF, 0x80, 0x00};
const RawBuffer Buffer{Bytes};

TEST(RawBuffers, NumbersAreBigEndianAndSignedByTheirReader)
{
    const struct {
        int Offset;
        double U32;
        std::int32_t I32;
        std::int16_t I16;
        std::int32_t U16;
        std::uint8_t Byte;
    } cases[] = {
        {1, 0x12345678, 0x12345678, 0x1234, 0x1234, 0x12},
        {5, 4294967295.0, -1, -1, 65535, 255},
        {7, 0xFFFF8000, -32768, -1, 65535, 255},
        // From here on the widest, then the narrower ones reach behind the end and read as zero.
        {8, 0, 0, -128, 0xFF80, 255},
        {9, 0, 0, -32768, 32768, 0x80},
        {10, 0, 0, 0, 0, 0},
        {11, 0, 0, 0, 0, 0},
    };
    for (const auto& each : cases) {
        EXPECT_EQ(ReadU32(Buffer, each.Offset), each.U32) << each.Offset;
        EXPECT_EQ(ReadI32(Buffer, each.Offset), each.I32) << each.Offset;
        EXPECT_EQ(ReadI16(Buffer, each.Offset), each.I16) << each.Offset;
        EXPECT_EQ(ReadU16(Buffer, each.Offset), each.U16) << each.Offset;
        EXPECT_EQ(ReadByte(Buffer, each.Offset), each.Byte) << each.Offset;
    }
}

TEST(RawBuffers, TextsNeedOneByteMoreThanTheyTakeAndKeepEveryByte)
{
    std::string all;
    for (int i = 0; i < 256; ++i)
        all += static_cast<char>(i);
    const RawBuffer buffer = RawBuffer::FromText(all);
    EXPECT_EQ(ReadChars(buffer, 1, 255), all.substr(0, 255));
    EXPECT_EQ(ReadChars(buffer, 1, 256), "") << "ends on the last byte";
    EXPECT_EQ(ReadChars(buffer, 250, 6), all.substr(249, 6));
    EXPECT_EQ(ReadChars(buffer, 251, 6), "");
    EXPECT_EQ(ReadChars(RawBuffer::FromText(""), 1, 4), "");
}

TEST(RawBuffers, AFieldBeyondSixteenBitOffsetsIsNotRead)
{
    const std::vector<std::uint8_t> bytes(40'000, 7);
    // Behind the end of the small one, but read there: only the offset decides.
    for (const RawBuffer& buffer : {RawBuffer(bytes), Buffer}) {
        EXPECT_TRUE(ReadU32(buffer, 32764));
        EXPECT_FALSE(ReadU32(buffer, 32765));
        EXPECT_TRUE(ReadI32(buffer, 32764));
        EXPECT_FALSE(ReadI32(buffer, 32765));
        EXPECT_TRUE(ReadI16(buffer, 32766));
        EXPECT_FALSE(ReadI16(buffer, 32767));
        EXPECT_TRUE(ReadU16(buffer, 32766));
        EXPECT_FALSE(ReadU16(buffer, 32767));
        EXPECT_TRUE(ReadByte(buffer, 32767));
        EXPECT_FALSE(ReadByte(buffer, 32768));
        EXPECT_TRUE(ReadChars(buffer, 32757, 10));
        EXPECT_FALSE(ReadChars(buffer, 32758, 10));
        EXPECT_FALSE(ReadByte(buffer, 0)) << "offsets begin at 1";
    }
    EXPECT_EQ(ReadChars(RawBuffer(bytes), 32757, 10), std::string(10, '\7'));
}

} // namespace
} // namespace Traces
