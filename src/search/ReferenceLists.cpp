// The pick lists of the Search tab, built once from the three reference files: the primary
// terms and, behind each, the summary of the words that may be added to it.

#include <algorithm>

#include "framework/Array.h"
#include "framework/Text.h"
#include "window/Window1.h"

using namespace fw;

std::string Window1::clean(const std::string& text) {
    std::string cleaned = LTrim(Lowercase(text));
    for (const char* filler : {" of ", " the ", " from ", " for ", " a "}) cleaned = ReplaceAll(cleaned, filler, " ");
    cleaned = ReplaceAll(cleaned, "   ", " ");
    return ReplaceAll(cleaned, "  ", " ");
}

void Window1::TabPanel2_Open() {
    struct DataSet {
        const char* file;
        Listbox& primary;
        std::vector<std::string>& summaries;
        bool newDocument;
    };
    // The math file is read into the astronomy file's document: that is how it has always been.
    DataSet sets[] = {{"physicaldata.txt", Listbox4, knum3, true},
                      {"AstrDataXML.txt", Listbox7, knum4, true},
                      {"Mathformulas.txt", Listbox9, knum5, false}};
    for (DataSet& set : sets) {
        std::vector<std::string> keys;
        std::vector<std::string> terms;
        TextInputStreamRef in = platform.Folder(SpecialFolder::ApplicationData)->Child("VLSupport")->Child(set.file)->OpenAsTextFile();
        const std::string text = in->ReadAll();
        in->Close();
        if (set.newDocument || !doc) doc = MakeRef<XmlDocument>();
        doc->LoadXml(text);
        XmlNodeList categories = doc->Child(0)->Xql("Category");
        for (int i = 0; i < categories.Length(); ++i)
            keys.push_back(clean(categories.Item(i)->Xql("Key").Item(0)->Child(0)->Value()));
        std::sort(keys.begin(), keys.end());
        auto group = [](const std::string& key) {
            return NthField(key, " ", 2) + " " + NthField(key, " ", 3) + " " + NthField(key, " ", 4) + ";";
        };
        // Keys sharing their first word stand next to each other once sorted.
        terms.push_back(NthField(Item(keys, 0), " ", 1));
        set.summaries.push_back(terms.back() + ":" + group(keys[0]));
        for (size_t i = 1; i < keys.size(); ++i) {
            const std::string first = NthField(keys[i], " ", 1);
            if (first != terms.back()) {
                terms.push_back(first);
                set.summaries.push_back(first + ":" + group(keys[i]));
            } else {
                set.summaries.back() += group(keys[i]);
            }
        }
        for (const std::string& term : terms) set.primary.AddRow(term);
    }
}
