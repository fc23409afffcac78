// Hostile drops on the real window, offscreen: from the dropped text to the end of its handling,
// the log view's growth included. A 20 MB drop must not keep the window busy for a second.

#include <benchmark/benchmark.h>
#include <sys/resource.h>

#include <filesystem>
#include <random>

#include <QApplication>

#include "framework/Folders.h"
#include "gui/QtPlatform.h"
#include "gui/WindowView.h"
#include "window/Window1.h"

namespace {
namespace fs = std::filesystem;
const char* const kActions[] = {"Calculate", "Convert", "Solve", "Physical Data", "Astro Data", "Math Formulas",
                                "Evaluate"};

struct QuietDesktop : QtPlatform {
    using QtPlatform::QtPlatform;
    void MsgBox(const std::string&) override {}
};

void GuiHugeDrop(benchmark::State& state) {
    const fs::path home = fs::temp_directory_path() / "velmora-bench-gui";
    fs::remove_all(home);
    fs::create_directories(home / "data");
    fs::copy(fs::path(VELMORA_SHIPPED_DATA_DIR) / "VLSupport", home / "data" / "VLSupport", fs::copy_options::recursive);
    std::mt19937 random(7);
    QString text(static_cast<qsizetype>(state.range(1)) << 20, QChar(' '));
    for (QChar& c : text) c = QChar(static_cast<char16_t>(32 + random() % 95));
    for (auto _ : state) {
        state.PauseTiming();
        QuietDesktop platform(fw::HomeFolders(home, fs::path(VELMORA_SHIPPED_DATA_DIR).parent_path() / "resources"));
        Window1 window(platform);
        WindowView view(window, platform);
        window.Open();
        for (int row = 0; row < window.BevelButton1.ListCount(); ++row)
            if (window.BevelButton1.List(row) == kActions[state.range(0)]) window.BevelButton1.Choose(row);
        view.show();
        QCoreApplication::processEvents();
        state.ResumeTiming();
        view.DeliverDrop(text);
        QCoreApplication::processEvents();  // the log view lays out what it was given
    }
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    state.counters["peak_MB"] = static_cast<double>(usage.ru_maxrss) / 1024.0;
    state.SetLabel(kActions[state.range(0)]);
}
BENCHMARK(GuiHugeDrop)->ArgsProduct({{0, 1, 2, 3, 4, 5, 6}, {1, 20}})->Iterations(1)->Unit(benchmark::kMillisecond);
}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
