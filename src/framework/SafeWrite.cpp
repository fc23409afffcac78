#include "framework/SafeWrite.h"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace fw {

namespace {
const std::string kTemporaryMark = ".tmp-";
}  // namespace

int OpenRegular(const fs::path& path, struct stat* info) {
    const int fd = ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (fd < 0) return -1;
    if (::fstat(fd, info) != 0 || !S_ISREG(info->st_mode)) {
        ::close(fd);
        errno = EINVAL;
        return -1;
    }
    return fd;
}

namespace {
bool CopyAll(int from, int to) {
    char buffer[1 << 16];
    for (;;) {
        const ssize_t got = ::read(from, buffer, sizeof buffer);
        if (got == 0) return true;
        if (got < 0) {
            if (errno == EINTR) continue;
            return false;
        }
        for (ssize_t done = 0; done < got;) {
            const ssize_t put = ::write(to, buffer + done, static_cast<size_t>(got - done));
            if (put < 0 && errno != EINTR) return false;
            if (put > 0) done += put;
        }
    }
}

void SyncFolder(const fs::path& folder) {
    const int fd = ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0) return;
    ::fsync(fd);
    ::close(fd);
}

bool ProcessRuns(long pid) { return pid > 0 && (::kill(static_cast<pid_t>(pid), 0) == 0 || errno == EPERM); }
}  // namespace

fs::path WriteTarget(const fs::path& path) {
    fs::path target = path;
    std::error_code error;
    // A bounded walk: a loop of links ends like a missing file, in a write that fails.
    for (int hop = 0; hop < 40 && fs::is_symlink(target, error); ++hop) {
        const fs::path next = fs::read_symlink(target, error);
        if (error) break;
        target = next.is_absolute() ? next : target.parent_path() / next;
    }
    return target;
}

std::FILE* OpenReplacement(const fs::path& target, bool keepContent, fs::path* temporary) {
    struct stat old {};
    int oldFd = OpenRegular(target, &old);
    const bool exists = oldFd >= 0;
    if (!exists && errno != ENOENT) return nullptr;
    *temporary = target;
    *temporary += kTemporaryMark + std::to_string(::getpid());
    const int fd = ::open(temporary->c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
    bool ok = fd >= 0;
    // The new file keeps the old one's permissions, as an edit in place would.
    if (ok && exists) ::fchmod(fd, old.st_mode & 07777);
    if (ok && exists && keepContent) ok = CopyAll(oldFd, fd);
    if (exists) ::close(oldFd);
    std::FILE* file = ok ? ::fdopen(fd, "ab") : nullptr;
    if (!file) {
        if (fd >= 0) ::close(fd);
        std::error_code error;
        fs::remove(*temporary, error);
    }
    return file;
}

bool CommitReplacement(std::FILE* file, bool writeFailed, const fs::path& temporary, const fs::path& target) {
    bool ok = !writeFailed && std::fflush(file) == 0 && ::fsync(::fileno(file)) == 0;
    ok = std::fclose(file) == 0 && ok;
    std::error_code error;
    if (ok) fs::rename(temporary, target, error);
    if (!ok || error) {
        fs::remove(temporary, error);
        return false;
    }
    SyncFolder(target.parent_path());
    return true;
}

void RemoveStaleTemporaries(const fs::path& folder) {
    std::error_code error;
    for (fs::directory_iterator it(folder, error), end; !error && it != end; it.increment(error)) {
        const std::string name = it->path().filename().string();
        const size_t mark = name.rfind(kTemporaryMark);
        if (mark == std::string::npos || mark == 0 || name.compare(0, 2, "VL") != 0) continue;
        const std::string pid = name.substr(mark + kTemporaryMark.size());
        if (pid.empty() || pid.find_first_not_of("0123456789") != std::string::npos || pid.size() > 9) continue;
        std::error_code ignored;
        if (!ProcessRuns(std::stol(pid)) && it->is_regular_file(ignored)) fs::remove(it->path(), ignored);
    }
}

}  // namespace fw
