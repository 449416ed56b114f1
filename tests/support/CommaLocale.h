#pragma once

#include <QLocale>
#include <locale>

namespace Drevon::Zalento::Test {

/** Puts the whole process (C library, C++ streams, QLocale's default) under German rules, decimal
    comma included, for as long as it lives. A missing locale ends the program: a test that was
    meant to run under a comma must not pass without one. */
class CommaLocale
{
public:
    CommaLocale();
    ~CommaLocale();
    CommaLocale(const CommaLocale &) = delete;
    CommaLocale &operator=(const CommaLocale &) = delete;

private:
    std::locale m_previous;
    QLocale m_previousQt;
};

} // namespace Drevon::Zalento::Test
