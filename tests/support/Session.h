#pragma once
// A fresh program on the recording desktop, with its own scratch home, for whole-flow tests.

#include <filesystem>
#include <sstream>
#include <string>
#include <type_traits>

#include <unistd.h>

#include "cli/Console.h"

inline std::filesystem::path ScratchHome(const std::string& name) {
    static int counter = 0;
    std::filesystem::path home = std::filesystem::temp_directory_path() /
                                 ("velmora-" + name + "-" + std::to_string(::getpid()) + "-" + std::to_string(++counter));
    std::filesystem::remove_all(home);
    std::filesystem::create_directories(home);
    return home;
}

// The shipped data, copied so that a test may also break it.
inline void InstallShippedData(const std::filesystem::path& home) {
    std::filesystem::create_directories(home / "data");
    std::filesystem::copy(std::filesystem::path(VELMORA_SHIPPED_DATA_DIR) / "VLSupport", home / "data" / "VLSupport",
                          std::filesystem::copy_options::recursive);
}

struct Session {
    explicit Session(const std::string& name, bool withData = false)
        : home(Prepare(name, withData)), console(fw::HomeFolders(home), false, &shown) {}
    // A home that `prepare(home)` fills before the program starts, e.g. with data files of a
    // test's own under home/"data"/"VLSupport".
    template <class Fill, class = std::enable_if_t<std::is_invocable_v<Fill, const std::filesystem::path&>>>
    Session(const std::string& name, Fill prepare)
        : home(PrepareWith(name, prepare)), console(fw::HomeFolders(home), false, &shown) {}

    // The scratch home goes with the session, so that test runs leave nothing behind.
    ~Session() {
        std::error_code ignored;
        std::filesystem::remove_all(home, ignored);
    }

    // Runs console commands, one a line; returns what they printed.
    std::string Run(const std::string& commands) {
        std::istringstream in(commands);
        std::ostringstream out, err;
        std::string line;
        while (std::getline(in, line)) console.Execute(line, out, err);
        errors += err.str();
        return out.str();
    }
    Window1& w() { return console.window; }
    fw::RecordingPlatform& desktop() { return console.platform; }
    // The log from the line after the start-up report on.
    std::string LogSinceStart() {
        const std::string& log = w().EditField2.Text();
        const std::string marker = "----begin---\n";
        const size_t at = log.find(marker);
        return at == std::string::npos ? log : log.substr(at + marker.size());
    }

    std::filesystem::path home;
    // Message boxes as the console writes them when they come up; before `console`, which writes here.
    std::ostringstream shown;
    Console console;
    std::string errors;

private:
    static std::filesystem::path Prepare(const std::string& name, bool withData) {
        std::filesystem::path home = ScratchHome(name);
        if (withData) InstallShippedData(home);
        return home;
    }
    template <class Fill>
    static std::filesystem::path PrepareWith(const std::string& name, Fill& prepare) {
        std::filesystem::path home = ScratchHome(name);
        prepare(static_cast<const std::filesystem::path&>(home));
        return home;
    }
};
