// How long the main window takes from a new size to the last painting, all shown, on a screen of 3840 by 2160.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <chrono>
#include <cstring>
#include <vector>

#include "app/screens.h"
#include "bench/program.h"
#include "bench/table.h"
#include "forms/form_gt_main.h"
#include "frame/startup.h"
#include "map/day_night.h"
#include "platform/qt/qt_host.h"

namespace gloamtide {

namespace {

constexpr QSize Screen(3840, 2160);

class LargeScreen : public QtHost {
public:
    LargeScreen() { ChooseScreen(ProgramScreens(), Screen); }
    void Prepare(FormWindow& Window) override { Window.Expect(Screen); }
    void Present(FormWindow& Window) override {
        Window.resize(Screen);
        Window.show();
    }
};

void Copies(benchmark::State& Runs) {
    const std::vector<Color> From(std::size_t{3840} * 2160, 1);
    std::vector<Color> To(From);
    for (auto _ : Runs) {
        for (int Turn = 0; Turn < 40; ++Turn) {
            std::memcpy(To.data(), From.data(), From.size() * sizeof(Color));
            benchmark::DoNotOptimize(To.data());
            benchmark::ClobberMemory();
        }
    }
}

// Follows and rests: both paintings count, the tenth of a second between them does not.
void Resize(benchmark::State& Runs) {
    FormWindow& Window = *dynamic_cast<QtHost*>(host)->WindowOf(FormGTMain);
    for (auto _ : Runs) {
        const double Before = FormGTMain.PictureGT.Density;
        const auto Begin = std::chrono::steady_clock::now();
        Window.resize(Window.size() == Screen ? Screen - QSize(0, 100) : Screen);
        while (FormGTMain.PictureGT.Density == Before) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
        QCoreApplication::processEvents();
        const std::chrono::duration<double> Taken = std::chrono::steady_clock::now() - Begin;
        Runs.SetIterationTime(Taken.count() - 0.1);
    }
}

constexpr const char* FortyCopies = "forty memcpy of the window";
constexpr TableLine Lines[] = {{"a resize, until it is sharp again", FortyCopies}};
BENCHMARK(Copies)->Name(FortyCopies)->Unit(benchmark::kMicrosecond);
BENCHMARK(Resize)->Name(Lines[0].Name)->Unit(benchmark::kMicrosecond)->UseManualTime();

}  // namespace
}  // namespace gloamtide

int main(int Count, char** Arguments) {
    using namespace gloamtide;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    int OnlyName = 1;
    const QApplication Application(OnlyName, Arguments);
    LargeScreen Desktop;
    state.StartupSource = ConfigurationSource::Defaults;
    StartProgram();
    SetOverlays(True);
    RedrawMap();
    return PrintTable(Count, Arguments, Lines);
}
