#pragma once

#include <QString>

#include <optional>

namespace Drevon::Zalento::Apps {

/**
 * Reads a camera calibration file, see Pipe::parseIniFile(). A byte order mark is dropped.
 * @param problem on failure: what is wrong, naming the file
 */
std::optional<QString> loadCalibration(const QString &path, QString &problem);

} // namespace Drevon::Zalento::Apps
