// The scenarios that the console runs on the model, run here on the real window with real
// mouse and key events: both front ends must print the same.

#include <gtest/gtest.h>

#include <sstream>

#include <QTest>

#include "QuietPlatform.h"
#include "WidgetDriver.h"
#include "support/Scenario.h"

namespace {
class WidgetScenario : public testing::TestWithParam<Scenario> {};

TEST_P(WidgetScenario, PrintsWhatItExpects) {
    const Scenario& scenario = GetParam();
    QuietPlatform platform(GuiHome("widgets-" + scenario.name, true));
    Window1 window(platform);
    WindowView view(window, platform);
    Commands commands(window, platform);
    window.Open();
    view.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&view));
    WidgetDriver driver(window, view, commands);
    std::ostringstream out, err;
    for (const std::string& command : scenario.commands) driver.Execute(command, out, err);
    EXPECT_EQ(out.str(), scenario.expected);
    EXPECT_EQ(err.str(), "");
    EXPECT_EQ(platform.messages, std::vector<std::string>{});
}

INSTANTIATE_TEST_SUITE_P(Widgets, WidgetScenario, testing::ValuesIn(AllScenarios()),
                         [](const auto& info) { return info.param.name; });
}  // namespace
