#include "framework/HomeLock.h"

#include <cstdlib>
#include <fcntl.h>
#include <string>
#include <sys/file.h>
#include <unistd.h>

namespace fw {

HomeLock::HomeLock(const std::filesystem::path& folder) {
    const std::filesystem::path file = folder / ".velmora.lock";
    fd_ = ::open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
    if (fd_ < 0) return;
    held_ = ::flock(fd_, LOCK_EX | LOCK_NB) == 0;
    if (held_) {
        const std::string pid = std::to_string(::getpid()) + "\n";
        if (::ftruncate(fd_, 0) == 0) (void)!::pwrite(fd_, pid.data(), pid.size(), 0);
        holder_ = ::getpid();
        return;
    }
    char text[32] = {};
    if (::pread(fd_, text, sizeof text - 1, 0) > 0) holder_ = static_cast<pid_t>(std::atol(text));
}

HomeLock::~HomeLock() {
    if (fd_ >= 0) ::close(fd_);
}

}  // namespace fw
