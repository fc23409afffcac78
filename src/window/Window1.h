#pragma once
// The main window: all of Velmora's state and logic. Properties and controls are declared here
// once; each subsystem folder defines the handlers and methods of its own subsystem.

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "framework/Controls.h"
#include "framework/Platform.h"
#include "framework/Window.h"
#include "framework/Xml.h"
#include "script/RbScript.h"
#include "search/ReferenceCache.h"

class Window1 : public fw::Window, public script::ScriptContext {
public:
    explicit Window1(fw::Platform& platform);
    ~Window1() override;

    fw::Platform& platform;

    // --- Properties -------------------------------------------------------------------------
    using Dictionary = std::map<std::string, std::string>;
    std::string unt;
    const std::string fmt = "\"0.0#############e+##\"";
    std::unique_ptr<Dictionary> dict;  // unused
    std::int32_t wincon = 0;
    std::unique_ptr<Dictionary> dict2;  // unused
    std::string placeit;
    std::string placeit2;
    std::unique_ptr<Dictionary> dict3;  // never filled
    std::unique_ptr<Dictionary> dict5;  // unused
    std::unique_ptr<Dictionary> dict4;  // never filled
    std::int32_t pcconvert = 0;         // unused
    std::int32_t popcon = 0;
    std::vector<std::string> choices;
    std::vector<std::string> changeit;
    std::string convertit;
    std::int32_t iload = 0;
    std::int32_t formnumber = 1;
    std::int32_t quad = 0;
    std::int32_t twodim = 0;
    std::int32_t tabclk = 0;
    fw::XmlDocumentRef doc;
    std::vector<std::string> knum3;
    std::vector<std::string> knum4;
    std::vector<std::string> knum5;
    // The reference files' entries between searches, read anew whenever a file changes.
    ReferenceCache referenceCache;

    // The window's properties by name, as text, for the console and tests.
    bool PropertyText(const std::string& name, std::string& value) const;

    // --- Controls always on the window --------------------------------------------------------
    fw::BevelButton BevelButton1{*this, "BevelButton1", "Action"};
    fw::ImageWell ImageWell1{*this, "ImageWell1", "target"};
    fw::StaticText StaticText7{*this, "StaticText7", "Click the target to return."};
    fw::StaticText StaticText27{*this, "StaticText27", "Use the Help Tab for help in using the Settings"};
    fw::TextArea EditField1{*this, "EditField1"};
    fw::PushButton PushButton1{*this, "PushButton1", "RUN"};
    fw::Timer Timer1{*this, "Timer1", 1000};
    fw::PushButton PushButton2{*this, "PushButton2", "Back"};
    fw::Separator Separator3{*this, "Separator3"};
    fw::TabPanel TabPanel1{*this, "TabPanel1", {"Settings", "Help", "Log", "Directions"}};
    fw::TabPanel TabPanel2{*this, "TabPanel2", {"Welcome", "Calculate", "Solve", "Convert", "Search"}};

    // --- TabPanel1, Settings -------------------------------------------------------------------
    fw::GroupBox GroupBox2{*this, "GroupBox2", "Math"};
    fw::RadioButton normbutton{*this, "normbutton", "Normal", true};
    fw::RadioButton scibutton1{*this, "scibutton1", "Scientific", false};
    fw::GroupBox GroupBox1{*this, "GroupBox1", "Log"};
    fw::RadioButton RadioButton3{*this, "RadioButton3", "base e", true};
    fw::RadioButton RadioButton4{*this, "RadioButton4", "base 10", false};
    fw::GroupBox GroupBox3{*this, "GroupBox3", "Trig"};
    fw::RadioButton RadioButton1{*this, "RadioButton1", "radians", false};
    fw::RadioButton RadioButton2{*this, "RadioButton2", "degrees", true};
    fw::GroupBox GroupBox4{*this, "GroupBox4", "Search"};
    fw::RadioButton RadioButton5{*this, "RadioButton5", "Smart", true};
    fw::RadioButton RadioButton6{*this, "RadioButton6", "Literal", false};
    fw::CheckBox CheckBox1{*this, "CheckBox1", "Purge Pretty", true};
    fw::CheckBox CheckBox2{*this, "CheckBox2", "Use Clipboard", false};
    fw::StaticText StaticText5{*this, "StaticText5", "Conversions:"};
    fw::PopupMenu PopupMenu2{*this, "PopupMenu2"};
    fw::PopupMenu popconvert{*this, "popconvert"};
    fw::PushButton PushButton42{*this, "PushButton42", "Save Preferences"};

