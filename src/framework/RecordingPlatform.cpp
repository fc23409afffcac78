#include "framework/RecordingPlatform.h"

#include <algorithm>
#include <cstdio>
#include <ostream>

namespace fw {

RecordingPlatform::RecordingPlatform(FolderSet folderSet) : folders(std::move(folderSet)), now(std::time(nullptr)) {}

void RecordingPlatform::SetClipboardText(const std::string& text) {
    clipboard = text;
    ++clipboardWrites;
}

int RecordingPlatform::Beeps() const { return static_cast<int>(std::count(sounds.begin(), sounds.end(), "beep")); }

void RecordingPlatform::MsgBox(const std::string& message) {
    messages.push_back(message);
    if (messagesTo) *messagesTo << "message: " << message << std::endl;
}

FolderItemRef RecordingPlatform::Folder(SpecialFolder which) { return SpecialFolderItem(folders, which); }

std::string RecordingPlatform::ShortDate(std::time_t moment) { return UsShortDate(moment); }
std::string RecordingPlatform::ShortTime(std::time_t moment) { return UsShortTime(moment); }

std::string UsShortDate(std::time_t moment) {
    std::tm parts{};
    localtime_r(&moment, &parts);
    char text[32];
    std::snprintf(text, sizeof text, "%d/%d/%02d", parts.tm_mon + 1, parts.tm_mday, parts.tm_year % 100);
    return text;
}

std::string UsShortTime(std::time_t moment) {
    std::tm parts{};
    localtime_r(&moment, &parts);
    const int hour = parts.tm_hour % 12 == 0 ? 12 : parts.tm_hour % 12;
    char text[32];
    std::snprintf(text, sizeof text, "%d:%02d %s", hour, parts.tm_min, parts.tm_hour < 12 ? "AM" : "PM");
    return text;
}

}  // namespace fw
