// A host program in one page: shows a raw trace file, prints its parameters, draws it, saves it as text.
#include <control/HeadlessPlatform.h>
#include <control/Plot.h>
#include <formats/HostFault.h>
#include <fstream>
#include <iostream>
#include <iterator>
#include <output/Svg.h>

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::cerr << "usage: host TRACE.raw\n";
        return 2;
    }
    std::ifstream file(argv[1], std::ios::binary);
    const std::vector<char> bytes(std::istreambuf_iterator<char>(file), {});

    // The platform is what the control asks for dialogs, messages and fonts. This one has no window: its
    // answers are set beforehand, and its messages can be read back.
    Traces::HeadlessPlatform platform;
    Traces::Plot plot(platform);
    try {
        if (!plot.DisplayTrace({bytes.data(), bytes.size()})) {
            std::cerr << argv[1] << " is no trace that I know\n";
            return 1;
        }
        plot.TraceName("First light");
        std::ofstream("trace.svg") << Traces::SvgPicture(plot.Instance());

        std::string name = "trace.vna";
        platform.Answers = {name};
        if (!plot.SaveTrace(name))
            return 1;
    } catch (const Traces::HostFault& fault) {
        std::cerr << argv[1] << ": " << fault.what() << '\n';
        return 1;
    }
    for (const auto& line : plot.Parameters())
        std::cout << line << '\n';
    return 0;
}
