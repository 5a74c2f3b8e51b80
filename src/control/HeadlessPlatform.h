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

    void MessageBox(const Message& message) override { Messages.push_back(message); }
    std::optional<std::string> GetSaveFileNameA(const SaveDialog& dialog) override;
    void Repaint() override {}
    const TextMetrics& Metrics() const override { return metrics; }

private:
    const TextMetrics& metrics;
};

} // namespace Traces
