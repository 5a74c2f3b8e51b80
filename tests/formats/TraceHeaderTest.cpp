#include "formats/TraceHeader.h"

#include "support/RawBuilder.h"

#include <gtest/gtest.h>

namespace Traces {
namespace {

using namespace std::string_literals;
using Testing::RawBuilder;
using Testing::RawHeader;

/// Bytes 1 to `length` of a header whose reference fills its field.
TraceHeader Decode(std::size_t length, ParameterList& lines)
{
    const RawBuilder raw = RawHeader(60, 48, 513).Text(39, "0123456789abcdef");
    TraceHeader header;
    DecodeHeader(RawBuffer(raw.Bytes().first(length)), header, lines);
    return header;
}

TEST(Headers, EveryFieldStandsAtItsPlaceAndAShortBufferReadsAsZero)
{
    ParameterList lines;
    const TraceHeader header = Decode(60, lines);
    EXPECT_EQ(lines.Text(), "Trace length:\t60\r\nModel:\tTRC-100\r\nVersion:\t3.20\r\n"
                            "Mode:\tSpectrum Analyzer Mode\r\nDate:\t11/22/2026\r\nTime:\t10:20:30\r\n"
                            "Ref Number:\t0123456789abcdef\r\nDataPoints:\t513\r\n");
    EXPECT_EQ(header.HeaderByte3, 7);
    EXPECT_EQ(header.HeaderWord, 0x01020304);

    EXPECT_EQ(Decode(56, lines).DataPoints, 513) << "a number may end on the last byte";
    EXPECT_EQ(Decode(55, lines).DataPoints, 0);
    EXPECT_EQ(Decode(55, lines).RefNumber, "0123456789abcdef");
    EXPECT_EQ(Decode(54, lines).RefNumber, "") << "a text may not";
    EXPECT_EQ(Decode(11, lines).Model, "       ");
    EXPECT_EQ(Decode(0, lines).TraceLength, 0);
}

TEST(Headers, ListTheirFieldsInOrderWhateverStoodThereBefore)
{
    TraceHeader header;
    header.TraceLength = -1;
    header.Model = "M1";
    header.Version = "3\0.1"s;
    header.Mode = 200;
    header.Date = "";
    header.Time = "10:20:30.5";
    header.RefNumber = "C:\\SITES\\A7.B8\0"s;
    header.DataPoints = 601;
    ParameterList lines;
    lines.AddItem("of the trace before");
    HeaderParams(header, lines);
    const std::string expected = "Trace length:\t-1\r\nModel:\tM1     \r\nVersion:\t3\0.1\r\n"s
                                 "Mode:\tUnknown(C8)\r\nDate:\t          \r\nTime:\t10:20:30\r\n"
                                 "Ref Number:\tA7\r\nDataPoints:\t601\r\n";
    EXPECT_EQ(lines.Text(), expected);
    Decode(60, lines);
    EXPECT_EQ(lines.ListCount(), 8U) << "a decode begins the list anew";
}

TEST(Headers, AFileGivesTextsAndWhatNumbersItHas)
{
    TraceHeader header;
    header.TraceLength = 340;
    header.DataPoints = 5;
    header.HeaderByte3 = 9;
    header.Date = "11/22/2026";
    const TraceText file("CHECKSUM=0000000000\r\nTrace length:\tlong\r\nModel:\tTRC-100-X\r\nVersion:\t3\r\n"
                         "Mode:\tSWR Frequency\r\nTime:\t10:20\r\nRef Number:\tD:\\x\\TOWER 7.VNA\r\n"
                         "DataPoints:\t1,000\r\n");
    ParameterList lines;
    HeaderFromText(file, header, lines);
    // A length that is no number stays, texts are cut or padded to their widths, one without a line is
    // emptied.
    EXPECT_EQ(lines.Text(), "Trace length:\t340\r\nModel:\tTRC-100\r\nVersion:\t3   \r\n"
                            "Mode:\tSWR Frequency\r\nDate:\t          \r\nTime:\t10:20   \r\n"
                            "Ref Number:\tTOWER 7\r\nDataPoints:\t1000\r\n");
    EXPECT_EQ(header.HeaderByte3, 9) << "no file holds it";

    HeaderFromText(TraceText("\nDataPoints:\t40000\r\n"), header, lines);
    EXPECT_EQ(header.DataPoints, 1000) << "doesn't fit 16 bits";
    EXPECT_EQ(header.Mode, 0) << "no name is mode 0";
    EXPECT_EQ(header.RefNumber, "");
}

} // namespace
} // namespace Traces
