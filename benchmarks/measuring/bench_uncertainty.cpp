// What stated uncertainties are worth for a thousand operators of each kind, and how long it takes
// to find them.
#include "MeasuringTrial.h"
#include "support/require.h"

#include "measuring/Editing.h"
#include "measuring/Measurement.h"
#include "measuring/PlaceUncertainty.h"
#include "measuring/SessionFit.h"
#include "measuring/Uncertainty.h"

#include <benchmark/benchmark.h>

using namespace Drevon::Zalento;
using namespace Drevon::Zalento::Benchmarks;
using namespace Drevon::Zalento::Measuring;
using namespace Drevon::Zalento::Tools;

namespace {

constexpr int operators = 1000;
constexpr int timedSeed = 1;
constexpr int timedPoints = 10;
constexpr int mapWidth = 240;

// An aligned picture with a line of ten points on the wall.
Session timedSession()
{
    std::mt19937_64 random(timedSeed);
    Session session = drawTrial(Task::Length, AlignedBy::Joints, random).session;
    session.points.clear();
    const double width = session.picture.size.width();
    const double height = session.picture.size.height();
    for (int i = 0; i < timedPoints; ++i) {
        session.points.append({QPointF(width * 0.2 + i * width * 0.05, height * 0.2), {}, {}});
    }
    placePoints(session);
    return session;
}

void time(benchmark::State &state, UncertaintyEffort effort)
{
    Session session = timedSession();
    const std::optional<AlignmentFit> fit = fitOf(session);
    require(fit && session.points.size() == timedPoints, "the session is not aligned");
    for (auto _ : state) {
        benchmark::DoNotOptimize(uncertaintiesOf(session, fit, effort));
    }
}

// The same session without anything that is uncertain.
void control(benchmark::State &state)
{
    const Session session = timedSession();
    for (auto _ : state) {
        benchmark::DoNotOptimize(measure(session));
    }
}

void map(benchmark::State &state)
{
    const Session session = timedSession();
    const std::optional<AlignmentFit> fit = fitOf(session);
    for (auto _ : state) {
        benchmark::DoNotOptimize(wallMap(session, fit, MapQuantity::Uncertainty, mapWidth));
    }
}

void truth(benchmark::State &state, Task task, AlignedBy aligned)
{
    CoverageTally tally;
    for (auto _ : state) {
        tally = runTrials(task, aligned, operators);
    }
    const double trials = tally.trials;
    state.counters["covered%"] = 100.0 * tally.covered / trials;
    state.counters["e/u"] = tally.errorOverUncertainty;
    state.counters["first-order%"] = 100.0 * tally.firstOrder / trials;
    state.counters["agreeing%"] = 100.0 * tally.agreeing / std::max(tally.firstOrder, 1);
    state.counters["U%"] = 100.0 * tally.medianRelativeU;
}

void addTruth(const std::string &name, Task task, AlignedBy aligned)
{
    benchmark::RegisterBenchmark(("uncertainty/truth/" + name).c_str(), truth, task, aligned)
        ->Iterations(1)
        ->Unit(benchmark::kMillisecond);
}

const bool added = [] {
    addTruth("length-joints", Task::Length, AlignedBy::Joints);
    addTruth("length-eye", Task::Length, AlignedBy::Eye);
    addTruth("area-joints", Task::Area, AlignedBy::Joints);
    addTruth("area-eye", Task::Area, AlignedBy::Eye);
    addTruth("crack-laser", Task::CrackWidth, AlignedBy::Eye);
    addTruth("water-joints", Task::WaterLevel, AlignedBy::Joints);
    addTruth("water-eye", Task::WaterLevel, AlignedBy::Eye);
    return true;
}();

} // namespace

BENCHMARK_CAPTURE(time, first_order, UncertaintyEffort::FirstOrder)
    ->Name("uncertainty/time/first-order")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(time, checked, UncertaintyEffort::Checked)
    ->Name("uncertainty/time/checked")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(time, monte_carlo, UncertaintyEffort::MonteCarlo)
    ->Name("uncertainty/time/monte-carlo")
    ->Unit(benchmark::kMillisecond);
BENCHMARK(map)->Name("uncertainty/time/map")->Unit(benchmark::kMillisecond);
BENCHMARK(control)->Name("uncertainty/control")->Unit(benchmark::kMillisecond);
