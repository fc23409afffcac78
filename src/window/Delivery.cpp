// How results reach the user: the clipboard, the blink of the target, the beep, claves, and
// the running log.

#include "framework/Text.h"
#include "window/Window1.h"

using namespace fw;

void Window1::WireDelivery() {
    Timer1.Action = [this] { Timer1_Action(); };
    PushButton3.Action = [this] { PushButton3_Action(); };
}

void Window1::LogLine(const std::string& line) { EditField2.AppendText(line + EndOfLine); }

void Window1::Blink() {
    ImageWell1.SetImage("target2");
    Timer1.SetMode(1);
}

void Window1::PlayClaves() { platform.PlaySound("claves"); }

void Window1::Timer1_Action() {
    ImageWell1.SetImage("target");
    Timer1.SetMode(0);
}

void Window1::PushButton3_Action() {
    const std::time_t first = platform.Now();
    const std::time_t second = platform.Now();
    LogLine("--Log Saved at " + platform.ShortTime(second));
    const std::string name = "VLLog" + ReplaceAll(platform.ShortDate(first), "/", "-") + ".txt";
    FolderItemRef file = platform.Folder(SpecialFolder::Application)->Child(name);
    TextOutputStreamRef out = file->AppendToTextFile();
    out->Write(ReplaceLineEndings(EditField2.Text(), EndOfLine));
    out->Close();
}
