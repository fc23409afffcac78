#include <gtest/gtest.h>

#include <algorithm>

#include <fstream>

#include "support/Session.h"

namespace {
std::string Slurp(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), {});
}

void WritePreferences(const std::filesystem::path& home, const std::string& content) {
    std::filesystem::create_directories(home / "prefs");
    std::ofstream(home / "prefs" / "VL3Preferences", std::ios::binary) << content;
}
}  // namespace

TEST(Preferences, DefaultsSaveAsOneLineWithoutLineEnd) {
    Session s("prefs-default");
    s.Run("push PushButton42");
    EXPECT_EQ(Slurp(s.home / "prefs" / "VL3Preferences"), "False,True;True,False;True,False;True,False;True;False;-1;-1");
    EXPECT_NE(s.w().EditField2.Text().find("--Preferences Saved\n"), std::string::npos);
}

TEST(Preferences, AllEightComeBackAfterARestart) {
    const auto home = ScratchHome("prefs-roundtrip");
    {
        Console first(fw::HomeFolders(home));
        std::ostringstream out, err;
        for (const char* command : {"click RadioButton1", "click RadioButton4", "click RadioButton6", "click scibutton1",
                                    "click CheckBox1", "click CheckBox2", "push PushButton42"})
            first.Execute(command, out, err);
        EXPECT_EQ(err.str(), "");
    }
    Console second(fw::HomeFolders(home));
    Window1& w = second.window;
    EXPECT_TRUE(w.RadioButton1.Value());
    EXPECT_TRUE(w.RadioButton4.Value());
    EXPECT_TRUE(w.RadioButton6.Value());
    EXPECT_TRUE(w.scibutton1.Value());
    EXPECT_FALSE(w.CheckBox1.Value());
    EXPECT_TRUE(w.CheckBox2.Value());
    const std::string& log = w.EditField2.Text();
    EXPECT_NE(log.find("Initial State:\nChose radians\nChose Base 10 log\nChose literal search\nChose Scientific  Math Mode\n"
                       "Purge Pretty Dectivated\nChose use clipboard for conversions.\n"),
              std::string::npos)
        << log;
}

TEST(Preferences, DamagedFilesApplyWhatCanBeRead) {
    struct Case {
        std::string content;
        bool radians, base10, pretty;
    } cases[] = {
        {"False,True", false, false, true},
        {"true,false;FALSE,TRUE", true, true, true},
        {"False,True;True,False;True,False;True,False;nonsense;True;99;-7", false, false, false},
        {std::string("\xff\x00\x01;;;;;\n", 8), false, true, false},
        {std::string(1 << 20, ';'), false, true, false},
        {"", false, false, true},
    };
    for (const Case& c : cases) {
        const auto home = ScratchHome("prefs-damaged");
        InstallShippedData(home);
        WritePreferences(home, c.content);
        Console console(fw::HomeFolders(home));
        EXPECT_EQ(console.window.RadioButton1.Value(), c.radians) << c.content.substr(0, 40);
        EXPECT_EQ(console.window.RadioButton4.Value(), c.base10) << c.content.substr(0, 40);
        EXPECT_EQ(console.window.CheckBox1.Value(), c.pretty) << c.content.substr(0, 40);
        EXPECT_TRUE(console.platform.messages.empty());
        EXPECT_EQ(console.window.Width(), 64);
    }
}

TEST(Startup, MissingDataFolderReportsEveryFile) {
    Session s("startup");
    const std::string log = s.w().EditField2.Text();
    EXPECT_EQ(log.rfind("Startup: Date ", 0), 0u);
    const std::string expected =
        "Initial State:\n"
        "Conversion Data from XML file not loaded\n"
        "A file called 'convert.txt' is missing from the folder 'VLSupport' in your application Support/Data folder\n"
        "Physical Data fromXML file not loaded\n"
        "A file called 'physicaldata.txt' is missing from the folder 'VLSupport' in your application Support/Data folder\n"
        "Astro Data from XML file not loaded\n"
        "A file called 'AstrDataXML.txt' is missing from the folder 'VLSupport' in your application Support/Data folder\n"
        "Math Data from XML file not loaded\n"
        "A file called 'AstrDataXML.txt' is missing from the folder 'VLSupport' in your application Support/Data folder\n"
        "----begin---\n";
    EXPECT_NE(log.find(expected), std::string::npos) << log;
    EXPECT_TRUE(s.w().PushButton40.Enabled());
    EXPECT_EQ(s.w().unt, " ");
}

TEST(Startup, AFolderWithoutTheFileSaysSo) {
    const auto home = ScratchHome("startup-folder");
    std::filesystem::create_directories(home / "data" / "VLSupport");
    Console console(fw::HomeFolders(home));
    EXPECT_NE(console.window.EditField2.Text().find("Conversion Data from XML file not loaded\n"), std::string::npos);
    const auto& messages = console.platform.messages;
    EXPECT_NE(std::find(messages.begin(), messages.end(), "FolderItem convert.txt does not exist! See startup log"),
              messages.end());
}
