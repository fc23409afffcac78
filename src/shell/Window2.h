#pragma once
// The introduction window: the first window of every start. It shows a picture of the expanded
// main window and explains its parts, then hands over to the main window.

#include <functional>
#include <string>
#include <vector>

#include "framework/Controls.h"
#include "framework/Platform.h"
#include "framework/Window.h"

class Window2 : public fw::Window {
public:
    // `showMainWindow` shows the main window, building it the first time it is shown.
    Window2(fw::Platform& platform, std::function<void()> showMainWindow);

    fw::Platform& platform;

    fw::ImageWell ImageWell1{*this, "ImageWell1", "fullwindow2"};
    fw::Separator Separator1{*this, "Separator1"};
    fw::PushButton PushButton1{*this, "PushButton1", "Finished"};
    fw::PushButton PushButton2{*this, "PushButton2", "Continue"};
    fw::StaticText StaticText1{*this, "StaticText1"};

    // Builds the window as the framework does: the controls' Open events, then Event_Open;
    // a window that is still open afterwards comes on the screen.
    void Open();
    void Event_Open();
    bool ImageWell1_MouseDown(int x, int y);
    void ImageWell1_MouseExit();
    void PushButton1_Action();
    void PushButton2_Action();

    static constexpr const char* kMarkerFile = "VL3Instr.txt";

    // The texts of StaticText1.
    static std::string DesignText();
    static std::string WelcomeText();
    static std::string HintOnClick();
    static std::string HintOnExit();
    static std::string Reminder();

    // A part of the picture that a shift-click explains: left <= x < right and top <= y < bottom,
    // a side at INT_MIN being open.
    struct HotSpot {
        int left, right, top, bottom;
        std::vector<const char*> lines;
        bool Contains(int x, int y) const;
    };
    static std::vector<HotSpot> HotSpots();
    // The explanation of a shift-click at (x, y) on the picture, or "" where nothing is explained.
    static std::string HotSpotText(int x, int y);

private:
    void HandOver();
    std::function<void()> showMainWindow_;
};
