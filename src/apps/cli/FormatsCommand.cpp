// `traces formats`: what is read and written. Modes and extensions come from the tables that the control
// works by, so that only what exists is listed.
#include "apps/cli/Commands.h"
#include "apps/cli/CurveExport.h"
#include "apps/cli/Output.h"
#include "control/ModeTable.h"
#include "formats/TraceMode.h"

#include <iomanip>

namespace Traces::Cli {

namespace {

void ListModes(std::ostream& out)
{
    out << "Raw traces, whatever the file is called, by the mode in their header:\n";
    for (const ModeRow& row : AllFamilies.Modes)
        if (row.Decode != nullptr)
            out << "  " << std::setw(3) << int{row.Mode} << "  " << ModeName(row.Mode) << '\n';
    out << "Text trace files with a right checksum, whatever they are called, by their line \"Mode:\":\n";
    for (const FileKind& kind : AllFamilies.Files) {
        out << "  ." << LowerCase(kind.Extension) << ":";
        const char* separator = " ";
        for (const ModeRow& row : AllFamilies.Modes)
            if (row.TextFile != nullptr && row.TextFile->Load == kind.Load) {
                out << separator << ModeName(row.Mode);
                separator = ", ";
            }
        out << '\n';
    }
}

/// The modes of a test, as numbers.
template <class Test>
std::string ModesOf(Test test)
{
    std::string modes;
    for (const ModeRow& row : AllFamilies.Modes)
        if (test(row))
            modes += (modes.empty() ? "" : ", ") + std::to_string(row.Mode);
    return modes;
}

void ListOptions(std::ostream& out, std::span<const OptionHelp> options)
{
    for (const OptionHelp& option : options)
        out << "      " << std::left << std::setw(16) << option.Name << std::right << option.Description
            << '\n';
}

} // namespace

int RunFormats(Console& console, std::span<const OptionHelp> renderOptions,
               std::span<const OptionHelp> convertOptions)
{
    std::ostream& out = console.Out;
    out << "READ\n";
    ListModes(out);
    out << "\nWRITTEN\n"
        << "Pictures, by traces render: .svg, and with the Qt layer .png and .pdf\n";
    ListOptions(out, renderOptions);
    out << "Files, by traces convert:\n  text trace files, by the extensions above\n"
        << "  .csv  table of the curve, modes "
        << ModesOf([](const ModeRow& row) { return HasCsv(row.Mode); })
        << "\n  .s1p  Touchstone, one port, modes "
        << ModesOf([](const ModeRow& row) { return HasTouchstone(row.Mode); }) << '\n';
    ListOptions(out, convertOptions);
    out << "Upload frames, by traces upload: of raw traces of the modes "
        << ModesOf([](const ModeRow& row) { return row.EncodeRaw != nullptr; }) << ", of text trace files";
    for (const FileKind& kind : AllFamilies.Files)
        if (kind.EncodeText != nullptr)
            out << " ." << LowerCase(kind.Extension);
    out << "\nHeader and parameters, by traces info: lines, a table of several files, JSON\n";
    return console.ExitStatus();
}

} // namespace Traces::Cli
