#pragma once

#include "measure/SessionOptions.h"

#include "measuring/PlaceUncertainty.h"

#include <QSize>
#include <QString>
#include <QStringList>

#include <optional>

namespace Drevon::Zalento::Apps {

enum class Verb {
    Measure, ///< values, and files when asked for
    Render,  ///< files only
    Unroll,  ///< the wall as a flat picture
    Lens,    ///< a camera's, from pictures of a chessboard
    Report,  ///< all pictures in one document
    Kinds,   ///< lists what can be measured
};

enum class Format { Text, Json, JsonLines, Csv };

/** The chessboard that a lens is calibrated with. */
struct BoardOptions
{
    QSize corners;         ///< inner ones, where four fields meet
    double squareMM = 0.0; ///< side of a field
    QString name;          ///< of the camera; empty: the output's
};

/** What the command line asks for. */
struct CommandLine
{
    Verb verb = Verb::Measure;
    QStringList inputs; ///< pictures, sessions, folders; "-" is a list on the standard input
    bool recursive = false;
    QString sessionFile;          ///< for every picture; empty: the session beside each
    bool ignoresSessions = false; ///< also those beside the pictures
    QString
        measurement; ///< name of the one that is meant; empty: all, and options change the chosen
    QString calibrationFile;
    QString lensFile;
    SessionOptions session;
    Format format = Format::Text;
    bool snaps = false;       ///< finds the edges of joints in the picture
    bool drawsValues = false; ///< Monte Carlo for every uncertainty
    bool writesPng = false;
    bool writesSvg = false;
    bool overlaysAll = false; ///< every measurement, with its name
    std::optional<MapQuantity> map;
    std::optional<double> unrollMMPerPixel; ///< of the flat picture
    std::optional<double> unrollFromMM;
    std::optional<double> unrollToMM;
    bool unrollsPlain = false; ///< without axes
    BoardOptions board;
    bool savesSession = false;
    QString outputFolder; ///< empty: beside each picture
    QString outputFile;   ///< of a verb that writes one
    QString recordFile;   ///< told in the report; may be empty
    bool overwrites = false;
    int jobs = 1; ///< pictures worked on at a time
};

/** A command line that was understood, or what to print instead of running. */
struct CommandLineOutcome
{
    std::optional<CommandLine> command;
    QString text;           ///< help, version, or what is wrong
    bool isProblem = false; ///< wrong usage
};

/** Understands the arguments after the program's name. Touches no file. */
CommandLineOutcome parseCommandLine(const QStringList &arguments);

/** The complete help: verbs, options, environment, exit codes, and an example a kind. */
QString helpText(const QCommandLineParser &parser);

} // namespace Drevon::Zalento::Apps
