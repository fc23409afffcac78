#pragma once
// One copy of the program for each home: a lock on a file in the folder that holds the
// formula memory and the logs. The system drops it when the process ends, however it ends, so
// a lock that is held belongs to a copy that runs, busy or not, and is never taken over.

#include <filesystem>
#include <sys/types.h>

namespace fw {

class HomeLock {
public:
    explicit HomeLock(const std::filesystem::path& folder);
    ~HomeLock();
    HomeLock(const HomeLock&) = delete;
    HomeLock& operator=(const HomeLock&) = delete;

    // False if another process holds the home (or the lock file cannot be made).
    bool Held() const { return held_; }
    // The process that holds the home, as it wrote itself into the file; 0 if unknown.
    pid_t Holder() const { return holder_; }

private:
    int fd_ = -1;
    bool held_ = false;
    pid_t holder_ = 0;
};

}  // namespace fw
