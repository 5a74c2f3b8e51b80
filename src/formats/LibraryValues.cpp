#include "formats/LibraryValues.h"

namespace Traces {

LibraryValues& Library()
{
    thread_local LibraryValues values;
    return values;
}

} // namespace Traces
