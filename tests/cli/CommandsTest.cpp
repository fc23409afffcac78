#include <gtest/gtest.h>

#include <string>

#include "shell/HelpTexts.h"
#include "support/Session.h"
#include "window/Addresses.h"

namespace {
// What a screen shows beyond text, read back through `get`.
struct Seen {
    std::string name;
    std::string commands;
    std::string out;
    std::string shown;  // message boxes, written as they come up
    std::string errors = "";
};

const Seen kSeen[] = {
    {"StatesOfControls", "get Listbox3.Visible\nclick ImageWell1\nchoose Evaluate\nget listbox3.visible",
     "false\ntrue\n", ""},
    // Without Purge Pretty the = key plays claves and never enables itself again.
    {"GreyedEqualsKeyAndItsSound",
     "click ImageWell1\nget PushButton40.Enabled\nclick CheckBox1\npush PushButton40\nget PushButton40.Enabled\n"
     "get sounds",
     "true\nfalse\nclaves\n", ""},
    {"BeepsAndSoundsInOrder", "drop 2+2\nchoose Solve\ndrop 1\ndrop 2\nget sounds", "beep\nclaves\nclaves\n", ""},
    {"MessagesOneALine", "push PushButton34\nset PushButton40 1\nget messages",
     "Nothing In Memory\nAn exception of class RuntimeException was not handled. (PushButton40 takes no value)\n",
     "message: Nothing In Memory\n"
     "message: An exception of class RuntimeException was not handled. (PushButton40 takes no value)\n"},
    {"UrlsInOrder", "click StaticText24\npush PushButton4\nget urls",
     std::string(kHomePage) + "\n" + helptext::SupportMail() + "\n", ""},
    {"NothingShownListsNothing", "get messages\nget sounds\nget urls", "", ""},
    {"OnlyEnabledAndVisible", "get PushButton40.Caption\nget Nothing.Visible\nget .Enabled", "", "",
     "error: no such name PushButton40.Caption\nerror: no such name Nothing.Visible\nerror: no such name .Enabled\n"},
};

class GetSeen : public testing::TestWithParam<Seen> {};

TEST_P(GetSeen, ShowsWhatAScreenWould) {
    const Seen& c = GetParam();
    Session s("seen", true);
    EXPECT_EQ(s.Run(c.commands), c.out);
    EXPECT_EQ(s.shown.str(), c.shown);
    EXPECT_EQ(s.errors, c.errors);
}

INSTANTIATE_TEST_SUITE_P(Commands, GetSeen, testing::ValuesIn(kSeen),
                         [](const testing::TestParamInfo<Seen>& info) { return info.param.name; });
}  // namespace

TEST(Commands, StartUpMessagesReachTheConsoleAsTheyComeUp) {
    Session s("shown-at-start", [](const std::filesystem::path& home) {
        std::filesystem::create_directories(home / "data" / "VLSupport");
    });
    std::string echoed;
    for (const std::string& message : s.desktop().messages) echoed += "message: " + message + "\n";
    EXPECT_NE(echoed.find("message: FolderItem convert.txt does not exist! See startup log\n"), std::string::npos);
    EXPECT_EQ(s.shown.str(), echoed);
}
