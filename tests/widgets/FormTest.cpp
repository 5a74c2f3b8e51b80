// A host's form, drawn in Qt Designer: compiled into a program, and loaded at run time through the plugin.
#include "control/Platform.h"
#include "ui_HostForm.h"

#include <QFile>
#include <QUiLoader>

#include <gtest/gtest.h>
#include <memory>

namespace Traces {
namespace {

void ExpectStoredProperties(const PlotWidget& plot)
{
    EXPECT_TRUE(plot.ShowParams());
    EXPECT_FALSE(plot.AllowPopupMenu());
    EXPECT_EQ(plot.BackColor(), QColor(40, 60, 80));
    EXPECT_EQ(plot.ForeColor(), QColor(250, 240, 230));
    EXPECT_EQ(plot.BorderStyle(), PlotWidget::pbRaised);
    EXPECT_TRUE(plot.AutoScaleY());
}

TEST(Forms, CompiledFormSetsTheStoredProperties)
{
    QWidget window;
    Ui::HostForm form;
    form.setupUi(&window);
    ExpectStoredProperties(*form.plot);
}

TEST(Forms, PluginGivesTheWidgetToFormsOfRunTime)
{
    QUiLoader loader;
    loader.clearPluginPaths();
    loader.addPluginPath(TRACES_DESIGNER_FOLDER);
    ASSERT_TRUE(loader.availableWidgets().contains("Traces::PlotWidget"))
        << loader.errorString().toStdString();
    QFile file(TRACES_HOST_FORM);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const std::unique_ptr<QWidget> window(loader.load(&file));
    ASSERT_NE(window, nullptr) << loader.errorString().toStdString();
    const auto* plot = qobject_cast<PlotWidget*>(window->findChild<QWidget*>("plot"));
    ASSERT_NE(plot, nullptr);
    ExpectStoredProperties(*plot);
}

} // namespace
} // namespace Traces
