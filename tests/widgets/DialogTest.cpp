#include "support/TraceFiles.h"
#include "widgets/ShownPlot.h"

#include <QClipboard>
#include <QFileDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>

namespace Traces {
namespace {

using Dialogs = Testing::ShownPlot;

TEST_F(Dialogs, SubTitleIsAskedForAndShown)
{
    QString asked;
    const auto answer = [&](const QString& text, bool accept) {
        WhenOpen<QInputDialog>([&, text, accept](QInputDialog& box) {
            asked = box.windowTitle() + ": " + box.labelText() + " " + box.textValue();
            box.setTextValue(text);
            accept ? box.accept() : box.reject();
        });
        widget.ChooseMenuItem("menuSubTitle");
    };
    answer("North sector", false);
    EXPECT_EQ(widget.Plot().TraceName(), "Tower");
    EXPECT_EQ(asked, "Sub-title Entry: Enter a subtitle for this plot. Tower");
    answer("North sector, 20\u00B0", true);
    EXPECT_EQ(widget.Plot().TraceName(), "North sector, 20\xB0");
}

TEST_F(Dialogs, ParametersStandInColumns)
{
    QString first;
    QList<QTextOption::Tab> tabs;
    WhenOpen<QDialog>([&](QDialog& form) {
        EXPECT_EQ(form.objectName(), "dlgParams");
        const auto* list = form.findChild<QPlainTextEdit*>("lstParameters");
        first = list->toPlainText().section('\n', 0, 0);
        tabs = list->document()->defaultTextOption().tabs();
        form.reject();
    });
    widget.ChooseMenuItem("menuTraceInfo");
    EXPECT_EQ(first.toStdString(), widget.Plot().Parameters().front());
    ASSERT_EQ(tabs.size(), 3);
    EXPECT_NEAR(tabs[1].position / tabs[0].position, 160.0 / 125, 0.001);
    EXPECT_NEAR(tabs[2].position / tabs[0].position, 195.0 / 125, 0.001);
}

TEST_F(Dialogs, SaveDialogOffersTheModesFilesAndItsNameIsUsed)
{
    const Testing::TemporaryFolder folder;
    const QString path = QString::fromStdString(folder / "saved.vna");
    QStringList filters;
    WhenOpen<QFileDialog>([&](QFileDialog& form) {
        filters = form.nameFilters();
        form.findChild<QLineEdit*>()->setText(path);
        QTest::keyClick(form.findChild<QLineEdit*>(), Qt::Key_Return);
    });
    std::string name;
    EXPECT_TRUE(widget.Plot().SaveTrace(name));
    EXPECT_EQ(name, path.toStdString());
    EXPECT_TRUE(ReadWholeFile(name).has_value());
    EXPECT_TRUE(filters.contains("VNA Trace Files (*.vna)")) << filters.join(';').toStdString();

    // A file whose text was changed is refused with a message, and the trace stays.
    std::string text = *ReadWholeFile(name);
    text[text.size() / 2] ^= 1;
    ASSERT_TRUE(WriteWholeFile(name, text));
    QString told;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    WhenOpen<QMessageBox>([&](QMessageBox& box) {
        told = box.windowTitle() + "/" + box.text();
        icon = box.icon();
        box.accept();
    });
    widget.Plot().loadTextFile(name);
    EXPECT_EQ(told, "File Open/Failed to open trace file.  Checksum failed.");
    EXPECT_EQ(icon, QMessageBox::Critical);
    EXPECT_EQ(widget.Plot().TraceName(), "Tower");
}

TEST_F(Dialogs, ClipboardHoldsTextAndPicture)
{
    EXPECT_TRUE(widget.Plot().Copy2Clipboard());
    const QMimeData* content = QGuiApplication::clipboard()->mimeData();
    ASSERT_TRUE(content->hasText() && content->hasImage());
    EXPECT_TRUE(content->text().startsWith(QString::fromStdString(widget.Plot().Parameters().front())));
    EXPECT_EQ(qvariant_cast<QImage>(content->imageData()).size(), Painted().size());
}

TEST_F(Dialogs, LongJobIsInterruptedOnlyByAYes)
{
    Platform& platform = State().Platform;
    platform.BeginProgress("Reading", "Spectra");
    EXPECT_TRUE(platform.UpdateProgress(10));
    const auto press = [&](QMessageBox::StandardButton button) {
        auto* form = widget.findChild<QDialog*>("frmInProgress");
        WhenOpen<QMessageBox>([button](QMessageBox& box) {
            EXPECT_EQ(box.text(), "Interrupt the current process?");
            box.button(button)->click();
        });
        QTest::mouseClick(form->findChild<QPushButton*>("CmdAbort"), Qt::LeftButton);
        return platform.UpdateProgress(20);
    };
    EXPECT_TRUE(press(QMessageBox::No));
    EXPECT_FALSE(press(QMessageBox::Yes));
    platform.EndProgress();
    EXPECT_EQ(widget.findChild<QDialog*>("frmInProgress"), nullptr);
}

} // namespace
} // namespace Traces
