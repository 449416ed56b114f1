#pragma once

#include "measuring/Export.h"
#include "measuring/Result.h"
#include "measuring/Session.h"

#include <QString>
#include <QVector>

#include <functional>
#include <optional>

/**
 * @file
 * Several measurands of one session, numbered from 0 in the order in which they were added. One of
 * them is at hand. The alignment, the scale and the pipe are the picture's, and so common to all.
 */
namespace Drevon::Zalento::Measuring {

/** All of them; at least one. */
ZALENTO_MEASURING_EXPORT QVector<Measurand> measurandsOf(const Session &session);

/** The number of the one at hand. */
ZALENTO_MEASURING_EXPORT int measurandAtHand(const Session &session);

/** Takes another one to hand; there has to be one of this number. */
ZALENTO_MEASURING_EXPORT void takeMeasurand(Session &session, int number);

/** The session with another one at hand. */
ZALENTO_MEASURING_EXPORT Session withMeasurand(Session session, int number);

/** The number of the one with this name. */
ZALENTO_MEASURING_EXPORT std::optional<int> measurandNamed(const Session &session,
                                                           const QString &name);

/**
 * Adds one of the kind behind the others and takes it to hand. It gets the kind's title as its
 * name, with a number where that is taken; and so does a single one before it that has no name.
 */
ZALENTO_MEASURING_EXPORT void addMeasurand(Session &session, Kind kind);

/**
 * Measures another kind. What is measured at hand stays, and one of the kind is added. One of which
 * nothing is measured yet gives way: to the last one of the kind, or it becomes one itself.
 */
ZALENTO_MEASURING_EXPORT void changeKind(Session &session, Kind kind);

/** Names the one of this number; on a problem the session stays as it was. */
ZALENTO_MEASURING_EXPORT Outcome renameMeasurand(Session &session, int number, const QString &name);

/** Removes the one of this number, but not the last that is left. */
ZALENTO_MEASURING_EXPORT void removeMeasurand(Session &session, int number);

/** Calls @p edit with each of them at hand in turn; then the same as before is at hand. */
ZALENTO_MEASURING_EXPORT void forEachMeasurand(Session &session,
                                               const std::function<void(Session &)> &edit);

} // namespace Drevon::Zalento::Measuring
