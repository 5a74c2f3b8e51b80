// The control's surroundings in a Qt program: message boxes, dialogs, popup menus, clipboard, printer. What
// opens here runs its own event loop, in which the host may close the window and the control with it.
#pragma once

#include "control/Platform.h"
#include "qt/QtPictures.h"
#include "qt/widgets/PrintedPage.h"

#include <QPoint>
#include <QPointer>

#include <optional>

class QPrinter;
class QWidget;

namespace Traces {

class PlotWidget;
class ProgressForm;

class QtPlatform final : public Platform {
public:
    /// The widget outlives the platform, which paints with its fonts.
    explicit QtPlatform(PlotWidget& widget);
    ~QtPlatform() override;
    QtPlatform(const QtPlatform&) = delete;
    QtPlatform& operator=(const QtPlatform&) = delete;

    /// Where the next popup menu opens, in pixels of the screen; at the mouse without it.
    std::optional<QPoint> MenuPlace;

    /// What PrintTrace prints on; not owned. Without one the user is asked.
    QPrinter* Printer = nullptr;

    /// What unscrambles a power meter's comma form.
    std::array<std::uint8_t, 7> Scramble{};

    void MessageBox(const Message& message) override;
    std::optional<std::string> GetSaveFileNameA(const SaveDialog& dialog) override;
    std::optional<std::string> InputBox(std::string_view prompt, std::string_view title,
                                        std::string_view initial) override;
    std::optional<MenuChoice> PopupMenu(const Menu& menu) override;
    void ShowParameters(const std::vector<std::string>& lines) override;
    void BeginProgress(std::string_view title, std::string_view label) override;
    bool UpdateProgress(int percent) override;
    void EndProgress() override;
    bool ClearClipboard() override;
    bool SetClipboardText(std::string_view text) override;
    bool SetClipboardPicture(const Picture& picture) override;
    std::optional<Picture> CapturePicture(const Control& control) override;
    bool PrintPicture(const Control& control, const PagePlace& place) override;
    void PropertyChanged(std::string_view name) override;
    void Repaint() override;
    void DoEvents() override;
    const TextMetrics& Metrics() const override { return pictures.Metrics(); }
    std::array<std::uint8_t, 7> ScrambleTable() const override { return Scramble; }

    QtPictures& Pictures() { return pictures; }
    SizedFonts& Fonts() { return fonts; }

private:
    PlotWidget& widget;
    QtPictures pictures;
    SizedFonts fonts{pictures.Metrics()};
    QPointer<ProgressForm> progress;
};

} // namespace Traces
