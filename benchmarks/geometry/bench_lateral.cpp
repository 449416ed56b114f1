// What a change of the lateral costs, beside its curve alone in closed form.
#include "zalento/geometry/Cylinder.h"
#include "zalento/math/angles.h"

#include <benchmark/benchmark.h>

#include <cmath>

using namespace Drevon::Zalento;

namespace {

constexpr double mainDiameterM = 0.3;
constexpr double agreementM = 1e-6;

struct Joint
{
    Cylinder main{mainDiameterM};
    Cylinder branch;

    Joint(double share, double angleDeg)
        : branch(share * mainDiameterM)
    {
        branch.angleDeg = angleDeg;
    }

    void rebuild()
    {
        main.verticesUpToDate = false;
        main.createVerticesInWorldCoord(branch);
        branch.createVerticesInWorldCoord(main);
        main.buildIntersectionLine(branch);
    }
};

// On each generator line of the branch the point where x = sqrt(R² - y²).
void closedForm(const Joint &joint, std::vector<Vec3> &curve)
{
    const double sinA = std::sin(joint.branch.angleDeg * radiansPerDegree);
    const double cosA = std::cos(joint.branch.angleDeg * radiansPerDegree);
    const double r = joint.branch.radiusM;
    curve.resize(180);
    for (std::size_t i = 0; i < curve.size(); ++i) {
        const double v = static_cast<double>(i) * 2 * radiansPerDegree;
        const double sideways = -r * std::cos(v);
        const double y = r * std::sin(v);
        const double x = std::sqrt(joint.main.radiusSquared - y * y);
        const double depth = (x - sideways * cosA) / sinA;
        curve[i] = Vec3(x, y, joint.branch.axisStart.z + sideways * sinA - depth * cosA);
    }
}

bool agree(const Joint &joint)
{
    std::vector<Vec3> expected;
    closedForm(joint, expected);
    bool same = joint.main.intersectionLine.size() == expected.size();
    for (std::size_t i = 0; same && i < expected.size(); ++i) {
        same = (joint.main.intersectionLine[i] - expected[i]).length() <= agreementM;
    }
    return same;
}

Joint jointOf(const benchmark::State &state)
{
    Joint joint(static_cast<double>(state.range(0)) / 100, static_cast<double>(state.range(1)));
    joint.rebuild();
    return joint;
}

void rebuild(benchmark::State &state)
{
    Joint joint = jointOf(state);
    if (!agree(joint)) {
        state.SkipWithError("the curve is not that of two cylinders");
        return;
    }
    for (auto _ : state) {
        joint.rebuild();
        benchmark::DoNotOptimize(joint.main.intersectionLine.data());
        benchmark::ClobberMemory();
    }
}

void curveAlone(benchmark::State &state)
{
    const Joint joint = jointOf(state);
    std::vector<Vec3> curve;
    for (auto _ : state) {
        closedForm(joint, curve);
        benchmark::DoNotOptimize(curve.data());
        benchmark::ClobberMemory();
    }
}

void branchesOf(benchmark::internal::Benchmark *benchmark)
{
    benchmark->ArgNames({"percent", "degrees"})->Args({50, 90})->Args({80, 45})->Args({99, 30});
}

} // namespace

BENCHMARK(rebuild)->Name("lateral/rebuild")->Apply(branchesOf)->Unit(benchmark::kMicrosecond);
BENCHMARK(curveAlone)->Name("lateral/control")->Apply(branchesOf)->Unit(benchmark::kMicrosecond);
