#pragma once

#include "measure/CommandLine.h"

#include <QByteArray>

namespace Drevon::Zalento::Apps {

/** The kinds with their options, in a format. */
QByteArray kindList(Format format);

} // namespace Drevon::Zalento::Apps
