// The fonts of a painter in the sizes that pictures ask for. They keep their painted letters, so whoever
// draws one picture after another keeps them.
#pragma once

#include "qt/QtMetrics.h"

#include <QRawFont>

#include <vector>

namespace Traces {

/// Belongs to the thread that it was made in, and needs a QGuiApplication.
class SizedFonts {
public:
    /// The metrics outlive it.
    explicit SizedFonts(const QtMetrics& metrics);

    const QtMetrics& Metrics() const { return metrics; }

    /// Fractions of a pixel count: a QFont would round them, and texts would leave the room that was measured
    /// for them. The font is valid until the next call.
    const QRawFont& Sized(bool bold, double pixels);

private:
    struct Entry {
        bool Bold;
        double Pixels;
        QRawFont Sized;
    };

    const QtMetrics& metrics;
    QRawFont regular, bold;
    std::vector<Entry> entries;
};

} // namespace Traces
