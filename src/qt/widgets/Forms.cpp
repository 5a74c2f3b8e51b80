#include "qt/widgets/Forms.h"

#include <QDialogButtonBox>
#include <QFontMetricsF>
#include <QLabel>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextOption>
#include <QVBoxLayout>

namespace Traces {

namespace {

/// Places of the columns, in dialog units: quarters of a letter's mean width.
constexpr double TabStops[] = {125, 160, 195};
constexpr double DialogUnitsPerLetter = 4;

double MeanLetterWidth(const QFont& font)
{
    const QString letters = QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz");
    return QFontMetricsF(font).horizontalAdvance(letters) / static_cast<double>(letters.size());
}

} // namespace

ParametersForm::ParametersForm(const QStringList& lines, QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("dlgParams"));
    setWindowTitle(tr("Trace Information"));
    auto* list = new QPlainTextEdit(this);
    list->setObjectName(QStringLiteral("lstParameters"));
    list->setAccessibleName(tr("Trace parameters"));
    list->setReadOnly(true);
    list->setTabChangesFocus(true);
    list->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    list->setLineWrapMode(QPlainTextEdit::NoWrap);
    QTextOption option = list->document()->defaultTextOption();
    const double letter = MeanLetterWidth(list->font());
    QList<QTextOption::Tab> tabs;
    for (const double stop : TabStops)
        tabs.append({stop * letter / DialogUnitsPerLetter, QTextOption::LeftTab});
    option.setTabs(tabs);
    list->document()->setDefaultTextOption(option);
    list->setPlainText(lines.join(QLatin1Char('\n')));

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(list);
    layout->addWidget(buttons);
    constexpr int columns = 72;
    constexpr int rows = 28;
    resize(static_cast<int>(letter * columns), list->fontMetrics().height() * rows);
}

ProgressForm::ProgressForm(const QString& title, const QString& label, QWidget* parent)
    : QDialog(parent), text(new QLabel(label, this)), bar(new QProgressBar(this))
{
    setObjectName(QStringLiteral("frmInProgress"));
    setWindowTitle(title);
    setWindowModality(Qt::ApplicationModal);
    bar->setRange(0, 100);
    bar->setAccessibleName(label);
    auto* abort = new QPushButton(tr("Abort"), this);
    abort->setObjectName(QStringLiteral("CmdAbort"));
    abort->setAccessibleName(tr("Abort"));
    connect(abort, &QPushButton::clicked, this, &ProgressForm::reject);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(text);
    layout->addWidget(bar);
    layout->addWidget(abort, 0, Qt::AlignRight);
    constexpr int width = 360;
    setMinimumWidth(width);
}

void ProgressForm::SetPercent(int percent)
{
    bar->setValue(percent);
}

void ProgressForm::reject()
{
    const QPointer<ProgressForm> self(this);
    const auto answer = QMessageBox::question(this, windowTitle(), tr("Interrupt the current process?"));
    if (!self.isNull() && answer == QMessageBox::Yes)
        interrupted = true;
}

} // namespace Traces
