#pragma once

namespace Drevon::Zalento {

/**
 * @file
 * The units in which the operator's gestures move the model, and how the model fills the picture.
 */

/** The front circle is drawn this many times smaller than the drawing area: a margin of 2 %. */
inline constexpr double frontCircleMargin = 1.02;

/** Lines of a video frame: gesture units of the model's offset in one diameter. */
inline constexpr double unitsPerDiameter = 576;

/** Gesture units of the model's offset over the whole control. */
inline constexpr double dragRange = 85.0;

/** Gesture units of the rear circle that turn the view by half the vertical field of view. */
///@{
inline constexpr double rearCircleRangeX = 85.0;
inline constexpr double rearCircleRangeY = 50.0;
///@}

/** Camera height in percent that is the axis; as a rear circle's height it is centred. */
inline constexpr double centredPercent = 50.0;

} // namespace Drevon::Zalento
