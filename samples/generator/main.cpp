// traces-samples: writes the sample traces into a folder, or prints the facts that stand in
// samples/README.md.
#include "Sample.h"

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace {

using namespace Traces::Samples;

// A value nearer to a rounding tie than this might flip by the last bit of a sine or square root.
constexpr double SafeTie = 1e-6;

std::vector<Sample> AllSamples()
{
    std::vector<Sample> samples;
    for (const auto family :
         {VnaFrequencySamples, VnaDistanceSamples, SpectrumSamples, PowerSamples, LineTestSamples,
          CdmaSamples, EvdoSamples, GsmSamples, IdenSamples, GpsSamples}) {
        std::vector<Sample> made = family();
        samples.insert(samples.end(), std::make_move_iterator(made.begin()),
                       std::make_move_iterator(made.end()));
    }
    return samples;
}

void PrintFacts(const std::vector<Sample>& samples)
{
    std::cout << "| File | What it shows | Mode | Version | Points | Bytes |\n|---|---|---|---|---|---|\n";
    for (const Sample& sample : samples) {
        std::cout << "| " << sample.FileName << " | " << sample.Shows << " | "
                  << static_cast<int>(sample.Raw[15]) << " | " << RawChars(sample.Raw, 12, 4) << " | "
                  << RawI16(sample.Raw, 55) << " | " << sample.Raw.size() << " |\n";
    }
    for (const Sample& sample : samples) {
        std::cout << "\n### " << sample.FileName << "\n";
        for (const std::string& fact : sample.Facts)
            std::cout << "- " << fact << "\n";
    }
}

bool WriteSample(const Sample& sample, const std::filesystem::path& folder)
{
    if (sample.NearestTie < SafeTie) {
        std::cerr << sample.FileName << ": a value lies on a rounding tie; change the seed of its noise\n";
        return false;
    }
    const std::filesystem::path path = folder / sample.FileName;
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    for (const std::uint8_t byte : sample.Raw)
        file.put(static_cast<char>(byte));
    file.close();
    if (!file)
        std::cerr << path.string() << ": cannot be written\n";
    return !file.fail();
}

int WriteSamples(const std::vector<Sample>& samples, const std::filesystem::path& folder)
{
    std::error_code failure;
    std::filesystem::create_directories(folder, failure);
    if (failure) {
        std::cerr << folder.string() << ": " << failure.message() << "\n";
        return 1;
    }
    bool written = true;
    for (const Sample& sample : samples)
        written = WriteSample(sample, folder) && written;
    return written ? 0 : 1;
}

} // namespace

int main(int count, char** arguments)
{
    const std::vector<std::string_view> words(arguments + 1, arguments + count);
    if (words.size() > 1 || (words.size() == 1 && words[0].starts_with("-") && words[0] != "--facts")) {
        std::cerr << "usage: traces-samples [FOLDER]   write the sample traces (into samples/raw)\n"
                     "       traces-samples --facts    print what they hold\n";
        return 2;
    }
    const std::vector<Sample> samples = AllSamples();
    if (words.size() == 1 && words[0] == "--facts") {
        PrintFacts(samples);
        return 0;
    }
    return WriteSamples(samples, words.empty() ? TRACES_SAMPLES_FOLDER : words[0]);
}
