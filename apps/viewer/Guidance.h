#pragma once

#include "measuring/Measurement.h"
#include "measuring/Session.h"

#include <QString>

namespace Drevon::Zalento {

/** What the status line goes by. */
struct Situation
{
    const Measuring::Session &session;
    const Measuring::Measurement &measurement;
    bool isClosed = false;      ///< the points are a closed polygon
    int laserSpotsExpected = 0; ///< clicks that the calibration still waits for
    bool isPanning = false;     ///< a drag pans instead of moving the model
};

/** What the next click or drag does, in one sentence or two. */
QString guidance(const Situation &situation);

} // namespace Drevon::Zalento