    // --- TabPanel1, Help -----------------------------------------------------------------------
    fw::StaticText StaticText15{*this, "StaticText15", "Math"};
    fw::StaticText StaticText16{*this, "StaticText16", "Log"};
    fw::TextArea TextArea1{*this, "TextArea1"};
    fw::StaticText StaticText17{*this, "StaticText17", "Trig"};
    fw::TextArea TextArea2{*this, "TextArea2"};
    fw::StaticText StaticText18{*this, "StaticText18", "Math"};
    fw::TextArea TextArea3{*this, "TextArea3"};
    fw::StaticText StaticText19{*this, "StaticText19", "Purge Perfect"};
    fw::TextArea TextArea4{*this, "TextArea4"};
    fw::StaticText StaticText20{*this, "StaticText20", "Conversions"};
    fw::TextArea TextArea5{*this, "TextArea5"};
    fw::StaticText StaticText21{*this, "StaticText21", "Search"};
    fw::TextArea TextArea6{*this, "TextArea6"};

    // --- TabPanel1, Log and Directions -----------------------------------------------------------
    // Each save appends the whole log to the day's file, so the page says so.
    fw::StaticText StaticText22{*this, "StaticText22",
        "If one for this date already exists this window's contents will be appended."};
    fw::TextArea EditField2{*this, "EditField2"};
    fw::PushButton PushButton3{*this, "PushButton3", "Save"};
    fw::TextArea EditField10{*this, "EditField10"};
    fw::PushButton PushButton43{*this, "PushButton43", "More Instructions"};

    // --- TabPanel2, Welcome ----------------------------------------------------------------------
    fw::StaticText StaticText1{*this, "StaticText1", "Welcome to Velmora"};
    fw::StaticText StaticText23{*this, "StaticText23"};
    fw::StaticText StaticText24{*this, "StaticText24"};
    fw::PushButton PushButton4{*this, "PushButton4", "email velmora"};
    fw::StaticText StaticText36{*this, "StaticText36", "Initial Intoduction and Clipboard Viewer:"};
    fw::TextArea TextArea8{*this, "TextArea8"};
    fw::PushButton PushButton48{*this, "PushButton48", "Reset"};

