#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "framework/Text.h"

#include "support/Session.h"

namespace {
struct DropCase {
    const char* name;
    const char* setup;  // console commands before the drop
    const char* text;
    const char* clipboard;  // "" when nothing may be delivered
};

// Whole drops under Calculate, from the text to what reaches the clipboard.
const DropCase kDrops[] = {
    {"SineInDegrees", "", "2*sin(30)", "1 "},
    {"ThousandsSeparators", "", "1,000,000", "1000000 "},
    {"PastedSuperscript", "", "2x106", "2000000 "},
    {"PrettyTimesSign", "", "2\xC3\x97" "106", "2000000 "},
    {"Factorial", "", "5!", "120 "},
    {"FactorialWrapsAt32Bits", "", "13!", "1.932054e+9 "},
    {"FactorialReplacesTails", "", "5!+15!", "1240 "},
    {"FactorialInsideFraction", "", "2.5!", "2.12 "},
    {"NaturalLog", "", "log(100)", "4.60517 "},
    {"CommonLog", "click RadioButton4", "log(100)", "2 "},
    {"InverseSineInDegrees", "", "asin(1)", "90 "},
    {"PiInAnyCase", "click RadioButton1", "2*pi", "6.283185 "},
    {"RadiansLeaveSineAlone", "click RadioButton1", "sin(PI/2)", "1 "},
    {"SineFactorBindsFirstTermOnly", "", "sin(30+60)", "-0.7401802 "},
    {"ScientificMode", "click scibutton1", "100+100", "2.0e+2 "},
    {"DashesArePurged", "", "5\xE2\x80\x94" "3", "2 "},
    {"TildeIsPurged", "", "2~3", "23 "},
    {"TimesSignIsNoOperator", "", "2\xC3\x97" "3", ""},
    {"TildeStaysWithoutPurge", "click CheckBox1", "2~3", ""},
    {"UnknownName", "", "arcsin(2)", ""},
    {"FactorialOfExpression", "", "(2+3)!", ""},
    {"EmptyText", "", "", ""},
    {"TrailingBlankIsNoHelp", "", "? ", ""},
    {"UnicodeMinusIsNotMapped", "", "2\xE2\x88\x92" "3", ""},
};

void PrintTo(const DropCase& c, std::ostream* out) { *out << c.name; }

class Drops : public testing::TestWithParam<DropCase> {};

TEST_P(Drops, DeliverExactlyWhatTheRewritingAllows) {
    const DropCase& c = GetParam();
    Session s("drop");
    s.Run(c.setup);
    s.desktop().clipboard = "before";
    s.console.Drop(c.text);
    EXPECT_EQ(s.desktop().clipboard, *c.clipboard ? c.clipboard : "before") << s.w().EditField2.Text();
    EXPECT_EQ(s.desktop().Beeps(), *c.clipboard ? 1 : 0);
}

INSTANTIATE_TEST_SUITE_P(Calculate, Drops, testing::ValuesIn(kDrops),
                         [](const testing::TestParamInfo<DropCase>& info) { return std::string(info.param.name); });
}  // namespace

TEST(Drop, DefaultActionThenAnswerDeliveredInOrder) {
    Session s("default");
    s.console.Drop("2+2");
    EXPECT_EQ(s.w().BevelButton1.Caption(), "calculate");
    EXPECT_EQ(s.LogSinceStart(), ">>>Calculate (default action)\nEntered: 2+2\nOutput:4 \n");
    EXPECT_EQ(s.w().EditField1.Text(), "2+2");
    EXPECT_EQ(s.w().EditField5.Text(), "4 ");
    EXPECT_EQ(s.w().ImageWell1.Image(), "target2");
    EXPECT_EQ(s.w().Timer1.Mode(), 1);
    s.Run("timer");
    EXPECT_EQ(s.w().ImageWell1.Image(), "target");
}

