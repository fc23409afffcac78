#include <gtest/gtest.h>

#include <fstream>
#include <vector>

#include "support/Session.h"

namespace {
using Lines = std::vector<std::string>;

void Store(Session& s, const Lines& formulas) {
    for (const std::string& formula : formulas) s.Run("set EditField4 " + formula + "\npush PushButton33");
}

Lines Rows(const fw::Listbox& list) {
    Lines rows;
    for (int row = 0; row < list.ListCount(); ++row) rows.push_back(list.Cell(row, 0));
    return rows;
}

std::string FileText(const std::filesystem::path& file) {
    std::ifstream in(file);
    return std::string((std::istreambuf_iterator<char>(in)), {});
}

struct RecallCase {
    const char* name;
    Lines stored;
    Lines shown;  // EditField4 after each press of mr
};

const RecallCase kRecalls[] = {
    {"ThreeComeRound", {"a", "b", "c"}, {"a", "b", "c", "a", "b", "c"}},
    {"OneEveryTime", {"a"}, {"a", "a", "a"}},
    {"EmptyLineEndsTheCycle", {"a", "b", "", "c"}, {"a", "b", "a", "b"}},
    {"EmptyFirstLineIsShown", {"", "b"}, {"", "b", "", "b"}},
};

void PrintTo(const RecallCase& c, std::ostream* out) { *out << c.name; }

class Recall : public testing::TestWithParam<RecallCase> {};

TEST_P(Recall, WalksTheFileInACycle) {
    Session s("recall");
    Store(s, GetParam().stored);
    Lines shown;
    for (size_t press = 0; press < GetParam().shown.size(); ++press) {
        s.Run("push PushButton34");
        shown.push_back(s.w().EditField4.Text());
    }
    EXPECT_EQ(shown, GetParam().shown);
}

INSTANTIATE_TEST_SUITE_P(Memory, Recall, testing::ValuesIn(kRecalls),
                         [](const testing::TestParamInfo<RecallCase>& info) { return std::string(info.param.name); });

struct DeleteCase {
    const char* name;
    std::vector<int> ticked;
    Lines left;
};

const DeleteCase kDeletes[] = {
    {"NeighboursBothGo", {1, 2}, {"a", "d"}},
    {"FirstAndLast", {0, 3}, {"b", "c"}},
    {"AllGo", {0, 1, 2, 3}, {}},
    {"NoTickNoMessage", {}, {"a", "b", "c", "d"}},
};

void PrintTo(const DeleteCase& c, std::ostream* out) { *out << c.name; }

class Delete : public testing::TestWithParam<DeleteCase> {};

TEST_P(Delete, RemovesTickedRowsOnlyFromTheList) {
    Session s("delete");
    Store(s, {"a", "b", "c", "d"});
    for (int row : GetParam().ticked) s.Run("click Listbox3 " + std::to_string(row) + " 1");
    const size_t messages = s.desktop().messages.size();  // start-up may report missing data
    s.Run("push PushButton46\npush PushButton34");
    EXPECT_EQ(Rows(s.w().Listbox3), GetParam().left);
    EXPECT_EQ(s.desktop().messages.size(), messages);
    EXPECT_EQ(FileText(s.home / "app" / "VLmemory.txt"), "a\nb\nc\nd\n");
    EXPECT_EQ(s.w().EditField4.Text(), "a");  // mr still reads the deleted ones
}

INSTANTIATE_TEST_SUITE_P(Memory, Delete, testing::ValuesIn(kDeletes),
                         [](const testing::TestParamInfo<DeleteCase>& info) { return std::string(info.param.name); });
}  // namespace

TEST(Memory, MessagesForAnEmptyMemoryAndAnEmptyList) {
    Session s("empty");
    const size_t atStart = s.desktop().messages.size();
    s.Run("set EditField4 keep\npush PushButton34\npush PushButton46");
    EXPECT_EQ(Lines(s.desktop().messages.begin() + static_cast<long>(atStart), s.desktop().messages.end()),
              (Lines{"Nothing In Memory", "There are no items to delete"}));
    EXPECT_EQ(s.w().EditField4.Text(), "keep");
    EXPECT_EQ(s.w().formnumber, 1);
}

