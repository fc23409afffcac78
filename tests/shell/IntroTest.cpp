#include <gtest/gtest.h>

#include <fstream>

#include "framework/RecordingPlatform.h"
#include "shell/Window2.h"
#include "support/Session.h"

namespace {
std::string Slurp(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), {});
}

// The introduction window on the recording desktop; the main window is only counted.
struct Intro {
    explicit Intro(const std::string& name) : home(ScratchHome(name)), desktop(fw::HomeFolders(home)) {}
    std::filesystem::path Marker() const { return home / "prefs" / "VL3Instr.txt"; }
    void PlaceMarker() const { std::ofstream(Marker()) << "do not show"; }
    void Launch() { window.Open(); }

    std::filesystem::path home;
    fw::RecordingPlatform desktop;
    int mainShown = 0;
    bool introVisibleAtHandOver = true;
    Window2 window{desktop, [this] {
                       ++mainShown;
                       introVisibleAtHandOver = window.IsVisible();
                   }};
};

bool StartsWith(const std::string& text, const std::string& start) { return text.rfind(start, 0) == 0; }
}  // namespace

TEST(Intro, LaunchFollowsTheMarkerAndTheShiftKey) {
    struct Case {
        const char* name;
        bool marker, shift;
        bool stays, finishedVisible;
    };
    const Case cases[] = {
        {"first launch", false, false, true, true},
        {"marker", true, false, false, true},
        {"shift without marker", false, true, true, false},
        {"shift with marker", true, true, true, false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        Intro intro("intro-launch");
        if (c.marker) intro.PlaceMarker();
        intro.desktop.shift = c.shift;
        intro.Launch();
        EXPECT_EQ(!intro.window.IsClosed(), c.stays);
        EXPECT_EQ(intro.window.IsVisible(), c.stays);
        EXPECT_EQ(intro.mainShown, c.stays ? 0 : 1);
        EXPECT_EQ(intro.window.PushButton1.Visible(), c.finishedVisible);
        EXPECT_EQ(std::filesystem::exists(intro.Marker()), c.marker);
        if (!c.stays) {
            EXPECT_FALSE(intro.introVisibleAtHandOver);
        }
    }
}

TEST(Intro, ShiftIsReadOnlyAtLaunch) {
    Intro intro("intro-shift-once");
    intro.Launch();
    intro.desktop.shift = true;
    EXPECT_TRUE(intro.window.PushButton1.Visible());
}

TEST(Intro, ContinueAndFinishedHandOver) {
    struct Case {
        const char* name;
        bool finished, markerBefore, shift;
        bool markerAfter;
    };
    const Case cases[] = {
        {"continue leaves no marker", false, false, false, false},
        {"continue keeps a marker", false, true, true, true},
        {"finished writes the marker", true, false, false, true},
        {"finished rewrites the marker", true, true, true, true},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        Intro intro("intro-leave");
        if (c.markerBefore) std::ofstream(intro.Marker()) << "old";
        intro.desktop.shift = c.shift;
        intro.Launch();
        ASSERT_FALSE(intro.window.IsClosed());
        (c.finished ? intro.window.PushButton1 : intro.window.PushButton2).Push();
        EXPECT_TRUE(intro.window.IsClosed());
        EXPECT_EQ(intro.mainShown, 1);
        EXPECT_FALSE(intro.introVisibleAtHandOver);
        EXPECT_EQ(std::filesystem::exists(intro.Marker()), c.markerAfter);
        if (c.finished) {
            EXPECT_EQ(Slurp(intro.Marker()), "do not show");
            const std::vector<std::string> recall{
                "To recall this window hold down the SHIFT key while launching Velmora"};
            EXPECT_EQ(intro.desktop.messages, recall);
        } else {
            EXPECT_TRUE(intro.desktop.messages.empty());
        }
    }
}

TEST(Intro, FinishedWithoutAPreferencesFolderStays) {
    Intro intro("intro-nil-folder");
    std::filesystem::remove_all(intro.home / "prefs");
    intro.Launch();
    ASSERT_FALSE(intro.window.IsClosed());
    intro.window.PushButton1.Push();
    EXPECT_EQ(intro.desktop.messages.size(), 1u);
    EXPECT_FALSE(intro.window.IsClosed());
    EXPECT_EQ(intro.mainShown, 0);
}

TEST(Intro, ShiftClickExplainsEachPartOfThePicture) {
    struct Case {
        int x, y;
        const char* start;  // "" for a click that changes nothing
    };
    const Case cases[] = {
        {0, 0, "Your choices here are\nCalculate\nConvert\nSolve\nPhysical Data\nEvaluate\nSettings\n--\n"},
        {51, 32, "Your choices here are"}, {51, 33, "In the Desk Accessory mode you drop  input here"},
        {20, 94, "In the Desk Accessory mode"}, {20, 95, ""}, {52, 20, ""}, {82, 40, ""},
        {83, 40, "This allows you to set and save"}, {134, 29, "This allows you"},
        {135, 49, "This contains information to aid you in selecting your prefferences."},
        {214, 40, "This tab displays the log"}, {215, 40, "When you choose an action"},
        {281, 40, "The 'Welcome' tab is displayed here."}, {365, 40, "This tab contains a calculator keypad"},
        {430, 40, "The 'Solve' tab features"}, {477, 40, "There are about 300 currently available conversions"},
        {590, 40, "In Velmora you can search for Physical and Astronomical Data"}, {591, 40, ""}, {300, 28, ""},
        {300, 50, ""}, {470, 130, "If your email client is configured to send mail, using this button woll open"},
        {469, 140, ""}, {561, 147, "If your email client"}, {562, 140, ""},
        {9, 460, "If you are in the Desk Accessory mode and choose 'Settings'"}, {70, 465, ""},
        {142, 456, "The information displayed above will be instructions"}, {251, 470, ""},
        {567, 476, "The 'Reset' button resets the clipboard viewer"}, {504, 470, ""}, {300, 300, ""},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message() << c.x << "," << c.y);
        Intro intro("intro-spots");
        intro.Launch();
        intro.desktop.shift = true;
        const std::string before = intro.window.StaticText1.Text();
        EXPECT_FALSE(intro.window.ImageWell1_MouseDown(c.x, c.y));
        const std::string after = intro.window.StaticText1.Text();
        if (*c.start) {
            EXPECT_TRUE(StartsWith(after, c.start)) << after;
        } else {
            EXPECT_EQ(after, before);
        }
        EXPECT_EQ(intro.window.ImageWell1.Image(), "fullwindow2");
    }
}

