#include "qt/widgets/QtPlatform.h"

#include "control/Control.h"
#include "formats/Text.h"
#include "qt/widgets/Forms.h"
#include "qt/widgets/PlotWidget.h"

#include <QApplication>
#include <QClipboard>
#include <QCursor>
#include <QFile>
#include <QFileDialog>
#include <QImage>
#include <QInputDialog>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QPrintDialog>
#include <QPrinter>

#include <memory>

namespace Traces {

namespace {

QString ScreenText(std::string_view text)
{
    return QString::fromStdString(Utf8FromAnsi(text));
}

/// A file's name is the system's own bytes where it was once confirmed, and else made of a title.
QString FileNameText(const std::string& name)
{
    const QString text = QString::fromUtf8(name.c_str());
    return text.contains(QChar::ReplacementCharacter) ? ScreenText(name) : text;
}

QMessageBox::Icon IconOf(MessageIcon icon)
{
    switch (icon) {
    case MessageIcon::Stop: return QMessageBox::Critical;
    case MessageIcon::Information: return QMessageBox::Information;
    case MessageIcon::None: break;
    }
    return QMessageBox::NoIcon;
}

QString FilterText(const SaveDialog::Filter& filter)
{
    const QString text = ScreenText(filter.Text);
    const QString pattern = QLatin1Char('(') + ScreenText(filter.Pattern) + QLatin1Char(')');
    return text.contains(pattern) ? text : text + QLatin1Char(' ') + pattern;
}

/// Adds the items to a menu; each action's data is its place in `choices`.
void Fill(QMenu& menu, const std::vector<MenuItem>& items, std::vector<MenuChoice>& choices)
{
    for (const MenuItem& item : items) {
        if (!item.Visible)
            continue;
        if (item.Caption == "-") {
            menu.addSeparator();
            continue;
        }
        QAction* action = nullptr;
        if (item.Items.empty()) {
            action = menu.addAction(ScreenText(item.Caption));
            action->setData(static_cast<int>(choices.size()));
            choices.push_back({std::string(item.Name), item.Index});
        } else {
            QMenu* submenu = menu.addMenu(ScreenText(item.Caption));
            Fill(*submenu, item.Items, choices);
            action = submenu->menuAction();
        }
        action->setObjectName(ScreenText(item.Name));
        action->setEnabled(item.Enabled);
        action->setCheckable(item.Checked);
        action->setChecked(item.Checked);
    }
}

/// Sets the clipboard. False where there is none, or where it doesn't keep what it gets.
bool SetClipboard(std::unique_ptr<QMimeData> data)
{
    QClipboard* clipboard = QGuiApplication::clipboard();
    if (clipboard == nullptr)
        return false;
    const QStringList formats = data->formats();
    clipboard->setMimeData(data.release());
    const QMimeData* kept = clipboard->mimeData();
    return kept != nullptr && (formats.isEmpty() || kept->hasFormat(formats.first()));
}

} // namespace

QtPlatform::QtPlatform(PlotWidget& plotWidget) : widget(plotWidget) {}

QtPlatform::~QtPlatform()
{
    delete progress;
}

// A dialog may outlive the widget's end by nothing: the widget is its parent, so it goes with it. Nothing of
// this object is touched after one has run.

void QtPlatform::MessageBox(const Message& message)
{
    const QPointer<QMessageBox> box(new QMessageBox(IconOf(message.Icon), ScreenText(message.Title),
                                                    ScreenText(message.Text), QMessageBox::Ok, &widget));
    box->exec();
    delete box;
}

std::optional<std::string> QtPlatform::GetSaveFileNameA(const SaveDialog& dialog)
{
    QStringList filters;
    for (const SaveDialog::Filter& filter : dialog.Filters)
        filters.append(FilterText(filter));
    const QPointer<QFileDialog> form(new QFileDialog(&widget, ScreenText(dialog.Title)));
    form->setAcceptMode(QFileDialog::AcceptSave);
    form->setFileMode(QFileDialog::AnyFile);
    form->setNameFilters(filters);
    if (dialog.FilterIndex >= 1 && dialog.FilterIndex <= filters.size())
        form->selectNameFilter(filters[dialog.FilterIndex - 1]);
    form->setDefaultSuffix(ScreenText(dialog.DefaultExtension));
    form->setOption(QFileDialog::DontConfirmOverwrite, !dialog.OverwritePrompt);
    form->selectFile(FileNameText(dialog.FileName));
    std::optional<std::string> name;
    if (form->exec() == QDialog::Accepted && !form.isNull() && !form->selectedFiles().isEmpty())
        name = QFile::encodeName(form->selectedFiles().first()).toStdString();
    delete form;
    return name;
}

std::optional<std::string> QtPlatform::InputBox(std::string_view prompt, std::string_view title,
                                                std::string_view initial)
{
    const QPointer<QInputDialog> form(new QInputDialog(&widget));
    form->setWindowTitle(ScreenText(title));
    form->setLabelText(ScreenText(prompt));
    form->setTextValue(ScreenText(initial));
    std::optional<std::string> text;
    if (form->exec() == QDialog::Accepted && !form.isNull())
        text = AnsiFromUtf8(form->textValue().toStdString());
    delete form;
    return text;
}

std::optional<MenuChoice> QtPlatform::PopupMenu(const Menu& menu)
{
    std::vector<MenuChoice> choices;
    const QPointer<QMenu> popup(new QMenu(&widget));
    popup->setObjectName(ScreenText(menu.Name));
    popup->setAccessibleName(PlotWidget::tr("Chart menu"));
    Fill(*popup, menu.Items, choices);
    const QPoint place = MenuPlace.value_or(QCursor::pos());
    MenuPlace.reset();
    const QAction* chosen = popup->exec(place);
    std::optional<MenuChoice> choice;
    if (!popup.isNull() && chosen != nullptr && chosen->data().isValid())
        choice = choices[static_cast<std::size_t>(chosen->data().toInt())];
    delete popup;
    return choice;
}

void QtPlatform::ShowParameters(const std::vector<std::string>& lines)
{
    QStringList texts;
    for (const std::string& line : lines)
        texts.append(ScreenText(line));
    const QPointer<ParametersForm> form(new ParametersForm(texts, &widget));
    form->exec();
    delete form;
}

void QtPlatform::BeginProgress(std::string_view title, std::string_view label)
{
    delete progress;
    progress = new ProgressForm(ScreenText(title), ScreenText(label), &widget);
    progress->show();
}

bool QtPlatform::UpdateProgress(int percent)
{
    const QPointer<ProgressForm> form = progress;
    if (form.isNull())
        return true;
    form->SetPercent(percent);
    QCoreApplication::processEvents();
    return !form.isNull() && !form->Interrupted();
}

void QtPlatform::EndProgress()
{
    delete progress;
}

bool QtPlatform::ClearClipboard()
{
    return SetClipboard(std::make_unique<QMimeData>());
}

bool QtPlatform::SetClipboardText(std::string_view text)
{
    auto data = std::make_unique<QMimeData>();
    data->setText(ScreenText(text));
    return SetClipboard(std::move(data));
}

bool QtPlatform::SetClipboardPicture(const Picture& picture)
{
    const QImage image = QImage::fromData(QByteArray::fromStdString(picture.Bytes));
    const QClipboard* clipboard = QGuiApplication::clipboard();
    if (clipboard == nullptr || image.isNull())
        return false;
    // A clipboard has one content: the text that it holds goes on with the picture.
    auto data = std::make_unique<QMimeData>();
    if (const QMimeData* before = clipboard->mimeData(); before != nullptr && before->hasText())
        data->setText(before->text());
    data->setImageData(image);
    return SetClipboard(std::move(data));
}

std::optional<Picture> QtPlatform::CapturePicture(const Control& control)
{
    const double ratio = widget.devicePixelRatioF();
    Picture picture = {"image/png", pictures.Png(control, ratio),
                       qRound(control.Surface.DeviceWidth() * ratio),
                       qRound(control.Surface.DeviceHeight() * ratio)};
    if (picture.Bytes.empty())
        return std::nullopt;
    return picture;
}

bool QtPlatform::PrintPicture(const Control& control, const PagePlace& place)
{
    if (Printer != nullptr)
        return PrintOnPage(*Printer, control, place, fonts);
    QPrinter printer(QPrinter::HighResolution);
    const QPointer<QPrintDialog> form(new QPrintDialog(&printer, &widget));
    const bool accepted = form->exec() == QDialog::Accepted;
    const bool alive = !form.isNull();
    delete form;
    return accepted && alive && PrintOnPage(printer, control, place, fonts);
}

void QtPlatform::PropertyChanged(std::string_view name)
{
    widget.TellPropertyChanged(name);
}

void QtPlatform::Repaint()
{
    widget.PictureChanged();
}

void QtPlatform::DoEvents()
{
    QCoreApplication::processEvents();
}

} // namespace Traces