    // --- TabPanel2, Calculate --------------------------------------------------------------------
    fw::GroupBox GroupBox6{*this, "GroupBox6", "Calculator"};
    fw::TextArea EditField4{*this, "EditField4"};
    fw::PushButton PushButton23{*this, "PushButton23", "("};
    fw::PushButton PushButton5{*this, "PushButton5", "0"};
    fw::PushButton PushButton6{*this, "PushButton6", "1"};
    fw::PushButton PushButton7{*this, "PushButton7", "2"};
    fw::PushButton PushButton8{*this, "PushButton8", "3"};
    fw::PushButton PushButton9{*this, "PushButton9", "4"};
    fw::PushButton PushButton24{*this, "PushButton24", "sin"};
    fw::PushButton PushButton26{*this, "PushButton26", "tan"};
    fw::PushButton PushButton22{*this, "PushButton22", ")"};
    fw::PushButton PushButton10{*this, "PushButton10", "5"};
    fw::PushButton PushButton11{*this, "PushButton11", "6"};
    fw::PushButton PushButton12{*this, "PushButton12", "7"};
    fw::PushButton PushButton13{*this, "PushButton13", "8"};
    fw::PushButton PushButton14{*this, "PushButton14", "9"};
    fw::PushButton PushButton25{*this, "PushButton25", "cos"};
    fw::PushButton PushButton27{*this, "PushButton27", "exp"};
    fw::PushButton PushButton15{*this, "PushButton15", "."};
    fw::PushButton PushButton16{*this, "PushButton16", "+"};
    fw::PushButton PushButton17{*this, "PushButton17", "-"};
    fw::PushButton PushButton18{*this, "PushButton18", "*"};
    fw::PushButton PushButton19{*this, "PushButton19", "/"};
    fw::PushButton PushButton20{*this, "PushButton20", "^"};
    fw::PushButton PushButton21{*this, "PushButton21", "E"};
    fw::PushButton PushButton28{*this, "PushButton28", "sqr"};
    fw::PushButton PushButton38{*this, "PushButton38", "de"};
    fw::PushButton PushButton39{*this, "PushButton39", "pa"};
    fw::PushButton PushButton33{*this, "PushButton33", "m"};
    fw::PushButton PushButton34{*this, "PushButton34", "mr"};
    fw::PushButton PushButton35{*this, "PushButton35", "clear"};
    fw::PushButton PushButton30{*this, "PushButton30", "\xCF\x80"};
    fw::PushButton PushButton29{*this, "PushButton29", "log"};
    fw::PushButton PushButton32{*this, "PushButton32", ":"};
    fw::PushButton PushButton31{*this, "PushButton31", "x"};
    fw::PushButton PushButton37{*this, "PushButton37", ";"};
    fw::PushButton PushButton36{*this, "PushButton36", "y"};
    fw::PushButton PushButton40{*this, "PushButton40", "="};
    fw::StaticText StaticText8{*this, "StaticText8", "Answer:"};
    fw::TextField EditField5{*this, "EditField5"};
    fw::StaticText StaticText32{*this, "StaticText32", "Saved Formulas:"};
    fw::Listbox Listbox3{*this, "Listbox3", 2, "90%,10%"};
    fw::PushButton PushButton46{*this, "PushButton46", "Delete"};
    fw::StaticText StaticText33{*this, "StaticText33", "Checked\nFormulas"};

    // --- TabPanel2, Solve ------------------------------------------------------------------------
    fw::GroupBox GroupBox5{*this, "GroupBox5", "Quadratic Equation"};
    fw::TextField EditA{*this, "EditA"};
    fw::StaticText StaticText11{*this, "StaticText11", "x^2 + "};
    fw::TextField EditB{*this, "EditB"};
    fw::StaticText StaticText12{*this, "StaticText12", "x + "};
    fw::TextField EditC{*this, "EditC"};
    fw::StaticText StaticText13{*this, "StaticText13", "= 0"};
    fw::TextField EditField9{*this, "EditField9", "Solutions(x1,x2):"};
    fw::PushButton PushButton41{*this, "PushButton41", "Solve"};
    fw::GroupBox GroupBox8{*this, "GroupBox8", "2 Linear Equations"};
    fw::TextField A1{*this, "A1"};
    fw::StaticText StaticText28{*this, "StaticText28", "X + "};
    fw::TextField B1{*this, "B1"};
    fw::StaticText StaticText29{*this, "StaticText29", "Y = "};
    fw::TextField C1{*this, "C1"};
    fw::TextField D2{*this, "D2"};
    fw::StaticText StaticText31{*this, "StaticText31", "X + "};
    fw::TextField E2{*this, "E2"};
    fw::StaticText StaticText30{*this, "StaticText30", "Y = "};
    fw::TextField F2{*this, "F2"};
    fw::TextField TextField2{*this, "TextField2", "Solutions(X,Y):"};
    fw::PushButton PushButton45{*this, "PushButton45", "Solve"};

    // --- TabPanel2, Convert ----------------------------------------------------------------------
    fw::TextField TextField1{*this, "TextField1"};
    fw::PushButton PushButton44{*this, "PushButton44", "Convert"};
    fw::StaticText StaticText25{*this, "StaticText25",
        "To take advantage of all conversion features, the number should be followed by a single space "
        "followed by the units."};
    fw::Listbox Listbox1{*this, "Listbox1"};
    fw::Listbox Listbox2{*this, "Listbox2"};
    fw::GroupBox GroupBox7{*this, "GroupBox7", "Choose"};
    fw::RadioButton RadioButton7{*this, "RadioButton7", "Normal", true};
    fw::RadioButton RadioButton8{*this, "RadioButton8", "Upper Unit", false};
    fw::RadioButton RadioButton9{*this, "RadioButton9", "Lower Unit", false};
    fw::StaticText StaticText26{*this, "StaticText26",
        "Note:\nUpper Unit means the unit(s) above the last \"/\" in the unit specification\n"
        "Lower Unit means the unit(s) below the last \"/\" in the unit specification"};

