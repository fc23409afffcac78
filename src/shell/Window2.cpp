// The introduction window: whether it stays at start, its two ways out, and the picture's clicks.

#include "shell/Window2.h"

#include "framework/EventBoundary.h"
#include "framework/Exceptions.h"

using namespace fw;

namespace {
FolderItemRef MarkerItem(Platform& platform) {
    FolderItemRef folder = platform.Folder(SpecialFolder::Preferences);
    return folder ? folder->Child(Window2::kMarkerFile) : FolderItemRef();
}
}  // namespace

Window2::Window2(Platform& desktop, std::function<void()> showMainWindow)
    : Window("Velmora Intro.", 900, 600), platform(desktop), showMainWindow_(std::move(showMainWindow)) {
    Resizeable = false;
    CloseButton = true;
    MinimizeButton = true;
    MaximizeButton = false;
    ImageWell1.SetBounds(5, 5, 600, 493);
    Separator1.SetBounds(-1, 504, 621, 4);
    PushButton1.SetBounds(29, 531, 141, 20);
    PushButton2.SetBounds(525, 531, 80, 20);
    PushButton2.Default = true;
    StaticText1.SetBounds(651, 40, 214, 428);
    StaticText1.SetText(DesignText());

    ImageWell1.MouseDown = [this](int x, int y) { return ImageWell1_MouseDown(x, y); };
    ImageWell1.MouseExit = [this] { ImageWell1_MouseExit(); };
    PushButton1.Action = [this] { PushButton1_Action(); };
    PushButton2.Action = [this] { PushButton2_Action(); };
}

void Window2::Open() {
    for (Control* control : Controls()) RunEvent(platform, [control] { control->FireOpen(); });
    RunEvent(platform, [this] { Event_Open(); });
    if (!IsClosed()) Show();
}

void Window2::Event_Open() {
    // Shift at launch is the one way back to a window that Finished has put away.
    if (platform.AsyncShiftKey()) {
        PushButton1.SetVisible(false);
        return;
    }
    FolderItemRef marker = MarkerItem(platform);
    if (marker && marker->Exists()) HandOver();
}

void Window2::HandOver() {
    Hide();
    showMainWindow_();
    Close();
}

void Window2::PushButton2_Action() { HandOver(); }

void Window2::PushButton1_Action() {
    platform.MsgBox("To recall this window hold down the SHIFT key while launching Velmora");
    FolderItemRef marker = MarkerItem(platform);
    if (!marker) return;
    // A marker that cannot be written is not reported: the hand-over goes on regardless.
    if (TextOutputStreamRef out = marker->CreateTextFile()) {
        try {
            out->Write("do not show");
            out->Close();
        } catch (const IOException&) {
        }
    }
    HandOver();
}

void Window2::ImageWell1_MouseExit() {
    if (ImageWell1.Image() == "fullwindow2") StaticText1.SetText(WelcomeText());
    else if (ImageWell1.Image() == "fullwindow1") StaticText1.SetText(HintOnExit());
}

bool Window2::ImageWell1_MouseDown(int x, int y) {
    if (platform.AsyncShiftKey()) {
        const std::string text = HotSpotText(x, y);
        if (!text.empty()) StaticText1.SetText(text);
        return false;
    }
    const bool onTarget = x < 55 && y >= 46 && y <= 91;
    if (!onTarget) {
        StaticText1.SetText(Reminder());
    } else if (ImageWell1.Image() == "fullwindow2") {
        ImageWell1.SetImage("fullwindow1");
        StaticText1.SetText(HintOnClick());
    } else if (ImageWell1.Image() == "fullwindow1") {
        ImageWell1.SetImage("fullwindow2");
        StaticText1.SetText(WelcomeText());
    }
    return false;
}
