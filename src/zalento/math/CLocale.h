#pragma once

#include <locale.h>

namespace Drevon::Zalento {

/** The "C" locale of the C library: '.' is the decimal mark. Lives until the process ends. */
locale_t cLocale();

/**
 * Makes the "C" locale the calling thread's for as long as the object lives, so that the C
 * library formats numbers alike whatever locale the process has chosen.
 */
class CLocaleScope
{
public:
    CLocaleScope();
    ~CLocaleScope();
    CLocaleScope(const CLocaleScope &) = delete;
    CLocaleScope &operator=(const CLocaleScope &) = delete;

private:
    locale_t m_previous;
};

} // namespace Drevon::Zalento
