#pragma once

#include <QCoreApplication>

namespace Drevon::Zalento::Measuring {

/** Texts for people: in the language of the application's translators, and as they stand without.
 */
struct Text
{
    Q_DECLARE_TR_FUNCTIONS(Text)
};

} // namespace Drevon::Zalento::Measuring
