// The texts of the introduction window's panel and the hot-spots of its picture. Misspellings,
// doubled blanks and the two slightly different hints are the program's own and are kept.

#include <climits>

#include "framework/Text.h"
#include "shell/Window2.h"

namespace {
constexpr int kNone = INT_MIN;

std::string Lines(std::initializer_list<const char*> lines) {
    std::string text;
    for (const char* line : lines) text += (text.empty() ? "" : fw::EndOfLine) + line;
    return text;
}

const char* const kPictureNote = "This applies to objects in the picture not to the two active buttons at the bottom "
                                 "of this window.";

// Tried in this order; each hit replaces the text, except that the target counts only where the
// action menu did not hit. The ladder of tab rectangles leaves x from 591 on unexplained.
const Window2::HotSpot kHotSpots[] = {
    // action menu
    {kNone, 52, kNone, 33,
     {"Your choices here are",
      "Calculate",
      "Convert",
      "Solve",
      "Physical Data",
      "Evaluate",
      "Settings",
      "--",
      "Your choices correspond to, and in the full window mode will activate, the tabs on the right. Except that, "
      "both 'Calculate' and 'Evaluate'  activate the  'Calculate' tab configured differently in each case.",
      "--",
      "In the Desk Accessory  (small window) mode choosing the settings mode will display only the settings tab "
      "panel. Close the settings panel by using the 'Back' button at the bottom."}},
    // target
    {kNone, 52, kNone, 95,
     {"In the Desk Accessory mode you drop  input here and, according to the setting you have chosen above under "
      "'Action', if an answer is available it will return the result to the clipboard, blink and beep. If no answer "
      "is returned any error will be recorded in the log.",
      "You can click the target to go to the Application (full window) mode, and click it again to return to the "
      "small window."}},
    // tab Settings
    {83, 135, 29, 50,
     {"This allows you to set and save your mathematical, search and default conversion preferences."}},
    // tab Help
    {135, 180, 29, 50,
     {"This contains information to aid you in selecting your prefferences."}},
    // tab Log
    {180, 215, 29, 50,
     {"This tab displays the log of all your activities as well as any error messages. At your option you can save "
      "the log as a text file to  the folder containing this application."}},
    // tab Directions
    {215, 281, 29, 50,
     {"When you choose an action, either by using the drop-down 'Action' menu or by clicking a tab in the large tab "
      "panel at the right, instructions will be displayed here. The button below this text will supply additional "
      "information. this information will be moved to the clipboard for use in other applications and can be "
      "directly read in the clip viewer window under the 'Welcome' tab."}},
    // tab Welcome
    {281, 365, 29, 50,
     {"The 'Welcome' tab is displayed here. It contains basic information, a link to the Velmora website, and the "
      "clip viewer"}},
    // tab Calculate
    {365, 430, 29, 50,
     {"This tab contains a calculator keypad with some special keys. It can be used to make standard calculations "
      "plus it can be used to construct formulas in up to two variables, save them, and evaluate them.",
      " If 'Evaluate' is chosen in the 'Action' drop-down menu the 'Calculate' tab will also display a list of the "
      "formulas you have created and saved. You can select a formula for evaluation by simply clicking on it.",
      "The selected formula can even be evaluated with Velmora in the small window mode. For example, if you have "
      "selected the Pythagorean Equation, sqrt(x^2+y^2), and from your working document drag 3;4 to the target, the "
      "target will blink, beep and put 5 in the clipboard ready for pasting into your document."}},
    // tab Solve
    {430, 477, 29, 50,
     {"The 'Solve' tab features the ability to solve arbitrary quadratic equations and to find the solutions to two "
      "equations in two unknowns."}},
    // tab Convert
    {477, 541, 29, 50,
     {"There are about 300 currently available conversions which are easily accessed here. In addition, complex and "
      "custom conversions are facilitated. For example, if you wish to change seconds to hours in gallons/second or "
      "seconds/gallon, you would use the same conversion but apply it differently. This you can now do at the push "
      "of a button. You can also simply chain the conversions. In the current example you could now convert gallons "
      "to liters in either one, ending up with liters/hour or hours/liter."}},
    // tab Search
    {541, 591, 29, 50,
     {"In Velmora you can search for Physical and Astronomical Data or 'Math Formulas. (Physical Data is the "
      "default. To search Astronomical Data or Math Formulas, simply choose them in the drop-down menu over the "
      "Target.)  You can search using your own words or you can search by using the keywords in a provided list. "
      "Having selected one of these terms you can add to it by selecting from a drop-down menu additional terms "
      "which go with the word you selected . For example if you select only 'electron' you will get all information "
      "available about the electron. Or you could use the drop-down menu next to the list to select 'mass' if all "
      "you want to know is the electron's mass."}},
    // PushButton4, email
    {470, 562, 130, 148,
     {"If your email client is configured to send mail, using this button woll open an email message addressed to "
      "Velmora with the word 'Velmora' (for handling purposes) in the subject heading and instructions in the body "
      "of the email advising on what information, if any, should be included."}},
    // PushButton2, Back
    {9, 70, 460, 473,
     {"If you are in the Desk Accessory mode and choose 'Settings' the window will open far enough to set and save "
      "your preferences. To return to the small window, use this button."}},
    // PushButton43, More Instructions
    {142, 251, 456, 479,
     {"The information displayed above will be instructions for whatever tab (activity) is chosen in the tab panel "
      "at the right. For each activity there is more information available, if needed, and can be accessed with this "
      "button. The information will be moved to the clipboard and can be read in the clipboard viewer under the "
      "'Welcome' tab."}},
    // PushButton48, Reset
    {505, 568, 460, 477,
     {"The 'Reset' button resets the clipboard viewer to the original text shown here (above) after it has been used "
      "to read a clipboard. This is not required."}},
};

// kNone stands for a side without a bound.
bool Inside(int value, int from, int below) {
    return (from == kNone || value >= from) && (below == kNone || value < below);
}
}  // namespace

