#pragma once
// Scenarios: console command lines with the output they must print, in files that both front
// ends run, the console on the model and the widget driver on the real window. A line
// "= TEXT" is a line that the command before it prints; "#" starts a comment.

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

struct Scenario {
    std::string name;
    std::vector<std::string> commands;
    std::string expected;  // what all commands print together
};

inline Scenario LoadScenario(const std::filesystem::path& file) {
    Scenario scenario{file.stem().string(), {}, {}};
    std::ifstream in(file);
    for (std::string line; std::getline(in, line);) {
        if (line.rfind("= ", 0) == 0) scenario.expected += line.substr(2) + "\n";
        else if (!line.empty() && line[0] != '#') scenario.commands.push_back(line);
    }
    return scenario;
}

inline std::vector<Scenario> AllScenarios() {
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(VELMORA_SCENARIO_DIR))
        if (entry.path().extension() == ".scenario") files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    std::vector<Scenario> scenarios;
    for (const auto& file : files) scenarios.push_back(LoadScenario(file));
    return scenarios;
}
