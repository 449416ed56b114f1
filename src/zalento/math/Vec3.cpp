#include "zalento/math/Vec3.h"

#include "zalento/math/CLocale.h"

#include <cstdio>

namespace Drevon::Zalento {

std::string Vec3::toString() const
{
    const CLocaleScope scope;
    char text[100];
    std::snprintf(text, sizeof text, "(%f, %f, %f)", x, y, z);
    return text;
}

std::string Vec3::toString(const std::string &format) const
{
    const CLocaleScope scope;
    char parts[3][50];
    for (unsigned i = 0; i < 3; ++i) {
        std::snprintf(parts[i], sizeof parts[i], format.c_str(), (*this)[i]);
    }
    char text[200];
    std::snprintf(text, sizeof text, "(%s, %s, %s)", parts[0], parts[1], parts[2]);
    return text;
}

} // namespace Drevon::Zalento
