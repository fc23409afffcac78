#pragma once
// Every text with which Velmora explains itself, compiled in: the help a dropped "?" returns,
// the Directions tab, the Welcome page and the notes of the Help tab. Slips and double blanks
// inside the texts are part of them and stay.

#include <optional>
#include <string>

namespace helptext {

// The help for an action's caption (case ignored), with the window's notes `placeit` and
// `placeit2` where they stand; none for a caption without help. "Evaluate" has its own.
std::optional<std::string> ForAction(const std::string& caption, const std::string& placeit,
                                     const std::string& placeit2);
std::string ForEvaluate();

// The Directions tab for a caption; none for a caption without directions.
std::optional<std::string> Directions(const std::string& caption);
// What the Directions tab says for a caption that should never reach it.
std::string DirectionsError();
// The tab's text before the first choice of an action.
std::string InitialDirections();
// Put in front of the directions by "More Instructions".
extern const char* const kMoreInstructions;

// The Welcome page: the title block, and the short description in the clipboard viewer as
// Reset puts it back and as it first stands.
std::string ProgramTitle();
std::string Introduction();
std::string InitialIntroduction();
// The e-mail that the Welcome page's button starts, as a mailto: address.
std::string SupportMail();

// The fixed notes of the Help tab, under the labels Math, Log, Trig, Search, Purge Perfect
// and Conversions.
std::string MathNote();
std::string LogNote();
std::string TrigNote();
std::string SearchNote();
std::string PurgeNote();
std::string ConversionsNote();

}  // namespace helptext
