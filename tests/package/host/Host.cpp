#include <formats/FormatValue.h>

int main()
{
    return Traces::FormatValue(2.675F, "#0.00 dB") == "2.68 dB" ? 0 : 1;
}
