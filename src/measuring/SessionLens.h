#pragma once

#include "measuring/Export.h"
#include "measuring/Lens.h"
#include "measuring/Result.h"
#include "measuring/Session.h"

#include <QImage>

#include <optional>

namespace Drevon::Zalento::Measuring {

/**
 * Takes another lens, or none: the picture that is shown is another one then. Everything that was
 * clicked moves with what it was clicked on, the points are looked up anew, and a scale is that of
 * the new picture's middle. With a lens the field of view is the lens's; without one it stays.
 *
 * The session has to know its picture's size. On a problem it stays as it was.
 */
ZALENTO_MEASURING_EXPORT Outcome takeLens(Session &session, const std::optional<Lens> &lens);

/** The picture as the session shows it: undistorted where it has a lens. */
ZALENTO_MEASURING_EXPORT Result<QImage> shownPicture(const Session &session, const QImage &taken);

} // namespace Drevon::Zalento::Measuring
