// The texts that stand on pages of the expanded window: the Directions tab, the Welcome page
// and the notes of the Help tab.

#include "framework/Text.h"
#include "shell/HelpTexts.h"
#include "shell/Paragraphs.h"
#include "window/Addresses.h"

using fw::EndOfLine;

namespace helptext {
namespace {

const Paragraph kGeneralDirections[] = {
    {"General:"},
    {"A) With only the target showing (small window mode) and with any option in the drop-down menu displayed, "
     "dragging and dropping a '?' on the target will put appropriate information about that option in your "
     "clipboard for pasting into the application of your choice.",
     After::BlankLine},
    {"B) In the large window mode (opened by clicking the target), short instructions for any chosen activity will "
     "be found here (under the directions tab). More instructions are available by using the button at the bottom "
     "of the tab and can be read in the clipboard viewer under the welcome tab.",
     After::BlankLine},
    {"C) You can quit this application simply by closing this window.", After::Nothing},
};

const Paragraph kCalculateDirections[] = {
    {"Calculate:"},
    {"The calculator  functions as a scientific calculator and formula evaluator."},
    {"At the top is a yellow calculation window, and under it,  a answer window, and  'soft keyboard'. Both window "
     "modes work alike: enter a formula and click the '=' button. The answer is shown in the answer window and is "
     "also put in the log and in your clipboard."},
    {"For the most part the soft keys exhibit expected behavior and your keyboard keys can be used instead. The "
     "exceptions are:"},
    {"'de' key deletes the last entry at the end of the calculation field"},
    {"The 'pr' key pastes the clipboard into the location of your cursor."},
    {"The 'm' key saves the calculation field to a memory file."},
    {"The 'mr' key recalls the formulas in memory cyclically."},
    {"The E key allows the use of scientific notation, 200 is 2e2 or 2E2."},
    {"PLUS:"},
    {"1) The calculator does not need to be showing to use it. In the small window mode just drag and drop a formula "
     "on the target. The answer will be in your clipboard and in the log."},
    {"2) Formulas involving functions of x and y can be constructed, used immediately, or saved for later. Save them "
     "with the 'm' key and recall them with the 'mr' key. A formula left in the calculation field can also be used "
     "by dropping values for x and y on the target, with 'Evaluate' chosen in the drop down menu."},
};

const Paragraph kConvertDirections[] = {
    {"Convert:"},
    {"Additional instructions are available by clicking the button at the bottom. The results will be in your "
     "clipboard for pasting into the application of your choice and in the clipboard viewer available under the "
     "Welcome tab."},
    {"Enter the number with or without units to be converted in the entry field at the top. Choose the category "
     "desired from the list at the left and, then, the specific conversion to be used from the list at the right. "
     "Click the convert button"},
    {"If you use units, you have the option of applying conversions to the upper and lower units separately."},
    {"For example, if you know the solar radiation at a location is 0.15 hp/ft^2 and want it in the conventional "
     "units of watts/meter^2, select the second radio button and choose 'Power' on the left list and 'hp->W' in the "
     "right list and then click the convert button. The result will be 111.855 W/ft^2."},
    {" Now use the third radio button with the category 'Time' and the conversion 'hr->s'. The final result will be "
     "1204 W/m^2.",
     After::Nothing},
};

const Paragraph kSolveDirections[] = {
    {"Solve:"},
    {"Additional instructions on how to use this feature can be found by using the button at the bottom.. The "
     "results will be in your clipboard for pasting into the application of your choice and in the clipboard viewer "
     "under the Welcome tab."},
    {" Solutions to a quadratic equation and to two equations involving two unknowns are frequently encountered In "
     "science problems. For convenience,  solutions to these problems can be found here."},
    {"Be careful to enter minus signs when required. For example, 2x^2+4x-2=0 "},
    {"would require you to enter 2, 4, and -2 in the three blanks for the quadratic equation 'solver'"},
    {"See the available additional material for more cautions"},
};

// The three search pages share their first lines.
const Paragraph kSearchMore = {
    "More details on how to use this feature can be found by using the button at the bottom. The results will be in "
    "your clipboard and in the clipboard viewer in the Welcome tab."};
const Paragraph kSearchSelect = {
    "Select your primary search word by clicking it. This will enter it in the search field above and populate the "
    "drop down menu  at its right with collections of search words that can go with the primary search word. You can "
    "select one of these sets and narrow the search."};

const Paragraph kPhysicalDirections[] = {
    {"Physical Data:"},
    kSearchMore,
    kSearchSelect,
    {"Note: If you choose 'element' and then  'Iron' from the drop down menu, the search field at the top will read  "
     "'element iron'. Click the search button and you will receive that basic information on the element 'Iron'. "
     "However if you hold down the shift key while choosing 'iron' it will immediately search for everything about "
     "the substance 'Iron' (for example, the density of Cast Iron et. al.) as well as the element data and return it "
     "all to the output list.",
     After::Nothing},
};

const Paragraph kAstroDirections[] = {
    {"Astro Data:"},
    kSearchMore,
    kSearchSelect,
    {"Note: If you choose 'Star' and then  'Sirius' from the drop down menu, the search field at the top will read  "
     "'Star Sirius'. Click the search button and you will receive the basic information on the star 'Sirius'. "
     "However if you hold down the shift key while choosing 'Sirius' it will immediately search for everything about "
     "the star 'Sirius', and return more information about 'Sirius' if more is availale under other categories.",
     After::Nothing},
};

const Paragraph kMathDirections[] = {
    {"Math Formulas:"},
    kSearchMore,
    kSearchSelect,
    {"Note: If you choose 'Area' and then  'Square' from the drop down menu, the search field at the top will read  "
     "'Area Square'. Click the search button and you will receive the formula for the area of a square plus any "
     "needed additional information. However if you hold down the shift key while choosing 'Square' it will "
     "immediately search for everything about a  'Square', and return more information about squares if any  is "
     "availale under other categories.",
     After::Nothing},
};

const Paragraph kEvaluateDirections[] = {
    {"Evaluate:"},
    {" With the exception of the 'mr' key, which is deactivated here the other keys function as described under the "
     "'Calculate' Tab. The function of the 'mr' key is replaced by the list of formulas in the listbox below the "
     "calculator. To use one of the formulas simply click on it. To add a formula use the 'm' key as before. To "
     "delete a formula, check the box next to it and press the delete key. NOTE:The deletion will only be final when "
     "you next quit Velmora."},
    {"To evaluate a formula using x and [optionally] y , just enter it followed by a colon and the value for x "
     "followed by a semicolon and the value for y.",
     After::Nothing},
    {"Pressing the '=' key will give you the answer and clear everything in the yellow field after the colon. This "
     "leaves you ready to enter new values for  x and y for evaluation."},
    {"If you have a favorite formula you often use just leave it in the Yellow field and go back to the small "
     "floating window mode. Whenever you want to use it just change the drop down menu to 'Evaluate and drag your "
     "number, e.g., 3.1 for x or numbers, e.g., 3.1;5.6 for x;y to the Target."},
    {"Your answer will be in the clipboard.", After::Nothing},
};

const Paragraph kSettingsDirections[] = {
    {"Settings:"},
    {"For most purposes the default settings will be what most users want. Detailed instructions on the various "
     "choices  can be found under the 'Help' tab. Use the 'Save Preferences' buttons to save your choices.",
     After::Nothing},
};

struct Directions {
    const char* caption;
    std::span<const Paragraph> paragraphs;
};

const Directions kDirections[] = {
    {"Action", kGeneralDirections},     {"Calculate", kCalculateDirections}, {"Convert", kConvertDirections},
    {"Solve", kSolveDirections},        {"Physical Data", kPhysicalDirections}, {"Astro Data", kAstroDirections},
    {"Math Formulas", kMathDirections}, {"Evaluate", kEvaluateDirections},   {"Settings", kSettingsDirections},
};

const Paragraph kIntroduction[] = {
    {"Velmora: (Short Description)"},
    {"Can function as a small window desk accessory to which you drag 'questions or operations and receive the "
     "answers back through the clipboard."},
    {"It can also function as a stand alone application simply by clicking the target and expanding to the full "
     "window mode as seen here.",
     After::BlankLine},
    {"Additional information about the tabs at the left:"},
    {"The Help tab provides information to aid in selecting your preference settings."},
    {"The Log tab displays the log of all activities and provides a buttton for saving it, if desired. The "
     "Directions tab displays basic instructions on any chosen activity or tab (even this one). At the bottom of "
     "this tab there is a button which moves additional information to the clipboard.  The clipboard information "
     "obtained in this manner will also be displayed in this window. Click the directions tag and try it now.",
     After::BlankLine},
    {"Additional information about the tabs above:"},
    {"Each tab above, except 'Solve',  corresponds to one of the choices in the drop-down menu located above the "
     "target picture.  In the full window mode they can be reached either by clicking on them or choosing the "
     "activity in the drop-down menu. If you choose 'Physics Data' , 'Astro Data' or 'Math Formulas' in the "
     "drop-down menu this will activate the search tab (above right) with the data appropriate to your selection "
     "available.",
     After::Nothing},
};

}  // namespace

const char* const kMoreInstructions =
    ">>>Detailed instructions have been put in your clipboardand can be viewed in the Clipboard Viewer under the "
    "'Welcome' Tab. Also they have been added to the Log File where they can be  saved to the log file in the the "
    "folder containing this application.<<<";

std::optional<std::string> Directions(const std::string& caption) {
    for (const auto& [name, paragraphs] : kDirections)
        if (fw::StrEq(caption, name)) return Join(paragraphs);
    return std::nullopt;
}

std::string DirectionsError() {
    return std::string("This window is displayed in error, please report this to ") + kSupportAddress +
           ". Please iattach the Log File.";
}

// The control was laid out by hand once: a blank slipped in before "B)" and a line end after the
// last paragraph, and both have stayed.
std::string InitialDirections() {
    std::string text = Join(kGeneralDirections);
    text.insert(text.find("B) In the large"), " ");
    return text + EndOfLine;
}

std::string ProgramTitle() {
    return "            Velmora" + EndOfLine + "Maintained by the Velmora project" + EndOfLine + "Velmora ver 3.0";
}

std::string Introduction() { return Join(kIntroduction); }

// Like the directions, the first text differs a little from the one Reset restores.
std::string InitialIntroduction() {
    std::string text = fw::ReplaceAll(Introduction(), "if desired. The", "if desired." + EndOfLine + "The");
    return text + " ";
}

std::string SupportMail() {
    const std::string body = "Put your question here and save and attach the current log to this email if you are "
                             "having a problem or reporting an error";
    return std::string("mailto:") + kSupportAddress + "?subject=Velmora&body=" + fw::ReplaceAll(body, " ", "%20");
}

std::string MathNote() {
    return "Normal calculations and conversions return 7 significant digits. Sometimes this will not be enough, and "
           "in that case you can get 14 digits by choosing the 'scientific' button. If so, all numbers will be "
           "returned in scientific form, i.e., 200 will be returned as 2E2 or 2e2, meaning 2 x 10^2." +
           EndOfLine +
           "Warning a long multiplication string of numbers with out decimal points can produce an integer overflow." +
           EndOfLine + "So don't use:" + EndOfLine + "400*20*4000*6000\tBut rather use" + EndOfLine +
           "400.*20.*4000.*6000." + EndOfLine;
}

std::string LogNote() {
    return " In physics   the Log to the \"base e\" is normally used, except for sound level calculations. This is "
           "called the natural logarithm and is commonly used in many sciences. It is often written ln(x). The Log to "
           "the \"base 10\" is called the common logarithm." +
           EndOfLine +
           "In most computer languages \"Log\" means Log to the \"base e\" and \"Log10\" means Log to the \"base "
           "10\". That is true here. You can use \"Log10(x)\", or \"ln(x)\", or \"Log(x)\". In the last case the base "
           "used is that chosen in the Settings.";
}

std::string TrigNote() {
    return "When using trig functions the use of degrees for angle measure is almost universal. However, the only "
           "true measure of angle is the radian. PI radians equals 180 degrees.";
}

std::string SearchNote() {
    return "Searches normally are for exact word or letter patterns. While \"moon\" will find everything with "
           "\"moon\" in the search field.  \"Radius moon\" may find what you are looking for, but  \"the radius of "
           "the moon\" will not find it, unless you have selected 'Smart Search'." +
           EndOfLine + "Searches are not Case Sensitive!";
}

std::string PurgeNote() {
    return "Many web pages and some word processors will use special symbols, for example, a em-dash (long hyphen) "
           "instead of a hyphen for a minus sign in a formula. This will produce an error when evaluated." +
           EndOfLine + "Velmora will try to properly replace these special symbols if 'Purge Pretty' is set.";
}

std::string ConversionsNote() {
    return "Generally when you need to convert between units you will select \"Convert\" from the drop-down menu and "
           "Velmora will open to the proper location for you to choose the particular task you need. However, if you "
           "find that you are continually doing one particular conversion, e.g., radians to degrees, set that choice "
           "at the bottom of the setting pane and check \"Use Clipboard\". Then with Velmora in its small window mode "
           "and the menu set to \"Convert\" you can, for example, drag and drop \"1.57 radian\" unto it, and it will "
           "beep and blink, and move the answer \"89.95434 deg\" to the clipboard ready for you to paste it in place.";
}

}  // namespace helptext
