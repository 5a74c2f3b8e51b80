#include "control/TraceFile.h"

#include "control/Control.h"
#include "control/HeadlessPlatform.h"
#include "control/Plot.h"
#include "control/TextLoader.h"
#include "formats/Checksum.h"
#include "formats/Files.h"
#include "formats/HostFault.h"
#include "support/RawBuilder.h"
#include "support/TraceFiles.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace Traces {
namespace {

namespace fs = std::filesystem;
using Testing::RawSweep;

class HeadlessInFolder : public HeadlessPlatform {
public:
    explicit HeadlessInFolder(fs::path folder) : temp(std::move(folder)) {}
    std::string GetTempPathA() override { return temp.string(); }
    std::int32_t TavrixChecksumStdCall(const std::string& path, std::string_view key) override
    {
        return FailChecksum ? (key == SaveChecksumKey ? 1 : 0)
                            : HeadlessPlatform::TavrixChecksumStdCall(path, key);
    }
    bool FailChecksum = false;

private:
    fs::path temp;
};

class TraceFiles : public testing::Test {
protected:
    TraceFiles() { fs::create_directories(folder / "tmp"); }

    Testing::TemporaryFolder own;
    const fs::path& folder = own.Path();
    HeadlessInFolder platform{folder / "tmp"};
    Plot plot{platform};
    Control& state = plot.Instance();

    std::string In(const char* name) const { return (folder / name).string(); }
    void Show() { ASSERT_TRUE(plot.ShowTrace(RawSweep(0, {1000, 10000}).Bytes())); }
    std::size_t FilesIn(const fs::path& where) const
    {
        return static_cast<std::size_t>(
            std::distance(fs::directory_iterator(where), fs::directory_iterator()));
    }
};

TEST_F(TraceFiles, SavingAsksUntilAFileIsConfirmed)
{
    Show();
    plot.TraceName("TOWER 7");
    std::string name;
    EXPECT_FALSE(plot.SaveTrace(name)) << "cancelled";
    EXPECT_EQ(name, "");
    EXPECT_EQ(FilesIn(folder), 1U);
    ASSERT_EQ(platform.SaveDialogs.size(), 1U);
    const SaveDialog& dialog = platform.SaveDialogs[0];
    EXPECT_EQ(dialog.Title + ": " + dialog.FileName, "Save Current Trace: TOWER 7");
    ASSERT_EQ(dialog.Filters.size(), 2U);
    EXPECT_EQ(dialog.Filters[0].Text, "VNA Trace Files (*.vna)");
    EXPECT_EQ(dialog.Filters[1].Pattern, "*.*");
    EXPECT_EQ(dialog.FilterIndex, 2);
    EXPECT_EQ(dialog.DefaultExtension, "vna");

    name = In("ignored.vna");
    platform.Answers = {In("given") + std::string("\0rest", 5)};
    EXPECT_TRUE(plot.SaveTrace(name)) << "a name doesn't spare the dialog before the first save";
    EXPECT_EQ(name, In("given.VNA"));
    EXPECT_TRUE(state.TraceSaved);
    EXPECT_EQ(ReadWholeFile(name), Testing::WithChecksum(state.lstParameters.Text()));
    name = In("second.txt");
    EXPECT_TRUE(plot.SaveTrace(name));
    EXPECT_EQ(platform.SaveDialogs.size(), 2U) << "and afterwards it does";
    EXPECT_EQ(ReadWholeFile(In("second.txt")), ReadWholeFile(In("given.VNA")));
}

TEST_F(TraceFiles, AFailingSaveIsSilentButAMissingChecksumIsTold)
{
    Show();
    state.TraceSaved = true;
    std::string nowhere = In("no/such/folder.vna");
    EXPECT_FALSE(plot.SaveTrace(nowhere));
    EXPECT_TRUE(platform.Messages.empty()) << "failures to write show no message";

    std::string name = In("a.vna");
    platform.FailChecksum = true;
    EXPECT_TRUE(plot.SaveTrace(name)) << "a missing checksum is told, and the file stays";
    ASSERT_EQ(platform.Messages.size(), 1U);
    EXPECT_EQ(platform.Messages[0].Title + ": " + platform.Messages[0].Text,
              "File Save: File save operation failed:  Could not create Checksum.");
    EXPECT_EQ(ReadChecksumField(*ReadWholeFile(name)), "0000000000");
}

TEST_F(TraceFiles, RawSavesGoThroughTheLengthGateAndShowNothing)
{
    std::string name = In("a");
    std::string raw = RawSweep(1, {1000, 10000}).AsText();
    EXPECT_TRUE(plot.SaveRawTrace(raw, name));
    EXPECT_EQ(name, In("a.VNA"));
    EXPECT_EQ(state.CurrentMode, -1);
    EXPECT_TRUE(platform.SaveDialogs.empty());
    raw[0] = 0;
    raw[1] = 99;
    std::string refused = In("refused");
    EXPECT_FALSE(plot.SaveRawTrace(raw, refused));
    EXPECT_FALSE(plot.SaveRawTraceB("", refused));
    EXPECT_FALSE(fs::exists(In("refused")));
}

TEST_F(TraceFiles, LoadingGoesByWhatStandsBehindTheFirstPoint)
{
    const std::string raw = RawSweep(0, {1000, 10000}).AsText();
    ASSERT_TRUE(WriteWholeFile(In("sweep.RaW"), raw));
    plot.loadTextFile(In("sweep.RaW"));
    EXPECT_EQ(state.CurrentMode, 0);
    EXPECT_EQ(plot.TraceName(), folder.string() + "/sweep") << "only backslashes part a path";

    plot.Clear();
    ASSERT_TRUE(WriteWholeFile(In("a.b.raw"), raw));
    state.TraceSaved = true;
    plot.loadTextFile(In("a.b.raw"));
    EXPECT_EQ(plot.count(), 0) << "nothing loaded";
    EXPECT_FALSE(state.TraceSaved);
    EXPECT_THROW(plot.loadTextFile(In("none.vna")), HostFault);
    EXPECT_THROW(plot.loadTextFile(folder.string() + "/tmp.d"), HostFault);
}

TEST_F(TraceFiles, TinyRawFilesAreNoTraces)
{
    Show();
    for (const char* content : {"", "x"}) {
        ASSERT_TRUE(WriteWholeFile(In("tiny.raw"), content));
        EXPECT_FALSE(plot.LoadRawTrace(In("tiny.raw")));
        EXPECT_EQ(plot.count(), 2) << "the trace on show stays";
    }
}

TEST_F(TraceFiles, VerifyingLeavesOneEmptyFileBehindAndTouchesNoneWithoutAField)
{
    std::string name = In("a.vna");
    ASSERT_TRUE(plot.SaveRawTrace(RawSweep(0, {1000, 10000}).AsText(), name));
    const std::string text = *ReadWholeFile(name);
    EXPECT_TRUE(VerifyTraceChecksum(platform, text, {}));
    ASSERT_EQ(FilesIn(folder / "tmp"), 1U);
    EXPECT_TRUE(fs::is_empty(fs::directory_iterator(folder / "tmp")->path()));
    EXPECT_FALSE(VerifyTraceChecksum(platform, "no field", {}));
    EXPECT_EQ(FilesIn(folder / "tmp"), 1U);

    fs::remove_all(folder / "tmp");
    EXPECT_FALSE(VerifyTraceChecksum(platform, text, {})) << "no temporary file, and no path instead";
    EXPECT_TRUE(VerifyTraceChecksum(platform, text, In("copy")));
    EXPECT_FALSE(fs::exists(In("copy")));
}

} // namespace
} // namespace Traces
