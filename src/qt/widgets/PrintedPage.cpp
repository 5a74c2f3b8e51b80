#include "qt/widgets/PrintedPage.h"

#include "control/Control.h"
#include "qt/PainterCanvas.h"

#include <QPageLayout>
#include <QPagedPaintDevice>
#include <QPainter>

#include <algorithm>

namespace Traces {

bool PrintOnPage(QPagedPaintDevice& device, const Control& control, const PagePlace& place, SizedFonts& fonts)
{
    QPainter painter;
    if (!painter.begin(&device))
        return false;
    // The painter's origin is the printable area's, whose pixels are the device's.
    const double width = device.width() * place.Width;
    const double height = device.height() * place.Height;
    painter.translate(device.width() * place.Left, device.height() * place.Top);
    painter.scale(width / control.Surface.DeviceWidth(), height / control.Surface.DeviceHeight());
    {
        PainterCanvas canvas(painter, fonts);
        ReplayControl(control, canvas);
    }
    return painter.end();
}

PagePlace FittingPlace(const QPagedPaintDevice& device, const Control& control)
{
    const double perWidth = device.width() / control.Surface.DeviceWidth();
    const double perHeight = device.height() / control.Surface.DeviceHeight();
    const double scale = std::min(perWidth, perHeight);
    return {(1 - scale / perWidth) / 2, 0, scale / perWidth, scale / perHeight};
}

} // namespace Traces
