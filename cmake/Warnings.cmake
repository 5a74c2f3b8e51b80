# One interface target carries the warnings that count as errors in every target of ours.
add_library(TracesWarnings INTERFACE)
target_compile_options(TracesWarnings INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow -Wold-style-cast
    -Wnon-virtual-dtor -Woverloaded-virtual -Werror)
