#include "measure/CommandLine.h"

#include <QFileInfo>
#include <QThread>

#include <algorithm>

namespace Drevon::Zalento::Apps {

namespace {

const QLatin1String programName("zalento-measure");

// Each holds a picture in memory; more processors are not known to be put to this work.
constexpr int largestJobs = 256;

void addFlag(QCommandLineParser &parser, const char *name, const char *description)
{
    parser.addOption(QCommandLineOption(QLatin1String(name), QLatin1String(description)));
}

void addValue(QCommandLineParser &parser, const char *name, const char *description,
              const char *valueName)
{
    parser.addOption(QCommandLineOption(QLatin1String(name), QLatin1String(description),
                                        QLatin1String(valueName)));
}

void addOptions(QCommandLineParser &parser)
{
    addSessionOptions(parser);
    addValue(parser, "session",
             "Session to start from, for every picture; without pictures, its own is measured.",
             "FILE");
    addFlag(parser, "no-session", "Does not read the session beside a picture.");
    addFlag(parser, "save-session",
            "Writes <picture>.zalento.json beside the picture or into the output folder.");
    addValue(
        parser, "measurement",
        "Of several measurements of a session the one to measure; with --kind it is added when "
        "there is none of that name.",
        "NAME");
    addFlag(parser, "recursive", "Takes all pictures in folders and their folders.");
    addValue(parser, "format", "Of the values: text (default), json, jsonl or csv.", "NAME");
    addValue(parser, "overlay", "Writes <stem>.overlay.png, <stem>.overlay.svg: png, svg or both.",
             "NAME");
    addFlag(parser, "overlay-all",
            "The overlay shows every measurement of a session, each with its name.");
    addValue(parser, "map",
             "Writes <stem>.map.png, what a pixel is worth on the wall: scale or uncertainty.",
             "NAME");
    addValue(parser, "output",
             "Folder for written files, made when missing; of lens and report the file to write.",
             "PATH");
    addValue(
        parser, "record",
        "Of report: JSON object of what is told of the inspection: place, pipe, date, operator "
        "and others.",
        "FILE");
    addFlag(
        parser, "snap",
        "Finds the edge of each joint in the picture, from a rough alignment or three clicks, and "
        "fits the alignment to it.");
    addFlag(parser, "monte-carlo",
            "Finds every uncertainty with 10,000 draws, not only where it is needed.");
    addValue(parser, "from", "Of unroll: distance from the mouth in mm where it begins.", "MM");
    addValue(parser, "to", "Of unroll: distance from the mouth in mm where it ends.", "MM");
    addFlag(parser, "plain", "Of unroll: the wall alone, without axes.");
    addValue(parser, "board",
             "Of lens: inner corners of the chessboard, across and down, such as 9x6.", "WxH");
    addValue(parser, "square", "Of lens: side of a field of the chessboard in mm.", "MM");
    addValue(parser, "name", "Of lens: the camera's name; without it the file's.", "TEXT");
    addFlag(parser, "force", "Writes over existing files.");
    addValue(parser, "jobs",
             "Pictures that are worked on at a time; without it as many as there are processors.",
             "N");
    parser.addOption(QCommandLineOption({QStringLiteral("h"), QStringLiteral("help")},
                                        QStringLiteral("Prints this help.")));
    parser.addOption(QCommandLineOption({QStringLiteral("v"), QStringLiteral("version")},
                                        QStringLiteral("Prints the version.")));
}

// "--laser X,Y X,Y" has two values, which the parser does not know: they become one.
QStringList withJoinedLaserSpots(const QStringList &arguments)
{
    QStringList joined;
    for (int i = 0; i < arguments.size(); ++i) {
        joined += arguments[i];
        const bool isLaser = arguments[i] == QLatin1String("--laser");
        if (isLaser && i + 2 < arguments.size() && parsePoint(arguments[i + 1]) &&
            parsePoint(arguments[i + 2])) {
            joined += arguments[i + 1] + QLatin1Char(' ') + arguments[i + 2];
            i += 2;
        }
    }
    return joined;
}

std::optional<Verb> verbNamed(const QString &name)
{
    if (name == QLatin1String("measure")) {
        return Verb::Measure;
    }
    if (name == QLatin1String("render")) {
        return Verb::Render;
    }
    if (name == QLatin1String("unroll")) {
        return Verb::Unroll;
    }
    if (name == QLatin1String("lens")) {
        return Verb::Lens;
    }
    if (name == QLatin1String("report")) {
        return Verb::Report;
    }
    if (name == QLatin1String("kinds")) {
        return Verb::Kinds;
    }
    return std::nullopt;
}

std::optional<Format> formatNamed(const QString &name)
{
    if (name == QLatin1String("text")) {
        return Format::Text;
    }
    if (name == QLatin1String("json")) {
        return Format::Json;
    }
    if (name == QLatin1String("jsonl")) {
        return Format::JsonLines;
    }
    if (name == QLatin1String("csv")) {
        return Format::Csv;
    }
    return std::nullopt;
}

QString readVerb(const QStringList &positional, CommandLine &command)
{
    if (positional.isEmpty()) {
        return QStringLiteral("a verb is missing: measure, render, unroll, lens, report or kinds");
    }
    const std::optional<Verb> verb = verbNamed(positional.first());
    if (!verb) {
        return QStringLiteral("unknown verb \"%1\": expected measure, render, unroll, lens, report "
                              "or kinds")
            .arg(positional.first());
    }
    command.verb = *verb;
    command.inputs = positional.mid(1);
    return {};
}

QString readFormat(const QCommandLineParser &parser, CommandLine &command)
{
    const QString name = parser.value(QStringLiteral("format"));
    const std::optional<Format> format =
        parser.isSet(QStringLiteral("format")) ? formatNamed(name) : Format::Text;
    if (!format) {
        return QStringLiteral("--format: expected text, json, jsonl or csv, found \"%1\"")
            .arg(name);
    }
    command.format = *format;
    return {};
}

QString readOverlay(const QCommandLineParser &parser, CommandLine &command)
{
    const QString name = parser.value(QStringLiteral("overlay"));
    const bool isGiven = parser.isSet(QStringLiteral("overlay"));
    const bool isAsked = isGiven || parser.isSet(QStringLiteral("map"));
    const bool isBoth = name == QLatin1String("both");
    command.writesPng =
        isBoth || name == QLatin1String("png") || (!isAsked && command.verb == Verb::Render);
    command.writesSvg = isBoth || name == QLatin1String("svg");
    if (isGiven && !command.writesPng && !command.writesSvg) {
        return QStringLiteral("--overlay: expected png, svg or both, found \"%1\"").arg(name);
    }
    return {};
}

QString readMap(const QCommandLineParser &parser, CommandLine &command)
{
    const QString name = parser.value(QStringLiteral("map"));
    if (name == QLatin1String("scale")) {
        command.map = MapQuantity::Scale;
    } else if (name == QLatin1String("uncertainty")) {
        command.map = MapQuantity::Uncertainty;
    } else if (parser.isSet(QStringLiteral("map"))) {
        return QStringLiteral("--map: expected scale or uncertainty, found \"%1\"").arg(name);
    }
    return {};
}

QString readJobs(const QCommandLineParser &parser, CommandLine &command)
{
    const QString text = parser.value(QStringLiteral("jobs"));
    if (!parser.isSet(QStringLiteral("jobs"))) {
        command.jobs = std::clamp(QThread::idealThreadCount(), 1, largestJobs);
        return {};
    }
    bool isNumber = false;
    command.jobs = text.toInt(&isNumber);
    if (!isNumber || command.jobs < 1 || command.jobs > largestJobs) {
        return QStringLiteral("--jobs: expected a whole number from 1 to %1, found \"%2\"")
            .arg(largestJobs)
            .arg(text);
    }
    return {};
}

// Every value option but --click means one thing.
QString repeatedOption(const QCommandLineParser &parser)
{
    for (const char *name : {"session", "measurement", "format", "overlay", "map", "from", "to",
                             "board", "square", "name", "output", "record", "jobs"}) {
        if (parser.values(QLatin1String(name)).size() > 1) {
            return QStringLiteral("--%1 is given more than once").arg(QLatin1String(name));
        }
    }
    return {};
}

void readFlagsAndFiles(const QCommandLineParser &parser, CommandLine &command)
{
    command.recursive = parser.isSet(QStringLiteral("recursive"));
    command.ignoresSessions = parser.isSet(QStringLiteral("no-session"));
    command.savesSession = parser.isSet(QStringLiteral("save-session"));
    command.snaps = parser.isSet(QStringLiteral("snap"));
    command.drawsValues = parser.isSet(QStringLiteral("monte-carlo"));
    command.overwrites = parser.isSet(QStringLiteral("force"));
    command.sessionFile = parser.value(QStringLiteral("session"));
    command.measurement = parser.value(QStringLiteral("measurement"));
    command.overlaysAll = parser.isSet(QStringLiteral("overlay-all"));
    command.calibrationFile = parser.value(QStringLiteral("calibration"));
    command.lensFile = parser.value(QStringLiteral("lens"));
    command.outputFolder = parser.value(QStringLiteral("output"));
}

// The scale of a flat picture is none of the session's.
QString readUnroll(const QCommandLineParser &parser, CommandLine &command)
{
    if (command.verb != Verb::Unroll) {
        for (const char *name : {"from", "to", "plain"}) {
            if (parser.isSet(QLatin1String(name))) {
                return QStringLiteral("--%1 belongs to unroll").arg(QLatin1String(name));
            }
        }
        return {};
    }
    command.unrollMMPerPixel = command.session.mmPerPixel;
    command.session.mmPerPixel.reset();
    command.unrollsPlain = parser.isSet(QStringLiteral("plain"));
    const Result<std::optional<double>> from = readDistance(parser, "from");
    const Result<std::optional<double>> to = readDistance(parser, "to");
    for (const auto *distance : {&from, &to}) {
        if (!*distance) {
            return distance->problem().text();
        }
    }
    command.unrollFromMM = *from;
    command.unrollToMM = *to;
    return {};
}

std::optional<QSize> cornersFrom(const QString &text)
{
    constexpr int fewest = 3; // a side; fewer lines tell nothing of a bend
    constexpr int most = 100;
    const QStringList sides = text.split(QLatin1Char('x'));
    bool areNumbers[2] = {false, false};
    if (sides.size() != 2) {
        return std::nullopt;
    }
    const QSize corners(sides[0].toInt(&areNumbers[0]), sides[1].toInt(&areNumbers[1]));
    const bool isBoard = areNumbers[0] && areNumbers[1] &&
                         std::min(corners.width(), corners.height()) >= fewest &&
                         std::max(corners.width(), corners.height()) <= most;
    return isBoard ? std::optional<QSize>(corners) : std::nullopt;
}

// All that the verb lens takes.
QString readBoard(const QCommandLineParser &parser, CommandLine &command)
{
    const QString boardText = parser.value(QStringLiteral("board"));
    const std::optional<QSize> corners = cornersFrom(boardText);
    if (!corners) {
        return QStringLiteral("--board: expected inner corners such as 9x6, found \"%1\"")
            .arg(boardText);
    }
    constexpr double largestSquareMM = 1e4;
    const QString squareText = parser.value(QStringLiteral("square"));
    const double squareMM = squareText.toDouble();
    if (!(squareMM > 0.0 && squareMM <= largestSquareMM)) {
        return QStringLiteral("--square: expected the side of a field in mm, found \"%1\"")
            .arg(squareText);
    }
    command.outputFile = parser.value(QStringLiteral("output"));
    const QString name = parser.value(QStringLiteral("name"));
    command.board = {*corners, squareMM,
                     name.isEmpty() ? QFileInfo(command.outputFile).completeBaseName() : name};
    if (command.outputFile.isEmpty()) {
        return QStringLiteral("--output is missing: the file to write, such as camera.yaml");
    }
    if (command.inputs.isEmpty()) {
        return QStringLiteral("no picture: name pictures of the chessboard, or folders");
    }
    return {};
}

QString readLensCommand(const QCommandLineParser &parser, CommandLine &command)
{
    static const QStringList known{QStringLiteral("board"), QStringLiteral("square"),
                                   QStringLiteral("name"),  QStringLiteral("output"),
                                   QStringLiteral("force"), QStringLiteral("recursive"),
                                   QStringLiteral("format")};
    for (const QString &name : parser.optionNames()) {
        if (!known.contains(name)) {
            return QStringLiteral("lens takes no --%1").arg(name);
        }
    }
    if (command.format != Format::Text && command.format != Format::Json) {
        return QStringLiteral("lens prints text or json");
    }
    command.recursive = parser.isSet(QStringLiteral("recursive"));
    command.overwrites = parser.isSet(QStringLiteral("force"));
    return readBoard(parser, command);
}

QString readReport(const QCommandLineParser &parser, CommandLine &command)
{
    if (command.verb != Verb::Report) {
        return parser.isSet(QStringLiteral("record")) ? QStringLiteral("--record belongs to report")
                                                      : QString();
    }
    for (const char *name : {"overlay", "map", "save-session"}) {
        if (parser.isSet(QLatin1String(name))) {
            return QStringLiteral("report writes one file: it takes no --%1")
                .arg(QLatin1String(name));
        }
    }
    command.recordFile = parser.value(QStringLiteral("record"));
    // Any other name could be that of a picture, which --force would write over.
    std::swap(command.outputFile, command.outputFolder);
    return command.outputFile.endsWith(QLatin1String(".pdf"), Qt::CaseInsensitive)
               ? QString()
               : QStringLiteral("report needs --output with a file that ends in .pdf");
}

QString emptyValue(const QCommandLineParser &parser)
{
    for (const char *name : {"session", "measurement", "calibration", "lens", "output", "record"}) {
        if (parser.isSet(QLatin1String(name)) && parser.value(QLatin1String(name)).isEmpty()) {
            return QStringLiteral("--%1 is empty").arg(QLatin1String(name));
        }
    }
    return {};
}

QString contradiction(const QCommandLineParser &parser, const CommandLine &command)
{
    if (command.verb == Verb::Kinds) {
        const QStringList given = parser.optionNames();
        const bool isFormatOnly = given.isEmpty() || given == QStringList{QStringLiteral("format")};
        return command.inputs.isEmpty() && isFormatOnly
                   ? QString()
                   : QStringLiteral("kinds takes no pictures and no option but --format");
    }
    if (command.inputs.isEmpty() && command.sessionFile.isEmpty()) {
        return QStringLiteral("no picture: name pictures, sessions, folders, or - for a list on "
                              "the standard input");
    }
    if (command.inputs.contains(QString())) {
        return QStringLiteral("the name of a picture is empty");
    }
    if (command.ignoresSessions && !command.sessionFile.isEmpty()) {
        return QStringLiteral("--session and --no-session contradict each other");
    }
    const bool prints = command.verb == Verb::Measure;
    if (!prints && parser.isSet(QStringLiteral("format"))) {
        return QStringLiteral("%1 prints no values: it takes no --format")
            .arg(parser.positionalArguments().first());
    }
    if (command.overlaysAll && !command.writesPng && !command.writesSvg) {
        return QStringLiteral("--overlay-all needs --overlay");
    }
    const bool writes = command.verb == Verb::Unroll || command.writesPng || command.writesSvg ||
                        command.map || command.savesSession;
    if (!command.outputFolder.isEmpty() && !writes) {
        return QStringLiteral(
            "--output needs something to write: --overlay, --map or --save-session");
    }
    return {};
}

QString kindProblem(const SessionOptions &options)
{
    const Outcome problem = options.kind ? options.misfit(infoOf(*options.kind)) : Outcome();
    return problem ? problem->text() : QString();
}

QString readCommand(const QCommandLineParser &parser, CommandLine &command)
{
    QString problem = readVerb(parser.positionalArguments(), command);
    for (const auto step : {readFormat, readOverlay, readMap, readJobs}) {
        if (problem.isEmpty()) {
            problem = step(parser, command);
        }
    }
    for (const auto check : {repeatedOption, emptyValue}) {
        if (problem.isEmpty()) {
            problem = check(parser);
        }
    }
    if (!problem.isEmpty()) {
        return problem;
    }
    if (command.verb == Verb::Lens) {
        return readLensCommand(parser, command);
    }
    for (const char *name : {"board", "square", "name"}) {
        if (parser.isSet(QLatin1String(name))) {
            return QStringLiteral("--%1 belongs to lens").arg(QLatin1String(name));
        }
    }
    readFlagsAndFiles(parser, command);
    const Result<SessionOptions> session = readSessionOptions(parser);
    if (!session) {
        return session.problem().text();
    }
    command.session = *session;
    for (const auto step : {readUnroll, readReport}) {
        if (problem.isEmpty()) {
            problem = step(parser, command);
        }
    }
    if (problem.isEmpty()) {
        problem = kindProblem(command.session);
    }
    return problem.isEmpty() ? contradiction(parser, command) : problem;
}

} // namespace

CommandLineOutcome parseCommandLine(const QStringList &arguments)
{
    QCommandLineParser parser;
    addOptions(parser);
    const bool isParsed =
        parser.parse(QStringList{QString(programName)} + withJoinedLaserSpots(arguments));
    if (parser.isSet(QStringLiteral("help"))) {
        return {{}, helpText(parser), false};
    }
    if (parser.isSet(QStringLiteral("version"))) {
        return {
            {}, QStringLiteral("%1 %2\n").arg(programName, QStringLiteral(ZALENTO_VERSION)), false};
    }
    if (!isParsed) {
        return {{}, parser.errorText(), true};
    }
    CommandLine command;
    const QString problem = readCommand(parser, command);
    if (!problem.isEmpty()) {
        return {{}, problem, true};
    }
    return {command, {}, false};
}

} // namespace Drevon::Zalento::Apps