TEST(Intro, PlainClicksSwapThePictureOnlyAtTheTarget) {
    Intro intro("intro-plain");
    intro.Launch();
    Window2& w = intro.window;
    EXPECT_TRUE(
        StartsWith(w.StaticText1.Text(), "Welcome to the Itrodution to Velmora.\nBoth the \"Finished\" Button"));

    struct Step {
        int x, y;
        const char* image;
        const char* start;
    };
    const Step steps[] = {
        {54, 46, "fullwindow1", "Hold the shift key down while clicking on a button or tab"},
        {10, 91, "fullwindow2", "Welcome to the Itrodution to Velmora.\nBoth the 'Finished' Button"},
        {55, 60, "fullwindow2", "Do get information about any button or tab"},
        {10, 45, "fullwindow2", "Do get information"},
        {10, 92, "fullwindow2", "Do get information"},
        {300, 40, "fullwindow2", "Do get information"},
        {0, 80, "fullwindow1", "Hold the shift key down while clicking on a button"},
    };
    for (const Step& step : steps) {
        SCOPED_TRACE(testing::Message() << step.x << "," << step.y);
        EXPECT_FALSE(w.ImageWell1_MouseDown(step.x, step.y));
        EXPECT_EQ(w.ImageWell1.Image(), step.image);
        EXPECT_TRUE(StartsWith(w.StaticText1.Text(), step.start)) << w.StaticText1.Text();
    }
    EXPECT_TRUE(StartsWith(w.StaticText1.Text(), "Hold the shift key down while clicking on a button or tab"));
    w.ImageWell1_MouseExit();
    EXPECT_TRUE(StartsWith(w.StaticText1.Text(), "Hold the shift key down while clicking on any button or tab"));

    // A shift-click at the target explains it and swaps nothing; leaving the picture wipes it.
    intro.desktop.shift = true;
    w.ImageWell1_MouseDown(10, 60);
    EXPECT_EQ(w.ImageWell1.Image(), "fullwindow1");
    EXPECT_TRUE(StartsWith(w.StaticText1.Text(), "In the Desk Accessory mode"));
    w.ImageWell1.SetImage("fullwindow2");
    w.ImageWell1_MouseExit();
    EXPECT_TRUE(StartsWith(w.StaticText1.Text(), "Welcome to the Itrodution to Velmora.\nBoth the 'Finished'"));
}

TEST(Intro, ConsolePassesTheIntroductionLikeContinue) {
    for (bool shift : {false, true}) {
        SCOPED_TRACE(shift);
        const auto home = ScratchHome("intro-console");
        Console console(fw::HomeFolders(home), shift);
        EXPECT_TRUE(console.intro.IsClosed());
        EXPECT_EQ(console.intro.PushButton1.Visible(), !shift);
        EXPECT_TRUE(console.window.IsVisible());
        EXPECT_EQ(console.window.Width(), 64);
        EXPECT_FALSE(console.platform.shift);
        EXPECT_FALSE(std::filesystem::exists(home / "prefs" / "VL3Instr.txt"));
    }
}
