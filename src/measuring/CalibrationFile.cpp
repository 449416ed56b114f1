#include "measuring/CalibrationFile.h"

#include "measuring/Text.h"

#include <QFile>
#include <QFileInfo>
#include <QStringList>

#include <algorithm>

namespace Drevon::Zalento::Measuring {

namespace {

constexpr qint64 largestFileBytes = 1024 * 1024;
constexpr int laserFieldCount = 4;
constexpr int scaleFieldCount = 3;

bool isRecord(const QString &line)
{
    const QStringList fields = line.trimmed().split(QLatin1Char(';'));
    const bool isLaser = fields.first().compare(QLatin1String("LASER"), Qt::CaseInsensitive) == 0;
    return fields.size() == (isLaser ? laserFieldCount : scaleFieldCount);
}

} // namespace

Result<QString> loadCalibration(const QString &path)
{
    QFile file(path);
    if (QFileInfo(path).isDir()) {
        return Problem{path, Text::tr("is a folder, not a calibration file")};
    }
    if (!file.open(QIODevice::ReadOnly)) {
        return Problem{path, Text::tr("cannot be read: %1").arg(file.errorString())};
    }
    const QByteArray content = file.read(largestFileBytes + 1);
    if (content.size() > largestFileBytes) {
        return Problem{path, Text::tr("is too large for a calibration file")};
    }
    const QString text = QString::fromUtf8(content); // without the byte order mark
    const QStringList lines = text.split(QLatin1Char('\n'));
    if (std::none_of(lines.begin(), lines.end(), isRecord)) {
        return Problem{path, Text::tr("holds no calibration: expected lines LASER;;;MM or "
                                      "DIAMETER;PIXELS;MM")};
    }
    return text;
}

} // namespace Drevon::Zalento::Measuring
