#include <gtest/gtest.h>

#include <array>

#include "support/Session.h"

namespace {
void Fill(Session& s, const std::vector<const char*>& names, const std::vector<const char*>& texts) {
    for (size_t i = 0; i < names.size(); ++i)
        if (*texts[i]) s.Run(std::string("set ") + names[i] + " " + texts[i]);
}

struct QuadraticCase {
    const char* name;
    std::vector<const char*> abc;  // "" leaves the field empty
    const char* line;              // EditField9 after Solve
    const char* log;               // a stretch the log must hold, "" for a log left empty
    bool blinks;                   // a block C run that found quad spent goes to the target
};

const QuadraticCase kQuadratics[] = {
    {"General", {"1", "-3", "2"}, "Solutions(x1,x2):, 2, 1",
     "Entered (QE:1): ((-1)*-3+sqrt((-3)^2-4*1*2))/(2*1)\nOutput:2 \n"
     "Entered (QE:1): ((-1)*-3-sqrt((-3)^2-4*1*2))/(2*1)\n", false},
    {"DoubleRootTwice", {"1", "2", "1"}, "Solutions(x1,x2):, -1, -1", "", false},
    {"NegativeDiscriminantNotDetected", {"1", "1", "1"}, "Solutions(x1,x2):, NaN, NaN", "", false},
    {"ZeroByTextOnly", {"0.0", "1", "1"}, "Solutions(x1,x2):, NaN, -INF", "/(2*0.0)\n", false},
    {"AllZero", {"0", "0", "0"}, "Solutions(x1,x2):No Solution, NaN, NaN", "Entered (QE:1): 0\nOutput:0 \n", true},
    {"AAndBZero", {"", "", "5"}, "Solutions(x1,x2):No Solution",
     "Entered (QE:1): sqrt((-1)*5/)\nERROR: Syntax does not make sense.\nEntered (QE:2): (-1)*sqrt((-1)*5/)\n", false},
    {"AAndCZero", {"0", "2", "0"}, "Solutions(x1,x2):, 0", "Entered (QE): -1*0/2\nOutput:0 \nEntered (QE:1): 0\n", true},
    {"OnlyAZero", {"0", "2", "4"}, "Solutions(x1,x2):, -2", "Entered (QE): -1*4/2\n", false},
    {"BAndCZero", {"2", "0", "0"}, "Solutions(x1,x2):, 0, 0", "Entered (QE:2): (-1)*sqrt((-1)*0/2)\n", true},
    {"BZeroSameSigns", {"-1", "0", "-4"}, "Solutions(x1,x2):No Solution", "", false},
    {"BZeroOppositeSigns", {"1", "0", "-4"}, "Solutions(x1,x2):, 2, -2",
     "Entered (QE:1): sqrt((-1)*-4/1)\nOutput:2 \nEntered (QE:2): (-1)*sqrt((-1)*-4/1)\n", false},
    {"OnlyCZero", {"1", "2", "0"}, "Solutions(x1,x2):, 0, -2", "Entered (QE:1): 0\nOutput:0 \nEntered (QE:1): (-1)*2/1\n",
     false},
};

void PrintTo(const QuadraticCase& c, std::ostream* out) { *out << c.name; }

class Quadratic : public testing::TestWithParam<QuadraticCase> {};

TEST_P(Quadratic, BlocksFireIndependently) {
    const QuadraticCase& c = GetParam();
    Session s("quadratic");
    Fill(s, {"EditA", "EditB", "EditC"}, c.abc);
    s.Run("push PushButton41");
    EXPECT_EQ(s.w().EditField9.Text(), c.line);
    const std::string log = s.LogSinceStart();
    if (*c.log) {
        EXPECT_NE(log.find(c.log), std::string::npos) << log;
    } else if (c.line == std::string("Solutions(x1,x2):No Solution")) {
        EXPECT_EQ(log, "");  // nothing is run
    }
    EXPECT_EQ(s.w().ImageWell1.Image(), c.blinks ? "target2" : "target");
}

INSTANTIATE_TEST_SUITE_P(Solve, Quadratic, testing::ValuesIn(kQuadratics),
                         [](const testing::TestParamInfo<QuadraticCase>& info) { return std::string(info.param.name); });

struct LinearCase {
    const char* name;
    const char* setup;
    std::vector<const char*> fields;  // A1 B1 C1 D2 E2 F2; "" leaves one empty
    const char* line;                 // TextField2 after Solve
    const char* log;                  // from the Begin line on, between the frame lines
};

const LinearCase kLinears[] = {
    {"Worked", "", {"1", "1", "3", "1", "-1", "1"}, "Solutions(X,Y):, 2, 1",
     "Entered: 1*-1-1*1\nOutput:-2 \nEntered (2Dx): (-1*3-1*1)/(1*-1-1*1)\nOutput:2 \n"
     "Entered (2Dy): (3-1*(-1*3-1*1)/(1*-1-1*1))/1\nOutput:1 \n"},
    {"AllEmpty", "", {"", "", "", "", "", ""}, "Solutions(X,Y): No Solution",
     "Entered: 0*0-0*0\nOutput:0 \nNo Unique Solution\n"},
    {"Singular", "", {"1", "2", "3", "2", "4", "6"}, "Solutions(X,Y): No Solution",
     "Entered: 1*4-2*2\nOutput:0 \nNo Unique Solution\n"},
    {"ScientificDeterminant", "click scibutton1", {"1", "1", "3", "1", "-1", "1"}, "Solutions(X,Y):, 2.0e+0, 1.0e+0",
     "Entered: 1*-1-1*1\nOutput:-2.0e+0 \nEntered (2Dx): (-1*3-1*1)/(1*-1-1*1)\nOutput:2.0e+0 \n"
     "Entered (2Dy): (3-1*(-1*3-1*1)/(1*-1-1*1))/1\nOutput:1.0e+0 \n"},
    {"ScientificZero", "click scibutton1", {"1", "2", "3", "2", "4", "6"}, "Solutions(X,Y): No Solution",
     "Entered: 1*4-2*2\nOutput:0.0e+0 \nNo Unique Solution\n"},
    {"PurgePrettyOffUsesTheOldAnswer", "click CheckBox1", {"1", "1", "3", "1", "-1", "1"},
     "Solutions(X,Y): No Solution", "Entered: 1*-1-1*1\nNo Unique Solution\n"},
    {"YDividesByB1", "", {"1", "", "2", "", "1", "3"}, "Solutions(X,Y):, 2, NaN",
     "Entered: 1*1-0*0\nOutput:1 \nEntered (2Dx): (1*2-3*0)/(1*1-0*0)\nOutput:2 \n"
     "Entered (2Dy): (2-1*(1*2-3*0)/(1*1-0*0))/0\nOutput:NaN \n"},
};

void PrintTo(const LinearCase& c, std::ostream* out) { *out << c.name; }

class Linear : public testing::TestWithParam<LinearCase> {};

TEST_P(Linear, DeterminantThroughTheKeyThenXAndY) {
    const LinearCase& c = GetParam();
    Session s("linear");
    s.Run(c.setup);
    Fill(s, {"A1", "B1", "C1", "D2", "E2", "F2"}, c.fields);
    const size_t mark = s.w().EditField2.Text().size();
    s.Run("push PushButton45");
    EXPECT_EQ(s.w().TextField2.Text(), c.line);
    EXPECT_EQ(s.w().EditField2.Text().substr(mark), std::string("**Begin 2 linear equation calculations\n") + c.log +
                                                        "****End 2 linear equation calculations\n");
    EXPECT_EQ(s.w().BevelButton1.Caption(), "Solve");
}

INSTANTIATE_TEST_SUITE_P(Solve, Linear, testing::ValuesIn(kLinears),
                         [](const testing::TestParamInfo<LinearCase>& info) { return std::string(info.param.name); });

struct ResetCase {
    const char* name;  // the coefficient field
    bool quadratic;    // resets EditField9 on TextChange, else TextField2 on KeyDown only
};

const ResetCase kResets[] = {{"EditA", true}, {"EditB", true}, {"EditC", true}, {"A1", false}, {"B1", false},
                             {"C1", false},   {"D2", false},   {"E2", false},   {"F2", false}};

void PrintTo(const ResetCase& c, std::ostream* out) { *out << c.name; }

class Reset : public testing::TestWithParam<ResetCase> {};

TEST_P(Reset, EditingACoefficientResetsItsResultLine) {
    const ResetCase& c = GetParam();
    Session s("reset");
    auto& field = dynamic_cast<fw::TextControl&>(*s.w().Find(c.name));
    fw::TextControl& line = c.quadratic ? static_cast<fw::TextControl&>(s.w().EditField9) : s.w().TextField2;
    const std::string preset = line.Text();
    line.SetText("old");
    field.InsertAtCaret("7");  // a paste by mouse: no key
    EXPECT_EQ(line.Text(), c.quadratic ? preset : "old");
    line.SetText("old");
    s.Run(std::string("set ") + c.name + " 5");
    EXPECT_EQ(line.Text(), preset);
    EXPECT_EQ(field.Text(), "5");  // the key still goes in
}

INSTANTIATE_TEST_SUITE_P(Solve, Reset, testing::ValuesIn(kResets),
                         [](const testing::TestParamInfo<ResetCase>& info) { return std::string(info.param.name); });
}  // namespace

TEST(Quadratic, LinesAccumulateAndAnUnusedArmingCatchesTheNextAnswer) {
    Session s("accumulate");
    s.Run("set EditA 1\nset EditB -3\nset EditC 2\npush PushButton41\npush PushButton41");
    EXPECT_EQ(s.w().EditField9.Text(), "Solutions(x1,x2):, 2, 1, 2, 1");
    s.Run("set EditC 4\nset EditB 0\npush PushButton41");
    s.console.Drop("2+2");
    EXPECT_EQ(s.w().EditField9.Text(), "Solutions(x1,x2):No Solution, 4");
    EXPECT_EQ(s.w().ImageWell1.Image(), "target");
}
