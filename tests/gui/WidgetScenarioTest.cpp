// The scenarios that the console runs on the model, run here on the real window with real
// mouse and key events: both front ends must print the same.

#include <gtest/gtest.h>

#include <sstream>

#include "Screen.h"
#include "WidgetDriver.h"
#include "support/Scenario.h"

namespace {
class WidgetScenario : public testing::TestWithParam<Scenario> {};

TEST_P(WidgetScenario, PrintsWhatItExpects) {
    const Scenario& scenario = GetParam();
    Screen screen("widgets-" + scenario.name);
    screen.Show();
    Commands commands(screen.window, screen.platform);
    WidgetDriver driver(screen.window, screen.view, commands);
    std::ostringstream out, err;
    for (const std::string& command : scenario.commands) driver.Execute(command, out, err);
    EXPECT_EQ(out.str(), scenario.expected);
    EXPECT_EQ(err.str(), "");
    EXPECT_EQ(screen.platform.messages, std::vector<std::string>{});
}

INSTANTIATE_TEST_SUITE_P(Widgets, WidgetScenario, testing::ValuesIn(AllScenarios()),
                         [](const auto& info) { return info.param.name; });
}  // namespace
