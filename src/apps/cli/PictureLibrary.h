// The Qt layer, opened when a picture that the core can't write is asked for. Everything else works where Qt
// is absent.
#pragma once

#include "output/PictureBackEnd.h"

#include <string>

namespace Traces::Cli {

/// The back end of the library beside the program, or of the one that the system finds. Null, with
/// `problem` told, when there is none. It stays open until the program ends.
PictureBackEnd* OpenPictureBackEnd(std::string& problem);

} // namespace Traces::Cli
