#include "apps/cli/Program.h"

#include "apps/cli/Commands.h"

#include <CLI/CLI.hpp>
#include <functional>
#include <utility>

namespace Traces::Cli {

namespace {

using Command = std::function<int()>;

/// The options of a subcommand, for the list of formats.
std::vector<OptionHelp> OptionsOf(const CLI::App& command)
{
    std::vector<OptionHelp> options;
    for (const CLI::Option* option : command.get_options())
        if (!option->get_positional() && option->get_name() != "--help")
            options.push_back({option->get_name(false, true), option->get_description()});
    return options;
}

/// An option whose text a parser turns into a value; `wants` says what the parser takes.
template <class Value, class Parse>
CLI::Option* AddParsed(CLI::App& command, const std::string& name, const std::string& wants,
                       const std::string& description, Parse parse, std::function<void(Value)> take)
{
    const auto read = [=](const CLI::results_t& texts) {
        for (const std::string& text : texts) {
            const auto value = parse(text);
            if (!value)
                throw CLI::ValidationError(name, std::string(text).append(" isn't ").append(wants));
            take(*value);
        }
        return true;
    };
    return command.add_option(name, read, description)->type_size(1);
}

void AddInfo(CLI::App& program, Console& console, Command& chosen, InfoOptions& options)
{
    CLI::App* command = program.add_subcommand("info", "Header and parameters; several files as a table");
    command->add_option("FILE", options.Files, "Raw or text traces, - for standard input")->required();
    command->add_flag("--json", options.Json, "One JSON object a file, one a line");
    command->callback([&] { chosen = [&] { return RunInfo(console, options); }; });
}

CLI::App* AddRender(CLI::App& program, Console& console, Command& chosen, RenderOptions& options)
{
    CLI::App* command = program.add_subcommand("render", "Pictures: SVG, PNG or PDF");
    command->add_option("FILE", options.Files, "Raw or text traces, - for standard input")->required();
    command->add_option("-o,--output", options.Out, "Picture, a folder for several, - for standard output")
        ->type_name("OUT")
        ->required();
    AddParsed<PictureFormat>(*command, "--format", "svg, png or pdf",
                             "svg, png or pdf; else by the name of OUT, and svg in a folder", PictureFormatOf,
                             [&](PictureFormat format) { options.Format = format; })
        ->type_name("FORMAT");
    AddParsed<PictureSize>(*command, "--size", "WIDTHxHEIGHT, each from 1 to 16384",
                           "Size in pixels; 550x480, 911x480 with --params", ParseSize,
                           [&](PictureSize size) { options.Size = size; })
        ->type_name("WxH");
    command->add_flag("--params", options.Params, "With the summary pane beside the chart");
    command->add_option("--view", options.View, "Sub view of a mode that has several")->type_name("NAME");
    AddParsed<MarkerRequest>(*command, "--marker", "N@X, with a marker N from 1 to 6",
                             "Marker 1 to 6 at the point nearest to X; may be given again", ParseMarker,
                             [&](MarkerRequest marker) { options.Markers.push_back(marker); })
        ->type_name("N@X")
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
    AddParsed<ZoomRequest>(*command, "--zoom", "X1,X2,Y1,Y2, with ends that differ",
                           "Window in the chart's units", ParseZoom,
                           [&](ZoomRequest zoom) { options.Zoom = zoom; })
        ->type_name("X1,X2,Y1,Y2");
    command->add_flag("--results", options.Results,
                      "Results below the chart in place of the markers' readouts, where a view has both");
    command->add_flag("--autoscale", options.AutoScale, "Y axis by the data");
    command->callback([&] { chosen = [&] { return RunRender(console, options); }; });
    return command;
}

CLI::App* AddConvert(CLI::App& program, Console& console, Command& chosen, ConvertOptions& options)
{
    CLI::App* command = program.add_subcommand("convert", "Text trace file, CSV or Touchstone");
    command->add_option("IN", options.In, "Raw or text trace, - for standard input")->required();
    command->add_option("OUT", options.Out, "File to write, - for standard output")->required();
    command->add_option("--to", options.Format, "text, csv or s1p; else by the name of OUT")
        ->type_name("FORMAT");
    command->callback([&] { chosen = [&] { return RunConvert(console, options); }; });
    return command;
}

void AddUpload(CLI::App& program, Console& console, Command& chosen, UploadOptions& options)
{
    CLI::App* command =
        program.add_subcommand("upload", "The frame in which an instrument takes a trace back");
    command->add_option("FILE", options.File, "Raw or text trace, - for standard input")->required();
    command->add_option("-o,--output", options.Frame, "File to write, - for standard output")
        ->type_name("FRAME")
        ->required();
    command->callback([&] { chosen = [&] { return RunUpload(console, options); }; });
}

void AddVerify(CLI::App& program, Console& console, Command& chosen, std::vector<std::string>& files)
{
    CLI::App* command =
        program.add_subcommand("verify", "Checksums of text trace files; fails unless all are OK");
    command->add_option("FILE", files, "Text traces, - for standard input")->required();
    command->callback([&] { chosen = [&] { return RunVerify(console, files); }; });
}

void AddScript(CLI::App& program, Console& console, Command& chosen, std::string& file)
{
    CLI::App* command = program.add_subcommand(
        "script", "The control without a window: a call a line in, a JSON object a line out");
    command->add_option("FILE", file, "The calls, standard input without it");
    command->callback([&] { chosen = [&] { return RunScript(console, file); }; });
}

} // namespace

int RunProgram(Console& console, const std::vector<std::string>& arguments)
{
    CLI::App program("Reads, draws, converts and checks measurement traces.", "traces");
    program.set_version_flag("--version", "traces " TRACES_VERSION);
    program.require_subcommand(1);

    Command chosen;
    InfoOptions info;
    RenderOptions render;
    ConvertOptions convert;
    UploadOptions upload;
    std::vector<std::string> verify;
    std::string script(StandardStream);
    AddInfo(program, console, chosen, info);
    CLI::App* renderCommand = AddRender(program, console, chosen, render);
    CLI::App* convertCommand = AddConvert(program, console, chosen, convert);
    AddUpload(program, console, chosen, upload);
    AddVerify(program, console, chosen, verify);
    program.add_subcommand("formats", "What is read and written, with which options")->callback([&] {
        chosen = [&] { return RunFormats(console, OptionsOf(*renderCommand), OptionsOf(*convertCommand)); };
    });
    AddScript(program, console, chosen, script);

    try {
        program.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
    } catch (const CLI::ParseError& error) {
        if (error.get_exit_code() != 0)
            return console.Usage(error.what());
        program.exit(error, console.Out, console.Err);
        return console.ExitStatus();
    }
    return chosen();
}

} // namespace Traces::Cli
