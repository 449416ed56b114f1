#pragma once

#include <QByteArray>
#include <QString>

namespace Drevon::Zalento::Apps {

enum class Overwrite { Refuse, Allow };

/**
 * Writes the whole file or, on any failure, leaves what was there.
 * @return what went wrong; empty on success
 */
QString writeFile(const QString &path, const QByteArray &content, Overwrite overwrite);

} // namespace Drevon::Zalento::Apps
