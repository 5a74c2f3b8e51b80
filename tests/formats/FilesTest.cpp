#include "formats/Files.h"

#include "support/TraceFiles.h"

#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace Traces {
namespace {

namespace fs = std::filesystem;

class Files : public testing::Test {
protected:
    Testing::TemporaryFolder folder;
    const std::string target = folder / "a.vna";
    const std::function<void(const std::string&)> Nothing = [](const std::string&) {};

    std::size_t FileCount() const
    {
        return static_cast<std::size_t>(
            std::distance(fs::directory_iterator(folder.Path()), fs::directory_iterator()));
    }
};

TEST_F(Files, EveryByteReturnsAtAnySize)
{
    std::string content;
    for (int i = 0; i < 70'001; ++i)
        content += static_cast<char>(i * 7);
    for (const std::size_t size : {std::size_t{0}, std::size_t{1}, std::size_t{65536}, content.size()}) {
        ASSERT_TRUE(WriteWholeFile(target, content.substr(0, size)));
        EXPECT_EQ(ReadWholeFile(target), content.substr(0, size)) << size;
    }
    ASSERT_TRUE(OverwriteFileBytes(target, 9, "CHECKSUM"));
    EXPECT_EQ(ReadWholeFile(target), content.replace(9, 8, "CHECKSUM"));
}

TEST_F(Files, WhatCanNotBeReadIsNothingRatherThanEmpty)
{
    EXPECT_EQ(ReadWholeFile(folder / "none"), std::nullopt);
    EXPECT_EQ(ReadWholeFile(folder.Path().string()), std::nullopt) << "a folder";
    EXPECT_EQ(ReadWholeFile("/dev/zero"), std::nullopt) << "no end";
    EXPECT_FALSE(OverwriteFileBytes(folder / "none", 0, "x"));
    EXPECT_FALSE(fs::exists(folder / "none"));
}

TEST_F(Files, TheOldContentStandsUntilTheNewOneIsFinished)
{
    for (const char* before : {"", "old", "an old file that is longer than the new one"}) {
        const bool existed = *before != '\0';
        fs::remove(target);
        if (existed) {
            ASSERT_TRUE(WriteWholeFile(target, before));
        }
        EXPECT_TRUE(ReplaceFile(target, "sum=0000 new", [&](const std::string& written) {
            EXPECT_EQ(ReadWholeFile(written), "sum=0000 new");
            EXPECT_EQ(ReadWholeFile(target).value_or(""), before);
            EXPECT_TRUE(OverwriteFileBytes(written, 4, "1234"));
        }));
        EXPECT_EQ(ReadWholeFile(target), "sum=1234 new");
        EXPECT_EQ(FileCount(), 1U) << "nothing else is left";
    }
}

TEST_F(Files, AFailingReplacementLeavesTheOldFileAndNothingElse)
{
    ASSERT_TRUE(WriteWholeFile(target, "old"));
    fs::create_symlink("circle", folder.Path() / "circle");
    fs::permissions(folder.Path(), fs::perms::all);

    // No file may grow beyond 1000 bytes, as on a disk that is full.
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit small = {1000, before.rlim_max};
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &small);
    const bool replaced = ReplaceFile(target, std::string(5000, 'x'), Nothing);
    setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, handler);
    EXPECT_FALSE(replaced) << "full disk";

    // The administrator, whom no protection stops, gives up the rights.
    constexpr uid_t nobody = 65534;
    const bool administrator = geteuid() == 0;
    fs::permissions(target, fs::perms(0444));
    EXPECT_TRUE(!administrator || seteuid(nobody) == 0);
    EXPECT_FALSE(ReplaceFile(target, "new", Nothing)) << "write-protected";
    EXPECT_TRUE(!administrator || seteuid(0) == 0);

    EXPECT_FALSE(ReplaceFile("/dev/full", "new", Nothing));
    EXPECT_FALSE(ReplaceFile(folder / "none/a.vna", "new", Nothing));
    EXPECT_FALSE(ReplaceFile(folder.Path().string(), "new", Nothing));
    EXPECT_FALSE(ReplaceFile(folder / "circle", "new", Nothing));
    EXPECT_FALSE(ReplaceFile("", "new", Nothing));
    EXPECT_EQ(ReadWholeFile(target), "old");
    EXPECT_EQ(FileCount(), 2U);
}

TEST_F(Files, LinksAndPermissionsStayAndNamesMayBeAsLongAsTheSystemAllows)
{
    ASSERT_TRUE(WriteWholeFile(target, "old"));
    fs::permissions(target, fs::perms(0640));
    fs::create_symlink("second", folder.Path() / "first");
    fs::create_symlink(target, folder.Path() / "second");
    ASSERT_TRUE(ReplaceFile(folder / "first", "new", Nothing));
    EXPECT_TRUE(fs::is_symlink(folder / "first"));
    EXPECT_TRUE(fs::is_symlink(folder / "second"));
    EXPECT_EQ(ReadWholeFile(target), "new");
    EXPECT_EQ(fs::status(target).permissions(), fs::perms(0640));

    fs::create_symlink("not yet there", folder.Path() / "dangling");
    ASSERT_TRUE(ReplaceFile(folder / "dangling", "made", Nothing));
    EXPECT_EQ(ReadWholeFile(folder / "not yet there"), "made");
    EXPECT_TRUE(ReplaceFile(folder / std::string(255, 'n'), "long", Nothing));
}

TEST_F(Files, APipeGetsTheFinishedContent)
{
    const std::string pipe = folder / "pipe";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    std::optional<std::string> received;
    std::thread reader([&] { received = ReadWholeFile(pipe); });
    EXPECT_TRUE(ReplaceFile(pipe, "sum=0000", [](const std::string& written) {
        EXPECT_EQ(ReadWholeFile(written), "sum=0000") << "what is sent can be worked on";
        EXPECT_TRUE(OverwriteFileBytes(written, 4, "1234"));
    }));
    reader.join();
    EXPECT_EQ(received, "sum=1234");
    EXPECT_EQ(FileCount(), 1U);
}

} // namespace
} // namespace Traces
