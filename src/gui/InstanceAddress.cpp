#include "gui/InstanceAddress.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

bool PrivateFolder(const fs::path& folder) {
    struct stat info {};
    return !folder.empty() && ::lstat(folder.c_str(), &info) == 0 && S_ISDIR(info.st_mode) &&
           info.st_uid == ::getuid() && (info.st_mode & 077) == 0;
}

fs::path PrivateRuntimeFolder() {
    const char* runtime = std::getenv("XDG_RUNTIME_DIR");
    if (runtime && *runtime && PrivateFolder(runtime)) return runtime;
    const char* cache = std::getenv("XDG_CACHE_HOME");
    const char* home = std::getenv("HOME");
    fs::path base = cache && *cache ? fs::path(cache) : home && *home ? fs::path(home) / ".cache" : fs::path();
    if (base.empty()) return {};
    std::error_code error;
    fs::create_directories(base, error);
    const fs::path folder = base / "velmora";
    ::mkdir(folder.c_str(), 0700);
    // Ours but too open (made under another umask): close it; anyone else's is refused.
    struct stat info {};
    if (::lstat(folder.c_str(), &info) == 0 && S_ISDIR(info.st_mode) && info.st_uid == ::getuid())
        ::chmod(folder.c_str(), 0700);
    return PrivateFolder(folder) ? folder : fs::path();
}

std::string InstanceSocketPath(const fs::path& runtime, const fw::FolderSet& folders) {
    std::error_code error;
    // FNV-1a over the real paths: stable from one build to the next, unlike std::hash.
    std::uint64_t hash = 14695981039346656037ull;
    for (const fs::path& folder : {folders.preferences, folders.application}) {
        const std::string real = fs::weakly_canonical(fs::absolute(folder, error), error).string() + '\n';
        for (unsigned char c : real) hash = (hash ^ c) * 1099511628211ull;
    }
    char name[40];
    std::snprintf(name, sizeof name, "velmora-%016llx", static_cast<unsigned long long>(hash));
    return (runtime / name).string();
}
