#include <gtest/gtest.h>

#include "support/Session.h"

using fw::Control;
using fw::Kind;

namespace {
bool Inside(const Control& c, int width, int height) {
    const fw::Rect& r = c.Bounds();
    return r.Left >= 0 && r.Top >= 0 && r.Left + r.Width <= width && r.Top + r.Height <= height;
}

bool Overlap(const fw::Rect& a, const fw::Rect& b) {
    return a.Left < b.Left + b.Width && b.Left < a.Left + a.Width && a.Top < b.Top + b.Height && b.Top < a.Top + a.Height;
}

// The panel a control ends up in at the top: its own page chain decides what shows with it.
const Control* TopPanel(const Control& c) {
    const Control* top = &c;
    while (top->Parent()) top = top->Parent();
    return top;
}
}  // namespace

TEST(Layout, EachWindowSizeShowsItsOwnControls) {
    Session s("layout");
    Window1& w = s.w();
    for (Control* c : w.Controls()) {
        if (c->GetKind() == Kind::Timer) continue;
        const bool small = c == &w.BevelButton1 || c == &w.ImageWell1;
        EXPECT_EQ(Inside(*c, 64, 96), small) << c->Name();
        const bool leftSide = TopPanel(*c) == &w.TabPanel1 || (c->Parent() == nullptr && c->Bounds().Left < 68);
        if (leftSide) {
            EXPECT_TRUE(Inside(*c, 350, 600)) << c->Name();
        }
        if (TopPanel(*c) == &w.TabPanel2) {
            EXPECT_FALSE(Inside(*c, 350, 600)) << c->Name();
        }
        EXPECT_TRUE(Inside(*c, 800, 600)) << c->Name();
    }
}

TEST(Layout, NothingVisibleOverlapsOnOnePage) {
    Session s("overlap");
    const auto& controls = s.w().Controls();
    auto counts = [](const Control* c) {
        // Frames hold what lies on them; panels hold their pages.
        return c->Visible() && c->GetKind() != Kind::GroupBox && c->GetKind() != Kind::Timer &&
               c->GetKind() != Kind::TabPanel && c->GetKind() != Kind::PagePanel;
    };
    for (size_t i = 0; i < controls.size(); ++i) {
        for (size_t j = i + 1; j < controls.size(); ++j) {
            const Control* a = controls[i];
            const Control* b = controls[j];
            if (!counts(a) || !counts(b) || a->Parent() != b->Parent() || a->ParentPage() != b->ParentPage()) continue;
            EXPECT_FALSE(Overlap(a->Bounds(), b->Bounds())) << a->Name() << " and " << b->Name();
        }
    }
}

TEST(Layout, ControlsStartAsCreated) {
    Session s("initial");
    Window1& w = s.w();
    EXPECT_EQ(w.BevelButton1.ListCount(), 8);
    EXPECT_EQ(w.BevelButton1.List(7), "Settings");
    EXPECT_EQ(w.BevelButton1.Caption(), "Action");
    EXPECT_FALSE(w.EditField1.Visible());
    EXPECT_FALSE(w.PushButton1.Visible());
    EXPECT_FALSE(w.Listbox3.Visible());
    EXPECT_EQ(w.Listbox3.ColumnCount(), 2);
    int keys = 0;
    for (int n = 5; n <= 40; ++n) keys += w.Find("PushButton" + std::to_string(n))->GetKind() == Kind::PushButton;
    EXPECT_EQ(keys, 36);
    EXPECT_EQ(w.fmt.size(), 22u);
    EXPECT_EQ(w.formnumber, 1);
    EXPECT_EQ(w.StaticText22.Text(), "If one for this date already exists this window's contents will be appended.");
    for (fw::PopupMenu* adds : {&w.PopupMenu1, &w.PopupMenu3, &w.PopupMenu4}) EXPECT_EQ(adds->Text(), "Optional Adds");
    EXPECT_EQ(w.Width(), 64);
    EXPECT_EQ(w.Height(), 96);
}
