#include <gtest/gtest.h>

#include "framework/Controls.h"
#include "framework/Exceptions.h"
#include "framework/Window.h"

using namespace fw;

namespace {
struct Form : Window {
    Form() : Window("test", 200, 100) {}
    PushButton button{*this, "PushButton1", "RUN"};
    TextField field{*this, "EditField1"};
    PopupMenu menu{*this, "PopupMenu2"};
    Listbox list{*this, "Listbox3", 2, "90%,10%"};
    RadioButton on{*this, "RadioButton1", "radians", false};
    RadioButton off{*this, "RadioButton2", "degrees", true};
    CheckBox check{*this, "CheckBox1", "Purge Pretty", true};
    TabPanel tabs{*this, "TabPanel2", {"Welcome", "Calculate"}};
};
}  // namespace

TEST(Controls, SettersFireOnlyOnRealChange) {
    Form form;
    int textChanges = 0, listChanges = 0, radioActions = 0, checkActions = 0, tabChanges = 0;
    form.field.TextChange = [&] { ++textChanges; };
    form.menu.Change = [&] { ++listChanges; };
    form.on.Action = [&] { ++radioActions; };
    form.off.Action = [&] { ++radioActions; };
    form.check.Action = [&] { ++checkActions; };
    form.tabs.Change = [&] { ++tabChanges; };
    form.on.Group = form.off.Group = "Trig";

    form.field.SetText("a");
    form.field.SetText("a");
    form.menu.AddRow("x");
    form.menu.AddRow("y");
    form.menu.SetListIndex(1);
    form.menu.SetListIndex(1);
    form.on.SetValue(true);  // turns its partner off quietly
    form.on.SetValue(true);
    form.check.SetValue(true);
    form.check.SetValue(false);
    form.tabs.SetValue(0);
    form.tabs.SetValue(1);

    EXPECT_EQ(textChanges, 1);
    EXPECT_EQ(listChanges, 1);
    EXPECT_EQ(radioActions, 1);
    EXPECT_FALSE(form.off.Value());
    EXPECT_EQ(checkActions, 1);
    EXPECT_EQ(tabChanges, 1);
}

TEST(Controls, PushRunsActionBeforeReturning) {
    Form form;
    form.button.Action = [&] { form.field.SetText("done"); };
    form.button.Push();
    EXPECT_EQ(form.field.Text(), "done");
}

TEST(Controls, RowsCountFromZeroAndOutOfBoundsRaises) {
    Form form;
    EXPECT_EQ(form.menu.ListIndex(), -1);
    EXPECT_EQ(form.menu.Text(), "");
    form.menu.AddRow("first");
    form.menu.SetListIndex(0);
    EXPECT_EQ(form.menu.Text(), "first");
    EXPECT_THROW(form.menu.SetListIndex(5), OutOfBoundsException);
    form.menu.DeleteAllRows();
    EXPECT_EQ(form.menu.ListCount(), 0);
    EXPECT_EQ(form.menu.ListIndex(), -1);
    EXPECT_THROW(form.list.Cell(0, 0), OutOfBoundsException);
}

TEST(Controls, ListboxCellsChecksAndClicks) {
    Form form;
    form.list.SetColumnType(1, 2);
    form.list.AddRow("a");
    form.list.AddRow("b");
    form.list.SetCell(1, 1, "");
    int clicks = 0;
    form.list.CellClick = [&](int row, int column, int, int) {
        ++clicks;
        return row == 0 && column == 1;  // swallow the click on row 0's box
    };
    form.list.ClickCell(0, 1);
    form.list.ClickCell(1, 1);
    EXPECT_EQ(clicks, 2);
    EXPECT_FALSE(form.list.CellCheck(0, 1));
    EXPECT_TRUE(form.list.CellCheck(1, 1));
    EXPECT_EQ(form.list.ListIndex(), 1);
    form.list.RemoveRow(0);
    EXPECT_EQ(form.list.Cell(0, 0), "b");
    EXPECT_EQ(form.list.ListIndex(), 0);
}

TEST(Controls, TypingGoesThroughKeyDownAtTheCaret) {
    Form form;
    std::string seen;
    int changes = 0;
    form.field.SetText("ac");
    form.field.TextChange = [&] { ++changes; };
    form.field.KeyDown = [&](const std::string& key) {
        seen += key;
        return key == "!";
    };
    form.field.SetSelection(1, 0);
    form.field.TypeKey("b");
    form.field.TypeKey("!");
    EXPECT_EQ(seen, "b!");
    EXPECT_EQ(form.field.Text(), "abc");
    EXPECT_EQ(changes, 1);
}

TEST(Controls, TabClickDeliversMouseDownBeforeChange) {
    Form form;
    std::string order;
    form.tabs.MouseDown = [&](int x, int) {
        order += "down" + std::to_string(x) + " ";
        return false;
    };
    form.tabs.Change = [&] { order += "change"; };
    form.tabs.ClickTab(1, 40);
    EXPECT_EQ(order, "down40 change");
}

TEST(Controls, FindIgnoresCase) {
    Form form;
    EXPECT_EQ(form.Find("editfield1"), &form.field);
    EXPECT_EQ(form.Find("nothing"), nullptr);
}
