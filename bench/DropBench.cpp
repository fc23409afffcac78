// From a dropped text to the answer on the clipboard, in process.

#include <benchmark/benchmark.h>

#include <filesystem>

#include "cli/Console.h"

namespace {
void DropToClipboard(benchmark::State& state, const char* text) {
    const auto home = std::filesystem::temp_directory_path() / "velmora-bench-drop";
    std::filesystem::create_directories(home);
    Console console(fw::HomeFolders(home));
    console.Choose("Calculate");
    for (auto _ : state) {
        console.Drop(text);
        benchmark::DoNotOptimize(console.platform.clipboard.data());
    }
    if (console.platform.clipboard.empty()) state.SkipWithError("no answer");
}
}  // namespace

BENCHMARK_CAPTURE(DropToClipboard, sine_in_degrees, "2*sin(30)");
BENCHMARK_CAPTURE(DropToClipboard, thousands, "1,000,000");
