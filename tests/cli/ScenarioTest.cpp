// The scenarios on the model, as the console runs them; the widget driver runs the same files
// on the real window (tests/gui/WidgetScenarioTest.cpp).

#include <gtest/gtest.h>

#include "support/Scenario.h"
#include "support/Session.h"

namespace {
class ConsoleScenario : public testing::TestWithParam<Scenario> {};

TEST_P(ConsoleScenario, PrintsWhatItExpects) {
    const Scenario& scenario = GetParam();
    Session session("scenario-" + scenario.name, true);
    std::string printed;
    for (const std::string& command : scenario.commands) printed += session.Run(command + "\n");
    EXPECT_EQ(printed, scenario.expected);
    EXPECT_EQ(session.errors, "");
}

INSTANTIATE_TEST_SUITE_P(Console, ConsoleScenario, testing::ValuesIn(AllScenarios()),
                         [](const auto& info) { return info.param.name; });
}  // namespace
