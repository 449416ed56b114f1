#pragma once

#include "measuring/Export.h"

#include <QByteArray>
#include <QString>

namespace Drevon::Zalento::Measuring {

enum class Overwrite { Refuse, Allow };

/**
 * Writes the whole file or, on any failure, leaves what was there.
 * @return what went wrong; empty on success
 */
ZALENTO_MEASURING_EXPORT QString writeFile(const QString &path, const QByteArray &content,
                                           Overwrite overwrite);

} // namespace Drevon::Zalento::Measuring
