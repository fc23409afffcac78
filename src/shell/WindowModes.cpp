// The window's three sizes and the routing that keeps the action and the two tab panels in
// step. The target's tabs lines and bevelact's differ on purpose; both sets stay as they are.

#include "framework/Text.h"
#include "window/Window1.h"

using namespace fw;

namespace {
struct Route {
    const char* caption;
    int tabs2;
    int page;  // PagePanel1, or -1
    const char* line;
};

const Route kMenuRoutes[] = {
    {"Calculate", 1, -1, "---Tabs set to Directions and Calculate"},
    {"Convert", 3, -1, "---Tabs set to Directions and Convert"},
    {"Solve", 2, -1, "---Tabs set to Directions and Solve"},
    {"Evaluate", 1, -1, "---Tabs set to Directions and Calculate"},
    {"Settings", 0, -1, "---Tabs set to Instructions and Welcome"},
    {"Physical Data", 4, 0, "---Tabs set to Directions and Search(physical)"},
    {"Astro Data", 4, 1, "---Tabs set to Directions and Search(Astro)"},
    {"Math Formulas", 4, 2, "---Tabs set to Directions and Search(Math Formulas)"},
};

const Route kTargetRoutes[] = {
    {"Calculate", 1, -1, "---Tabs set to Directions and Calculate"},
    {"Convert", 3, -1, "---Tabs set to Directions and Convert"},
    {"Evaluate", 1, -1, "---Tabs set to Directions and Convert/Evaluate"},
    {"Solve", 2, -1, "---Tabs set to Directions and Solve"},
    {"Physical Data", 4, 0, "---Tabs set to Directions and Search(Physical Data)"},
    {"Astro Data", 4, 1, "---Tabs set to Directions and Search(Astro Data)"},
    {"Math Formulas", 4, 2, "---Tabs set to Directions and Search(Math Formulas)"},
};

template <size_t N>
const Route* FindRoute(const Route (&routes)[N], const std::string& caption) {
    for (const Route& route : routes)
        if (StrEq(route.caption, caption)) return &route;
    return nullptr;
}

// A click on a tab of the right panel chooses the action that goes with it.
const int kMenuValueOfTab[] = {7, 0, 2, 1, 3};
}  // namespace

void Window1::WireWindowModes() {
    BevelButton1.Action = [this] { BevelButton1_Action(); };
    ImageWell1.MouseDown = [this](int x, int y) { return ImageWell1_MouseDown(x, y); };
    PushButton2.Action = [this] { PushButton2_Action(); };
    TabPanel1.Change = [this] { TabPanel1_Change(); };
    TabPanel2.MouseDown = [this](int x, int y) { return TabPanel2_MouseDown(x, y); };
    TabPanel2.Change = [this] { TabPanel2_Change(); };
}

void Window1::BevelButton1_Action() { bevelact("0"); }

void Window1::bevelact(const std::string& origin) {
    BevelButton1.SetCaption(BevelButton1.List(BevelButton1.MenuValue()));
    const std::string caption = BevelButton1.Caption();
    WriteDirections(caption);
    const bool fromMenu = origin == "0";
    if (wincon == 0) {
        StaticText7.SetText(StrEq(caption, "Settings") ? "Use the back button below to return" : "Click the target to return.");
        const bool toConvertTab = StrEq(caption, "Convert") && !CheckBox2.Value();
        if (StrEq(caption, "Settings")) {
            LogLine(">>>" + caption);
            LogLine("--Settings Window Mode");
            LogLine("---Tabs set to Settings and Welcome.");
            // TabIndex, the keyboard order, not the tab: the panels stay where they were.
            TabPanel1.TabIndex = 0;
            if (fromMenu) TabPanel2.TabIndex = 0;
            SetSize(350, 600);
        } else if (toConvertTab || StrEq(caption, "Solve")) {
            LogLine(">>>" + caption);
            LogLine("--Expanded Window Mode");
            TabPanel1.SetValue(3);
            if (fromMenu) TabPanel2.SetValue(toConvertTab ? 3 : 2);
            LogLine(toConvertTab ? "---Tabs set to Directions and Convert" : "---Tabs set to Directions and Solve");
            wincon = 1;
            SetSize(800, 600);
        } else {
            LogLine(">>>" + caption);
            SetSize(64, 96);
        }
    }
    if (wincon != 0) {
        if (const Route* route = FindRoute(kMenuRoutes, caption)) {
            TabPanel1.SetValue(StrEq(caption, "Settings") ? 0 : 3);
            if (fromMenu) TabPanel2.SetValue(route->tabs2);
            if (route->page >= 0) PagePanel1.SetValue(route->page);
            LogLine(route->line);
        }
    }
}

bool Window1::ImageWell1_MouseDown(int, int) {
    if (wincon != 0) {
        PushButton2.Push();
        return false;
    }
    wincon = 1;
    SetSize(800, 600);
    LogLine("--Expanded Window Mode");
    const std::string caption = BevelButton1.Caption();
    if (const Route* route = FindRoute(kTargetRoutes, caption)) {
        TabPanel1.SetValue(3);
        TabPanel2.SetValue(route->tabs2);
        if (route->page >= 0) PagePanel1.SetValue(route->page);
        LogLine(route->line);
    }
    ApplyEvaluateView();
    return false;
}

void Window1::PushButton2_Action() {
    wincon = 0;
    SetSize(64, 96);
    LogLine("--Back to Normal Window Mode");
    StaticText7.SetText("Click the target to return.");
}

bool Window1::TabPanel2_MouseDown(int x, int) {
    tabclk = x;
    return false;
}

void Window1::TabPanel2_Change() {
    if (tabclk != 0) {
        LogLine(">>Tab " + Str(TabPanel2.Value()) + " chosen");
        BevelButton1.SetMenuValue(kMenuValueOfTab[TabPanel2.Value()]);
        bevelact("1");
        tabclk = 0;
    }
    ApplyEvaluateView();
}

void Window1::TabPanel1_Change() {
    if (TabPanel1.Value() == 1) StaticText27.SetVisible(false);
}

void Window1::ApplyEvaluateView() {
    const bool evaluate = StrEq(BevelButton1.Caption(), "Evaluate");
    for (Control* control : std::initializer_list<Control*>{&StaticText32, &StaticText33, &PushButton46, &Listbox3})
        control->SetVisible(evaluate);
    PushButton34.SetEnabled(!evaluate);
}
