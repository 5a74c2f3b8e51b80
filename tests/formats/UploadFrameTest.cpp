#include "formats/UploadFrame.h"

#include "formats/Text.h"
#include "support/Faults.h"

#include <gtest/gtest.h>
#include <limits>

namespace Traces {
namespace {

using Testing::FaultOf;

/// Bytes as hexadecimal digits.
std::string Hex(std::string_view bytes)
{
    std::string text;
    for (const char c : bytes)
        text += HexByte(static_cast<std::uint8_t>(c));
    return text;
}

TEST(ByteWriters, RoundToEvenAndKeepTheLowBytes)
{
    const struct {
        double Value, Scale, Offset;
        std::string Bytes;
    } cases[] = {
        {-1, 1, 0, "FFFFFFFF"},
        {3'000'000'000.0, 1, 0, "B2D05E00"},
        {4294967296.0 + 258, 1, 0, "00000102"},
        {-4294967296.0 - 2, 1, 0, "FFFFFFFE"},
        {2.5, 1, 0, "00000002"},
        {3.5, 1, 0, "00000004"},
        {-2.5, 1, 0, "FFFFFFFE"},
        {-27.5, 1000, 270'000, "0003B344"},
        {824.0625, 1'000'000, 0, "311E3224"},
        // Beyond 64 bits, where doubles are whole multiples of a power of two.
        {9223372036854775808.0 + 2048, 1, 0, "00000800"},
        {-9223372036854775808.0 * 4 - 8192, 1, 0, "FFFFE000"},
        {1E300, 1, 0, "00000000"},
        {1E300, 1E300, 0, "00000000"},
        {std::numeric_limits<double>::quiet_NaN(), 1, 0, "00000000"},
    };
    for (const auto& each : cases) {
        EXPECT_EQ(Hex(PutU32(each.Value, each.Scale, each.Offset)), each.Bytes) << each.Value;
        EXPECT_EQ(Hex(PutI16(each.Value * each.Scale + each.Offset)), each.Bytes.substr(4)) << each.Value;
    }
    EXPECT_EQ(Hex(PutU32FromI32(-3'422'250, 1, 0)), "FFCBC7D6");
    EXPECT_EQ(Hex(PutU32FromI32(2'147'483'647, 1, 1)), "80000000") << "in double precision";
}

TEST(ByteWriters, AByteHoldsZeroTo255)
{
    EXPECT_EQ(Hex(PutByte(255.4)), "FF");
    EXPECT_EQ(Hex(PutByte(-0.5)), "00");
    for (const double value : {256.0, -1.0, 255.5, 1E10, std::numeric_limits<double>::quiet_NaN()})
        EXPECT_EQ(FaultOf([&] { PutByte(value); }), FaultKind::Overflow) << value;
}

TEST(ByteWriters, ReadAFilesLineOrTheTextItself)
{
    const TraceText text("x\r\nA:\t 12.5 dB\r\nB:\t\r\nC:\t-1\r\n");
    EXPECT_EQ(Hex(PutU32FromText(text, "A:", 10, 1)), "0000007E");
    EXPECT_EQ(Hex(PutU32FromText(text, "B:", 10, 270'000)), "00041EB0") << "no value: the offset alone";
    EXPECT_EQ(Hex(PutI16FromText(text, "A:", 2, -26)), "FFFF");
    EXPECT_EQ(Hex(PutByteFromText(text, "A:")), "0C");
    EXPECT_EQ(FaultOf([&] { PutByteFromText(text, "C:"); }), FaultKind::Overflow);
    EXPECT_EQ(Hex(PutByteFromText(TraceText("7.5 and more"), "")), "08");
}

TEST(UploadFrames, WritesAreCutAtTheEndAndFaultBehindIt)
{
    UploadFrame frame(6);
    frame.Put(1, "ab");
    frame.Put(5, "cdef");
    frame.Put(2, "");
    EXPECT_EQ(frame.Bytes(), "ab  cd");
    for (const int position : {0, -1, 7, 1000})
        EXPECT_EQ(FaultOf([&] { frame.Put(position, "x"); }), FaultKind::Range) << position;
    EXPECT_EQ(frame.Bytes(), "ab  cd");
    EXPECT_EQ(UploadFrame(0).Length(), 0);
    EXPECT_EQ(FaultOf([] { UploadFrame(-1); }), FaultKind::Range);
}

TEST(UploadFrames, TheRecordsHeadStandsOverZerosAndAFilesHeadOverBlanks)
{
    TraceHeader header;
    header.Mode = 145;
    header.Date = "1/2/26";
    header.Time = "10:20:30";
    header.RefNumber = std::string(" TOWER\0 7 \0\0", 12);
    header.DataPoints = -2;
    UploadFrame frame(45);
    PutFrameHead(frame, header);
    const std::string zeros(38, '\0');
    const std::string expected = std::string("\0\x2D\x91", 3) + zeros.substr(0, 4) +
                                 "1/2/26    10:20:30TOWER 7" + zeros.substr(0, 9) + "\xFF\xFE  ";
    EXPECT_EQ(frame.Bytes(), expected);

    header.RefNumber = "0123456789abcdefghi";
    PutFrameHead(frame, header);
    EXPECT_EQ(frame.Bytes().substr(25, 16), "0123456789abcdef");

    const TraceText text("x\r\nDate:\t11/22/2026 or so\r\nRef Number:\tTOWER7\r\nDataPoints:\t401\r\n");
    UploadFrame ofFile(45);
    PutFrameHeadFromText(ofFile, 48, text);
    EXPECT_EQ(ofFile.Bytes(), std::string("\0\x2D", 2) + "0    11/22/2026        TOWER7          \x01\x91  ");
}

TEST(UploadFrames, FileBytesAreCopiedAndWhatIsNotThereIsZero)
{
    UploadFrame frame(8);
    CopyFileBytes("abcde", frame, 2, 1, 3);
    EXPECT_EQ(frame.Bytes(), "bcd     ");
    CopyFileBytes("abcde", frame, 4, 3, 4);
    EXPECT_EQ(frame.Bytes(), std::string("bcde\0\0  ", 8));
    CopyFileBytes("abcde", frame, 100, 7, 50);
    EXPECT_EQ(frame.Bytes(), std::string("bcde\0\0\0\0", 8)) << "cut at the frame's end";
    CopyFileBytes("abcde", frame, 1, 100, 0);
    EXPECT_EQ(FaultOf([&] { CopyFileBytes("abcde", frame, 1, 9, 1); }), FaultKind::Range);
}

} // namespace
} // namespace Traces