TEST(Memory, ClickCopiesTheFormulaAndTheTickOnlyTicks) {
    Session s("cellclick");
    Store(s, {"x^2:", "y+1"});
    s.Run("click Listbox3 0 0\nclick Listbox3 1 1");
    EXPECT_EQ(s.w().EditField4.Text(), "x^2:");
    EXPECT_TRUE(s.w().Listbox3.CellCheck(1, 1));
    EXPECT_EQ(s.desktop().Beeps(), 0);
}

TEST(Memory, QuitWritesTheListBackUnlessItIsEmpty) {
    Session s("restart");
    Store(s, {"a", "b", "c"});
    s.Run("click Listbox3 1 1\npush PushButton46\nclick Listbox3 1 1\nquit");
    EXPECT_EQ(FileText(s.home / "app" / "VLmemory.txt"), "a\nc\n");  // a tick without Delete is kept
    Console second(fw::HomeFolders(s.home));
    EXPECT_EQ(Rows(second.window.Listbox3), (Lines{"a", "c"}));
    std::ostringstream out, err;
    for (const char* line : {"click Listbox3 0 1", "click Listbox3 1 1", "push PushButton46", "quit"})
        second.Execute(line, out, err);
    Console third(fw::HomeFolders(s.home));
    EXPECT_EQ(Rows(third.window.Listbox3), (Lines{"a", "c"}));
}

TEST(Memory, AFileOfNoBytesGivesOneEmptyRow) {
    Session s("nobytes", [](const std::filesystem::path& home) {
        std::filesystem::create_directories(home / "app");
        std::ofstream(home / "app" / "VLmemory.txt");
    });
    EXPECT_EQ(Rows(s.w().Listbox3), Lines{""});
}

namespace {
struct EvaluateCase {
    const char* name;
    const char* setup;
    const char* formula;  // EditField4 before
    const char* drop;     // nullptr: the = key instead of a drop
    const char* answer;   // EditField5 and the clipboard after, "" when nothing may be computed
    const char* field;    // EditField4 after
};

const EvaluateCase kEvaluates[] = {
    {"TwoValues", "", "sqrt(x^2+y^2):", "3;4", "5 ", "sqrt(x^2+y^2):"},
    {"NoColonGetsOne", "", "x^2", "2", "4 ", "x^2:"},
    {"OldValueReplaced", "", "X^2:7", "3", "9 ", "X^2:"},
    {"PurgePrettyOffComputesNothing", "click CheckBox1", "x^2:", "3", "", "x^2:"},
    {"KeyThirdFieldDropped", "", "x+1:1:2", nullptr, "2 ", "x+1:"},
    {"KeyUnsubstitutedYFails", "", "x+y:1", nullptr, "", "x+y:"},
    {"KeyNoColonKeepsScriptX", "", "2*x+1", nullptr, "1 ", "2*x+1"},
};

void PrintTo(const EvaluateCase& c, std::ostream* out) { *out << c.name; }

class Evaluate : public testing::TestWithParam<EvaluateCase> {};

TEST_P(Evaluate, ValuesGoBehindTheColonAndTheFormulaStays) {
    const EvaluateCase& c = GetParam();
    Session s("evaluate");
    s.Run(std::string(c.setup) + "\nchoose Evaluate\nset EditField4 " + c.formula);
    if (c.drop) s.console.Drop(c.drop);
    else s.Run("push PushButton40");
    EXPECT_EQ(s.w().EditField5.Text(), c.answer) << s.w().EditField2.Text();
    EXPECT_EQ(s.desktop().clipboard, c.answer);
    EXPECT_EQ(s.w().EditField4.Text(), c.field);
    EXPECT_EQ(s.desktop().sounds, *c.setup ? Lines{"claves"} : *c.answer ? Lines{"beep"} : Lines{});
}

INSTANTIATE_TEST_SUITE_P(Memory, Evaluate, testing::ValuesIn(kEvaluates),
                         [](const testing::TestParamInfo<EvaluateCase>& info) { return std::string(info.param.name); });
}  // namespace

TEST(Evaluate, SubstitutionIsPlainTextOverTheFormula) {
    Session s("substitute");
    s.Run("choose Evaluate\nset EditField4 exp(x):2\npush PushButton40\nset EditField4 f:1:2\npush PushButton40");
    const std::string log = s.LogSinceStart();
    EXPECT_NE(log.find("Entered: e2p(2)\nERROR: "), std::string::npos) << log;
    EXPECT_NE(log.find("Entered: f\n"), std::string::npos) << log;
    EXPECT_EQ(s.w().EditField4.Text(), "f:");
}
