#pragma once
// Where the running copy of a home listens: a socket in a folder that only its user can enter,
// named after the real folders of the home, so that "./h" and "/tmp/h" are one home.

#include <filesystem>
#include <string>

#include "framework/Folders.h"

// The user's private run-time folder: $XDG_RUNTIME_DIR when it is the user's own and closed to
// others, else ~/.cache/velmora made with mode 0700 and checked. Empty if neither can be had.
std::filesystem::path PrivateRuntimeFolder();

// The socket's path for `folders` in `runtime`.
std::string InstanceSocketPath(const std::filesystem::path& runtime, const fw::FolderSet& folders);

// Whether `folder` is a real folder (no link) of this user that no one else can enter.
bool PrivateFolder(const std::filesystem::path& folder);
