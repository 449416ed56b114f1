#pragma once

#include "measuring/Export.h"

#include <QByteArray>
#include <QJsonObject>
#include <QSize>
#include <QString>

namespace Drevon::Zalento::Measuring {

/** Which picture a session belongs to. */
struct PictureIdentity
{
    QString path;      ///< relative to the session's folder in a file, else to the working folder
    QSize size;        ///< upright, in pixels
    QByteArray sha256; ///< of the file's bytes, as 64 lower-case hexadecimal digits
    QJsonObject unknownFields; ///< of a file written by a later version; kept
};

ZALENTO_MEASURING_EXPORT bool operator==(const PictureIdentity &a, const PictureIdentity &b);

} // namespace Drevon::Zalento::Measuring
