#pragma once

#include "measuring/Export.h"
#include "measuring/Result.h"

#include <QByteArray>
#include <QString>

namespace Drevon::Zalento::Measuring {

enum class Overwrite { Refuse, Allow };

/** Writes the whole file or, on any failure, leaves what was there. */
ZALENTO_MEASURING_EXPORT Outcome writeFile(const QString &path, const QByteArray &content,
                                           Overwrite overwrite);

} // namespace Drevon::Zalento::Measuring
