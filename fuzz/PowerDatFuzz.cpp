// A power meter's comma form of any bytes, behind the seven values that it is scrambled by. Scrambled and
// plain must load the same, and what is loaded must save and load as the same lines.
#include "Check.h"
#include "control/Control.h"
#include "control/HeadlessPlatform.h"
#include "control/Plot.h"
#include "formats/Checksum.h"
#include "modes/power/PowerMeterTrace.h"
#include "output/Svg.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

namespace {

using namespace Traces;
using Fuzz::Check;

std::string Saved(Plot& plot)
{
    plot.ParametersToSave();
    return plot.Instance().lstParameters.Text();
}

/// Whether a file gives each value back: each in one line.
bool Returns(const Control& state)
{
    const ParameterList& lines = state.lstParameters;
    for (std::size_t i = 0; i < lines.ListCount(); ++i)
        if (lines.List(i).find_first_of("\r\n") != std::string_view::npos)
            return false;
    return true;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    HeadlessPlatform platform;
    Plot plot(platform);
    const std::size_t given = std::min(size, platform.Scramble.size());
    std::copy_n(data, given, platform.Scramble.begin());
    const std::string scrambled(reinterpret_cast<const char*>(data + given), size - given);
    plot.LoadPowerMeterDat(scrambled);
    const Control& state = plot.Instance();
    const PowerRecord& power = state.Power;
    Check(state.CurrentMode == 64 && state.PMHolder.Visible && !state.TraceSaved, "the reading is on show");
    Check(power.FreqSpan == 18 && power.GpsAltitude == -30000, "what the form fixes is fixed");
    Check(platform.Messages.empty(), "no message is shown");
    SvgPicture(plot.Instance());
    plot.GetUpLoadTrace("");
    const std::string lines = Saved(plot);

    HeadlessPlatform plainPlatform;
    Plot plain(plainPlatform);
    std::string text = scrambled;
    for (std::size_t i = 14; i < text.size(); ++i)
        text[i] = static_cast<char>(static_cast<unsigned char>(text[i]) ^ platform.Scramble[(i - 14) % 7]);
    plain.LoadPowerMeterDat(text);
    Check(Saved(plain) == lines, "scrambled and plain load the same");

    if (!Returns(plain.Instance()))
        return 0;
    std::string file = std::string(EmptyChecksumLine) + lines;
    const std::size_t field = FindChecksumField(file);
    file.replace(field, ChecksumWidth, ComputeChecksum(file, field));
    plain.LoadPowerMeterText(file, {});
    Check(Saved(plain) == lines, "a saved reading loads and saves as it is");
    return 0;
}
