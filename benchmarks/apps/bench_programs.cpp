// The programs as processes, from their start to their end: the time that passes, the processor's
// time, and the most memory that one of them holds.
#include "measuring/Replay.h"
#include "measuring/SessionFile.h"
#include "support/PaintRecorder.h"
#include "support/require.h"
#include "zalento/item/ZaItem.h"

#include <QDir>
#include <QFile>
#include <QPainter>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <chrono>
#include <cmath>
#include <cstdlib>
#include <fcntl.h>
#include <spawn.h>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <vector>

using namespace Drevon::Zalento;
using namespace Drevon::Zalento::Measuring;
using Benchmarks::require;
using Test::PaintCall;

namespace {

const char *const sample = ZALENTO_SAMPLES "/section.jpg";

using Arguments = std::vector<std::string>;

struct Run
{
    bool succeeded = false;
    double wallS = 0.0;
    double processorS = 0.0;
    double peakMB = 0.0;
};

double seconds(const timeval &time)
{
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
}

// Starts a program without output and waits until it has ended.
Run run(const Arguments &arguments)
{
    std::vector<char *> argv;
    for (const std::string &argument : arguments) {
        argv.push_back(const_cast<char *>(argument.c_str()));
    }
    argv.push_back(nullptr);
    posix_spawn_file_actions_t files;
    posix_spawn_file_actions_init(&files);
    posix_spawn_file_actions_addopen(&files, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);

    const auto start = std::chrono::steady_clock::now();
    pid_t process = 0;
    const bool started =
        posix_spawnp(&process, argv[0], &files, nullptr, argv.data(), environ) == 0;
    posix_spawn_file_actions_destroy(&files);
    int status = 0;
    rusage usage{};
    if (!started || wait4(process, &status, 0, &usage) != process) {
        return {};
    }
    const std::chrono::duration<double> wall = std::chrono::steady_clock::now() - start;
    return {WIFEXITED(status) && WEXITSTATUS(status) == 0, wall.count(),
            seconds(usage.ru_utime) + seconds(usage.ru_stime),
            static_cast<double>(usage.ru_maxrss) / 1024.0};
}

// Runs the program once an iteration. @p units a run handles, per second, are counted as @p unit.
void measureRuns(benchmark::State &state, const Arguments &arguments, const char *unit = nullptr,
                 double units = 1)
{
    double processorS = 0;
    double wallS = 0;
    double peakMB = 0;
    for (auto _ : state) {
        const Run result = run(arguments);
        require(result.succeeded, arguments[0].c_str());
        state.SetIterationTime(result.wallS);
        wallS += result.wallS;
        processorS += result.processorS;
        peakMB = std::max(peakMB, result.peakMB);
    }
    const auto runs = static_cast<double>(state.iterations());
    state.counters["cpu_s"] = processorS / runs;
    state.counters["peak_MB"] = peakMB;
    if (unit) {
        state.counters[unit] = units * runs / wallS;
    }
}

Arguments measureCommand(const Arguments &more)
{
    Arguments arguments{ZALENTO_MEASURE, "measure", "--force"};
    arguments.insert(arguments.end(), more.begin(), more.end());
    return arguments;
}

// Pictures of their own files, which are all the same one.
Arguments copiesOfSample(const QTemporaryDir &folder, int count)
{
    Arguments paths;
    for (int i = 0; i < count; ++i) {
        const QString path = folder.filePath(QString::number(i) + ".jpg");
        require(QFile::link(sample, path), "link to the picture");
        paths.push_back(path.toStdString());
    }
    return paths;
}

void pictures(benchmark::State &state)
{
    const auto count = static_cast<int>(state.range(0));
    const QTemporaryDir folder;
    Arguments more = copiesOfSample(folder, count);
    more.insert(more.begin(), {"--session", std::string(sample) + sessionSuffix, "--jobs", "1"});
    measureRuns(state, measureCommand(more), "pictures_per_s", count);
}

// A working day's pictures with their overlays, on so many processors.
void overlays(benchmark::State &state)
{
    constexpr int count = 1000;
    const QTemporaryDir folder;
    Arguments more = copiesOfSample(folder, count);
    more.insert(more.begin(), {"--session", std::string(sample) + sessionSuffix, "--overlay", "png",
                               "--jobs", std::to_string(state.range(0))});
    measureRuns(state, measureCommand(more), "pictures_per_s", count);
}

// A length along a ring on the wall, every point of which is clicked.
void points(benchmark::State &state)
{
    const auto count = static_cast<int>(state.range(0));
    const QTemporaryDir folder;
    Result<Session> session = loadSession(QString(sample) + sessionSuffix);
    require(bool(session), "session of the sample");
    session->kind = Kind::PipeDimension;
    session->points.clear();
    const QPointF middle(session->picture.size.width() / 2.0, session->picture.size.height() / 2.0);
    for (int i = 0; i < count; ++i) {
        const double angle = 2 * std::acos(-1.0) * i / count;
        const double radiusPx = 0.4 * session->picture.size.height();
        session->points.append(
            {middle + radiusPx * QPointF(std::sin(angle), std::cos(angle)), {}, {}});
    }
    const QString path = folder.filePath("points.json");
    require(!saveSession(*session, path, Overwrite::Refuse), "session");
    measureRuns(state, measureCommand({"--session", path.toStdString()}), "points_per_s", count);
}

void overlay(benchmark::State &state)
{
    const QTemporaryDir folder;
    measureRuns(state, measureCommand(
                           {"--overlay", "png", "--output", folder.path().toStdString(), sample}));
}

// What convert draws for one call: the same lines in the same colour and width.
Arguments drawnByConvert(const PaintCall &call)
{
    std::string line = "polyline";
    for (const QPointF &point : call.points) {
        line += ' ' + std::to_string(point.x()) + ',' + std::to_string(point.y());
    }
    return {"-stroke",      call.pen.color().name().toStdString(),
            "-strokewidth", std::to_string(call.pen.widthF()),
            "-draw",        line};
}

// The floor of overlay: ImageMagick draws the overlay's polylines onto the same picture.
void convert(benchmark::State &state)
{
    Result<Session> session = loadSession(QString(sample) + sessionSuffix);
    require(bool(session), "session of the sample");
    ZaItem item;
    showSession(*session, item);
    Test::PaintRecorder recorder(session->picture.size);
    QPainter painter(&recorder);
    item.paint(&painter);
    painter.end();

    const QTemporaryDir folder;
    Arguments arguments{"convert", sample, "-fill", "none"};
    int lines = 0;
    for (const PaintCall &call : recorder.calls()) {
        if (call.kind == PaintCall::Kind::PolylineFloat) {
            const Arguments drawn = drawnByConvert(call);
            arguments.insert(arguments.end(), drawn.begin(), drawn.end());
            ++lines;
        }
    }
    require(lines > 0, "the overlay has no lines");
    arguments.push_back(folder.filePath("convert.png").toStdString());
    measureRuns(state, arguments);
    state.counters["lines"] = lines;
}

void viewerStart(benchmark::State &state)
{
    measureRuns(state, {ZALENTO_FIRST_FRAME, sample});
}

// A folder of so many pictures until the first of them and the list of all are on view.
void openFolder(benchmark::State &state)
{
    const QTemporaryDir folder;
    copiesOfSample(folder, static_cast<int>(state.range(0)));
    measureRuns(state, {ZALENTO_FIRST_FRAME, folder.path().toStdString()});
}

// What starting any program with Qt's libraries costs.
void help(benchmark::State &state)
{
    measureRuns(state, {ZALENTO_MEASURE, "--help"});
}

BENCHMARK(help)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(viewerStart)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(openFolder)->Arg(1)->Arg(500)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(overlay)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(convert)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(pictures)->RangeMultiplier(10)->Range(1, 1000)->UseManualTime()->Unit(
    benchmark::kMillisecond);
BENCHMARK(overlays)->Arg(1)->Arg(2)->Iterations(1)->UseManualTime()->Unit(benchmark::kSecond);
BENCHMARK(points)
    ->RangeMultiplier(10)
    ->Range(10, 100000)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

} // namespace
