// Everything that the control asks of its surroundings. A host's window system implements it; without a
// window HeadlessPlatform does. The control never opens a window itself.
#pragma once

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

class Platform {
public:
    virtual ~Platform() = default;

    /// Shows a box and returns when it is closed.
    virtual void MessageBox(const Message& message) = 0;

    /// The name that the user confirmed; nothing when the dialog was cancelled.
    virtual std::optional<std::string> GetSaveFileNameA(const SaveDialog& dialog) = 0;

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
