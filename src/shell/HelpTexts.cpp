#include "shell/HelpTexts.h"

#include <span>

#include "framework/Text.h"
#include "shell/Paragraphs.h"

using fw::EndOfLine;

namespace helptext {
namespace {

// How the window's two notes stand in front of an action's help.
enum class Lead {
    Note,       // placeit, run straight into the first paragraph
    NoteLine,   // placeit and an end of line
    BothNotes,  // placeit, an end of line, placeit2 and an end of line
    None,
};

const Paragraph kActionHelp[] = {
    {"For help, use 'help', or '?', by drag and dropping it from any capable application,  with any of the options "
     "showing in the drop down menu to receive help for that option"},
    {"In the target window (aka small window) mode whenever anything dropped on the window finds a target and moves "
     "it to your clipboard, the target blinks and the application beeps."},
    {"You can click on the target which will expand the window. This will show tabs allowing access to "},
    {"Settings (Preferences)"},
    {"preference Help"},
    {"Directions, and"},
    {"a Log of your activities.", After::BlankLine},
    {"'Directions' contains short descriptions  of every available activity you choose. Additionally the 'More "
     "Instructions' button at the bottom of the 'Directions' tab does the same thing as occurs when you drop a '?' "
     "on the Target picture."},
    {"Any action taken in either window mode that does not produce a result will be noted in the log and any error "
     "if known will be recorded."},
    {"The Save button saves the Log to the folder housing the application. "},
    {"__________________"},
    {"TO QUIT. click the close button"},
    {"__________________"},
};

const Paragraph kCalculateHelp[] = {
    {"You can use the usual mathematical symbols, such as, +, -, /, *(for times), as well as ( ) for grouping, plus "
     "the usual functions, such as, sin() and cos()."},
    {"Scientific notation is used for large or small numbers, such as, 2000000 is 2E6 0r 2e6, but not 2x10^6."},
    {"  However, if you drag and drop from a web page, for example,  the number 2x10 followed by  a superscript 6, it "
     "will automatically be  converted to the proper form  2e6"},
    {"When using the target window mode, dropping a formula on the target will move the answer to the clipboard, "
     "blink and beep. If there was an error nothing will happen and, if known, the error will be noted in the log "
     "window."},
    {"-----"},
    {"In the full window mode under the  'Calculate' tab there is a yellow calculation window, a answer window, and a "
     "'keyboard'. Type or paste your formula into the calculation window and click the '=' button to evaluate it. "
     "The answer is shown in the answer window and is also put in the log and in your clipboard. The formula stays "
     "in the calculation window, so you can try it again with different settings."},
    {"For the most part the supplied soft keys are for your convenience, and exhibit expected behavior. The "
     "exceptions are:"},
    {"'de' key deletes the last entry at the end of the calculation field"},
    {"The 'pr' key pastes the clipboard into the location of your cursor."},
    {"The 'm' key saves the calculation field to a memory file."},
    {"The 'mr' key recalls the memory."},
    {"The E key allows the use of scientific notation, 200 is 2e2 or 2E2."},
    {"SPECIAL NOTE"},
    {"The ':', 'x', ';', 'y' keys have a special function. You can insert x's and y's into your equation in the "
     "calculation field and evaluate with different values of x and y. For example, sqrt(x^2+y^2):3;4 will give 5 "
     "and sqrt(x^2+y^2):2;2 will give 2.8..."},
    {"You can use the 'm' key to save the formula(ending in ':') for later use. You can save any number of formulas, "
     "sequentially in this manner.  The equations remain even after the application is quit and can be recalled, "
     "cyclically, at any time by using the 'mr' key. Also you can exit the expanded (full) window mode and still use "
     "the formula by drag and drop to the target (small) window with Velmora set to the  'Evaluate' action. If the "
     "formula only has 'x' in it, drag and drop the desired value for 'x' to Velmora. If it has x and y in it, drag "
     "'number1;number2' to it for the values of  x;y."},
    {"More information  available on this feature is under 'Evaluate' choice in the Drop Down menu"},
};

const Paragraph kConvertHelp[] = {
    {"You use 'Settings' to select the type of conversions you want to make by default."},
    {"If you  have checked the 'Use Clipboard' box, you can select 'convert' from the drop down menu and drag and "
     "drop a number with or without units unto the target. After conversion the  converted number with the proper "
     "units  will be returned to youe clipboard."},
    {"If you routinely do many different types of conversions or complex conversions do not select 'Use Clipboard'. "
     "Instead use the options available under the 'Convert' tab in the full window mode which will now display when "
     "you select 'Convert' in the drop down menu."},
    {"Many web pages and some word processors will use special symbols, for example, a emdash (l0ng hyphen) instead "
     "of a hyphen for a minus sign."},
    {"Velmora will try to correct this if 'Purge Pretty' is set in 'Settings' and you are using the clipboard mode. "
     "Otherwise be careful in using numbers you copy from these sources"},
    {"NOTE: for liquid measure there is a relationship between the categories 'Capacity' and 'Volume'. The "
     "relationship is most easily given by"},
    {"1 cubic meter (m^3) equals 1000 liters"},
};

const Paragraph kPhysicalHelp[] = {
    {"Searching for 'mass' will will find all available mass data. Searching for electron will return all available "
     "data on  the 'electron'"},
    {"Searching from 'electron mass' will return the mass of the electron."},
    {"Avoid searches with punctuation, the only exception is when used with a proper name such as Coulomb's "
     "constant"},
    {"Basic data on the Moon, Earth, and Sun can be found here. More extensive information will be available in the "
     "Astronomy database."},
    {"You can search for data on the elements by using their name or atomic number. You can get information on all "
     "the elements by searching for 'Element'. Similarly you can search for 'Isotope' or, for example, Co-60. "
     "'Energy/Content' will return all the data on this, whereas, 'Coal' will return only the energy content of "
     "coal."},
    {" Using smart search will help in removing extraneous words dragged from a web page."},
};

const Paragraph kAstroHelp[] = {
    {"Use Drag and drop to search for SUN or MOON or EARTH to find extensive data on each. You can narrow the search "
     "by specifying a specific property, for example, 'moon mass'"},
    {"NOTE: Search is not case sensitive."},
    {"Search for ASTEROID to find the names and basic data for each asteroid in the database. If you know the name of "
     "a particular asteroids you can search for it by name."},
    {"The same is true for COMET."},
    {"Search for CONSTELLATION_FAMILY to obtain a list of the families and there member constellations. If you know "
     "the family name, e.g., Zodiac, you can search by name."},
    {" Search for a constellation by name to obtain available information for that constellation, or search for "
     "CONSTELLATION to obtain information on all constellations."},
    {"To obtain all  information on all galaxies available, search for GALAXY. You can narrow the search by "
     "searching by galaxy type, for  example,  'Galaxy Elliptical' or 'Galaxy Spiral'. Of course, you can search by "
     "galaxy name. But note, searching for 'Andromeda' will return information on that galaxy but also on the "
     "constellation of the same name.  The search term 'Galaxy Andromeda' will return exactly what you seek."},
    {"To find out about the moons of a planet, you can search for the moon by name or find the names by searching "
     "for the planet by name and the word 'moons', for example, NEPTUNE MOONS "},
    {"To find data on stars, search for STAR  to obtain a list of available stars with information on their "
     "magnitude and distance."},
    {"Finally to obtain information on a planet search for it by name."},
};

const Paragraph kMathHelp[] = {
    {"Use Drag and drop to search for 'Area' or 'Volume' or 'Perimeter' to find formulas for various shapes. Or you "
     "could use shapes, such as, 'Sphere' or 'Square' to get  results for these figures"},
    {"NOTE: Search not case sensitive."},
    {"'Cosine' and 'Sine' will also produce useful formulas. In most cases it is more convenient  to pursue the "
     "formula you seek in the expanded window mode."},
    {"There are nine categories of formulas:"},
    {"Algebra"}, {"Area"}, {"Finance"}, {"Kinematics"}, {"Perimeter"}, {"Probability"}, {"Trigonometry"},
    {"Vectors"}, {"Volume"},
    {"In some of the categories, notably, Finance and Probability, extensive documentation and explanation is "
     "provided. Kinematics, the description of motion without regard to its causes, is the oldest of them: Galileo "
     "timed balls rolling down an inclined plane and found that the distance covered grows with the square of the "
     "time, the first law of motion ever put into a formula.",
     After::Nothing},
};

const Paragraph kSolveHelp[] = {
    {"Solve is only available in the full window mode, which will open automatically when 'Solve' is chosen in the "
     "drop down menu. Although Velmora will quickly solve common equations, care should be taken in interpreting the "
     "results."},
    {"Solving ax^2+bx+c=0 involves calculating"},
    {"SQRT(b^2 - 4ac)"},
    {"If, for example,  a=1, b=2, and c=1, then the SQRT calculation will be zero and there will be only one "
     "solution. But round-off matters: with c=0.99999 you will get two almost identical solutions, and with "
     "c=1.0000001 there is no real solution at all. Remember too that many quadratic equations have no real "
     "solutions.",
     After::BlankLine},
    {"A similar difficulty occurs when solving the 2 equations in 2 unknowns problem."},
    {"ax+by=c"},
    {"dx+ey=f"},
    {"The 2 equations need to be independent, for this to be true a*e-d*b must not be zero. Round-off can leave a "
     "value that should be zero almost zero instead, and then a solution appears where there is none. Usually one "
     "of its answers is then very small compared to the other."},
    {"The above cautions apply even if you solve the problems by 'hand'."},
};

const Paragraph kSettingsHelp[] = {
    {"You can access the settings in two ways. Either by choosing 'Settings' in the drop down menuu or simply by "
     "clicking on the Target picture. Once there you can set and save your preferences."},
    {"From the Help Tab (next to the Settings Tab), under Settings:"},
    {"Normal calculations and conversions return 7 significant digits. Sometimes this will not be enough, and in "
     "that case you can get 14 digits by choosing the 'scientific' button. If so, all numbers will be returned in "
     "scientific form, i.e., 200 will be returned as 2E2 or 2e2, meaning 2 x 10^2.",
     After::BlankLine},
    {"In physics, other than in sound level calculations, the Log to the 'base e' is normally used. In other "
     "disciplines it is common to use the Log to the 'base 10'. If not specified usually the Log, base e, is "
     "commonly written as 'ln'.",
     After::BlankLine},
    {"When using trig functions the use of degrees for angle measure is almost universal. However, the only true "
     "measure of angle is the radian. PI radians equals 180 degrees.",
     After::BlankLine},
    {"Searches normally are for exact word or letter patterns. While 'moon' will find everything with 'moon' in the "
     "search field. 'Radius moon' may find what you are looking for, but 'the radius of the moon' will not find it, "
     "unless you have selected 'Smart Search'."},
    {"Searches are not Case Sensitive!", After::BlankLine},
    {"Many web pages and some word processors will use special symbols, for example, a emdash (l0ng hyphen) instead "
     "of a hyphen for a minus sign, this will produce an error in a calculation."},
    {"Velmora will try to correct this if 'Purge Pretty' is set."},
};

const Paragraph kEvaluateHelp[] = {
    {"'Evaluate' is similar to 'Calculate'. In the expanded window mode they differ only in how you access stored "
     "formulas. In either  the ':', 'x', ';', 'y' keys have a special function. You can insert x's and y's into "
     "your equation in the calculation field and evaluate with different values of x and y. For example, "
     "sqrt(x^2+y^2):3;4 will give 5 and sqrt(x^2+y^2):2;2 will give 2.8..."},
    {"You can use the 'm' key to save the formula for later use. You can save any number of formulas, sequentially "
     "in this manner.  The equations remain even after the application is quit. In the small floating window  mode, "
     "if you set Velmora to 'Evaluate', you can use any formula left in the yellow calculation field by drag and "
     "drop to the Target picture. If the formula only has x in it, drag a number to Velmora. If it has x and y in "
     "it, drag number1;number2 to it for x;y."},
    {"The answer will be in the clipboard (and log)."},
};

struct ActionHelp {
    const char* caption;
    Lead lead;
    std::span<const Paragraph> paragraphs;
};

const ActionHelp kHelp[] = {
    {"Action", Lead::Note, kActionHelp},
    {"Calculate", Lead::NoteLine, kCalculateHelp},
    {"Convert", Lead::NoteLine, kConvertHelp},
    {"Physical Data", Lead::BothNotes, kPhysicalHelp},
    {"Astro Data", Lead::BothNotes, kAstroHelp},
    {"Math Formulas", Lead::BothNotes, kMathHelp},
    {"Solve", Lead::BothNotes, kSolveHelp},
    {"Settings", Lead::None, kSettingsHelp},
};

}  // namespace

std::optional<std::string> ForAction(const std::string& caption, const std::string& placeit,
                                     const std::string& placeit2) {
    for (const ActionHelp& help : kHelp) {
        if (!fw::StrEq(caption, help.caption)) continue;
        std::string lead;
        if (help.lead != Lead::None) lead = placeit;
        if (help.lead == Lead::NoteLine || help.lead == Lead::BothNotes) lead += EndOfLine;
        if (help.lead == Lead::BothNotes) lead += placeit2 + EndOfLine;
        return lead + Join(help.paragraphs);
    }
    return std::nullopt;
}

std::string ForEvaluate() { return Join(kEvaluateHelp); }

}  // namespace helptext