std::string Window2::DesignText() {
    return Lines({"Welcome to the Itrodution to Velmora.", "Both the \"Finished\" Button and The \"Continue\" Button",
                  "will close this window and activate  Velmora. If you click \"Finished\", this window will not be "
                  "shown again unless you hold down the shift key while activating Velmora."});
}

std::string Window2::WelcomeText() {
    return Lines({"Welcome to the Itrodution to Velmora.",
                  "Both the 'Finished' Button and The 'Continue' Button will close this window and activate  "
                  "Velmora. If you click 'Finished', this window will not be shown again unless you hold down the "
                  "shift key while activating Velmora."});
}

std::string Window2::HintOnClick() {
    return Lines({"Hold the shift key down while clicking on a button or tab to see information about it here.",
                  kPictureNote});
}

std::string Window2::HintOnExit() {
    return Lines({"Hold the shift key down while clicking on any button or tab to see information about it here.",
                  kPictureNote});
}

std::string Window2::Reminder() {
    return Lines({"Do get information about any button or tab, hold down the shift key while clicking on it",
                  kPictureNote});
}

std::vector<Window2::HotSpot> Window2::HotSpots() { return {std::begin(kHotSpots), std::end(kHotSpots)}; }

bool Window2::HotSpot::Contains(int x, int y) const {
    return Inside(x, left, right) && Inside(y, top, bottom);
}

std::string Window2::HotSpotText(int x, int y) {
    std::string text;
    for (size_t i = 0; i < std::size(kHotSpots); ++i) {
        const HotSpot& spot = kHotSpots[i];
        if (i == 1 && kHotSpots[0].Contains(x, y)) continue;
        if (!spot.Contains(x, y)) continue;
        text.clear();
        for (const char* line : spot.lines) text += (text.empty() ? "" : fw::EndOfLine) + line;
    }
    return text;
}
