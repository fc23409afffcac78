#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "framework/EventBoundary.h"
#include "framework/FolderItem.h"
#include "framework/RecordingPlatform.h"

using namespace fw;
namespace fs = std::filesystem;

namespace {
fs::path ScratchFolder(const std::string& name) {
    fs::path folder = fs::temp_directory_path() / ("velmora-test-" + name + "-" + std::to_string(::getpid()));
    fs::remove_all(folder);
    fs::create_directories(folder);
    return folder;
}

std::string Slurp(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), {});
}
}  // namespace

TEST(Files, ChildIsNilOnlyBelowAMissingFolder) {
    FolderItem root(ScratchFolder("child"));
    FolderItemRef missingFile = root.Child("absent.txt");
    ASSERT_FALSE(missingFile.IsNil());
    EXPECT_FALSE(missingFile->Exists());
    EXPECT_TRUE(missingFile->Child("below").IsNil());
    EXPECT_TRUE(missingFile->OpenAsTextFile().IsNil());
    EXPECT_THROW(missingFile->Child("below")->Exists(), NilObjectException);
}

TEST(Files, ReadLineHandlesEveryLineEndAndEndsInEmpty) {
    TextInputStream in("one\r\ntwo\rthree\nfour");
    std::vector<std::string> lines;
    while (!in.Eof()) lines.push_back(in.ReadLine());
    EXPECT_EQ(lines, (std::vector<std::string>{"one", "two", "three", "four"}));
    EXPECT_EQ(in.ReadLine(), "");
}

TEST(Files, CreateReplacesAtCloseAndAppendWritesBehind) {
    FolderItem root(ScratchFolder("write"));
    FolderItemRef file = root.Child("VLmemory.txt");
    {
        TextOutputStreamRef out = file->CreateTextFile();
        out->Write("old");
        out->Close();
    }
    TextOutputStreamRef replacing = file->CreateTextFile();
    replacing->WriteLine("new");
    EXPECT_EQ(Slurp(file->Path()), "old");  // nothing visible until Close
    replacing->Close();
    EXPECT_EQ(Slurp(file->Path()), "new\n");
    TextOutputStreamRef appending = file->AppendToTextFile();
    appending->Write("more");
    appending->Close();
    EXPECT_EQ(Slurp(file->Path()), "new\nmore");
    EXPECT_EQ(std::distance(fs::directory_iterator(root.Path()), fs::directory_iterator()), 1);
}

TEST(Files, FailedReplaceKeepsTheOldFile) {
    if (fs::exists("/dev/full") == false) GTEST_SKIP() << "no /dev/full";
    // A stream whose writes fail, renaming over a target: Close must refuse and keep the target.
    FolderItem root(ScratchFolder("fail"));
    const fs::path target = root.Path() / "VL3Preferences";
    std::ofstream(target) << "keep";
    const fs::path temporary = root.Path() / "VL3Preferences.tmp";
    std::ofstream(temporary) << "";
    {
        TextOutputStream stream(std::fopen("/dev/full", "wb"), target, temporary);
        stream.Write(std::string(1 << 16, 'x'));
        EXPECT_THROW(stream.Close(), IOException);
    }
    EXPECT_EQ(Slurp(target), "keep");
    EXPECT_FALSE(fs::exists(temporary));
}

TEST(EventBoundary, FaultBecomesAMessageAndTheNextEventRuns) {
    RecordingPlatform platform(HomeFolders(ScratchFolder("boundary")));
    FolderItemRef nil;
    EXPECT_FALSE(RunEvent(platform, [&] { nil->Exists(); }));
    ASSERT_EQ(platform.messages.size(), 1u);
    EXPECT_NE(platform.messages[0].find("NilObjectException"), std::string::npos);
    bool ran = false;
    EXPECT_TRUE(RunEvent(platform, [&] { ran = true; }));
    EXPECT_TRUE(ran);
    EXPECT_FALSE(RunEvent(platform, [] { throw std::runtime_error("odd"); }));
    EXPECT_EQ(platform.messages.size(), 2u);
}
