#pragma once

#include "measuring/Export.h"
#include "measuring/Result.h"

#include <QString>

namespace Drevon::Zalento::Measuring {

/**
 * Reads a camera calibration file, see Pipe::parseIniFile(). A byte order mark is dropped. A
 * problem names the file.
 */
ZALENTO_MEASURING_EXPORT Result<QString> loadCalibration(const QString &path);

} // namespace Drevon::Zalento::Measuring
