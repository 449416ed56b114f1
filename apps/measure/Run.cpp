#include "measure/Run.h"

#include "measure/Batch.h"
#include "measure/CommandLine.h"
#include "measure/KindList.h"
#include "measure/LensCalibration.h"
#include "measure/LensReport.h"
#include "measure/OrderedJobs.h"
#include "measure/PictureList.h"
#include "measure/Progress.h"
#include "measure/ValuePrinter.h"

#include "measuring/CalibrationFile.h"
#include "measuring/Count.h"
#include "measuring/Lens.h"
#include "measuring/OutputFile.h"
#include "measuring/Report.h"
#include "measuring/SessionFile.h"

#include <QDir>
#include <QFileDevice>
#include <QFont>
#include <QFontMetrics>

#include <algorithm>
#include <functional>
#include <memory>
#include <vector>

namespace Drevon::Zalento::Apps {

namespace {

/** The two outputs of a run, and what became of it so far. */
class Console
{
public:
    Console(QIODevice &output, QIODevice &messages)
        : m_output(output)
        , m_messages(messages)
        , m_progress(messages)
        , m_printsOnTerminal(isTerminal(output))
    {}

    void print(const QByteArray &values)
    {
        if (m_printsOnTerminal) {
            m_progress.clear();
        }
        auto *file = qobject_cast<QFileDevice *>(&m_output);
        const bool isWritten = m_output.write(values) == values.size() && (!file || file->flush());
        if (!isWritten && !m_isBroken) {
            m_isBroken = true;
            fail(CannotReadOrWrite,
                 QStringLiteral("the values cannot be written: %1").arg(m_output.errorString()));
        }
    }

    void say(const QString &message)
    {
        m_progress.clear();
        m_messages.write("zalento-measure: " + message.toUtf8() + "\n");
    }

    /** Messages name what went wrong; the worst decides the exit code. */
    void fail(ExitCode code, const QString &message)
    {
        say(message);
        note(code);
    }

    /** On a terminal, until another line or the end takes its place. */
    void showProgress(int done, int count) { m_progress.show(done, count); }

    void restartProgress() { m_progress.restart(); }

