#include <gtest/gtest.h>

#include "framework/EventBoundary.h"
#include "framework/Text.h"

#include "ConvertFiles.h"

using namespace convert_test;

namespace {
std::string Joined(const std::vector<std::string>& entries) {
    std::string text;
    for (const std::string& entry : entries) text += entry + "\n";
    return text;
}
}  // namespace

TEST(ConversionTable, WorkedFileFillsTablesAndListsExactly) {
    Session s("worked", WithFile(kWorkedFile));
    Window1& w = s.w();
    EXPECT_EQ(Joined(w.choices),
              "Power;hp->W;W->hp\nNumber;Decimal(Integer)->Hex;Hex->Decimal\nTemperature;C->K;K->R\n");
    EXPECT_EQ(Joined(w.changeit), "Power;hp->W:*745.7;W->hp:/745.7\nNumber;Decimal(Integer)->Hex:;Hex->Decimal:\n"
                                  "Temperature;C->K:;K->R:\n");
    EXPECT_EQ(Rows(w.PopupMenu2) + " " + Rows(w.Listbox1), "Number|Power|Temperature Number|Power|Temperature");
    EXPECT_EQ(Rows(w.popconvert) + " " + Rows(w.Listbox2),
              "Decimal(Integer)->Hex|Hex->Decimal Decimal(Integer)->Hex|Hex->Decimal");
    const int selected[] = {w.PopupMenu2.ListIndex(), w.Listbox1.ListIndex(), w.popconvert.ListIndex(),
                            w.Listbox2.ListIndex()};
    EXPECT_EQ(std::vector<int>(std::begin(selected), std::end(selected)), std::vector<int>({0, -1, 0, 0}));
    EXPECT_EQ(w.iload, 1);
    EXPECT_EQ(w.EditField2.Text().find(">>"), std::string::npos);  // iload is 0 while the menus churn
}

TEST(ConversionTable, CategoriesSortWithoutCaseAndLookUpByName) {
    // Labels keep file order; a name met twice lists the labels of both; the empty List offers nothing and
    // keeps the fragment that the sort's churn left behind.
    Session s("sort", WithFile("<C><Category><Name>time</Name><List><SubList convert=\"*3600\">hr->s</SubList>"
                               "</List></Category><Category><Name>area</Name><List/></Category><Category>"
                               "<Name>TIME</Name><List><SubList convert=\"*60\">min->s</SubList>"
                               "<SubList convert=\"*9\">hr->s</SubList></List></Category></C>"));
    Window1& w = s.w();
    EXPECT_EQ(Rows(w.PopupMenu2) + fw::Str(w.iload), "area|time|TIME1");
    EXPECT_EQ(Rows(w.popconvert) + "|" + w.convertit, "|*3600");
    s.Run("set PopupMenu2 2\nset popconvert 2");
    EXPECT_EQ(Rows(w.popconvert) + "|" + w.convertit, "hr->s|min->s|hr->s|*3600");
    EXPECT_EQ(w.Listbox1.ListIndex(), -1);  // the Settings menus never move the Convert tab's category list
    s.Run("click Listbox1 1 0\nclick Listbox2 1 0");  // but that list drives the menus
    EXPECT_EQ(w.PopupMenu2.Text() + w.popconvert.Text() + w.convertit, "timemin->s*60");
}

namespace {
struct Broken {
    const char* name;
    const char* xml;  // nullptr: no VLSupport folder at all
    const char* message;
    const char* menu;  // what the category menu holds afterwards
};

const Broken kBroken[] = {
    {"NoSupportFolder", nullptr, "An exception of class NilObjectException was not handled. (nil object)", "||"},
    {"NotXml", "<Conversions><Category>", "Error in reading XML file in Application Data", "||"},
    {"SubListWithoutText", "<C><Category><Name>P</Name><List><SubList convert=\"*2\"/></List></Category></C>",
     "An exception of class NilObjectException was not handled. (nil object)", "P"},
};

class BrokenFiles : public testing::TestWithParam<Broken> {};

TEST_P(BrokenFiles, GiveOneMessageAndTheStartGoesOn) {
    Session s("broken", WithFile(GetParam().xml));
    Window1& w = s.w();
    EXPECT_EQ(w.iload, 0);
    EXPECT_EQ(Rows(w.PopupMenu2), GetParam().menu);
    EXPECT_TRUE(w.choices.empty());
    EXPECT_NE(w.EditField2.Text().find("----begin---"), std::string::npos);
    // Other data files are missing too and may speak: the loader alone, run again, says exactly this.
    s.desktop().messages.clear();
    fw::RunEvent(s.desktop(), [&w] { w.PopupMenu2_Open(); });
    EXPECT_EQ(s.desktop().messages, std::vector<std::string>{GetParam().message});
}

INSTANTIATE_TEST_SUITE_P(ConversionTable, BrokenFiles, testing::ValuesIn(kBroken),
                         [](const testing::TestParamInfo<Broken>& info) { return std::string(info.param.name); });
}  // namespace
