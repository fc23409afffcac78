#pragma once
// A desktop without a screen: it records what the program asks of it, so that tests and the
// console can read it back and steer what the desktop answers.

#include <iosfwd>
#include <string>
#include <vector>

#include "framework/Folders.h"
#include "framework/Platform.h"

namespace fw {

class RecordingPlatform : public Platform {
public:
    explicit RecordingPlatform(FolderSet folders);

    void SetClipboardText(const std::string& text) override;
    std::string ClipboardText() override { return clipboard; }
    void Beep() override { sounds.push_back("beep"); }
    void PlaySound(const std::string& name) override { sounds.push_back(name); }
    void MsgBox(const std::string& message) override;
    void ShowURL(const std::string& url) override { urls.push_back(url); }
    bool AsyncShiftKey() override { return shift; }
    FolderItemRef Folder(SpecialFolder which) override;
    std::time_t Now() override { return now; }
    std::string ShortDate(std::time_t moment) override;
    std::string ShortTime(std::time_t moment) override;
    std::string SystemVersion() override { return systemVersion; }

    FolderSet folders;
    std::string clipboard;
    int clipboardWrites = 0;
    // Every beep ("beep") and named sound ("claves"), in the order heard.
    std::vector<std::string> sounds;
    int Beeps() const;
    std::vector<std::string> messages;
    std::vector<std::string> urls;
    // Where each message box is also written as it comes up: a console shows no boxes.
    std::ostream* messagesTo = nullptr;
    bool shift = false;
    std::time_t now;
    std::string systemVersion;
};

// Short forms in the style of a US desktop: "1/31/11" and "3:04 PM".
std::string UsShortDate(std::time_t moment);
std::string UsShortTime(std::time_t moment);

}  // namespace fw
