#pragma once
// What the logic needs of the desktop, behind one interface: the Qt front end implements it
// for real, RecordingPlatform for tests and the console.

#include <ctime>
#include <string>

#include "framework/FolderItem.h"

namespace fw {

enum class SpecialFolder { Preferences, ApplicationData, Application, Resources };

class Platform {
public:
    virtual ~Platform() = default;

    // The system clipboard. Logic goes through fw::Clipboard, which commits at Close.
    virtual void SetClipboardText(const std::string& text) = 0;
    virtual std::string ClipboardText() = 0;

    virtual void Beep() = 0;
    // Plays a sound resource by its name in the code ("claves").
    virtual void PlaySound(const std::string& name) = 0;
    // Waits for the user where there is one.
    virtual void MsgBox(const std::string& message) = 0;
    virtual void ShowURL(const std::string& url) = 0;
    // Keyboard.AsyncShiftKey: whether shift is held at this moment.
    virtual bool AsyncShiftKey() = 0;

    // nil where the folder cannot be had.
    virtual FolderItemRef Folder(SpecialFolder which) = 0;

    // The present moment, and its short forms in the user's locale ("1/31/11", "3:04 PM").
    virtual std::time_t Now() = 0;
    virtual std::string ShortDate(std::time_t moment) = 0;
    virtual std::string ShortTime(std::time_t moment) = 0;
    // The system's name and version in one line, or "" where it cannot be told.
    virtual std::string SystemVersion() = 0;
};

// A clipboard object made for one use: the text counts only once Close commits it.
class Clipboard {
public:
    explicit Clipboard(Platform& platform) : platform_(platform) {}
    void SetText(const std::string& text) { text_ = text; hasText_ = true; }
    const std::string& Text() const { return text_; }
    void Close() {
        if (hasText_) platform_.SetClipboardText(text_);
    }

private:
    Platform& platform_;
    std::string text_;
    bool hasText_ = false;
};

}  // namespace fw
