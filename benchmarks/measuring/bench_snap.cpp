// Joints found in generated pictures by their edges: how many, how exactly, and how long it takes.
#include "SnapTrial.h"
#include "support/require.h"

#include "measuring/Snap.h"

#include <benchmark/benchmark.h>

using namespace Drevon::Zalento;
using namespace Drevon::Zalento::Benchmarks;
using namespace Drevon::Zalento::Measuring;
using namespace Drevon::Zalento::Tools;

namespace {

constexpr int pictures = 200;
constexpr int timedSeed = 1;

void snap(benchmark::State &state)
{
    std::mt19937_64 random(timedSeed);
    const SnapTrial trial = drawSnapTrial(random);
    Session first = trial.session;
    require(bool(snapToEdges(first, trial.picture)), "the joint of the first picture is not found");
    for (auto _ : state) {
        Session session = trial.session;
        benchmark::DoNotOptimize(snapToEdges(session, trial.picture));
    }
}

void truth(benchmark::State &state)
{
    SnapTally tally;
    for (auto _ : state) {
        tally = runSnapTrials(pictures);
    }
    state.counters["found%"] = 100.0 * tally.found / tally.trials;
    state.counters["exact%"] = 100.0 * tally.exact / tally.trials;
    state.counters["wrong"] = tally.wrong;
    state.counters["medianPX"] = tally.medianRmsPX;
    state.counters["largestPX"] = tally.largestRmsPX;
}

} // namespace

BENCHMARK(snap)->Name("snap/time")->Unit(benchmark::kMillisecond);
BENCHMARK(truth)->Name("snap/truth")->Iterations(1)->Unit(benchmark::kMillisecond);
