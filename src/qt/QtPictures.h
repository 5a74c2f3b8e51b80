// The picture files that Qt draws: PNG and PDF of a control.
#pragma once

#include "output/PictureBackEnd.h"
#include "qt/SizedFonts.h"

#include <QtGlobal>

namespace Traces {

/// Needs a QGuiApplication, whose fonts it draws with, and belongs to the thread that it was made in.
class QtPictures final : public PictureBackEnd {
public:
    const QtMetrics& Metrics() const override { return metrics; }

    /// Empty when the picture is wider or higher than 32767 pixels, or there is no memory for it.
    std::string Png(const Control& control, double pixelRatio) override;
    std::string Pdf(const Control& control) override;

private:
    QtMetrics metrics;
    SizedFonts fonts{metrics};
};

} // namespace Traces

/// The calling thread's pictures; a program without a QGuiApplication gets one that needs no display. A host
/// with an application of its own makes it first. Null when there is a QCoreApplication that can't draw.
/// The first call comes from the main thread.
extern "C" Q_DECL_EXPORT Traces::PictureBackEnd* TracesPictureBackEnd();
