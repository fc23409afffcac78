// Hostile drops: 1 MB and 20 MB of random bytes, and of random words, on every action, from
// the drop to the end of its handler. Each run reports the process's peak resident memory so
// far, which only grows: run one case alone (--benchmark_filter) to read its own peak.

#include <benchmark/benchmark.h>
#include <sys/resource.h>

#include <filesystem>
#include <random>
#include <string>

#include "cli/Console.h"

namespace {
namespace fs = std::filesystem;

const char* const kActions[] = {"Calculate", "Convert", "Solve", "Physical Data", "Astro Data", "Math Formulas",
                                "Evaluate"};

std::string RandomBytes(size_t size) {
    std::mt19937 random(7);
    std::string text(size, '\0');
    for (char& c : text) c = static_cast<char>(random() & 0xff);
    return text;
}

// Short lower-case words that occur in many keys, so that every entry is tested word by word.
std::string RandomWords(size_t size) {
    std::mt19937 random(11);
    std::string text;
    text.reserve(size + 8);
    while (text.size() < size) {
        const int length = 1 + static_cast<int>(random() % 4);
        for (int i = 0; i < length; ++i) text += static_cast<char>('a' + random() % 26);
        text += ' ';
    }
    return text;
}

double PeakMegabytes() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return static_cast<double>(usage.ru_maxrss) / 1024.0;
}

void HugeDrop(benchmark::State& state, bool words) {
    const char* action = kActions[state.range(0)];
    const size_t size = static_cast<size_t>(state.range(1)) << 20;
    const std::string text = words ? RandomWords(size) : RandomBytes(size);
    const fs::path home = fs::temp_directory_path() / "velmora-bench-huge";
    fs::remove_all(home);
    fs::create_directories(home / "data");
    fs::copy(fs::path(VELMORA_SHIPPED_DATA_DIR) / "VLSupport", home / "data" / "VLSupport", fs::copy_options::recursive);
    for (auto _ : state) {
        state.PauseTiming();
        Console console(fw::HomeFolders(home));
        console.Choose(action);
        state.ResumeTiming();
        console.Drop(text);
        benchmark::DoNotOptimize(console.platform.clipboard.data());
    }
    state.SetLabel(std::string(action) + (words ? ", words" : ", bytes"));
    state.counters["peak_MB"] = PeakMegabytes();
}

void Sizes(benchmark::internal::Benchmark* bench) {
    for (int action = 0; action < 7; ++action)
        for (int megabytes : {1, 20}) bench->Args({action, megabytes});
}
}  // namespace

BENCHMARK_CAPTURE(HugeDrop, bytes, false)->Apply(Sizes)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(HugeDrop, words, true)->Apply(Sizes)->Iterations(1)->Unit(benchmark::kMillisecond);
