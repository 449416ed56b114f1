#pragma once

#include "Scene.h"

#include <QStringList>

namespace PipePicture {

/** What the user asked for on the command line. */
struct Request
{
    SceneSettings scene;
    QString pictureFile; ///< `.png`, `.jpg` or `.jpeg`
    QString truthFile;   ///< beside the picture
    int quality = 90;    ///< of a JPEG picture, [1, 100]
    bool force = false;  ///< write over existing files
};

/** Outcome of reading a command line. */
struct ParsedOptions
{
    enum class Action { Draw, ShowHelp, ShowVersion, Refuse };

    Action action = Action::Refuse;
    Request request; ///< for Draw
    QString text;    ///< help, version or what is wrong
};

/** Reads a command line; the first argument is the program's name. Touches no file. */
ParsedOptions parseOptions(const QStringList &arguments);

} // namespace PipePicture
