// The Search tab: a primary term picked from a list, narrowed with the "Optional Adds", searched
// by button, and read in the result lists. The three pages differ only where noted.

#include "framework/Array.h"
#include "framework/Text.h"
#include "window/Addresses.h"
#include "window/Window1.h"

using namespace fw;

Window1::SearchPage Window1::SearchPageOf(int page) {
    switch (page) {
    case 0: return {TextField3, Listbox4, knum3, PopupMenu1, PushButton47, &Listbox5, TextArea7, TextArea7};
    case 1: return {TextField4, Listbox7, knum4, PopupMenu3, PushButton49, &Listbox6, TextArea9, TextArea8};
    default: return {TextField5, Listbox9, knum5, PopupMenu4, PushButton50, nullptr, TextArea10, TextArea8};
    }
}

void Window1::WireSearch() {
    TabPanel2.Open = [this] { TabPanel2_Open(); };
    for (int page = 0; page < 3; ++page) {
        SearchPage p = SearchPageOf(page);
        p.terms.CellClick = [this, page](int row, int column, int, int) { return PrimaryTermClick(page, row, column); };
        p.adds.Change = [this, page] { AddsChange(page); };
        p.search.Action = [this, page] { SearchButton(page); };
        if (p.results)
            p.results->CellClick = [this, page](int row, int column, int, int) {
                SearchPage q = SearchPageOf(page);
                q.detail.SetText(q.detail.Text() + EndOfLine + q.results->Cell(row, column));
                return false;
            };
    }
}

bool Window1::PrimaryTermClick(int page, int row, int column) {
    SearchPage p = SearchPageOf(page);
    const std::string cell = p.terms.Cell(row, column);
    p.field.SetText(cell);
    const std::string& summary = Item(p.summaries, row);
    if (StrEq(cell, NthField(summary, ":", 1))) {
        p.adds.DeleteAllRows();
        p.adds.AddRow("Optional Adds");
        for (int n = 1; n <= CountFields(summary, ";") - 1; ++n) p.adds.AddRow(NthField(NthField(summary, ":", 2), ";", n));
        p.adds.SetListIndex(0);
    } else {
        LogLine("### Error in Search no match: " + cell + " and " + NthField(summary, ":", 1));
        p.errorArea.SetText("Possible Error" + EndOfLine + "No Optional Ads available" + "Please Save and Send Log File to" +
                            EndOfLine + kSupportAddress);
    }
    return false;
}

void Window1::AddsChange(int page) {
    SearchPage p = SearchPageOf(page);
    if (p.adds.ListIndex() == 0) return;
    if (!platform.AsyncShiftKey()) {
        p.field.SetText(p.field.Text() + " " + p.adds.Text());
    } else {
        p.field.SetText(p.adds.Text());
        p.search.Push();
    }
}

void Window1::SearchButton(int page) {
    SearchPage p = SearchPageOf(page);
    ButtonAct(p.field.Text());
    // The math page's text area holds the results that ButtonAct has just written.
    if (p.results) p.detail.SetText("");
}

void Window1::ShowResults(const std::string& caption) {
    const std::string text = ReplaceLineEndings(EditField1.Text(), EndOfLine);
    const int count = CountFields(text, EndOfLine);
    if (StrEq(caption, "Math Formulas")) {
        TextArea10.SetText("");
        std::string shown;
        for (int line = 1; line <= count; ++line) shown += LTrim(NthField(text, EndOfLine, line)) + EndOfLine + EndOfLine;
        TextArea10.SetText(shown);
        return;
    }
    Listbox& list = StrEq(caption, "physical data") ? Listbox5 : Listbox6;
    list.DeleteAllRows();
    for (const std::string& line : Split(text, EndOfLine)) list.AddRow(LTrim(line));
}
