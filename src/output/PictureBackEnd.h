// Picture files that the core can't write itself, as a program without Qt sees them: the Qt layer is opened
// when such a file is asked for, and not before.
#pragma once

#include "control/Screen.h"

#include <optional>
#include <string>

namespace Traces {

struct Control;

class PictureBackEnd {
public:
    virtual ~PictureBackEnd() = default;

    /// Metrics of the fonts that it draws with. A control whose pictures it writes is laid out with them.
    virtual const TextMetrics& Metrics() const = 0;

    /// The picture as PNG bytes, `pixelRatio` device pixels to a pixel of the control.
    virtual std::string Png(const Control& control, double pixelRatio) = 0;

    /// The picture as a PDF page of the control's size, with its lines and texts as vectors.
    virtual std::string Pdf(const Control& control) = 0;
};

/// The one function that the Qt layer's shared library is opened for. What it points to belongs to the
/// library; null when no picture can be made.
inline constexpr const char* PictureBackEndSymbol = "TracesPictureBackEnd";
using PictureBackEndFunction = PictureBackEnd* (*)();

} // namespace Traces
