#include "output/Capture.h"

#include "control/Control.h"
#include "output/Svg.h"

#include <cmath>
#include <exception>

namespace Traces {

Picture TracePicture(const Control& control)
{
    control.Platform.Repaint();
    if (auto picture = control.Platform.CapturePicture(control))
        return std::move(*picture);
    return {"image/svg+xml", SvgPicture(control), static_cast<int>(std::lround(control.Surface.Width)),
            static_cast<int>(std::lround(control.Surface.Height))};
}

bool Copy2Clipboard(Control& control)
{
    Platform& platform = control.Platform;
    try {
        return platform.ClearClipboard() && platform.SetClipboardText(control.lstParameters.Text()) &&
               platform.SetClipboardPicture(TracePicture(control));
    } catch (const std::exception&) {
        return false; // Whatever failed, the host hears of it in the one way that it knows.
    }
}

bool PrintTrace(Control& control, double xScale, double yScale, double xPosition, double yPosition)
{
    constexpr double percent = 100;
    return control.Platform.PrintPicture(
        control, {xPosition / percent, yPosition / percent, xScale / percent, yScale / percent});
}

} // namespace Traces
