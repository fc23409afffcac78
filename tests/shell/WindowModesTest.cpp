#include <gtest/gtest.h>

#include "support/Session.h"

namespace {
struct Transition {
    const char* name;
    const char* before;  // commands that set the scene; the log is read from after them
    const char* act;
    const char* size;
    const char* log;
};

const Transition kTransitions[] = {
    {"TargetClickExpands", "choose Calculate", "click ImageWell1", "800x600",
     "--Expanded Window Mode\n---Tabs set to Directions and Calculate\n"},
    {"TargetClickUnderEvaluateNamesConvert", "choose Evaluate", "click ImageWell1", "800x600",
     "--Expanded Window Mode\n---Tabs set to Directions and Convert/Evaluate\n"},
    {"TargetClickWithNoActionChangesNoTab", "", "click ImageWell1", "800x600", "--Expanded Window Mode\n"},
    {"SettingsFromSmall", "", "choose Settings", "350x600",
     ">>>Settings\n--Settings Window Mode\n---Tabs set to Settings and Welcome.\n"},
    {"ConvertWithoutClipboardExpands", "", "choose Convert", "800x600",
     ">>>Convert\n--Expanded Window Mode\n---Tabs set to Directions and Convert\n---Tabs set to Directions and Convert\n"},
    {"ConvertWithClipboardStaysSmall", "click CheckBox2", "choose Convert", "64x96", ">>>Convert\n"},
    {"SolveExpands", "", "choose Solve", "800x600",
     ">>>Solve\n--Expanded Window Mode\n---Tabs set to Directions and Solve\n---Tabs set to Directions and Solve\n"},
    {"OtherRowStaysSmall", "", "choose Astro Data", "64x96", ">>>Astro Data\n"},
    {"BackFromSettings", "choose Settings", "push PushButton2", "64x96", "--Back to Normal Window Mode\n"},
    {"CalculateFromSettingsShrinks", "choose Settings", "choose Calculate", "64x96", ">>>Calculate\n"},
    {"TargetClickFromSettings", "choose Settings", "click ImageWell1", "800x600", "--Expanded Window Mode\n"},
    {"TargetClickWhenExpanded", "click ImageWell1", "click ImageWell1", "64x96", "--Back to Normal Window Mode\n"},
    {"MenuWhenExpanded", "click ImageWell1", "choose Math Formulas", "800x600",
     "---Tabs set to Directions and Search(Math Formulas)\n"},
    {"TabClickWhenExpanded", "choose Calculate\nclick ImageWell1", "click TabPanel2 0", "800x600",
     ">>Tab 0 chosen\n---Tabs set to Instructions and Welcome\n"},
};

class Modes : public testing::TestWithParam<Transition> {};

TEST_P(Modes, MoveAndLogExactly) {
    const Transition& t = GetParam();
    Session s("modes");
    s.Run(t.before);
    const size_t mark = s.w().EditField2.Text().size();
    s.Run(t.act);
    EXPECT_EQ(s.Run("get size"), std::string(t.size) + "\n");
    EXPECT_EQ(s.w().EditField2.Text().substr(mark), t.log);
}

void PrintTo(const Transition& t, std::ostream* out) { *out << t.name; }

INSTANTIATE_TEST_SUITE_P(Window, Modes, testing::ValuesIn(kTransitions),
                         [](const testing::TestParamInfo<Transition>& info) { return std::string(info.param.name); });
}  // namespace

TEST(Routing, TabsFollowTheActionAndTheActionFollowsTabClicks) {
    Session s("routing");
    s.Run("click ImageWell1\nchoose Astro Data");
    EXPECT_EQ(s.w().TabPanel2.Value(), 4);
    EXPECT_EQ(s.w().PagePanel1.Value(), 1);
    EXPECT_EQ(s.w().BevelButton1.Caption(), "Astro Data");  // set by code: no click, no reset
    s.Run("click TabPanel2 4");
    s.Run("click TabPanel2 1\nclick TabPanel2 4");
    EXPECT_EQ(s.w().BevelButton1.Caption(), "Physical Data");
    s.Run("choose Calculate\nchoose Evaluate");
    EXPECT_FALSE(s.w().Listbox3.Visible());  // the tab did not move, so the view waits
    s.Run("click TabPanel2 2\nchoose Evaluate");
    EXPECT_TRUE(s.w().Listbox3.Visible());
    EXPECT_FALSE(s.w().PushButton34.Enabled());
    s.Run("click TabPanel2 0\nclick TabPanel2 1");
    EXPECT_EQ(s.w().BevelButton1.Caption(), "Calculate");
    EXPECT_FALSE(s.w().Listbox3.Visible());
}

TEST(Routing, SettingsSetsKeyboardOrderNotTheTab) {
    Session s("tabindex");
    s.Run("click ImageWell1\nchoose Calculate\npush PushButton2\nchoose Settings");
    EXPECT_EQ(s.Run("get size"), "350x600\n");
    EXPECT_EQ(s.w().TabPanel1.Value(), 3);
    EXPECT_EQ(s.w().StaticText7.Text(), "Use the back button below to return");
}

TEST(Routing, AStrayMouseDownMakesTheNextCodeChangeACLick) {
    Session s("tabclk");
    s.Run("click ImageWell1");
    s.w().TabPanel2.FireMouseDown(50, 5);
    s.Run("choose Solve");
    EXPECT_NE(s.w().EditField2.Text().find(">>Tab 2 chosen\n"), std::string::npos);
}