    void note(ExitCode code) { m_exitCode = std::max(m_exitCode, code); }
    ExitCode exitCode() const { return m_exitCode; }

private:
    QIODevice &m_output;
    QIODevice &m_messages;
    Progress m_progress;
    const bool m_printsOnTerminal;
    ExitCode m_exitCode = AllMeasured;
    bool m_isBroken = false;
};

bool readCalibration(CommandLine &command, Console &console)
{
    if (command.calibrationFile.isEmpty()) {
        return true;
    }
    const Result<QString> text = loadCalibration(command.calibrationFile);
    if (!text) {
        console.fail(CannotReadOrWrite, text.problem().text());
        return false;
    }
    command.session.calibrationText = *text;
    return true;
}

bool readLens(CommandLine &command, Console &console)
{
    if (command.lensFile.isEmpty()) {
        return true;
    }
    const Result<Lens> lens = loadLens(command.lensFile);
    if (!lens) {
        console.fail(CannotReadOrWrite, lens.problem().text());
        return false;
    }
    command.session.lens = *lens;
    return true;
}

bool readSession(const CommandLine &command, std::optional<Session> &session, Console &console)
{
    if (command.sessionFile.isEmpty()) {
        return true;
    }
    const Result<Session> loaded = loadSession(command.sessionFile);
    if (!loaded) {
        console.fail(CannotReadOrWrite, loaded.problem().text());
        return false;
    }
    session = *loaded;
    return true;
}

bool readRecord(const CommandLine &command, ReportRecord &record, Console &console)
{
    if (command.recordFile.isEmpty()) {
        return true;
    }
    const Result<ReportRecord> loaded = loadReportRecord(command.recordFile);
    if (!loaded) {
        console.fail(CannotReadOrWrite, loaded.problem().text());
        return false;
    }
    record = *loaded;
    return true;
}

bool makeOutputFolder(const CommandLine &command, Console &console)
{
    if (command.outputFolder.isEmpty() || QDir().mkpath(command.outputFolder)) {
        return true;
    }
    console.fail(CannotReadOrWrite,
                 QStringLiteral("the folder %1 cannot be made").arg(command.outputFolder));
    return false;
}

std::optional<QStringList> namesOf(const CommandLine &command, QIODevice &input, Console &console)
{
    if (command.inputs.isEmpty()) {
        return QStringList{command.sessionFile};
    }
    QStringList names;
    for (const QString &name : command.inputs) {
        if (name != QLatin1String("-")) {
            names += name;
            continue;
        }
        const Result<QStringList> listed = readNames(input);
        if (!listed) {
            console.fail(CannotReadOrWrite, listed.problem().text());
            return std::nullopt;
        }
        names += *listed;
    }
    return names;
}

QVector<PictureRequest> requestsOf(const CommandLine &command, const QStringList &names)
{
    QVector<PictureRequest> requests = listPictures(names, command.recursive);
    if (command.inputs.isEmpty()) {
        requests.first().isSession = true; // whatever its name ends in
    }
    return requests;
}

void warnWithoutFonts(const CommandLine &command, Console &console)
{
    const bool needsFont = command.writesPng || command.verb == Verb::Report;
    if (needsFont && !QFontMetrics(QFont()).inFont(QLatin1Char('0'))) {
        console.say(QStringLiteral("warning: there is no font: what is drawn has no labels"));
    }
}

void tellFiles(const PictureResult &result, Console &console)
{
    for (const QString &warning : result.warnings) {
        console.say(QStringLiteral("%1: warning: %2").arg(result.values.picture, warning));
    }
    for (const QString &path : result.values.written) {
        console.say(QStringLiteral("wrote %1").arg(path));
    }
    for (const Problem &problem : result.fileProblems) {
        console.fail(CannotReadOrWrite, problem.text());
    }
}

void tellMeasurement(const PictureValues &values, const PictureResult &result, bool isRender,
                     Console &console)
{
    const bool isDrawn =
        isRender && values.status != Status::Failed && values.status != Status::NotMeasured;
    if (values.status == Status::Measured || isDrawn) {
        const bool isRefused = values.snap && !values.snap->reason.isEmpty();
        console.note(isRefused ? SomeNotMeasured : AllMeasured);
        return;
    }
    console.note(SomeNotMeasured);
    const auto tellsIt = [&values](const Problem &problem) {
        return problem.textAfter(values.picture) == values.message;
    };
    const QVector<Problem> &told = result.fileProblems;
    if (std::none_of(told.begin(), told.end(), tellsIt)) {
        console.say(Problem{values.place(), values.message}.text());
    }
}

void tell(const PictureResult &result, bool isRender, Console &console)
{
    tellFiles(result, console);
    for (const PictureValues &values : result.all()) {
        tellMeasurement(values, result, isRender, console);
    }
}

using TakeResult = std::function<void(PictureResult result, int number)>;

// Takes one result after the other, in the order of the pictures.
void measureAll(const CommandLine &command, const std::optional<Session> &session,
                const QVector<PictureRequest> &requests, Console &console, const TakeResult &take)
{
    const bool isRender = command.verb == Verb::Render || command.verb == Verb::Unroll;
    const int count = countOf(requests);
    OrderedJobs jobs(command.jobs);
    Batch batch(command, session, jobs);
    std::vector<std::shared_ptr<Batch::Work>> works(static_cast<std::size_t>(count));
    const auto workOf = [&works](int number) -> std::shared_ptr<Batch::Work> & {
        return works[static_cast<std::size_t>(number)];
    };
    const auto measure = [&](int number) { workOf(number) = batch.measure(requests[number]); };
    const auto finish = [&](int number) {
        PictureResult result = batch.finish(std::move(workOf(number)));
        tell(result, isRender, console);
        take(std::move(result), number);
        console.showProgress(number + 1, count);
    };
    jobs.run(count, measure, finish);
}

void printAll(const CommandLine &command, const std::optional<Session> &session,
              const QVector<PictureRequest> &requests, Console &console)
{
    const ValuePrinter printer(command.format);
    console.print(printer.start());
    measureAll(command, session, requests, console, [&](const PictureResult &result, int number) {
        console.print(printer.result(result.all(), number));
    });
    console.print(printer.end(countOf(requests)));
}

void reportAll(const CommandLine &command, const std::optional<Session> &session,
               const QVector<PictureRequest> &requests, Console &console)
{
    Report report;
    if (!readRecord(command, report.record, console)) {
        return;
    }
    ReportWriter writer;
    const Overwrite overwrite = command.overwrites ? Overwrite::Allow : Overwrite::Refuse;
    if (const Outcome problem = writer.open(command.outputFile, overwrite)) {
        console.fail(CannotReadOrWrite, problem->text());
        return;
    }
    measureAll(command, session, requests, console, [&report](const PictureResult &result, int) {
        report.pictures.append(
            {result.values.picture, reportMeasurements(result.all(), result.session)});
    });
    console.restartProgress();
    writer.addOverview(report);
    for (int i = 0; i < report.pictures.size(); ++i) {
        writer.addPage(report, i);
        console.showProgress(i + 1, countOf(report.pictures));
    }
    if (const Outcome problem = writer.finish()) {
        console.fail(CannotReadOrWrite, problem->text());
        return;
    }
    console.say(QStringLiteral("wrote %1").arg(command.outputFile));
}

void runVerb(const CommandLine &command, const std::optional<Session> &session,
             const QVector<PictureRequest> &requests, Console &console)
{
    switch (command.verb) {
    case Verb::Measure:
        printAll(command, session, requests, console);
        return;
    case Verb::Report:
        reportAll(command, session, requests, console);
        return;
    default:
        measureAll(command, session, requests, console, [](const PictureResult &, int) {});
    }
}

// One picture a line: what was found on it, or why it was left out.
void tellBoards(const LensCalibration &calibration, Console &console)
{
    for (const BoardPicture &picture : calibration.pictures) {
        if (!picture.problem.isEmpty()) {
            console.say(QStringLiteral("%1: left out: %2").arg(picture.path, picture.problem));
        }
    }
    for (const QString &warning : calibration.warnings()) {
        console.say(QStringLiteral("warning: %1").arg(warning));
    }
}

void makeLens(const CommandLine &command, QIODevice &input, Console &console)
{
    const std::optional<QStringList> names = namesOf(command, input, console);
    if (!names) {
        return;
    }
    QVector<BoardPicture> boards;
    const QVector<PictureRequest> requests = listPictures(*names, command.recursive);
    for (const PictureRequest &request : requests) {
        boards += findBoard(request, command.board, boards);
        console.showProgress(countOf(boards), countOf(requests));
    }
    const LensCalibration calibration = calibrateLens(boards, command.board);
    tellBoards(calibration, console);
    if (!calibration.problem.isEmpty()) {
        console.fail(SomeNotMeasured, calibration.problem);
        return;
    }
    const Overwrite overwrite = command.overwrites ? Overwrite::Allow : Overwrite::Refuse;
    if (const Outcome problem =
            writeFile(command.outputFile, lensFile(calibration, command.board, command.outputFile),
                      overwrite)) {
        console.fail(CannotReadOrWrite, problem->text());
        return;
    }
    console.print(command.format == Format::Json ? lensJson(calibration) : lensText(calibration));
    console.say(QStringLiteral("wrote %1").arg(command.outputFile));
}

} // namespace

ExitCode run(const QStringList &arguments, QIODevice &input, QIODevice &output, QIODevice &messages)
{
    Console console(output, messages);
    const CommandLineOutcome outcome = parseCommandLine(arguments);
    if (!outcome.command) {
        if (outcome.isProblem) {
            console.fail(WrongUsage, outcome.text);
            console.say(QStringLiteral("try zalento-measure --help"));
        } else {
            console.print(outcome.text.toUtf8());
        }
        return console.exitCode();
    }
    CommandLine command = *outcome.command;
    if (command.verb == Verb::Kinds) {
        console.print(kindList(command.format));
        return console.exitCode();
    }
    if (command.verb == Verb::Lens) {
        makeLens(command, input, console);
        return console.exitCode();
    }
    std::optional<Session> session;
    if (!readCalibration(command, console) || !readLens(command, console) ||
        !readSession(command, session, console)) {
        return console.exitCode();
    }
    const std::optional<QStringList> names = namesOf(command, input, console);
    if (!names || !makeOutputFolder(command, console)) {
        return console.exitCode();
    }
    const QVector<PictureRequest> requests = requestsOf(command, *names);
    if (requests.isEmpty()) {
        console.fail(SomeNotMeasured, QStringLiteral("the list holds no picture"));
    }
    warnWithoutFonts(command, console);
    runVerb(command, session, requests, console);
    return console.exitCode();
}

} // namespace Drevon::Zalento::Apps
