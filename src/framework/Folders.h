#pragma once
// Where Velmora's files live on a Linux desktop.

#include <filesystem>
#include <string>

#include "framework/FolderItem.h"

namespace fw {

struct FolderSet {
    std::filesystem::path preferences;      // VL3Preferences, VL3Instr.txt
    std::filesystem::path applicationData;  // holds VLSupport/ with the data files
    std::filesystem::path application;      // VLmemory.txt and saved logs
    std::filesystem::path resources;        // pictures and sounds
};

enum class SpecialFolder;

// The item for one of the platform's special folders; the data folder is lookup-only.
Ref<FolderItem> SpecialFolderItem(const FolderSet& folders, SpecialFolder which);

// The XDG folders ($XDG_CONFIG_HOME/velmora, $XDG_DATA_HOME/velmora); the data folder falls back
// to the shipped data beside the installed program, or in the source tree, while the user's own
// holds no VLSupport. `executable` is the running program's path.
FolderSet DesktopFolders(const std::filesystem::path& executable);

// Everything under one folder, with no fallback, so that a test controls every file.
// `resources` are the program's own pictures and sounds, which no home holds; without them the
// set names DIR/resources.
FolderSet HomeFolders(const std::filesystem::path& home, const std::filesystem::path& resources = {});

// Removes what interrupted writes left in the folders the program writes to. Call it while
// holding the home (HomeLock), before anything is written.
void RemoveStaleTemporaries(const FolderSet& folders);

// The folder that holds the shipped VLSupport/ and resources/, or "" if none is found.
std::filesystem::path ShippedDataFolder(const std::filesystem::path& executable);

}  // namespace fw
