#include "framework/Folders.h"

#include "framework/Platform.h"
#include "framework/SafeWrite.h"

#include <cstdlib>
#include <system_error>

namespace fs = std::filesystem;

namespace fw {

namespace {
fs::path XdgFolder(const char* variable, const char* fallbackBelowHome) {
    const char* value = std::getenv(variable);
    if (value && *value) return fs::path(value);
    const char* home = std::getenv("HOME");
    return fs::path(home && *home ? home : ".") / fallbackBelowHome;
}

bool HasSupportFolder(const fs::path& folder) {
    std::error_code error;
    return !folder.empty() && fs::is_directory(folder / "VLSupport", error);
}
}  // namespace

fs::path ShippedDataFolder(const fs::path& executable) {
    std::error_code error;
    // Started through PATH, argv[0] is a bare name; the kernel knows where the program really is.
    fs::path program = executable;
    if (!executable.has_parent_path()) {
        const fs::path self = fs::read_symlink("/proc/self/exe", error);
        if (!error) program = self;
    }
    const fs::path bin = fs::weakly_canonical(program, error).parent_path();
    for (const fs::path& candidate : {bin / ".." / "share" / "velmora", fs::path(VELMORA_SOURCE_DATA_DIR) / "data"})
        if (HasSupportFolder(candidate)) return fs::weakly_canonical(candidate, error);
    return {};
}

FolderSet DesktopFolders(const fs::path& executable) {
    FolderSet folders;
    folders.preferences = XdgFolder("XDG_CONFIG_HOME", ".config") / "velmora";
    const fs::path userData = XdgFolder("XDG_DATA_HOME", ".local/share") / "velmora";
    folders.application = userData;
    const fs::path shipped = ShippedDataFolder(executable);
    folders.applicationData = HasSupportFolder(userData) || shipped.empty() ? userData : shipped;
    std::error_code error;
    const fs::path sourceResources = fs::path(VELMORA_SOURCE_DATA_DIR) / "resources";
    folders.resources = !shipped.empty() && fs::is_directory(shipped / "resources", error) ? shipped / "resources"
                                                                                           : sourceResources;
    fs::create_directories(folders.preferences, error);
    fs::create_directories(folders.application, error);
    return folders;
}

FolderSet HomeFolders(const fs::path& home, const fs::path& resources) {
    FolderSet folders{home / "prefs", home / "data", home / "app", resources.empty() ? home / "resources" : resources};
    std::error_code error;
    fs::create_directories(folders.applicationData, error);
    fs::create_directories(folders.preferences, error);
    fs::create_directories(folders.application, error);
    return folders;
}

void RemoveStaleTemporaries(const FolderSet& folders) {
    RemoveStaleTemporaries(folders.preferences);
    RemoveStaleTemporaries(folders.application);
}

FolderItemRef SpecialFolderItem(const FolderSet& folders, SpecialFolder which) {
    switch (which) {
    case SpecialFolder::Preferences: return MakeRef<FolderItem>(folders.preferences);
    case SpecialFolder::ApplicationData:
        return MakeRef<FolderItem>(folders.applicationData, FolderItem::Lookup::ExistingOnly);
    case SpecialFolder::Application: return MakeRef<FolderItem>(folders.application);
    case SpecialFolder::Resources: return MakeRef<FolderItem>(folders.resources);
    }
    return nullptr;
}

}  // namespace fw
