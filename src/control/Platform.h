// Everything that the control asks of its surroundings. A host's window system implements it; without a
// window HeadlessPlatform does. The control never opens a window itself. What opens a dialog or a menu may
// let events through, and one of those may destroy the control.
#pragma once

#include "control/Menu.h"
#include "control/Screen.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Traces {

enum class MessageIcon { None, Stop, Information };

struct Message {
    std::string Title, Text;
    MessageIcon Icon = MessageIcon::None;
};

/// What the save dialog opens with.
struct SaveDialog {
    struct Filter {
        std::string Text, Pattern;
    };
    std::string Title;
    std::string FileName; ///< the proposal, 256 characters at most
    std::vector<Filter> Filters;
    int FilterIndex = 0; ///< selected entry, from 1
    std::string DefaultExtension;
    bool OverwritePrompt = true;
};

/// A bitmap or vector picture of the control, in a file format that its type names.
struct Picture {
    std::string MimeType; ///< "image/png", "image/svg+xml"
    std::string Bytes;
    int Width = 0, Height = 0; ///< pixels
};

/// Where a picture goes on a page: parts of the page's width and height, 1 for the whole.
struct PagePlace {
    double Left = 0, Top = 0, Width = 1, Height = 1;
};

struct Control;

class Platform {
public:
    virtual ~Platform() = default;

    /// Shows a box and returns when it is closed.
    virtual void MessageBox(const Message& message) = 0;

    /// The name that the user confirmed; nothing when the dialog was cancelled.
    virtual std::optional<std::string> GetSaveFileNameA(const SaveDialog& dialog) = 0;

    /// The text that the user entered; nothing when the box was cancelled.
    virtual std::optional<std::string> InputBox(std::string_view prompt, std::string_view title,
                                                std::string_view initial) = 0;

    /// Opens a popup menu at the mouse and returns when an item is chosen, or none.
    virtual std::optional<MenuChoice> PopupMenu(const Menu& menu) = 0;

    /// The trace parameters form: lines of key, tab, value.
    virtual void ShowParameters(const std::vector<std::string>& lines) = 0;

    /// The progress form, for a job that takes the user's time: title, label and a bar, with a button whose
    /// question "Interrupt the current process?" the form itself asks. An update lets events through; False
    /// when the user has interrupted. A platform without a form lets the job run.
    /// @{
    virtual void BeginProgress(std::string_view /*title*/, std::string_view /*label*/) {}
    virtual bool UpdateProgress(int /*percent*/)
    {
        DoEvents();
        return true;
    }
    virtual void EndProgress() {}
    /// @}

    /// The clipboard. False when the system refuses.
    virtual bool ClearClipboard() = 0;
    virtual bool SetClipboardText(std::string_view text) = 0;
    virtual bool SetClipboardPicture(const Picture& picture) = 0;

    /// The whole control as a bitmap; nothing when this platform has no painter of its own.
    virtual std::optional<Picture> CapturePicture(const Control& /*control*/) { return std::nullopt; }

    /// Prints the control on one page. False when there is no printer or it was cancelled.
    virtual bool PrintPicture(const Control& control, const PagePlace& place) = 0;

    /// A stored property has changed, by its name in the property bag.
    virtual void PropertyChanged(std::string_view /*name*/) {}

    /// The control's picture has changed.
    virtual void Repaint() = 0;

    /// Density of the screen in twips a pixel: 15 at 96 dots per inch.
    virtual float TwipsPerPixelX() const { return 15; }
    virtual float TwipsPerPixelY() const { return 15; }

    /// Metrics of the fonts that the screen will draw with; outlives the control.
    virtual const TextMetrics& Metrics() const { return BuiltInMetrics(); }

    /// Milliseconds of a steady clock, and one pass of the event loop.
    virtual std::uint32_t GetTickCount();
    virtual void DoEvents() {}

    /// Folder for temporary files; empty when there is none.
    virtual std::string GetTempPathA();

    /// Makes an empty file with a new name, beginning with the prefix, in a folder, whose name ends in its
    /// separator. Its path; empty when it can't be made.
    virtual std::string GetTempFileNameA(const std::string& folder, std::string_view prefix);

    /// The checksum library: writes the checksum of a file over its field. The file is a copy, or one that
    /// takes its own name only when it is finished. The key text chooses which result means success. Exchange
    /// it to read and write files that the instruments' own tools accept.
    virtual std::int32_t TavrixChecksumStdCall(const std::string& path, std::string_view key);

    /// The seven values that unscramble a power meter's comma form; all zero reads an unscrambled one.
    virtual std::array<std::uint8_t, 7> ScrambleTable() const { return {}; }
};

/// Waits for a span, letting events through all the time.
void WaitTicks(Platform& platform, std::uint32_t milliseconds);

} // namespace Traces
