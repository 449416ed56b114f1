// Point transforms, matrix products and inverses, each beside glm in double precision.
#include "support/Scene.h"
#include "support/require.h"

#include <benchmark/benchmark.h>
#include <glm/ext/matrix_projection.hpp>
#include <glm/gtc/type_ptr.hpp>
#include <glm/mat4x4.hpp>
#include <random>

using namespace Drevon::Zalento;
using namespace Drevon::Zalento::Benchmarks;

namespace {

constexpr int pointCount = 361;
constexpr int matrixCount = 64;
constexpr double tolerance = 1e-9; // pixels, and elements of the matrices

glm::dmat4 glmMatrix(const Mat4 &m)
{
    return glm::make_mat4(m.m);
}

bool isSame(const Mat4 &ours, const glm::dmat4 &theirs)
{
    for (int i = 0; i < 16; ++i) {
        if (!(std::abs(ours.m[i] - glm::value_ptr(theirs)[i]) <= tolerance)) {
            return false;
        }
    }
    return true;
}

std::vector<Mat4> matrices()
{
    std::mt19937_64 engine(361);
    std::uniform_real_distribution<double> number(-1, 1);
    std::vector<Mat4> result(matrixCount);
    for (Mat4 &m : result) {
        for (double &element : m.m) {
            element = number(engine);
        }
        for (int i = 0; i < 16; i += 5) {
            m.m[i] += 4; // dominant diagonal: far from singular
        }
    }
    return result;
}

std::vector<glm::dmat4> glmMatrices()
{
    std::vector<glm::dmat4> result;
    for (const Mat4 &m : matrices()) {
        result.push_back(glmMatrix(m));
    }
    return result;
}

struct GlmCamera
{
    explicit GlmCamera(const MiniGL &camera)
        : modelView(glmMatrix(camera.modelViewMatrix))
        , projection(glmMatrix(camera.projectionMatrix))
    {}

    // glm's y points upwards.
    glm::dvec2 pixel(const glm::dvec3 &p) const
    {
        const glm::dvec3 window = glm::project(p, modelView, projection, viewport);
        return {window.x, viewportPx - window.y};
    }

    glm::dmat4 modelView;
    glm::dmat4 projection;
    glm::dvec4 viewport{0, 0, viewportPx, viewportPx};
};

std::vector<glm::dvec3> glmRing()
{
    std::vector<glm::dvec3> result;
    for (const Vec3 &p : ring(pointCount)) {
        result.emplace_back(p.x, p.y, p.z);
    }
    return result;
}

// One camera matrix, then every point of a ring.
void projectPoints(benchmark::State &state)
{
    const MiniGL camera = pipeCamera();
    const GlmCamera reference(camera);
    const std::vector<Vec3> points = ring(pointCount);
    std::vector<Vec2> pixels(points.size());
    const auto projectAll = [&] {
        Mat4 toPixels;
        camera.combinedMatrix(toPixels);
        for (std::size_t i = 0; i < points.size(); ++i) {
            toPixels.multiply(points[i], pixels[i]);
        }
    };
    projectAll();
    for (std::size_t i = 0; i < points.size(); ++i) {
        const glm::dvec2 expected = reference.pixel({points[i].x, points[i].y, points[i].z});
        require(std::abs(pixels[i].x - expected.x) <= tolerance &&
                    std::abs(pixels[i].y - expected.y) <= tolerance,
                "projected point");
    }
    for (auto _ : state) {
        projectAll();
        benchmark::DoNotOptimize(pixels.data());
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(state.iterations() * pointCount);
}
BENCHMARK(projectPoints);

void projectPointsGlm(benchmark::State &state)
{
    const GlmCamera camera(pipeCamera());
    const std::vector<glm::dvec3> points = glmRing();
    std::vector<glm::dvec2> pixels(points.size());
    for (auto _ : state) {
        for (std::size_t i = 0; i < points.size(); ++i) {
            pixels[i] = camera.pixel(points[i]);
        }
        benchmark::DoNotOptimize(pixels.data());
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(state.iterations() * pointCount);
}
BENCHMARK(projectPointsGlm);

void product(benchmark::State &state)
{
    std::vector<Mat4> a = matrices();
    const Mat4 b = a.back();
    Mat4 checked(a.front());
    checked.multiply(b);
    require(isSame(checked, glmMatrix(a.front()) * glmMatrix(b)), "matrix product");
    for (auto _ : state) {
        for (const Mat4 &m : a) {
            Mat4 result(m);
            result.multiply(b);
            benchmark::DoNotOptimize(result);
        }
    }
    state.SetItemsProcessed(state.iterations() * matrixCount);
}
BENCHMARK(product);

void productGlm(benchmark::State &state)
{
    const std::vector<glm::dmat4> a = glmMatrices();
    const glm::dmat4 b = a.back();
    for (auto _ : state) {
        for (const glm::dmat4 &m : a) {
            glm::dmat4 result = m * b;
            benchmark::DoNotOptimize(result);
        }
    }
    state.SetItemsProcessed(state.iterations() * matrixCount);
}
BENCHMARK(productGlm);

void inverse(benchmark::State &state)
{
    const std::vector<Mat4> a = matrices();
    for (const Mat4 &m : a) {
        require(isSame(m.inverse(), glm::inverse(glmMatrix(m))), "inverse");
    }
    for (auto _ : state) {
        for (const Mat4 &m : a) {
            Mat4 result = m.inverse();
            benchmark::DoNotOptimize(result);
        }
    }
    state.SetItemsProcessed(state.iterations() * matrixCount);
}
BENCHMARK(inverse);

void inverseGlm(benchmark::State &state)
{
    const std::vector<glm::dmat4> a = glmMatrices();
    for (auto _ : state) {
        for (const glm::dmat4 &m : a) {
            glm::dmat4 result = glm::inverse(m);
            benchmark::DoNotOptimize(result);
        }
    }
    state.SetItemsProcessed(state.iterations() * matrixCount);
}
BENCHMARK(inverseGlm);

} // namespace
