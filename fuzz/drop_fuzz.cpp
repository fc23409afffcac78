// libFuzzer entry: the input dropped on the window as a user would drop it, under the action its
// first byte picks, through the normalisers, the dispatch and the engine. Faults that reach the
// event boundary are the program's own reports; anything else is a finding.

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>

#include "cli/Console.h"

namespace {
const char* const kActions[] = {"Calculate", "Convert", "Evaluate", "Physical Data", "Astro Data",
                                "Math Formulas", "Solve", "Settings"};

Console& TheConsole() {
    static Console console([] {
        const std::filesystem::path home = std::filesystem::temp_directory_path() / "velmora-drop-fuzz";
        std::filesystem::create_directories(home / "data");
        std::error_code ignored;
        std::filesystem::copy(VELMORA_SHIPPED_DATA_DIR "/VLSupport", home / "data" / "VLSupport",
                              std::filesystem::copy_options::recursive | std::filesystem::copy_options::skip_existing,
                              ignored);
        return fw::HomeFolders(home);
    }());
    return console;
}
}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    Console& console = TheConsole();
    console.Choose(kActions[data[0] % 8]);
    console.Drop(std::string(reinterpret_cast<const char*>(data) + 1, size - 1));
    // The log and the messages grow with every run; a fresh start now and then keeps memory flat.
    if (console.window.EditField2.Text().size() > (1u << 20)) console.window.EditField2.SetText("");
    console.platform.messages.clear();
    return 0;
}
