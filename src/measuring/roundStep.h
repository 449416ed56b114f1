#pragma once

#include <cmath>

namespace Drevon::Zalento::Measuring {

/** The smallest of 1, 2, 5, 10, 20, ... and their tenths that is not smaller. */
inline double roundStep(double smallest)
{
    const double power = std::pow(10.0, std::floor(std::log10(smallest)));
    for (const double factor : {1.0, 2.0, 5.0}) {
        if (factor * power >= smallest) {
            return factor * power;
        }
    }
    return 10.0 * power;
}

} // namespace Drevon::Zalento::Measuring
