#pragma once

#include <QString>

namespace Drevon::Zalento {

/**
 * Has every text that is asked for from now on in @p language: "en", "de" or "fr". Any other one
 * stands for the system's, and for English where the system speaks none of them.
 */
void useLanguage(const QString &language);

} // namespace Drevon::Zalento
