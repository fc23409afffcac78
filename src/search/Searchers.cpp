// Finding entries of a reference file for a term, and composing the answer in EditField1.

#include "framework/RegEx.h"
#include "framework/Text.h"
#include "search/TermMatcher.h"
#include "window/Window1.h"

using namespace fw;

std::string Window1::SmartParse(const std::string& term) {
    std::string parsed = term;
    for (const char* article : {"^the ", "^a ", "^an "}) {
        RegEx leading;
        leading.SearchPattern = article;
        leading.ReplacementPattern = "";
        parsed = leading.Replace(parsed);
    }
    for (const char* filler : {" the ", " a ", " an ", " of ", " for "}) parsed = ReplaceAll(parsed, filler, " ");
    for (const char* blanks : {"     ", "    ", "   ", "  "}) parsed = ReplaceAll(parsed, blanks, " ");
    return RTrim(LTrim(parsed));
}

void Window1::physical(const std::string& term) {
    SearchFile(term, "physicaldata.txt", "Physical Data file is missing. See log at startup.",
               "Physical Data file is missing. See log at startup.");
}

void Window1::astronomical(const std::string& term) {
    SearchFile(term, "AstrDataXML.txt", "Astro Data file is missing. See log at startup.",
               "AstroData file is missing. See log at startup.");
}

void Window1::mathematical(const std::string& term) {
    SearchFile(term, "Mathformulas.txt", "Math Formulas file is missing. See log at startup.",
               "MathFormula file is missing. See log at startup.");
}

void Window1::SearchFile(const std::string& term, const char* file, const char* clipboardReport, const char* logReport) {
    // No data folder at all is a missing file too, as the start-up log tells it.
    FolderItemRef support = platform.Folder(SpecialFolder::ApplicationData)->Child("VLSupport");
    FolderItemRef item = support ? support->Child(file) : nullptr;
    if (!item) {
        Clipboard clipboard(platform);
        clipboard.SetText(clipboardReport);
        LogLine(logReport);
        clipboard.Close();
        PlayClaves();
        return;
    }
    const ReferenceEntries& entries = referenceCache.Load(*item);
    const TermMatcher matcher(term);
    // In Literal mode the word test never fails, so every entry is a hit.
    const std::vector<bool> allWords =
        RadioButton5.Value() ? matcher.AllWordsIn(entries.keys) : std::vector<bool>(entries.keys.size(), true);
    const std::string tab = "\t";
    const std::string tail = "\t(" + Str(BevelButton1.MenuValue()) + "-";
    for (size_t index = 0; index < entries.keys.size(); ++index) {
        if (!allWords[index] && !matcher.TermIn(entries.keys[index])) continue;
        if (entries.valueFaults[index]) std::rethrow_exception(entries.valueFaults[index]);
        const std::string& marker = EditField1.Text().empty() ? term : tab;
        // Appended, not rebuilt: a Literal search lists the whole file.
        EditField1.AppendText(EndOfLine + marker + ": " + entries.values[index] + tail +
                              Str(static_cast<std::int64_t>(index)) + ")");
    }
}

void Window1::SearchRequest(const std::string& caption, const std::string& term, bool fromButton) {
    Clipboard clipboard(platform);
    const std::string searched = RadioButton5.Value() ? SmartParse(term) : term;
    EditField1.SetText("");
    if (StrEq(caption, "physical data")) physical(searched);
    else if (StrEq(caption, "astro data")) astronomical(searched);
    else mathematical(searched);
    if (EditField1.Text().empty()) {
        LogLine("Error: Search Term not found");
        LogLine("Try words in a different order or use a single word or part of a word");
        return;
    }
    clipboard.SetText(EditField1.Text());
    LogLine("Output:" + EditField1.Text());
    if (!fromButton) Blink();
    clipboard.Close();
    if (fromButton) ShowResults(caption);
    platform.Beep();
}
