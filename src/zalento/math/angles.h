#pragma once

namespace Drevon::Zalento {

/** Radians in a degree, pi/180. */
inline constexpr double radiansPerDegree = 0.017453292519943295;

/** Degrees in a radian, 180/pi. */
inline constexpr double degreesPerRadian = 57.29577951308232;

inline constexpr double pi = 3.141592653589793;
inline constexpr double halfPi = 1.5707963267948966;
inline constexpr double twoPi = 6.283185307179586;

} // namespace Drevon::Zalento
