// Help on request: a dropped or passed "?" or "help" puts the help for the current action on
// the clipboard. Also where the explaining pages get their texts and handlers.

#include "framework/Text.h"
#include "shell/HelpTexts.h"
#include "window/Addresses.h"
#include "window/Window1.h"

using namespace fw;

namespace {
enum class HelpLog {
    None,       // no trace in the log
    Line,       // the head, an end of line, the help
    AfterNote,  // the head, placeit, an end of line, the rest of the help
};

struct HelpDelivery {
    const char* caption;
    HelpLog log;
    bool blinkFirst;  // before the clipboard is set
    bool blinkAfterLog;
};

// Tested in this order. The rows differ on purpose, Solve and Settings leaving no log line.
const HelpDelivery kDeliveries[] = {
    {"Action", HelpLog::AfterNote, false, true},
    {"Calculate", HelpLog::Line, true, true},
    {"Convert", HelpLog::Line, true, true},
    {"Physical Data", HelpLog::Line, false, true},
    {"Astro Data", HelpLog::Line, false, true},
    {"Math Formulas", HelpLog::Line, false, true},
    {"Solve", HelpLog::None, true, false},
    {"Settings", HelpLog::None, true, false},
};
}  // namespace

void Window1::WireHelp() {
    TextArea1.SetText(helptext::MathNote());
    TextArea2.SetText(helptext::LogNote());
    TextArea3.SetText(helptext::TrigNote());
    TextArea4.SetText(helptext::SearchNote());
    TextArea5.SetText(helptext::PurgeNote());
    TextArea6.SetText(helptext::ConversionsNote());
    EditField10.SetText(helptext::InitialDirections());
    StaticText23.SetText(helptext::ProgramTitle());
    StaticText24.SetText(kHomePage);
    TextArea8.SetText(helptext::InitialIntroduction());

    PushButton43.Action = [this] { PushButton43_Action(); };
    PushButton4.Action = [this] { PushButton4_Action(); };
    StaticText24.MouseDown = [this](int x, int y) { return StaticText24_MouseDown(x, y); };
    PushButton48.Action = [this] { PushButton48_Action(); };
}

void Window1::HelpBranch(const std::string& text, bool blink) {
    const std::string caption = BevelButton1.Caption();
    const HelpDelivery* row = nullptr;
    for (const HelpDelivery& delivery : kDeliveries)
        if (!row && StrEq(caption, delivery.caption)) row = &delivery;
    if (!row) return;
    const std::string help = helptext::ForAction(caption, placeit, placeit2).value_or("");

    Clipboard clipboard(platform);
    if (blink && row->blinkFirst) Blink();
    clipboard.SetText(text + " (Caption " + caption + "): " + help);
    // Help text keeps its own line ends, so it goes into the log as it is.
    const std::string head = "Help(Caption:" + caption + "):";
    if (row->log == HelpLog::Line) EditField2.AppendText(head + EndOfLine + help);
    if (row->log == HelpLog::AfterNote)
        EditField2.AppendText(head + placeit + EndOfLine + help.substr(placeit.size()));
    if (blink && row->blinkAfterLog) Blink();
    clipboard.Close();
    platform.Beep();
}

void Window1::EvaluateHelp(const std::string& text) {
    const std::string caption = BevelButton1.Caption();
    const std::string help = helptext::ForEvaluate();
    Clipboard clipboard(platform);
    clipboard.SetText(text + " (Caption " + caption + "): " + help);
    clipboard.Close();
    EditField2.AppendText("Help(Caption:" + caption + "):" + EndOfLine + help);
    // Closed a second time, which commits the same text again.
    clipboard.Close();
    platform.Beep();
}
