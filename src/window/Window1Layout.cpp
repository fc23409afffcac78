// Where every control stands, in window coordinates. The window shows more of this layout as it
// grows: at 64 by 96 only the action button and the target, at 350 by 600 the left column and
// the left panel, at 800 by 600 everything.

#include "window/Window1.h"

namespace {
void Place(fw::Control& control, fw::Control* panel, int page, int left, int top, int width, int height) {
    if (panel) control.PlaceIn(*panel, page);
    control.SetBounds(left, top, width, height);
}

// A row of equal keys from `left`, 52 pixels apart.
void PlaceKeys(std::initializer_list<fw::Control*> keys, fw::Control& panel, int top) {
    int left = 366;
    for (fw::Control* key : keys) {
        Place(*key, &panel, 1, left, top, 48, 28);
        left += 52;
    }
}
}  // namespace

void Window1::LayOut() {
    LayOutLeftPanel();
    LayOutCalculatePage();
    LayOutSolveConvertPages();
    LayOutSearchPage();
}

void Window1::LayOutLeftPanel() {
    Place(BevelButton1, nullptr, 0, 2, 2, 60, 26);
    Place(ImageWell1, nullptr, 0, 1, 32, 62, 62);
    Place(StaticText7, nullptr, 0, 2, 104, 62, 72);
    Place(StaticText27, nullptr, 0, 2, 184, 62, 100);
    Place(EditField1, nullptr, 0, 2, 300, 62, 60);
    Place(PushButton1, nullptr, 0, 2, 368, 62, 24);
    Place(PushButton2, nullptr, 0, 4, 564, 58, 28);
    Place(TabPanel1, nullptr, 0, 68, 4, 278, 592);
    Place(Separator3, nullptr, 0, 347, 4, 2, 592);
    Place(TabPanel2, nullptr, 0, 350, 4, 446, 592);

    fw::Control* p1 = &TabPanel1;
    Place(GroupBox2, p1, 0, 76, 42, 262, 52);
    Place(normbutton, p1, 0, 86, 64, 110, 22);
    Place(scibutton1, p1, 0, 200, 64, 130, 22);
    Place(GroupBox1, p1, 0, 76, 100, 262, 52);
    Place(RadioButton3, p1, 0, 86, 122, 110, 22);
    Place(RadioButton4, p1, 0, 200, 122, 130, 22);
    Place(GroupBox3, p1, 0, 76, 158, 262, 52);
    Place(RadioButton1, p1, 0, 86, 180, 110, 22);
    Place(RadioButton2, p1, 0, 200, 180, 130, 22);
    Place(GroupBox4, p1, 0, 76, 216, 262, 52);
    Place(RadioButton5, p1, 0, 86, 238, 110, 22);
    Place(RadioButton6, p1, 0, 200, 238, 130, 22);
    Place(CheckBox1, p1, 0, 86, 278, 110, 22);
    Place(CheckBox2, p1, 0, 200, 278, 130, 22);
    Place(StaticText5, p1, 0, 80, 312, 250, 20);
    Place(PopupMenu2, p1, 0, 80, 336, 256, 28);
    Place(popconvert, p1, 0, 80, 370, 256, 28);
    Place(PushButton42, p1, 0, 120, 416, 170, 30);

    fw::StaticText* labels[] = {&StaticText15, &StaticText16, &StaticText17, &StaticText21, &StaticText19, &StaticText20};
    fw::TextArea* notes[] = {&TextArea1, &TextArea2, &TextArea3, &TextArea4, &TextArea5, &TextArea6};
    for (int i = 0; i < 6; ++i) {
        Place(*labels[i], p1, 1, 76, 40 + i * 92, 262, 18);
        Place(*notes[i], p1, 1, 76, 58 + i * 92, 262, 70);
    }
    // A second "Math" label lies under the search note, covered by it.
    Place(StaticText18, p1, 1, 76, 58 + 3 * 92, 262, 18);

    Place(StaticText22, p1, 2, 76, 40, 262, 48);
    Place(EditField2, p1, 2, 76, 90, 262, 458);
    Place(PushButton3, p1, 2, 190, 556, 100, 30);
    Place(EditField10, p1, 3, 76, 40, 262, 504);
    Place(PushButton43, p1, 3, 120, 552, 170, 30);

    fw::Control* p2 = &TabPanel2;
    Place(StaticText1, p2, 0, 362, 42, 424, 30);
    Place(StaticText23, p2, 0, 362, 76, 424, 40);
    Place(StaticText24, p2, 0, 362, 122, 290, 20);
    Place(PushButton4, p2, 0, 660, 118, 126, 28);
    Place(StaticText36, p2, 0, 362, 154, 424, 20);
    Place(TextArea8, p2, 0, 362, 176, 424, 368);
    Place(PushButton48, p2, 0, 700, 552, 86, 30);
}

