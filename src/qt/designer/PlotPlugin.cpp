#include "qt/designer/PlotPlugin.h"

#include "qt/widgets/PlotWidget.h"

#include <QIcon>
#include <QPainter>
#include <QPixmap>

#include <array>

namespace Traces {

QString PlotPlugin::name() const
{
    return QStringLiteral("Traces::PlotWidget");
}

QString PlotPlugin::group() const
{
    return tr("Measurement");
}

QString PlotPlugin::toolTip() const
{
    return tr("Measurement trace");
}

QString PlotPlugin::whatsThis() const
{
    return tr("Shows a saved or uploaded measurement with markers, zoom and menus.");
}

QString PlotPlugin::includeFile() const
{
    return QStringLiteral("qt/widgets/PlotWidget.h");
}

QString PlotPlugin::domXml() const
{
    return QStringLiteral(R"(<ui language="c++"><widget class="Traces::PlotWidget" name="plot">)"
                          R"(<property name="geometry"><rect><x>0</x><y>0</y><width>550</width>)"
                          R"(<height>480</height></rect></property></widget></ui>)");
}

QIcon PlotPlugin::icon() const
{
    constexpr int side = 22;
    constexpr auto curve = std::to_array<QPoint>({{2, 6}, {7, 8}, {11, 17}, {14, 8}, {20, 5}});
    QPixmap pixmap(side, side);
    pixmap.fill(Qt::black);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::yellow, 2));
    painter.drawPolyline(curve.data(), static_cast<int>(curve.size()));
    painter.end();
    return QIcon(pixmap);
}

QWidget* PlotPlugin::createWidget(QWidget* parent)
{
    return new PlotWidget(parent);
}

} // namespace Traces
