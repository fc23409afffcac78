#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "framework/Text.h"

#include "support/Session.h"

namespace {
namespace fs = std::filesystem;

// Small reference files of the tests' own, so that every hit and every summary is known.
const char* const kPhysics =
    "<Data>\r\n<Category><Key>Element Iron</Key><Value>Fe, atomic number 26</Value></Category>\r\n"
    "<Category><Key>Moon Radius</Key><Value>1737.4 km\r\nmean value</Value></Category>\r\n"
    "<Category><Key>element iron of the Earth</Key><Value>core</Value></Category>\r\n"
    "<Category><Key>Element</Key><Value>all of them</Value></Category>\r\n"
    "<Category><Key>Star Sirius A B C D</Key><Value>brightest</Value></Category>\r\n"
    "<Category><Key>Density Cast Iron</Key><Value>7.2 g/cm^3</Value></Category>\r\n"
    "</Data>\r\n";
const char* const kAstronomy =
    "<Sky><Category><Key>Moon Mass</Key><Value>7.342 x 10^22 kg</Value></Category>"
    "<Category><Key>The Sun</Key><Value>G2V</Value></Category></Sky>";
const char* const kMath =
    "<Math><Category><Key>Area Square</Key><Value>A = a^2</Value></Category>"
    "<Category><Key>Volume Sphere</Key><Value>V = 4/3*PI*r^3</Value></Category>"
    "<Category><Key>Area Sphere</Key><Value>A = 4*PI*r^2</Value></Category></Math>";

void Write(const fs::path& file, const std::string& text) {
    fs::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << text;
}

auto WithFiles(const char* physics = kPhysics, const char* astronomy = kAstronomy, const char* math = kMath) {
    return [=](const fs::path& home) {
        const fs::path folder = home / "data" / "VLSupport";
        fs::create_directories(folder);
        if (physics) Write(folder / "physicaldata.txt", physics);
        if (astronomy) Write(folder / "AstrDataXML.txt", astronomy);
        if (math) Write(folder / "Mathformulas.txt", math);
    };
}

struct Searching : Session {
    Searching() : Session("search", WithFiles()) { desktop().messages.clear(); }
};

TEST(Search, SmartParseAndCleanNormaliseTheirOwnWay) {
    Searching s;
    const struct {
        const char* text;
        const char* parsed;
        const char* cleaned;
    } cases[] = {
        {"the radius of the moon", "radius moon", "the radius moon"},
        {"the the moon", "the moon", "the moon"},
        {"x of of y", "x of y", "x of y"},
        {"a an the sun", "the sun", "a an sun"},
        {"The Sun", "Sun", "the sun"},
        {"the ", "", "the "},
        {"  Element  iron   from Earth ", "Element iron from Earth", "element iron earth "},
        {"x for a y", "x y", "x y"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(s.w().SmartParse(c.text), c.parsed) << c.text;
        EXPECT_EQ(s.w().clean(c.text), c.cleaned) << c.text;
    }
}

TEST(Search, KeySummariesKeepTheirBlanksAndFollowTheSortedTerms) {
    Searching s;
    EXPECT_EQ(s.w().Listbox4.ListCount(), 4);
    const char* const terms[] = {"density", "element", "moon", "star"};
    const char* const summaries[] = {"density:cast iron ;", "element:  ;iron  ;iron earth ;", "moon:radius  ;",
                                     "star:sirius b c;"};
    for (int row = 0; row < 4; ++row) {
        EXPECT_EQ(s.w().Listbox4.List(row), terms[row]);
        EXPECT_EQ(s.w().knum3.at(row), summaries[row]);
    }
    // The astronomy file's leading article stays its primary term.
    EXPECT_EQ(s.w().Listbox7.List(1), "the");
    EXPECT_EQ(s.w().knum5.at(0), "area:sphere  ;square  ;");
}

struct SearchCase {
    const char* name;
    const char* setup;
    const char* action;
    const char* term;
    const char* clipboard;  // "" when the search finds nothing
};

const SearchCase kSearches[] = {
    {"WordsInAnyOrder", "", "Physical Data", "radius of the moon",
     "\nradius moon: 1737.4 km\nmean value\t(3-1)"},
    {"PartsOfWordsAnyCase", "", "Physical Data", "IRON",
     "\nIRON: Fe, atomic number 26\t(3-0)\n\t: core\t(3-2)\n\t: 7.2 g/cm^3\t(3-5)"},
    {"EveryWordMustOccur", "", "Physical Data", "iron moon", ""},
    {"WordsBeyondTheFourthStillCount", "", "Physical Data", "sirius d", "\nsirius d: brightest\t(3-4)"},
    {"EmptiedTermHitsEverything", "", "Math Formulas", "the ",
     "\n: A = a^2\t(5-0)\n\t: V = 4/3*PI*r^3\t(5-1)\n\t: A = 4*PI*r^2\t(5-2)"},
    {"LiteralListsTheWholeFile", "click RadioButton6", "Astro Data", "nowhere",
     "\nnowhere: 7.342 x 10^22 kg\t(4-0)\n\t: G2V\t(4-1)"},
    {"LiteralKeepsArticles", "click RadioButton6", "Astro Data", "the sun",
     "\nthe sun: 7.342 x 10^22 kg\t(4-0)\n\t: G2V\t(4-1)"},
    {"NothingFound", "", "Astro Data", "comet", ""},
};

void PrintTo(const SearchCase& c, std::ostream* out) { *out << c.name; }

class Searches : public testing::TestWithParam<SearchCase> {};

TEST_P(Searches, AnswerLayoutAndHitRule) {
    const SearchCase& c = GetParam();
    Searching s;
    s.Run(c.setup);
    s.desktop().clipboard = "before";
    s.console.Choose(c.action);
    const int beeps = s.desktop().Beeps();
    s.console.Drop(c.term);
    if (*c.clipboard) {
        EXPECT_EQ(s.desktop().clipboard, c.clipboard);
        EXPECT_NE(s.LogSinceStart().find(std::string("Output:") + c.clipboard + "\n"), std::string::npos);
        EXPECT_EQ(s.w().ImageWell1.Image(), "target2");
        EXPECT_EQ(s.desktop().Beeps(), beeps + 1);
    } else {
        EXPECT_EQ(s.desktop().clipboard, "before");
        EXPECT_NE(s.LogSinceStart().find("Error: Search Term not found\nTry words in a different order or use a single "
                                         "word or part of a word\n"),
                  std::string::npos);
        EXPECT_EQ(s.desktop().Beeps(), beeps);
    }
    EXPECT_EQ(s.desktop().messages, std::vector<std::string>{});
}

INSTANTIATE_TEST_SUITE_P(Search, Searches, testing::ValuesIn(kSearches),
                         [](const testing::TestParamInfo<SearchCase>& info) { return std::string(info.param.name); });

TEST(SearchTab, AddsNarrowTheTermAndShiftSearchesTheAddAlone) {
    Searching s;
    s.Run("click TabPanel2 4\nclick Listbox4 1 0");
    EXPECT_EQ(s.w().TextField3.Text(), "element");
    EXPECT_EQ(s.w().PopupMenu1.ListCount(), 4);
    EXPECT_EQ(s.w().PopupMenu1.List(2), "iron  ");
    s.Run("set PopupMenu1 2\nset PopupMenu1 3");
    EXPECT_EQ(s.w().TextField3.Text(), "element iron   iron earth ");
    s.Run("push PushButton47");
    ASSERT_EQ(s.w().Listbox5.ListCount(), 2);
    EXPECT_EQ(s.w().Listbox5.List(0), "");
    EXPECT_EQ(s.w().Listbox5.List(1), "element iron iron earth: core\t(3-2)");
    s.Run("click Listbox5 1 0\nclick Listbox5 0 0");
    EXPECT_EQ(s.w().TextArea7.Text(), "\nelement iron iron earth: core\t(3-2)\n");
    EXPECT_EQ(s.w().ImageWell1.Image(), "target");  // a button search never blinks

    // Shift drops the primary term and searches at once; the details go.
    s.Run("shift on\nset PopupMenu1 2");
    EXPECT_EQ(s.w().TextField3.Text(), "iron  ");
    EXPECT_EQ(s.w().Listbox5.ListCount(), 4);
    EXPECT_EQ(s.w().TextArea7.Text(), "");
    s.Run("set PopupMenu1 0");
    EXPECT_EQ(s.w().TextField3.Text(), "iron  ");
}

TEST(SearchTab, MathResultsStandInTheTextAreaABlankLineApart) {
    Searching s;
    s.Run("choose Math Formulas\nclick Listbox9 0 0\nset PopupMenu4 1\npush PushButton50");
    EXPECT_EQ(s.w().TextField5.Text(), "area sphere  ");
    EXPECT_EQ(s.w().TextArea10.Text(), "\n\narea sphere: A = 4*PI*r^2\t(5-2)\n\n");
    EXPECT_EQ(s.desktop().clipboard, "\narea sphere: A = 4*PI*r^2\t(5-2)");
}

TEST(SearchTab, ASummaryOutOfStepReportsWhereEachPageSendsIt) {
    Searching s;
    s.w().knum3[0] = "other:x;";
    s.w().knum4[0] = "other:x;";
    s.Run("click Listbox4 0 0\nclick Listbox7 0 0");
    const std::string report = "Possible Error\nNo Optional Ads availablePlease Save and Send Log File to\n";
    EXPECT_EQ(s.w().TextArea7.Text().rfind(report, 0), 0u);
    EXPECT_EQ(s.w().TextArea8.Text().rfind(report, 0), 0u);
    EXPECT_NE(s.LogSinceStart().find("### Error in Search no match: density and other\n"), std::string::npos);
    EXPECT_NE(s.LogSinceStart().find("### Error in Search no match: moon and other\n"), std::string::npos);
    EXPECT_EQ(s.w().PopupMenu3.ListCount(), 1);
}

TEST(Search, DamagedAndMissingFilesEndInAMessage) {
    // A broken physics file stops the lists at start; the other searches still work.
    Session broken("search-broken", WithFiles("<Data><Category><Key>x</Key>"));
    EXPECT_EQ(broken.w().Listbox4.ListCount(), 0);
    broken.desktop().messages.clear();
    broken.Run("choose Physical Data\ndrop iron");
    EXPECT_EQ(broken.desktop().messages.size(), 1u);

    Session missing("search-missing", WithFiles(kPhysics, nullptr));
    missing.desktop().messages.clear();
    missing.Run("choose Astro Data\ndrop moon");
    EXPECT_EQ(missing.desktop().clipboard, "Astro Data file is missing. See log at startup.");
    EXPECT_NE(missing.LogSinceStart().find("AstroData file is missing. See log at startup.\nError: Search Term not found\n"),
              std::string::npos);
    EXPECT_EQ(missing.desktop().sounds.back(), "claves");
    EXPECT_EQ(missing.desktop().messages, std::vector<std::string>{});

    // An edit between searches changes the next answer at once.
    Searching s;
    s.Run("choose Astro Data\ndrop sun");
    EXPECT_EQ(s.desktop().clipboard, "\nsun: G2V\t(4-1)");
    Write(s.home / "data" / "VLSupport" / "AstrDataXML.txt",
          "<Sky><Category><Key>Sun</Key><Value>yellow dwarf star</Value></Category></Sky>");
    s.Run("drop sun");
    EXPECT_EQ(s.desktop().clipboard, "\nsun: yellow dwarf star\t(4-0)");
    // Damaged after a good search, it faults at the next one, as a file read anew would.
    Write(s.home / "data" / "VLSupport" / "AstrDataXML.txt", "<Sky><Category><Value>x</Value></Category></Sky>");
    s.desktop().messages.clear();
    s.Run("drop sun");
    EXPECT_EQ(s.desktop().messages.size(), 1u);

    // No data folder at all is a missing file too, not a fault.
    Session none("search-none", [](const fs::path&) {});
    none.desktop().messages.clear();
    none.Run("choose Math Formulas\ndrop sphere");
    EXPECT_EQ(none.desktop().clipboard, "Math Formulas file is missing. See log at startup.");
    EXPECT_EQ(none.desktop().messages, std::vector<std::string>{});
}
}  // namespace
