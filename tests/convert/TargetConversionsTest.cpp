#include <gtest/gtest.h>

#include "framework/EventBoundary.h"

#include "ConvertFiles.h"

using namespace convert_test;

namespace {
struct DropCase {
    const char* name;
    const char* category;
    const char* label;
    const char* text;
    const char* answer;  // "" when nothing may be delivered
};

const DropCase kDrops[] = {
    {"ByFragment", "Power", "hp->W", "2 hp", "1491.4 W"},
    {"LowerUnitIsDropped", "Power", "hp->W", "0.15 hp/ft^2", "111.855 W"},
    {"CommaAndBlankGoFirst", "Length", "km->m", "1,500 km", "1500000 m"},
    {"UnitTextMayHoldBlanks", "Length", "km->metre long", "1", "1000 metre long"},
    {"Fahrenheit", "Temperature", "Fahrenheit(F)->C", "98.6 F", "37 C"},
    {"NegativeToKelvin", "Temperature", "C->K", "-40", "233.15 K"},
    {"KelvinToFahrenheit", "Temperature", "K->F", "0", "-459.67 F"},
    {"UnknownTemperatureFails", "Temperature", "Reaumur->C", "10", ""},
    {"BadFragmentFails", "Broken", "bad->x", "2", ""},
    {"HexToDecimal", "Number", "Hex->Decimal", "FF", "255"},
    {"DecimalToHexRoundsFirst", "Number", "Decimal(Integer)->Hex", "255.6", "100"},
    {"OctStopsAtBadDigit", "Number", "Oct->Decimal", "129", "10"},
    {"DecimalToBinary", "Number", "Decimal->Binary", "5.5", "110"},
    {"BinaryToDecimal", "Number", "Binary->Decimal", "1 012", "5"},
    {"UnknownNumberRowIsSilent", "Number", "Roman->Decimal", "XII", ""},
};

class ClipboardDrops : public testing::TestWithParam<DropCase> {};

// With Use Clipboard set every drop blinks; a base change always beeps, the others only with an answer.
TEST_P(ClipboardDrops, AnswerWithTheLabelsUnit) {
    const DropCase& c = GetParam();
    Session s("cdrop", WithFile(kTable));
    s.Run("click CheckBox2\nchoose Convert");
    Pick(s, c.category, c.label);
    s.desktop().clipboard = "before";
    s.console.Drop(c.text);
    EXPECT_EQ(s.desktop().clipboard, *c.answer ? c.answer : "before") << s.LogSinceStart();
    EXPECT_EQ(s.w().EditField5.Text(), c.answer);
    EXPECT_EQ(s.w().ImageWell1.Image(), "target2");
    EXPECT_EQ(s.desktop().Beeps(), fw::StrEq(c.category, "Number") || *c.answer ? 1 : 0);
}

INSTANTIATE_TEST_SUITE_P(TargetConversions, ClipboardDrops, testing::ValuesIn(kDrops),
                         [](const testing::TestParamInfo<DropCase>& info) { return std::string(info.param.name); });
}  // namespace

TEST(TargetConversions, OnlyTheDropBlinksBeforeRun) {
    Session s("roads", WithFile(kTable));
    s.Run("click CheckBox2\nchoose Convert");
    Pick(s, "Broken", "bad->x");
    fw::RunEvent(s.desktop(), [&s] { s.w().ButtonAct("2"); });
    s.Run("set EditField4 3\npush PushButton40");
    EXPECT_EQ(s.w().ImageWell1.Image() + " " + s.w().EditField1.Text(), "target 3*(");
    s.console.Drop("4");
    EXPECT_EQ(s.w().ImageWell1.Image() + " " + s.w().EditField1.Text(), "target2 4*(");
}

TEST(TargetConversions, DropWithoutClipboardHandsOverToTheConvertTab) {
    Session s("handover", WithFile(kTable));
    s.Run("click CheckBox2\nchoose Convert\nclick CheckBox2");  // Convert in the small window
    s.desktop().clipboard = "before";
    size_t mark = s.w().EditField2.Text().size();
    s.console.Drop("12 km");
    EXPECT_EQ(LogFrom(s, mark), "Entered: 12 km\n--Expanded Window Mode\n---Tabs set to Directions and Convert\n");
    EXPECT_EQ(s.w().TextField1.Text(), "12 km");
    EXPECT_EQ(s.Run("get size\nget TabPanel1\nget TabPanel2\nget clipboard"), "800x600\n3\n3\nbefore\n");
    EXPECT_EQ(s.desktop().Beeps(), 0);
    // Expanded already: only the entry changes; the second word is the unit, "zz" in any case none.
    const std::pair<const char*, const char*> kEntries[] = {
        {"5", "5"}, {"3 ZZ", "3"}, {"1,500 km/h", "1500 km/h"}, {"2 hp extra", "2 hp"}};
    for (const auto& [text, entry] : kEntries) {
        mark = s.w().EditField2.Text().size();
        s.console.Drop(text);
        EXPECT_EQ(s.w().TextField1.Text() + "|" + LogFrom(s, mark), std::string(entry) + "|Entered: " + text + "\n");
    }
}

TEST(TargetConversions, BaseChangeByTheKeyEnablesTheKeyItself) {
    Session s("key", WithFile(kTable));
    s.Run("choose Convert");  // expanded: the key greys itself while it runs
    Pick(s, "Number", "Hex->Decimal");
    s.Run("set EditField4 f f\npush PushButton40");
    EXPECT_EQ(s.w().EditField5.Text() + "|" + s.desktop().clipboard, "255|255");
    EXPECT_TRUE(s.w().PushButton40.Enabled());
    EXPECT_EQ(s.w().ImageWell1.Image(), "target");  // Use Clipboard is off
}
