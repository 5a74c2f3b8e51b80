#include <formats/LibraryValues.h>

int main() { return Traces::Library().TraceVersionValue == 0 ? 0 : 1; }