    // --- TabPanel2, Search -----------------------------------------------------------------------
    fw::PagePanel PagePanel1{*this, "PagePanel1", 5};
    fw::StaticText StaticText34{*this, "StaticText34", "Primary Physics Data \nSearch Term Click to Select"};
    fw::Listbox Listbox4{*this, "Listbox4"};
    fw::TextField TextField3{*this, "TextField3"};
    fw::PopupMenu PopupMenu1{*this, "PopupMenu1"};
    fw::PushButton PushButton47{*this, "PushButton47", "Search"};
    fw::StaticText StaticText35{*this, "StaticText35", "Results: (Click for more Details-if needed)"};
    fw::Listbox Listbox5{*this, "Listbox5"};
    fw::TextArea TextArea7{*this, "TextArea7"};
    fw::StaticText StaticText38{*this, "StaticText38", "Primary PAstronomy Data \nSearch Term Click to Select"};
    fw::Listbox Listbox7{*this, "Listbox7"};
    fw::TextField TextField4{*this, "TextField4"};
    fw::PopupMenu PopupMenu3{*this, "PopupMenu3"};
    fw::PushButton PushButton49{*this, "PushButton49", "Search"};
    fw::StaticText StaticText37{*this, "StaticText37", "Results: (Click for more Details-if needed)"};
    fw::Listbox Listbox6{*this, "Listbox6"};
    fw::TextArea TextArea9{*this, "TextArea9"};
    fw::StaticText StaticText40{*this, "StaticText40", "Primary Math Formula \nSearch Term Click to Select"};
    fw::Listbox Listbox9{*this, "Listbox9"};
    fw::TextField TextField5{*this, "TextField5"};
    fw::PopupMenu PopupMenu4{*this, "PopupMenu4"};
    fw::PushButton PushButton50{*this, "PushButton50", "Search"};
    fw::StaticText StaticText39{*this, "StaticText39", "Results: (also in your clipboard)"};
    fw::TextArea TextArea10{*this, "TextArea10"};

    // --- Script context: the functions a calculation may call by name ---------------------------
    int FindFunction(std::string_view name) const override;
    double CallFunction(int id, double argument) override;
    double log10(double x);
    double ln(double x);
    double AsinD(double x);
    double AcosD(double x);
    double AtanD(double x);

    // --- Handlers and methods, by subsystem -------------------------------------------------------
    // Builds the window as the framework does: the controls' Open events, then Event_Open.
    void Open();
    void Event_Open();
    void BevelButton1_Open();

    // Delivery and the log.
    void LogLine(const std::string& line);
    void Blink();
    void PlayClaves();
    void Timer1_Action();
    void PushButton3_Action();

    // Drops and their twin for text given as a string.
    void Event_DropObject(const fw::DragItem* obj, int action) override;
    void ButtonAct(const std::string& text);
    // Evaluate: the value goes behind the formula's colon and the = key runs.
    void EvaluateValue(const std::string& text);
    static bool IsSearchCaption(const std::string& caption);

    // Calculation: rewriting the text, and RUN.
    std::string fact(std::int32_t n);
    std::string FrontRewrite(std::string text, bool purge);
    std::string PurgePretty(const std::string& text);
    std::string ReplaceFactorials(std::string text);
    std::string ReplacePi(const std::string& text);
    void CalculateRewriteForDrop(std::string text);
    void CalculateRewriteForButton(std::string text);
    void PushButton1_Action();

    // The keypad and its = key.
    void PushButton40_Action();
    // The = key's conversion branches; false when the caption is no conversion.
    bool ConvertFromKey(const std::string& caption, const std::string& expression);

