// Conversions: a drop under hp->W to the answer on the clipboard, and the load of convert.txt
// as PopupMenu2 opens (the shipped file, and a generated one of its size).

#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>

#include "cli/Console.h"
#include "framework/Text.h"

namespace {
const char* const kSmallTable =
    "<Conversions>\n"
    "<Category><Name>Power</Name><List>\n"
    "<SubList convert=\"*745.7\">hp->W</SubList>\n"
    "<SubList convert=\"/745.7\">W->hp</SubList>\n"
    "</List></Category>\n"
    "<Category><Name>Area</Name><List>\n"
    "<SubList convert=\"*0.09290304\">ft^2->m^2</SubList>\n"
    "</List></Category>\n"
    "</Conversions>\n";

std::filesystem::path BenchHome(const char* name) {
    const auto home = std::filesystem::temp_directory_path() / name;
    std::filesystem::remove_all(home);
    std::filesystem::create_directories(home / "data" / "VLSupport");
    return home;
}

int RowOf(const fw::RowControl& list, const char* text) {
    for (int row = 0; row < list.ListCount(); ++row)
        if (list.List(row) == text) return row;
    return -1;
}

void DropConversion(benchmark::State& state) {
    const auto home = BenchHome("velmora-bench-convert");
    std::ofstream(home / "data" / "VLSupport" / "convert.txt") << kSmallTable;
    Console console(fw::HomeFolders(home));
    console.window.CheckBox2.SetValue(true);
    console.Choose("Convert");
    console.window.PopupMenu2.SetListIndex(RowOf(console.window.PopupMenu2, "Power"));
    console.window.popconvert.SetListIndex(RowOf(console.window.popconvert, "hp->W"));
    for (auto _ : state) {
        console.Drop("0.15 hp/ft^2");
        benchmark::DoNotOptimize(console.platform.clipboard.data());
    }
    if (console.platform.clipboard != "111.855 W") state.SkipWithError("no answer");
}

// PopupMenu2_Open on the window of `home`, again and again: each pass first restores what a
// window holds before its first load.
void LoadAgain(benchmark::State& state, const std::filesystem::path& home) {
    Console console(fw::HomeFolders(home));
    Window1& w = console.window;
    for (auto _ : state) {
        state.PauseTiming();
        w.choices.clear();
        w.changeit.clear();
        w.Listbox1.DeleteAllRows();
        w.iload = 0;
        state.ResumeTiming();
        w.PopupMenu2_Open();
    }
    state.counters["categories"] = static_cast<double>(w.choices.size());
    if (w.iload != 1) state.SkipWithError("the load failed");
}

void LoadShippedTable(benchmark::State& state) {
    const auto shipped = std::filesystem::path(VELMORA_SOURCE_DATA_DIR) / "data" / "VLSupport" / "convert.txt";
    if (!std::filesystem::exists(shipped)) {
        state.SkipWithError("no shipped convert.txt");
        return;
    }
    const auto home = BenchHome("velmora-bench-load");
    std::filesystem::copy_file(shipped, home / "data" / "VLSupport" / "convert.txt");
    LoadAgain(state, home);
}

// A table of the shipped size, 300 conversions in 20 categories, for a figure without the data.
void LoadTableOf300(benchmark::State& state) {
    const auto home = BenchHome("velmora-bench-load300");
    std::ofstream out(home / "data" / "VLSupport" / "convert.txt");
    out << "<Conversions>\n";
    for (int c = 0; c < 20; ++c) {
        out << "<Category><Name>Category " << (20 - c) << "</Name><List>\n";
        for (int s = 0; s < 15; ++s)
            out << "<SubList convert=\"*" << (s + 1) * 1.5 << "\">unit" << s << "->other" << s << "</SubList>\n";
        out << "</List></Category>\n";
    }
    out << "</Conversions>\n";
    out.close();
    LoadAgain(state, home);
}
}  // namespace

BENCHMARK(DropConversion);
BENCHMARK(LoadShippedTable)->Unit(benchmark::kMicrosecond);
BENCHMARK(LoadTableOf300)->Unit(benchmark::kMicrosecond);
