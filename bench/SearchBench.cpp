// Reference search: a Smart search dropped on the target to the answer on the clipboard, the
// primary lists built at start, and a Literal search that lists the whole file, on the shipped
// file and on a copy ten times its size.

#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "cli/Console.h"

namespace {
namespace fs = std::filesystem;

const fs::path kShipped = fs::path(VELMORA_SHIPPED_DATA_DIR) / "VLSupport";

fs::path HomeWithData(const char* name) {
    const fs::path home = fs::temp_directory_path() / name;
    fs::remove_all(home);
    fs::create_directories(home / "data");
    fs::copy(kShipped, home / "data" / "VLSupport", fs::copy_options::recursive);
    return home;
}

// The file's entries repeated `copies` times inside its root.
void Grow(const fs::path& file, int64_t copies) {
    std::stringstream original;
    original << std::ifstream(file, std::ios::binary).rdbuf();
    const std::string text = original.str();
    const size_t open = text.find("<Category"), close = text.rfind("</");
    std::string body = text.substr(open, close - open), grown = text.substr(0, open);
    for (int64_t copy = 0; copy < copies; ++copy) grown += body;
    std::ofstream(file, std::ios::binary) << grown << text.substr(close);
}

// The physics file as shipped and twice its size; the file is read again only when it changes.
void SmartSearchDrop(benchmark::State& state) {
    const fs::path home = HomeWithData("velmora-bench-search");
    Grow(home / "data" / "VLSupport" / "physicaldata.txt", state.range(0));
    Console console(fw::HomeFolders(home));
    console.Choose("Physical Data");
    for (auto _ : state) {
        console.Drop("electron mass");
        benchmark::DoNotOptimize(console.platform.clipboard.data());
    }
    if (console.platform.clipboard.find("Electron mass") == std::string::npos) state.SkipWithError("no answer");
}
BENCHMARK(SmartSearchDrop)->Arg(1)->Arg(2)->Unit(benchmark::kMicrosecond);

void PrimaryListsAtStart(benchmark::State& state) {
    Console console(fw::HomeFolders(HomeWithData("velmora-bench-lists")));
    Window1& w = console.window;
    for (auto _ : state) {
        state.PauseTiming();
        w.Listbox4.DeleteAllRows(), w.Listbox7.DeleteAllRows(), w.Listbox9.DeleteAllRows();
        w.knum3.clear(), w.knum4.clear(), w.knum5.clear();
        state.ResumeTiming();
        w.TabPanel2_Open();
    }
    state.counters["terms"] = w.Listbox4.ListCount() + w.Listbox7.ListCount() + w.Listbox9.ListCount();
}
BENCHMARK(PrimaryListsAtStart)->Unit(benchmark::kMillisecond);

// A Literal search lists the whole astronomy file, as shipped and ten times its size.
void LiteralWholeFile(benchmark::State& state) {
    const fs::path home = HomeWithData("velmora-bench-literal");
    Grow(home / "data" / "VLSupport" / "AstrDataXML.txt", state.range(0));
    Console console(fw::HomeFolders(home));
    console.window.RadioButton6.Click();
    console.Choose("Astro Data");
    for (auto _ : state) {
        console.Drop("star");
        benchmark::DoNotOptimize(console.platform.clipboard.data());
    }
    state.counters["bytes"] = static_cast<double>(console.platform.clipboard.size());
}
BENCHMARK(LiteralWholeFile)->Arg(1)->Arg(10)->Unit(benchmark::kMillisecond);
}  // namespace

namespace {
// A search right after the file was edited: the cost of reading and parsing it anew.
void SmartSearchAfterEdit(benchmark::State& state) {
    const fs::path home = HomeWithData("velmora-bench-edited");
    const fs::path file = home / "data" / "VLSupport" / "physicaldata.txt";
    Console console(fw::HomeFolders(home));
    console.Choose("Physical Data");
    bool longer = false;
    for (auto _ : state) {
        state.PauseTiming();
        Grow(file, 1);  // the same entries, written anew: a file with a new stamp
        if ((longer = !longer)) std::ofstream(file, std::ios::binary | std::ios::app) << "\n";
        state.ResumeTiming();
        console.Drop("electron mass");
        benchmark::DoNotOptimize(console.platform.clipboard.data());
    }
}
BENCHMARK(SmartSearchAfterEdit)->Unit(benchmark::kMicrosecond);
}  // namespace