TEST(Drop, RewritingReachesTheEngineExactly) {
    Session s("rewrite");
    s.console.Drop("sin(90)");
    EXPECT_EQ(s.w().EditField1.Text(), "sin((3.1415926535897932384626433832795/180)*90)");
    s.console.Drop("ASIN(1)");
    EXPECT_EQ(s.w().EditField1.Text(), "AsinD(1)");
    s.console.Drop("3!");
    EXPECT_EQ(s.w().EditField1.Text(), "6");
}

TEST(Drop, FailedRunLogsOneLineAndKeepsTheLastAnswer) {
    Session s("fail");
    s.console.Drop("2+3");
    s.console.Drop("2+");
    EXPECT_EQ(s.desktop().clipboard, "5 ");
    EXPECT_EQ(s.w().EditField5.Text(), "5 ");
    EXPECT_NE(s.w().EditField2.Text().find("Entered: 2+\nERROR: Syntax does not make sense.\n"), std::string::npos);
    EXPECT_EQ(s.desktop().Beeps(), 1);
}

TEST(Drop, PurgeLogsWhatItChanged) {
    Session s("purge");
    s.console.Drop("2\xE2\x80\x93" "1");
    EXPECT_NE(s.w().EditField2.Text().find("Unprettfied: 2-1\n"), std::string::npos);
    s.console.Drop("2-1");
    EXPECT_EQ(s.w().EditField2.Text().find("Unprettfied: 2-1\n", s.w().EditField2.Text().find("Unprettfied") + 1),
              std::string::npos);
}

TEST(Drop, ActionsWithoutDropsPlayClaves) {
    Session s("claves");
    s.Run("choose Solve");
    s.console.Drop("2+2");
    EXPECT_EQ(s.desktop().sounds, std::vector<std::string>{"claves"});
    EXPECT_EQ(s.desktop().Beeps(), 0);
    EXPECT_NE(s.w().EditField2.Text().find("Entered: 2+2\n"), std::string::npos);
}

TEST(Drop, BadInputEndsInALogLineNeverACrash) {
    Session s("bad", true);
    s.desktop().messages.clear();
    const std::string inputs[] = {std::string(1 << 20, '7'), std::string("\x00\xff\xfe\x01", 4),
                                  std::string(10000, '(') + "1" + std::string(10000, ')'), [] {
                                      std::string many;
                                      for (int i = 0; i < 100000; ++i) many += "5!";
                                      return many;
                                  }()};
    for (const std::string& input : inputs) s.console.Drop(input);
    EXPECT_TRUE(s.desktop().messages.empty());
}

TEST(LogSave, AppendsTheWholeLogUnderTheShortDate) {
    Session s("logsave");
    s.desktop().now = 1296432000;  // 31 January 2011
    s.Run("push PushButton3\npush PushButton3");
    const auto file = s.home / "app" / ("VLLog" + fw::ReplaceAll(s.desktop().ShortDate(s.desktop().now), "/", "-") + ".txt");
    ASSERT_TRUE(std::filesystem::exists(file)) << file;
    std::ifstream in(file);
    const std::string saved((std::istreambuf_iterator<char>(in)), {});
    const std::string& log = s.w().EditField2.Text();
    const size_t firstSave = log.find("--Log Saved at ");
    EXPECT_EQ(saved, log.substr(0, log.find('\n', firstSave) + 1) + log);
}

// Replays the drop fuzzer's saved inputs (first byte: the action) through the console: each ends
// in an answer, a log line or a message of the event boundary, never a crash.
TEST(Drop, FuzzCorpusReplaysWithoutACrash) {
    static const char* const actions[] = {"Calculate", "Convert", "Evaluate", "Physical Data", "Astro Data",
                                          "Math Formulas", "Solve", "Settings"};
    const std::filesystem::path folder = std::filesystem::path(VELMORA_TEST_DATA_DIR) / "fuzz/drop";
    Session s("drop-corpus", true);
    int files = 0;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        std::ifstream in(entry.path(), std::ios::binary);
        const std::string input{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
        if (input.empty()) continue;
        s.console.Choose(actions[static_cast<unsigned char>(input[0]) % 8]);
        s.console.Drop(input.substr(1));
        ++files;
    }
    EXPECT_GT(files, 0);
}
