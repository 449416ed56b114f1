#include "support/CommaLocale.h"

#include <clocale>
#include <cstring>
#include <stdexcept>

namespace Drevon::Zalento::Test {

namespace {

std::locale germanLocale()
{
    // The build tree's locale is found without CTest's environment too.
    if (!qEnvironmentVariableIsSet("LOCPATH"))
        qputenv("LOCPATH", ZALENTO_TEST_LOCPATH);
    try {
        return std::locale("de_DE.UTF-8");
    } catch (const std::runtime_error &) {
        qFatal("The locale de_DE.UTF-8 is missing from %s", qgetenv("LOCPATH").constData());
    }
}

} // namespace

CommaLocale::CommaLocale()
    : m_previous(std::locale::global(germanLocale()))
{
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    if (std::strcmp(std::localeconv()->decimal_point, ",") != 0)
        qFatal("The locale de_DE.UTF-8 has no decimal comma");
}

CommaLocale::~CommaLocale()
{
    std::locale::global(m_previous);
    QLocale::setDefault(m_previousQt);
}

} // namespace Drevon::Zalento::Test
