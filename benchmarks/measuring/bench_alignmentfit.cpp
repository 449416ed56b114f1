// The alignment fitted to the clicks of a thousand operators: how many get one, how well it
// measures, what its uncertainties are worth, and how long a fit takes.
#include "AlignmentTrial.h"
#include "support/require.h"

#include <benchmark/benchmark.h>

using namespace Drevon::Zalento;
using namespace Drevon::Zalento::Benchmarks;
using namespace Drevon::Zalento::Measuring;
using namespace Drevon::Zalento::Tools;

namespace {

constexpr int operators = 1000;
constexpr int timedTrials = 100;
constexpr int timedSeed = 1;

Result<AlignmentFit> fitOf(const AlignmentTrial &trial)
{
    return fitAlignment(trial.clicks, trial.truth, trial.diameterMM, trial.picture);
}

void time(benchmark::State &state, Situation situation)
{
    std::mt19937_64 random(timedSeed);
    std::vector<AlignmentTrial> trials;
    for (int i = 0; i < timedTrials; ++i) {
        trials.push_back(drawTrial(situation, random, clickSpreadPX));
    }
    require(bool(fitOf(trials.front())), "the first operator got no alignment");
    std::size_t next = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(fitOf(trials[next++ % trials.size()]));
    }
}

// Drawing an operator and asking for a fit without clicks.
void control(benchmark::State &state)
{
    std::mt19937_64 random(timedSeed);
    for (auto _ : state) {
        AlignmentTrial trial = drawTrial(Situation::KnownDistance, random, clickSpreadPX);
        trial.clicks = {};
        benchmark::DoNotOptimize(fitOf(trial));
    }
}

void truth(benchmark::State &state, Situation situation)
{
    TrialTally tally;
    for (auto _ : state) {
        tally = runTrials(situation, operators, clickSpreadPX);
    }
    state.counters["fitted%"] = 100.0 * tally.fitted / tally.trials;
    state.counters["length%"] = 100.0 * tally.medianLengthError();
    for (std::size_t i = 0; i < alignmentFieldCount; ++i) {
        const QString name = alignmentFieldName(static_cast<AlignmentField>(i));
        state.counters["e/u " + name.toStdString()] = tally.errorOverUncertainty[i];
    }
}

void addSituation(const std::string &name, Situation situation)
{
    benchmark::RegisterBenchmark(("alignment/time/" + name).c_str(), time, situation)
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark(("alignment/truth/" + name).c_str(), truth, situation)
        ->Iterations(1)
        ->Unit(benchmark::kMillisecond);
}

const bool added = [] {
    addSituation("known-distance", Situation::KnownDistance);
    addSituation("known-distance-fov", Situation::KnownDistanceAndFov);
    addSituation("unknown-distance", Situation::UnknownDistance);
    addSituation("partial-joints", Situation::PartialJoints);
    addSituation("joint-and-lines", Situation::JointAndLines);
    return true;
}();

} // namespace

BENCHMARK(control)->Name("alignment/control")->Unit(benchmark::kMillisecond);
