#include <gtest/gtest.h>

#include "ConvertFiles.h"

using namespace convert_test;

TEST(ConvertTab, ChainUpperThenLowerUnit) {
    Session s("chain", WithFile(kTable));
    s.Run("choose Convert");
    Pick(s, "Power", "hp->W");
    s.Run("set TextField1 0.15 hp/ft^2\nclick RadioButton8\npush PushButton44");
    EXPECT_EQ(s.w().TextField1.Text() + "|" + s.desktop().clipboard, "111.855 W/ft^2|111.855 W");

    Pick(s, "Area", "ft^2->m^2");
    const size_t mark = s.w().EditField2.Text().size();
    s.Run("click RadioButton9\npush PushButton44");
    EXPECT_EQ(s.w().TextField1.Text(), "1203.997   W/m^2");
    EXPECT_EQ(LogFrom(s, mark),
              "--Lower Unit Conversion Chosen\nEntered: 111.855 W/ft^2\nOutput:10.39167 m^2\n"
              "Entered: 111.855 W/ft^2\nOutput:10.39167 m^2\nEntered: 111.855^2/10.39167\nOutput:1203.997 \n W/m^2\n");
    EXPECT_EQ(s.desktop().Beeps(), 4);
    EXPECT_EQ(s.w().BevelButton1.Caption() + "|" + s.desktop().clipboard, "Convert|1203.997 ");
}

namespace {
struct Press {
    const char* name;
    const char* setup;
    const char* category;
    const char* label;
    const char* entry;
    const char* radio;
    const char* result;   // TextField1 afterwards
    const char* lastLog;  // the press's last log line
    int beeps;
};

const Press kPresses[] = {
    {"NormalKeepsNewUnitOnly", "", "Power", "hp->W", "2 hp/s", "RadioButton7", "1491.4 W", "Output:1491.4 W", 1},
    {"NoBlankIgnoresTheRadio", "", "Length", "km->m", "5", "RadioButton9", "5000 m",
     "---No Units included. Default Chosen", 1},
    {"LowerWithoutDividerRunsTwice", "", "Length", "km->m", "5  km", "RadioButton9", "5000 m",
     "---No Unit divider '/' included. Default Chosen", 2},
    {"LowerKeepsAllBeforeLastSlash", "", "Length", "km->m", "5 kg/m/km", "RadioButton9", "0.005   kg/m/m", " kg/m/m",
     3},
    {"LowerTakesFirstWordOfNewUnit", "", "Length", "km->metre long", "2 W/km", "RadioButton9", "0.002   W/metre",
     " W/metre", 3},
    {"LowerKeepsANegativeSign", "", "Area", "ft^2->m^2", "-5 W/ft^2", "RadioButton9", "-53.81955   W/m^2", " W/m^2", 3},
    {"WithoutPurgeTheEntryTakesAStaleAnswer", "click CheckBox1\nset EditField5 old", "Power", "hp->W", "2 hp",
     "RadioButton7", "old", "Entered: 2 hp", 0},
};

class Presses : public testing::TestWithParam<Press> {};

TEST_P(Presses, WriteTheAnswerBackIntoTheEntry) {
    const Press& c = GetParam();
    Session s("press", WithFile(kTable));
    s.Run("choose Convert");
    Pick(s, c.category, c.label);
    s.Run(std::string(c.setup) + "\nset TextField1 " + c.entry + "\nclick " + c.radio + "\npush PushButton44");
    EXPECT_EQ(s.w().TextField1.Text(), c.result);
    const std::string& log = s.w().EditField2.Text();
    EXPECT_EQ(log.substr(log.rfind('\n', log.size() - 2) + 1), std::string(c.lastLog) + "\n");
    EXPECT_EQ(s.desktop().Beeps(), c.beeps);
}

INSTANTIATE_TEST_SUITE_P(ConvertTab, Presses, testing::ValuesIn(kPresses),
                         [](const testing::TestParamInfo<Press>& info) { return std::string(info.param.name); });
}  // namespace