    // Window modes and tab routing.
    void BevelButton1_Action();
    void bevelact(const std::string& origin);
    bool ImageWell1_MouseDown(int x, int y);
    void PushButton2_Action();
    bool TabPanel2_MouseDown(int x, int y);
    void TabPanel2_Change();
    void TabPanel1_Change();
    void ApplyEvaluateView();
    // The directions text of an action, on the Directions tab.
    void WriteDirections(const std::string& caption);

    // Formula memory and Evaluate (calc/Memory.cpp).
    void PushButton33_Action();
    void PushButton34_Action();
    void Listbox3_Open();
    void Listbox3_Close();
    bool Listbox3_CellClick(int row, int column, int x, int y);
    void PushButton46_Action();
    void WireMemory();

    // The two solvers (solve/).
    void PushButton41_Action();
    void EditA_TextChange();
    void EditB_TextChange();
    void EditC_TextChange();
    void PushButton45_Action();
    // Each resets the result line and lets the key through.
    bool A1_KeyDown(const std::string& key);
    bool B1_KeyDown(const std::string& key);
    bool C1_KeyDown(const std::string& key);
    bool D2_KeyDown(const std::string& key);
    bool E2_KeyDown(const std::string& key);
    bool F2_KeyDown(const std::string& key);
    void WireSolvers();

    // Conversions (convert/).
    // The loader of convert.txt, and the sort of the category rows it calls.
    void PopupMenu2_Open();
    void popmenu();
    void PopupMenu2_Change();
    void popconvert_Change();
    bool popconvert_MouseDown(int x, int y);
    void popconvert_MouseExit();
    // `index` is always PopupMenu2's ListIndex and is not read.
    std::string evconvert(std::int32_t index);
    void evconvert2(const std::string& text);
    std::string evconvert3(const std::string& text);
    // The Convert tab.
    bool Listbox1_CellClick(int row, int column, int x, int y);
    bool Listbox2_CellClick(int row, int column, int x, int y);
    void RadioButton7_Action();
    void RadioButton8_Action();
    void RadioButton9_Action();
    void PushButton44_Action();
    void WireConversions();
    // The Convert branch of a drop: `unitWord` is the word behind the first blank, or "zz".
    void ConvertDrop(const std::string& text, const std::string& unitWord);
    // The Convert branch of ButtonAct.
    void ConvertButton(const std::string& text);

    // Reference search (search/).
    void WireSearch();
    // A search request of a drop (fromButton false) or of ButtonAct (true), after "Entered: ".
    void SearchRequest(const std::string& caption, const std::string& term, bool fromButton);
    void TabPanel2_Open();
    std::string clean(const std::string& text);
    std::string SmartParse(const std::string& term);
    void physical(const std::string& term);
    void astronomical(const std::string& term);
    void mathematical(const std::string& term);
    void SearchFile(const std::string& term, const char* file, const char* clipboardReport, const char* logReport);
    // The controls of one page of the Search tab: 0 physics, 1 astronomy, 2 math formulas.
    struct SearchPage {
        fw::TextField& field;
        fw::Listbox& terms;
        std::vector<std::string>& summaries;
        fw::PopupMenu& adds;
        fw::PushButton& search;
        fw::Listbox* results;  // none on the math page
        fw::TextArea& detail;
        fw::TextArea& errorArea;
    };
    SearchPage SearchPageOf(int page);
    bool PrimaryTermClick(int page, int row, int column);
    void AddsChange(int page);
    void SearchButton(int page);
    void ShowResults(const std::string& caption);

    // Help texts, the Welcome and Help pages (shell/).
    void WireHelp();
    // Help for the action in the caption; `blink` for a drop, not for ButtonAct.
    void HelpBranch(const std::string& text, bool blink);
    // The Evaluate help, for "?" (and "Help" by drop).
    void EvaluateHelp(const std::string& text);
    void PushButton43_Action();
    void PushButton4_Action();
    bool StaticText24_MouseDown(int x, int y);
    void PushButton48_Action();

    // Preferences.
    void ReadPreferences();
    void PushButton42_Action();

private:
    void LayOut();
    void LayOutLeftPanel();
    void LayOutCalculatePage();
    void LayOutSolveConvertPages();
    void LayOutSearchPage();
    void SetUpControls();
    void WireDelivery();
    void WirePreferences();
    void WireWindowModes();
    void WireKeypad();
};
