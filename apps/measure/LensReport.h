#pragma once

#include "measure/LensCalibration.h"

#include <QByteArray>

namespace Drevon::Zalento::Apps {

/** A calibration for people: the camera with standard deviations, and how well it is known. */
QByteArray lensText(const LensCalibration &calibration);
/** The same for programs. */
QByteArray lensJson(const LensCalibration &calibration);

} // namespace Drevon::Zalento::Apps
