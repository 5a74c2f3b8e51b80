// The program as its users run it: arguments and files in, files, texts and exit statuses out.
#include "cli/CliRun.h"

#include <cstdlib>
#include <nlohmann/json.hpp>

namespace Traces::Cli {
namespace {

using Testing::ContentOf;
using Testing::RunCli;
using Testing::SampleName;
using Testing::ThreePointSweep;

using Names = std::vector<std::string>;

class Program : public Testing::InFolder {
protected:
    /// A text trace file of the three-point sweep.
    std::string TextFile(const std::string& name = "text.vna")
    {
        EXPECT_EQ(RunCli({"convert", Put("three.raw", ThreePointSweep()), Path(name)}).Status, 0);
        return Path(name);
    }

    /// The output of a shell command, errors included.
    std::string OutputOf(const std::string& command) const
    {
        EXPECT_NE(std::system((command + " >" + Path("output") + " 2>&1").c_str()), -1);
        return ContentOf(Path("output"));
    }
};

TEST_F(Program, TellsWrongUsageFromFailure)
{
    const std::string raw = Put("a.raw", ThreePointSweep());
    const std::string picture = Path("a.svg");
    const std::pair<Names, int> cases[] = {
        {{}, 2},
        {{"--help"}, 0},
        {{"render", "--help"}, 0},
        {{"--version"}, 0},
        {{"formats"}, 0},
        {{"paint", raw}, 2},
        {{"info"}, 2},
        {{"info", raw, "--xml"}, 2},
        {{"render", raw}, 2},
        {{"render", raw, "-o", Path("a.bmp")}, 2},
        {{"render", raw, "-o", picture, "--format", "bmp"}, 2},
        {{"render", raw, "-o", picture, "--size", "0x480"}, 2},
        {{"render", raw, "-o", picture, "--size", "550"}, 2},
        {{"render", raw, "-o", picture, "--size", "16385x480"}, 2},
        {{"render", raw, "-o", picture, "--marker", "0@850"}, 2},
        {{"render", raw, "-o", picture, "--marker", "1@nan"}, 2},
        {{"render", raw, "-o", picture, "--zoom", "850,850,-10,0"}, 2},
        {{"render", raw, "-o", picture, "--zoom", "830,850,-10"}, 2},
        {{"render", raw, "-o", picture, "--zoom", "830,850,-10,0,1"}, 2},
        {{"render", raw, raw, "-o", "-", "--format", "svg"}, 2},
        {{"convert", raw}, 2},
        {{"convert", raw, Path("a")}, 2},
        {{"convert", raw, Path("a.doc")}, 2},
        {{"render", raw, "-o", picture, "--view", "Other"}, 1},
        {{"render", raw, "-o", Path("no/folder.svg")}, 1},
        {{"render", raw, "-o", raw, "--format", "svg"}, 1},
        {{"upload", raw, "-o", folder.string()}, 1},
        {{"upload", raw, "-o", "/dev/full"}, 1},
    };
    for (const auto& [arguments, status] : cases) {
        const auto result = RunCli(arguments);
        EXPECT_EQ(result.Status, status) << testing::PrintToString(arguments);
        EXPECT_EQ(std::ranges::count(result.Err, '\n'), status == 0 ? 0 : 1) << result.Err;
    }
    EXPECT_EQ(Names{"a.raw"}, FilesIn());
}

TEST_F(Program, NamesEachBadFileOnceAndDoesTheOthers)
{
    const std::string good = Put("good.raw", ThreePointSweep());
    const std::string text = ContentOf(TextFile());
    std::string spoilt = text;
    spoilt[text.find("824") + 2] = '5';
    std::string otherMode = text;
    otherMode.replace(text.find("RL Frequency"), 12, "Unknown(C8)");
    const struct {
        std::string name, content, problem;
    } cases[] = {
        {"empty", "", "is empty"},
        {"cut.raw", ThreePointSweep().substr(0, 200),
         "is cut off: its header tells 348 bytes, there are 200"},
        {"noise.raw", std::string(200, '\xF3'), "isn't a trace"},
        {"tiny.raw", std::string(1, '\1'), "isn't a trace"},
        {"huge.raw", std::string(40000, '\1'), "isn't a trace: 40000 bytes are more than one has"},
        {"mode.raw", ThreePointSweep(200), "mode that isn't supported, 200 (Unknown(C8))"},
        {"spoilt.vna", spoilt, "its checksum is wrong"},
        {"cut.vna", text.substr(0, text.size() / 2), "its checksum is wrong"},
        {"bare.vna", text.substr(text.find('\n') + 1), "has no checksum"},
        {"other.vna", otherMode, "mode that isn't supported, \"Unknown(C8)\""},
        {"nomode.vna", "CHECKSUM=0000000000\r\nA\tB\r\n", "has no line \"Mode:\""},
        {"new\nline", "", "new?line: is empty"},
    };
    for (const auto& c : cases) {
        const auto result = RunCli({"info", Put(c.name, c.content), good});
        EXPECT_EQ(result.Status, 1) << c.name;
        EXPECT_NE(result.Err.find(c.problem), std::string::npos) << c.name << ": " << result.Err;
        EXPECT_EQ(std::ranges::count(result.Err, '\n'), 1) << result.Err;
        EXPECT_NE(result.Out.find("good.raw"), std::string::npos) << c.name;
    }
    for (const std::string& name : {Path("missing"), folder.string(), std::string("/dev/zero")})
        EXPECT_EQ(RunCli({"info", name}).Status, 1) << name;
}

TEST_F(Program, ATraceWithoutACurveStillHasItsRecord)
{
    const struct {
        std::string name, content, problem;
    } cases[] = {
        {"one.raw", Traces::Testing::RawSweep(0, {7}).AsText(), "one data point has no frequency step"},
        {"none.raw", Traces::Testing::RawSweep(0, {}).AsText(), "0 data points make no curve"},
    };
    for (const auto& c : cases) {
        const std::string raw = Put(c.name, c.content);
        EXPECT_NE(RunCli({"info", raw}).Out.find("Start Frequency:\t824"), std::string::npos) << c.name;
        EXPECT_EQ(RunCli({"convert", raw, Path("saved.vna")}).Status, 0) << c.name;
        for (const auto& result :
             {RunCli({"render", raw, "-o", Path("a.svg")}), RunCli({"convert", raw, Path("a.csv")})}) {
            EXPECT_EQ(result.Status, 1) << c.name;
            EXPECT_NE(result.Err.find(c.problem), std::string::npos) << result.Err;
        }
    }
}

TEST_F(Program, TellsTheFormByTheContentWhateverTheNameAndThePath)
{
    const std::string raw = Put("pa.th/.hidden/odd \"name\".vna", ThreePointSweep());
    const std::string text = Put("te.xt/looks.raw", ContentOf(TextFile()));
    EXPECT_EQ(RunCli({"info", raw}).Out, RunCli({"info", "-"}, ThreePointSweep()).Out);
    const auto result = RunCli({"info", text, "--json"});
    EXPECT_EQ(nlohmann::json::parse(result.Out)["form"], "text");
    EXPECT_EQ(nlohmann::json::parse(RunCli({"info", raw, "--json"}).Out)["form"], "raw");
}

TEST_F(Program, InfoListsHeaderAndParameters)
{
    const std::string out = RunCli({"info", SampleName("rl_gsm900_band_edges_2pts.raw")}).Out;
    for (const char* line : {"Mode:\tRL Frequency\n", "Ref Number:\tEDGES\n", "Start Frequency:\t880\n",
                             "VNA Signal Std:\tGSM 900\n", "Data point 1:\t-15.19401\t-152.5\n"})
        EXPECT_NE(out.find(line), std::string::npos) << line;
    // A loaded text lists its record too, not its header alone.
    EXPECT_NE(RunCli({"info", TextFile()}).Out.find("Data point 2:\t0\t"), std::string::npos);
    // What could steer a terminal doesn't reach it.
    std::string raw = ThreePointSweep();
    raw.replace(38, 5, "\x1B[2J\x9D");
    EXPECT_EQ(RunCli({"info", "-"}, raw).Out.find_first_of("\x1B\r"), std::string::npos);
}

TEST_F(Program, InfoAlignsSeveralFilesAsATable)
{
    const std::string wide = Put("\xC3\xA9.raw", ThreePointSweep(1));
    std::filesystem::current_path(folder);
    Put("long-name.raw", ThreePointSweep());
    EXPECT_EQ(RunCli({"info", "\xC3\xA9.raw", "long-name.raw"}).Out,
              "File           Type  Mode           Points  Start   Stop  Ref     Date\n"
              "\xC3\xA9.raw          SWR   SWR Frequency       3    824  894.5  TOWER7  11/22/2026\n"
              "long-name.raw  RL    RL Frequency        3    824  894.5  TOWER7  11/22/2026\n");
}

TEST_F(Program, ConvertsToTextThatVerifiesAndConvertsToItself)
{
    const std::string first = TextFile("first.vna");
    EXPECT_EQ(RunCli({"verify", first}).Out, first + ": OK\n");
    // A loaded file's standard doesn't come back: the control keeps it from files.
    ASSERT_EQ(RunCli({"convert", first, Path("second.vna")}).Status, 0);
    ASSERT_EQ(RunCli({"convert", Path("second.vna"), Path("third.VNA")}).Status, 0);
    EXPECT_EQ(ContentOf(Path("second.vna")), ContentOf(Path("third.VNA")));
    EXPECT_EQ(RunCli({"convert", "-", "-", "--to", "text"}, ThreePointSweep()).Out, ContentOf(first));
    // The name is what was asked for, with a point or without.
    ASSERT_EQ(RunCli({"convert", first, Path("bare"), "--to", "text"}).Status, 0);
    EXPECT_EQ(FilesIn(), (Names{"bare", "first.vna", "second.vna", "third.VNA", "three.raw"}));
}

TEST_F(Program, VerifyTellsEachFileAndFailsUnlessAllAreRight)
{
    const std::string right = TextFile();
    std::string text = ContentOf(right);
    text.back() = 'x';
    const std::string wrong = Put("wrong.vna", text);
    const auto result = RunCli({"verify", right, wrong, Path("three.raw"), Path("missing")});
    EXPECT_EQ(result.Out, right + ": OK\n" + wrong + ": FAILED\n" + Path("three.raw") + ": no checksum\n");
    EXPECT_NE(result.Err.find("missing"), std::string::npos);
    EXPECT_EQ(result.Status, 1);
    EXPECT_EQ(RunCli({"verify", wrong}).Status, 1);
    EXPECT_EQ(RunCli({"verify", Path("three.raw")}).Status, 1);
    EXPECT_EQ(RunCli({"verify", right, right}).Status, 0);
}

TEST_F(Program, ExportsTheCurveAsATable)
{
    const auto rows = [&](int mode) {
        return RunCli({"convert", "-", "-", "--to", "csv"}, ThreePointSweep(mode));
    };
    EXPECT_EQ(rows(0).Out, "Frequency (MHz),Return loss (dB),Phase (deg)\r\n824,-20,132.1\r\n"
                           "859.25,-6.0206,-117.9\r\n894.5,0,-367.9\r\n");
    EXPECT_EQ(rows(1).Out.substr(0, 49), "Frequency (MHz),SWR,Phase (deg)\r\n824,1.222222,132");
    const auto distance = rows(16);
    EXPECT_EQ(distance.Out, "Distance (mm),Return loss (dB),Phase (deg)\r\n5,0,132.1\r\n127.5,0,-117.9\r\n"
                            "250,0,-367.9\r\n");
    EXPECT_NE(distance.Err.find("aren't converted"), std::string::npos) << "zeros need a word";
    EXPECT_EQ(distance.Status, 0);
}

TEST_F(Program, ExportsReflectionsAsTouchstoneAndNothingElse)
{
    const auto file = [&](int mode) {
        return RunCli({"convert", "-", "-", "--to", "s1p"}, ThreePointSweep(mode));
    };
    const std::string remark = "! TRC-100, TOWER7, 11/22/2026, 10:20:30\r\n";
    EXPECT_EQ(file(0).Out,
              remark + "# MHZ S DB R 50\r\n824 -20 132.1\r\n859.25 -6.0206 -117.9\r\n894.5 0 -367.9\r\n");
    // What an SWR of 7 digits says of 0.1; and total reflection is held as an SWR of 65.
    EXPECT_EQ(file(1).Out, remark + "# MHZ S MA R 50\r\n824 0.09999999 132.1\r\n859.25 0.5 -117.9\r\n"
                                    "894.5 0.969697 -367.9\r\n");
    for (const int mode : {2, 16, 17}) {
        EXPECT_EQ(file(mode).Status, 1) << mode;
        EXPECT_EQ(file(mode).Out, "") << mode;
    }
    std::string falling = ThreePointSweep();
    falling.replace(60, 4, std::string("\0\0\0\1", 4));
    EXPECT_NE(RunCli({"convert", "-", "-", "--to", "s1p"}, falling).Err.find("don't rise"),
              std::string::npos);
}

TEST_F(Program, UploadsWhatTheContentIsAndRefusesWhatIsNoTrace)
{
    ASSERT_EQ(RunCli({"upload", Put("a.vna", ThreePointSweep()), "-o", Path("raw.frame")}).Status, 0);
    EXPECT_EQ(ContentOf(Path("raw.frame")).size(), 4450U);
    ASSERT_EQ(RunCli({"upload", "-", "-o", Path("text.frame")}, ContentOf(TextFile())).Status, 0);
    EXPECT_EQ(ContentOf(Path("text.frame")).size(), 2004U);
    EXPECT_EQ(RunCli({"upload", Put("none", std::string(8, '\0')), "-o", Path("no.frame")}).Status, 1);
    EXPECT_FALSE(std::filesystem::exists(Path("no.frame")));
}

TEST_F(Program, RendersWithWhatWasAsked)
{
    const std::string raw = Put("My sweep.raw", ThreePointSweep());
    const auto picture = [&](Names more) {
        Names arguments = {"render", raw, "-o", "-", "--format", "svg"};
        arguments.insert(arguments.end(), more.begin(), more.end());
        return RunCli(arguments).Out;
    };
    const std::string plain = picture({});
    EXPECT_NE(plain.find("width=\"550\" height=\"480\""), std::string::npos);
    EXPECT_NE(plain.find(">?\?-My sweep</text>"), std::string::npos) << "the title is the file's stem";
    EXPECT_NE(picture({"--size", "800x600"}).find("width=\"800\" height=\"600\""), std::string::npos);
    EXPECT_NE(picture({"--params"}).find("width=\"911\" height=\"480\""), std::string::npos);
    EXPECT_NE(picture({"--zoom", "880,850,-1,-9"}), plain);
    EXPECT_EQ(picture({"--zoom", "880,850,-1,-9"}), picture({"--zoom", "850,880,-9,-1"}));
    EXPECT_NE(picture({"--autoscale"}), plain);

    const auto dashes = [](const std::string& svg) {
        std::size_t count = 0;
        for (std::size_t at = svg.find("6,4"); at != std::string::npos; at = svg.find("6,4", at + 1))
            ++count;
        return count;
    };
    EXPECT_EQ(dashes(plain), 0U);
    EXPECT_EQ(dashes(picture({"--marker", "1@0", "--marker", "6@870"})), 2U);
    EXPECT_EQ(picture({"--marker", "1@876"}), picture({"--marker", "1@858"}))
        << "both stand at the middle point";
}

TEST_F(Program, RendersABatchIntoAFolderWithoutOverwriting)
{
    const std::string first = Put("one/a.raw", ThreePointSweep());
    const std::string second = Put("two/a.raw", ThreePointSweep(1));
    const std::string third = Put("out/b.svg", ThreePointSweep());
    const auto result = RunCli({"render", first, second, Path("missing"), third, "-o", Path("out")});
    EXPECT_EQ(result.Status, 1);
    EXPECT_EQ(FilesIn("out"), (Names{"a-2.svg", "a.svg", "b-2.svg", "b.svg"}));
    EXPECT_EQ(ContentOf(third), ThreePointSweep()) << "an input is never written over";
    EXPECT_NE(result.Err.find("goes to a-2.svg"), std::string::npos);
    EXPECT_NE(ContentOf(Path("out/a.svg")), ContentOf(Path("out/a-2.svg")));
    // One file goes into a folder that is there, or that the name's end asks for.
    ASSERT_EQ(RunCli({"render", first, "-o", Path("new/")}).Status, 0);
    EXPECT_EQ(FilesIn("new"), (Names{"a.svg"}));
}

TEST_F(Program, ShowsProgressOnATerminalAndKeepsErrorsReadable)
{
    const std::string raw = Put("a.raw", ThreePointSweep());
    const Names arguments = {"render", raw, Path("missing"), raw, "-o", Path("out")};
    EXPECT_EQ(RunCli(arguments).Err.find('\r'), std::string::npos);
    const std::string shown = RunCli(arguments, "", true).Err;
    EXPECT_NE(shown.find("33% of 3"), std::string::npos);
    EXPECT_NE(shown.find("\r\x1B[Ktraces: " + Path("missing") + ": can't be opened"), std::string::npos);
    EXPECT_TRUE(shown.ends_with("\r\x1B[K")) << "the bar is gone at the end";
}

TEST_F(Program, LeavesNoTemporaryFileBehind)
{
    const std::string text = TextFile();
    Put("temp/keep", "");
    setenv("TMPDIR", Path("temp").c_str(), 1);
    EXPECT_EQ(RunCli({"info", text}).Status, 0);
    EXPECT_EQ(RunCli({"convert", text, "-", "--to", "text"}).Status, 0);
    EXPECT_EQ(FilesIn("temp"), Names{"keep"});
    setenv("TMPDIR", Path("nowhere").c_str(), 1);
    EXPECT_NE(RunCli({"info", text}).Err.find("no temporary file can be made"), std::string::npos);
    unsetenv("TMPDIR");
}

TEST_F(Program, FormatsNameWhatTheTablesHoldAndTheOptions)
{
    const std::string out = RunCli({"formats"}).Out;
    for (const char* part :
         {"  17  SWR Distance", "  .vna: RL Frequency", "--marker", "--to ", "modes 0, 1\n", ".pdf"})
        EXPECT_NE(out.find(part), std::string::npos) << part;
}

TEST_F(Program, NeedsNoQtToStart)
{
    const std::string libraries = OutputOf("LD_TRACE_LOADED_OBJECTS=1 " TRACES_PROGRAM);
    EXPECT_NE(libraries.find("libTraces.so"), std::string::npos) << libraries;
    EXPECT_EQ(libraries.find("Qt"), std::string::npos) << libraries;
}

TEST_F(Program, DrawsSvgWhereTheQtLayerIsMissingAndSaysSoForTheRest)
{
    const std::string raw = Put("a.raw", ThreePointSweep());
    std::filesystem::create_directory(folder / "bin");
    std::filesystem::create_directory(folder / "lib");
    std::filesystem::copy_file(TRACES_PROGRAM, folder / "bin/traces");
    std::filesystem::copy_file(TRACES_CORE_LIBRARY,
                               folder / "lib" / std::filesystem::path(TRACES_CORE_LIBRARY).filename());
    const std::string render = Path("bin/traces") + " render " + raw + " -o ";
    EXPECT_EQ(OutputOf(render + Path("a.svg")), "");
    EXPECT_TRUE(std::filesystem::exists(Path("a.svg")));
    EXPECT_TRUE(OutputOf(render + Path("a.png"))
                    .starts_with("traces: " + Path("a.png") + ": PNG and PDF need the Qt layer"));
    EXPECT_FALSE(std::filesystem::exists(Path("a.png")));
}

#ifdef TRACES_HAS_QT
TEST_F(Program, DrawsPngAndPdfThroughTheLibraryBesideIt)
{
    const std::string raw = Put("a.raw", ThreePointSweep());
    const std::string render = TRACES_PROGRAM " render " + raw + " --size 300x200 -o ";
    EXPECT_EQ(OutputOf(render + Path("a.png")), "");
    const std::string png = ContentOf(Path("a.png"));
    EXPECT_EQ(png.substr(1, 3), "PNG");
    EXPECT_EQ(png.substr(16, 8), std::string("\0\0\x01\x2C\0\0\0\xC8", 8)) << "width and height";
    EXPECT_EQ(OutputOf(render + Path("a.pdf")), "");
    EXPECT_EQ(ContentOf(Path("a.pdf")).substr(0, 5), "%PDF-");
}
#endif

} // namespace
} // namespace Traces::Cli