void Window1::LayOutCalculatePage() {
    fw::Control& p2 = TabPanel2;
    Place(GroupBox6, &p2, 1, 358, 40, 430, 300);
    Place(EditField4, &p2, 1, 366, 62, 414, 72);
    PlaceKeys({&PushButton23, &PushButton5, &PushButton6, &PushButton7, &PushButton8, &PushButton9, &PushButton24,
               &PushButton26}, p2, 141);
    PlaceKeys({&PushButton22, &PushButton10, &PushButton11, &PushButton12, &PushButton13, &PushButton14,
               &PushButton25, &PushButton27}, p2, 173);
    PlaceKeys({&PushButton15, &PushButton16, &PushButton17, &PushButton18, &PushButton19, &PushButton20,
               &PushButton21, &PushButton28}, p2, 204);
    PlaceKeys({&PushButton38, &PushButton39, &PushButton33, &PushButton34, &PushButton35, &PushButton30,
               &PushButton29}, p2, 236);
    PlaceKeys({&PushButton32, &PushButton31, &PushButton37, &PushButton36}, p2, 268);
    Place(PushButton40, &p2, 1, 726, 268, 54, 28);
    Place(StaticText8, &p2, 1, 366, 306, 60, 22);
    Place(EditField5, &p2, 1, 430, 302, 350, 28);
    Place(StaticText32, &p2, 1, 366, 348, 200, 20);
    Place(Listbox3, &p2, 1, 366, 370, 340, 214);
    Place(PushButton46, &p2, 1, 714, 370, 72, 28);
    Place(StaticText33, &p2, 1, 714, 404, 72, 40);
}

void Window1::LayOutSolveConvertPages() {
    fw::Control* p2 = &TabPanel2;
    Place(GroupBox5, p2, 2, 358, 40, 430, 132);
    Place(EditA, p2, 2, 366, 68, 70, 26);
    Place(StaticText11, p2, 2, 440, 71, 50, 20);
    Place(EditB, p2, 2, 494, 68, 70, 26);
    Place(StaticText12, p2, 2, 568, 71, 36, 20);
    Place(EditC, p2, 2, 608, 68, 70, 26);
    Place(StaticText13, p2, 2, 682, 71, 40, 20);
    Place(EditField9, p2, 2, 366, 106, 330, 28);
    Place(PushButton41, p2, 2, 704, 104, 76, 30);
    Place(GroupBox8, p2, 2, 358, 190, 430, 176);
    Place(A1, p2, 2, 366, 218, 70, 26);
    Place(StaticText28, p2, 2, 440, 221, 40, 20);
    Place(B1, p2, 2, 484, 218, 70, 26);
    Place(StaticText29, p2, 2, 558, 221, 40, 20);
    Place(C1, p2, 2, 602, 218, 70, 26);
    Place(D2, p2, 2, 366, 254, 70, 26);
    Place(StaticText31, p2, 2, 440, 257, 40, 20);
    Place(E2, p2, 2, 484, 254, 70, 26);
    Place(StaticText30, p2, 2, 558, 257, 40, 20);
    Place(F2, p2, 2, 602, 254, 70, 26);
    Place(TextField2, p2, 2, 366, 296, 330, 28);
    Place(PushButton45, p2, 2, 704, 294, 76, 30);

    Place(TextField1, p2, 3, 366, 48, 300, 28);
    Place(PushButton44, p2, 3, 680, 46, 100, 30);
    Place(StaticText25, p2, 3, 366, 82, 414, 36);
    Place(Listbox1, p2, 3, 366, 124, 190, 286);
    Place(Listbox2, p2, 3, 564, 124, 216, 286);
    Place(GroupBox7, p2, 3, 366, 418, 414, 52);
    Place(RadioButton7, p2, 3, 376, 440, 100, 22);
    Place(RadioButton8, p2, 3, 490, 440, 130, 22);
    Place(RadioButton9, p2, 3, 630, 440, 140, 22);
    Place(StaticText26, p2, 3, 366, 476, 414, 84);
}

void Window1::LayOutSearchPage() {
    Place(PagePanel1, &TabPanel2, 4, 354, 36, 440, 556);
    struct Page {
        fw::Control *label, *terms, *field, *adds, *search, *resultsLabel, *results, *detail;
    };
    const Page pages[] = {
        {&StaticText34, &Listbox4, &TextField3, &PopupMenu1, &PushButton47, &StaticText35, &Listbox5, &TextArea7},
        {&StaticText38, &Listbox7, &TextField4, &PopupMenu3, &PushButton49, &StaticText37, &Listbox6, &TextArea9},
        {&StaticText40, &Listbox9, &TextField5, &PopupMenu4, &PushButton50, &StaticText39, nullptr, &TextArea10},
    };
    fw::Control* panel = &PagePanel1;
    for (int i = 0; i < 3; ++i) {
        const Page& page = pages[i];
        Place(*page.label, panel, i, 362, 42, 180, 34);
        Place(*page.terms, panel, i, 362, 78, 180, 198);
        Place(*page.field, panel, i, 550, 50, 236, 28);
        Place(*page.adds, panel, i, 550, 86, 236, 28);
        Place(*page.search, panel, i, 550, 122, 100, 30);
        Place(*page.resultsLabel, panel, i, 362, 284, 424, 20);
        if (page.results) {
            Place(*page.results, panel, i, 362, 306, 424, 150);
            Place(*page.detail, panel, i, 362, 462, 424, 122);
        } else {
            Place(*page.detail, panel, i, 362, 306, 424, 278);
        }
    }
}
