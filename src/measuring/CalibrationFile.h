#pragma once

#include "measuring/Export.h"

#include <QString>

#include <optional>

namespace Drevon::Zalento::Measuring {

/**
 * Reads a camera calibration file, see Pipe::parseIniFile(). A byte order mark is dropped.
 * @param problem on failure: what is wrong, naming the file
 */
ZALENTO_MEASURING_EXPORT std::optional<QString> loadCalibration(const QString &path,
                                                                QString &problem);

} // namespace Drevon::Zalento::Measuring
