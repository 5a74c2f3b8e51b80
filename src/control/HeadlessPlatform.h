// The platform without a window: answers are set beforehand, messages can be read back. The command line
// runs on it, and so do the tests.
#pragma once

#include "control/Platform.h"

#include <deque>
#include <string>
#include <vector>

namespace Traces {

class HeadlessPlatform : public Platform {
public:
    explicit HeadlessPlatform(const TextMetrics& textMetrics = BuiltInMetrics()) : metrics(textMetrics) {}

    /// The next dialogs' answers, in order; a dialog without one is cancelled.
    std::deque<std::string> Answers;

    /// Boxes shown and dialogs opened since the lists were last cleared.
    std::vector<Message> Messages;
    std::vector<SaveDialog> SaveDialogs;
    std::vector<Menu> Menus;
    std::vector<std::string> ChangedProperties;
    std::vector<std::vector<std::string>> ShownParameters;

    /// What the next popup menus choose, in order; a menu without one is closed.
    std::deque<MenuChoice> Choices;

    /// The clipboard, and whether the system refuses it.
    std::string ClipboardText;
    std::optional<Picture> ClipboardPicture;
    bool ClipboardFails = false;

    /// Pages printed.
    std::vector<PagePlace> Pages;

    /// What unscrambles a power meter's comma form.
    std::array<std::uint8_t, 7> Scramble{};

    /// Progress forms opened and how many still are; the percentages shown, and the one from which on the
    /// user interrupts.
    std::vector<std::string> ProgressTitles;
    int OpenProgressForms = 0;
    std::vector<int> ProgressPercents;
    std::optional<int> InterruptAt;

    void MessageBox(const Message& message) override { Messages.push_back(message); }
    std::optional<std::string> GetSaveFileNameA(const SaveDialog& dialog) override;
    std::optional<std::string> InputBox(std::string_view prompt, std::string_view title,
                                        std::string_view initial) override;
    std::optional<MenuChoice> PopupMenu(const Menu& menu) override;
    void ShowParameters(const std::vector<std::string>& lines) override { ShownParameters.push_back(lines); }
    void BeginProgress(std::string_view title, std::string_view label) override;
    bool UpdateProgress(int percent) override;
    void EndProgress() override { --OpenProgressForms; }
    bool ClearClipboard() override;
    bool SetClipboardText(std::string_view text) override;
    bool SetClipboardPicture(const Picture& picture) override;
    bool PrintPicture(const Control& control, const PagePlace& place) override;
    void PropertyChanged(std::string_view name) override { ChangedProperties.emplace_back(name); }
    void Repaint() override {}
    const TextMetrics& Metrics() const override { return metrics; }
    std::array<std::uint8_t, 7> ScrambleTable() const override { return Scramble; }

private:
    std::optional<std::string> NextAnswer();

    const TextMetrics& metrics;
};

} // namespace Traces
