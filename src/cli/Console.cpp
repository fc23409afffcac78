#include "cli/Console.h"

#include "framework/EventBoundary.h"

Console::Console(fw::FolderSet folders) : platform(std::move(folders)), window(platform), commands(window, platform) {
    commands.holdShift = [this](bool down) { platform.shift = down; };
    fw::RunEvent(platform, [this] { window.Open(); });
}
