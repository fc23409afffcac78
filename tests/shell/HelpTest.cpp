#include <gtest/gtest.h>

#include "framework/Text.h"
#include "support/Session.h"
#include "window/Addresses.h"

namespace {
const std::string kNote =
    "For maximum compatibility all output  is in ASCII\n"
    "That's what can be typed on your keyboard using only the shift key as a modifier\n";
const std::string kNote2 =
    "Because of this restriction subscripts are denoted by [ ], thus 'A subscript 0' will be written as A[0]. A "
    "superscript will be represented by '^', thus meter squared will be m^2.";

enum class Logged { Nothing, Line, AfterNote };

struct HelpRow {
    const char* caption;
    std::string opening;  // the help right after "): "
    const char* ending;
    Logged log;
    bool blinksOnDrop;
};

const HelpRow kRows[] = {
    {"Action", kNote + "For help, use 'help', or '?'", "TO QUIT. click the close button\n__________________\n",
     Logged::AfterNote, true},
    {"Calculate", kNote + "\nYou can use the usual", "under 'Evaluate' choice in the Drop Down menu\n", Logged::Line,
     true},
    {"Convert", kNote + "\nYou use 'Settings'", "1 cubic meter (m^3) equals 1000 liters\n", Logged::Line, true},
    {"Physical Data", kNote + "\n" + kNote2 + "\nSearching for 'mass'", "dragged from a web page.\n", Logged::Line,
     true},
    {"Astro Data", kNote + "\n" + kNote2 + "\nUse Drag and drop to search for SUN", "search for it by name.\n",
     Logged::Line, true},
    {"Math Formulas", kNote + "\n" + kNote2 + "\nUse Drag and drop to search for 'Area'", "into a formula.",
     Logged::Line, true},
    {"Solve", kNote + "\n" + kNote2 + "\nSolve is only available", "by 'hand'.\n", Logged::Nothing, true},
    {"Settings", "You can access the settings in two ways.", "is set.\n", Logged::Nothing, true},
    {"Evaluate", "'Evaluate' is similar to 'Calculate'.", "in the clipboard (and log).\n", Logged::Line, false},
};

void PrintTo(const HelpRow& row, std::ostream* out) { *out << row.caption; }

class HelpDelivery : public testing::TestWithParam<HelpRow> {};

TEST_P(HelpDelivery, ClipboardLogAndBlinkByDropAndByButton) {
    const HelpRow& row = GetParam();
    for (const bool byDrop : {true, false}) {
        SCOPED_TRACE(byDrop ? "drop" : "ButtonAct");
        Session s("help");
        if (std::string(row.caption) != "Action") s.Run(std::string("choose ") + row.caption);
        s.Run("timer");
        const size_t mark = s.w().EditField2.Text().size();
        if (byDrop) s.console.Drop("?");
        else s.w().ButtonAct("?");

        const std::string clipboard = s.desktop().clipboard;
        const std::string head = std::string("? (Caption ") + row.caption + "): ";
        ASSERT_EQ(clipboard.substr(0, head.size() + row.opening.size()), head + row.opening);
        ASSERT_TRUE(clipboard.ends_with(row.ending)) << clipboard;
        const std::string help = clipboard.substr(head.size());
        const std::string logHead = std::string("Help(Caption:") + row.caption + "):";
        std::string expected;
        if (row.log == Logged::Line) expected = logHead + "\n" + help;
        if (row.log == Logged::AfterNote) expected = logHead + kNote + "\n" + help.substr(kNote.size());
        EXPECT_EQ(s.w().EditField2.Text().substr(mark), expected);
        EXPECT_EQ(s.w().ImageWell1.Image(), byDrop && row.blinksOnDrop ? "target2" : "target");
        EXPECT_EQ(s.desktop().Beeps(), 1);
    }
}

INSTANTIATE_TEST_SUITE_P(Help, HelpDelivery, testing::ValuesIn(kRows), [](const testing::TestParamInfo<HelpRow>& info) {
    std::string name = info.param.caption;
    std::erase(name, ' ');
    return name;
});
}  // namespace

TEST(Help, RequestsKeepTheirSpellingAndTheAction) {
    Session s("helpwords");
    s.console.Drop("HELP");
    EXPECT_TRUE(s.desktop().clipboard.starts_with("HELP (Caption Action): For maximum")) << s.desktop().clipboard;
    EXPECT_EQ(s.w().BevelButton1.Caption(), "Action");

    s.console.Drop("2+2");
    s.console.Drop("help");
    EXPECT_TRUE(s.desktop().clipboard.starts_with("help (Caption calculate): For maximum"));

    s.Run("choose Evaluate");
    s.console.Drop("Help");
    EXPECT_TRUE(s.desktop().clipboard.starts_with("Help (Caption Evaluate): 'Evaluate'"));
    s.w().ButtonAct("help");
    EXPECT_FALSE(s.desktop().clipboard.starts_with("help")) << s.desktop().clipboard;
}

TEST(Help, MoreInstructionsStacksItsNoteAndFillsTheViewer) {
    Session s("more");
    s.Run("choose Solve\npush PushButton43\npush PushButton43");
    const std::string note = ">>>Detailed instructions have been put in your clipboardand can be viewed in the "
                             "Clipboard Viewer under the 'Welcome' Tab. Also they have been added to the Log File "
                             "where they can be  saved to the log file in the the folder containing this application.<<<";
    EXPECT_TRUE(s.w().EditField10.Text().starts_with(note + "\n" + note + "\nSolve:\n"));
    EXPECT_EQ(s.w().TextArea8.Text(), s.desktop().clipboard);
    EXPECT_TRUE(s.desktop().clipboard.starts_with("? (Caption Solve): "));
    EXPECT_EQ(s.w().ImageWell1.Image(), "target");

    s.Run("choose Calculate");
    EXPECT_TRUE(s.w().EditField10.Text().starts_with("Calculate:\n"));
}

