#include "cli/Console.h"

#include "framework/EventBoundary.h"

Console::Console(fw::FolderSet folders, bool shiftAtLaunch, std::ostream* messagesTo)
    : platform(std::move(folders)), window(platform), commands(window, platform),
      intro(platform, [this] { ShowMainWindow(); }) {
    platform.messagesTo = messagesTo;
    commands.holdShift = [this](bool down) { platform.shift = down; };
    commands.messages = &platform.messages;
    commands.sounds = &platform.sounds;
    commands.urls = &platform.urls;
    platform.shift = shiftAtLaunch;
    intro.Open();
    platform.shift = false;
    if (!intro.IsClosed()) fw::RunEvent(platform, [this] { intro.PushButton2.Push(); });
}

// Window1 is built the first time it is shown.
void Console::ShowMainWindow() {
    if (!mainOpened_) {
        mainOpened_ = true;
        window.Open();
    }
    window.Show();
}
