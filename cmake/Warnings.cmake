# One interface target carries the warnings that count as errors in every target of ours.
add_library(TracesWarnings INTERFACE)
target_compile_options(TracesWarnings INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow -Wold-style-cast
    -Wnon-virtual-dtor -Woverloaded-virtual -Werror
    # GCC 12 reports impossible overlaps inside its own std::string when it is optimised.
    $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
