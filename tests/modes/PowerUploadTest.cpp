#include "modes/power/PowerMeterTrace.h"
#include "support/ExpectFrame.h"
#include "support/RawPower.h"
#include "support/ShownTrace.h"

#include <gtest/gtest.h>

namespace Traces {
namespace {

using Testing::ExpectFrame;
using Testing::RawBuilder;
using Testing::RawPower;

class PowerUpload : public Testing::ShownTrace {};

/// RawPower's record 13 bytes below its raw offsets, blank where nothing is written.
RawBuilder Frame()
{
    RawBuilder frame(141, ' ');
    frame.Number(1, 2, 141).Number(3, 1, 64).Text(8, "11/22/2026").Text(18, "10:20:30").Text(26, "TOWER7");
    frame.Number(42, 2, 1).Number(44, 1, 3).Number(45, 1, 1).Number(46, 4, 596'000'000);
    frame.Number(50, 4, 602'500'000).Number(54, 4, 599'250'000).Number(58, 4, 6'500'000).Number(62, 1, 1);
    frame.Number(63, 4, 12'500).Number(67, 1, 0).Number(68, 4, -50'250).Number(72, 1, 2).Number(73, 1, 0);
    frame.Number(74, 1, 1).Number(75, 4, 10'000'000).Number(79, 2, 0).Number(81, 2, 35);
    frame.Number(93, 4, 44'588'170).Number(97, 4, -93'159'000).Number(101, 2, 253).Number(103, 1, 2);
    return frame.Number(138, 4, -36'570);
}

/// The same with the zeros that the reference doesn't cover.
RawBuilder PaddedFrame()
{
    return Frame().Text(32, std::string(10, '\0'));
}

TEST_F(PowerUpload, TheRecordRouteWritesTheDecodedFieldsBack)
{
    ASSERT_TRUE(plot.ShowTrace(RawPower().Bytes()));
    ExpectFrame(plot.GetUpLoadTrace(""), PaddedFrame().Number(4, 4, 0));
    // The standard by its code again; "CAL ON" is no code.
    ASSERT_TRUE(plot.ShowTrace(RawPower().Text(12, "3.00").Number(155, 1, 1).Bytes()));
    ExpectFrame(plot.GetUpLoadTrace(""), PaddedFrame().Number(4, 4, 0).Number(79, 2, 49).Number(62, 1, 0));
    for (const auto& [name, length] : {std::pair("a.pm", 141U), {"a.pmet", 141U}, {"a.pmon", 0U}}) {
        ASSERT_TRUE(WriteWholeFile(folder / name, "\r\n"));
        EXPECT_EQ(plot.GetUpLoadTrace(folder / name).size(), length) << name;
    }
}

TEST_F(PowerUpload, TheTextRouteTakesTheOffsetStatusForANumber)
{
    ASSERT_TRUE(plot.ShowTrace(RawPower().Bytes()));
    const std::string file = "CHECKSUM=0000000000\r\n" + state.lstParameters.Text();
    ExpectFrame(EncodePowerMeterText(file), Frame().Number(62, 1, 0));
    // What no byte and no channel holds is left blank.
    const std::string odd = EncodePowerMeterText("\r\nPower Meter Mode:\t300\r\nPower Offset Status:\t2\r\n"
                                                 "Channel Selection:\tN/A\r\nSignal Standard:\tGSM 900\r\n");
    EXPECT_EQ(odd.substr(43, 2), std::string(" \0", 2));
    EXPECT_EQ(odd[61], 2);
    EXPECT_EQ(odd.substr(78, 4), std::string("\0\x31\xFF\xFF", 4));
    EXPECT_EQ(EncodePowerMeterText("\r\nChannel Selection:\t99999\r\n").substr(80, 2), "  ");
}

TEST_F(PowerUpload, TheRawRouteMovesBytesUnconverted)
{
    const RawBuilder raw = RawPower().Number(75, 1, 77).Number(96, 2, 12).Number(155, 1, 1);
    ExpectFrame(EncodePowerMeterRaw(raw.AsText()),
                PaddedFrame().Number(4, 4, 0x01020304).Number(62, 1, 77).Number(79, 2, 49));
}

} // namespace
} // namespace Traces