TEST(Directions, FollowTheActionAndTheWindowMode) {
    struct Row {
        const char* setup;
        const char* opening;
        const char* middle;
        const char* ending;
    };
    const Row rows[] = {
        {"choose Calculate", "Calculate:\nThe calculator  functions", "\nPLUS:\n1) ", "the drop down menu.\n"},
        {"choose Convert", "Convert:\nAdditional instructions", "111.855 W/ft^2.\n Now", "1204 W/m^2."},
        {"choose Solve", "Solve:\nAdditional instructions", "at the bottom.. The", "for more cautions\n"},
        {"choose Physical Data", "Physical Data:\nMore details", "\nNote: If you choose 'element'",
         "to the output list."},
        {"choose Astro Data", "Astro Data:\nMore details", "\nNote: If you choose 'Star'", "other categories."},
        {"choose Math Formulas", "Math Formulas:\nMore details", "\nNote: If you choose 'Area'", "other categories."},
        {"choose Evaluate", "Evaluate:\n With the exception", "value for y.Pressing", "in the clipboard."},
        {"choose Settings", "Settings:\nFor most purposes", "choices  can", "to save your choices."},
        {"click ImageWell1\nchoose Settings", "General:\nA) With only", "choice.\n\nB) In the large",
         "closing this window."},
        {"", "General:\nA) With only", "choice.\n\n B) In the large", "closing this window.\n"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.setup);
        Session s("directions");
        s.Run(row.setup);
        const std::string& text = s.w().EditField10.Text();
        EXPECT_TRUE(text.starts_with(row.opening)) << text;
        EXPECT_NE(text.find(row.middle), std::string::npos) << text;
        EXPECT_TRUE(text.ends_with(row.ending)) << text;
    }
    Session s("strange");
    s.w().WriteDirections("Formulas (phys)");
    EXPECT_EQ(s.w().EditField10.Text(), std::string("This window is displayed in error, please report this to ") +
                                            kSupportAddress + ". Please iattach the Log File.");
}

TEST(Welcome, LinksAndResetLeaveTheClipboardAlone) {
    Session s("welcome");
    s.desktop().clipboard = "kept";
    const std::string first = s.w().TextArea8.Text();
    s.Run("push PushButton48\npush PushButton4");
    s.w().StaticText24.FireMouseDown(3, 3);
    const std::string reset = s.w().TextArea8.Text();
    EXPECT_EQ(first, fw::ReplaceAll(reset, "if desired. The", "if desired.\nThe") + " ");
    EXPECT_TRUE(reset.ends_with("with the data appropriate to your selection available."));
    EXPECT_EQ(s.desktop().clipboard, "kept");
    EXPECT_TRUE(s.LogSinceStart().ends_with("--eMailed\n"));
    ASSERT_EQ(s.desktop().urls.size(), 2u);
    EXPECT_EQ(s.desktop().urls[0], std::string("mailto:") + kSupportAddress +
                                       "?subject=Velmora&body=Put%20your%20question%20here%20and%20save%20and%20attach"
                                       "%20the%20current%20log%20to%20this%20email%20if%20you%20are%20having%20a%20"
                                       "problem%20or%20reporting%20an%20error");
    EXPECT_EQ(s.desktop().urls[1], kHomePage);
    EXPECT_EQ(s.w().StaticText23.Text(), "            Velmora\nMaintained by the Velmora project\nVelmora ver 3.0");
}

TEST(Help, EverySearchItPromisesFindsSomething) {
    struct Promise {
        const char* action;
        const char* term;
    };
    const Promise promises[] = {
        {"Physical Data", "mass"}, {"Physical Data", "electron mass"}, {"Physical Data", "Coulomb's constant"},
        {"Physical Data", "Moon"}, {"Physical Data", "26"}, {"Physical Data", "Element"}, {"Physical Data", "Co-60"},
        {"Physical Data", "Energy/Content"}, {"Physical Data", "Coal"}, {"Physical Data", "element iron"},
        {"Astro Data", "moon mass"}, {"Astro Data", "ASTEROID"}, {"Astro Data", "COMET"},
        {"Astro Data", "CONSTELLATION_FAMILY"}, {"Astro Data", "Zodiac"}, {"Astro Data", "Galaxy Elliptical"},
        {"Astro Data", "Galaxy Spiral"}, {"Astro Data", "Galaxy Andromeda"}, {"Astro Data", "NEPTUNE MOONS"},
        {"Astro Data", "STAR"}, {"Astro Data", "Star Sirius"}, {"Math Formulas", "Perimeter"},
        {"Math Formulas", "Sphere"}, {"Math Formulas", "Cosine"}, {"Math Formulas", "Finance"},
        {"Math Formulas", "Kinematics"}, {"Math Formulas", "Vectors"}, {"Math Formulas", "Area Square"},
    };
    Session s("promises", true);
    for (const Promise& promise : promises) {
        s.Run(std::string("choose ") + promise.action);
        s.desktop().clipboard.clear();
        s.console.Drop(promise.term);
        EXPECT_TRUE(s.desktop().clipboard.starts_with("\n" + std::string(promise.term) + ": "))
            << promise.action << ": " << promise.term;
    }
}
