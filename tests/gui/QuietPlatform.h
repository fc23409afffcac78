#pragma once
// Qt's desktop for the GUI tests, with message boxes kept: a modal box would wait for a click
// forever. Homes hold the shipped data when asked and use the source tree's pictures.

#include <string>
#include <vector>

#include "framework/Folders.h"
#include "gui/QtPlatform.h"
#include "support/Session.h"

struct QuietPlatform : QtPlatform {
    using QtPlatform::QtPlatform;
    void MsgBox(const std::string& message) override { messages.push_back(message); }
    std::vector<std::string> messages;
};

inline const std::filesystem::path kResources = std::filesystem::path(VELMORA_SOURCE_DATA_DIR) / "resources";

inline fw::FolderSet GuiHome(const std::string& name, bool withData) {
    const std::filesystem::path home = ScratchHome(name);
    if (withData) InstallShippedData(home);
    return fw::HomeFolders(home, kResources);
}
