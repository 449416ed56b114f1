#include "measuring/SessionLens.h"

#include "measuring/Editing.h"
#include "measuring/Text.h"

#include <QVector>

namespace Drevon::Zalento::Measuring {

namespace {

// From one picture that is shown to another one. No mapping: the picture as it was taken.
struct PictureChange
{
    std::optional<LensMapping> before;
    std::optional<LensMapping> after;

    std::optional<QPointF> operator()(const QPointF &pixel) const
    {
        const std::optional<QPointF> taken = before ? before->toTaken(pixel) : pixel;
        return taken && after ? after->toShown(*taken) : taken;
    }

    /** Pixels of the new picture's middle for one of the old one's. */
    double magnification(const Lens &lens) const
    {
        const double takenFocalPX = 0.5 * (lens.fx() + lens.fy());
        const double beforePX = before ? before->focalLengthPX() : takenFocalPX;
        return (after ? after->focalLengthPX() : takenFocalPX) / beforePX;
    }
};

Result<std::optional<LensMapping>> mappingOf(const std::optional<Lens> &lens)
{
    if (!lens) {
        return std::optional<LensMapping>();
    }
    const Result<LensMapping> mapping = LensMapping::of(*lens);
    return mapping ? Result<std::optional<LensMapping>>(*mapping)
                   : Result<std::optional<LensMapping>>(mapping.problem());
}

// Of all measurands.
QVector<QPointF *> pointsOf(Session &session)
{
    QVector<Measurand *> measurands{&session};
    for (QVector<Measurand> *others : {&session.measurandsBefore, &session.measurandsBehind}) {
        for (Measurand &other : *others) {
            measurands += &other;
        }
    }
    QVector<QPointF *> pixels;
    for (Measurand *measurand : measurands) {
        for (SessionPoint &point : measurand->points) {
            pixels += &point.pixel;
        }
    }
    return pixels;
}

// Every place of the session in its picture.
QVector<QPointF *> clicksOf(Session &session)
{
    QVector<QPointF *> clicks;
    for (RingClicks &ring : session.rings) {
        for (QPointF &point : ring.points) {
            clicks += &point;
        }
    }
    for (LineClicks &line : session.lines) {
        for (QPointF &point : line.points) {
            clicks += &point;
        }
    }
    for (QPointF &spot : session.laserSpots) {
        clicks += &spot;
    }
    return clicks + pointsOf(session);
}

Outcome moveClicks(Session &session, const PictureChange &change)
{
    for (QPointF *click : clicksOf(session)) {
        const std::optional<QPointF> moved = change(*click);
        if (!moved) {
            return Problem{QStringLiteral("lens"),
                           Text::tr("the lens maps nothing to the click at %1,%2")
                               .arg(click->x())
                               .arg(click->y())};
        }
        *click = *moved;
    }
    return {};
}

// The spots of a laser give the scale anew; one that was typed follows the middle's size.
void moveScale(Session &session, double magnification)
{
    const QVector<QPointF> spots = session.laserSpots;
    if (spots.size() == laserSpotCount && !takeLaserScale(session, spots[0], spots[1])) {
        return;
    }
    if (session.mmPerPixel) {
        *session.mmPerPixel /= magnification;
    }
}

} // namespace

Outcome takeLens(Session &session, const std::optional<Lens> &lens)
{
    if (session.lens == lens) {
        return {};
    }
    const Result<std::optional<LensMapping>> before = mappingOf(session.lens);
    const Result<std::optional<LensMapping>> after = mappingOf(lens);
    for (const auto *mapping : {&before, &after}) {
        if (!*mapping) {
            return mapping->problem();
        }
    }
    const PictureChange change{*before, *after};
    Session moved = session;
    moved.lens = lens;
    if (const Outcome problem = moveClicks(moved, change)) {
        return problem;
    }
    if (*after) {
        moved.fovYDEG = (*after)->fovYDEG();
        moved.fitsFov = false;
    }
    moveScale(moved, change.magnification(lens ? *lens : *session.lens));
    if (const Outcome problem = checkSession(moved)) {
        return problem;
    }
    pickPointsAnew(moved);
    session = moved;
    return {};
}

Result<QImage> shownPicture(const Session &session, const QImage &taken)
{
    return session.lens ? undistorted(taken, *session.lens) : taken;
}

} // namespace Drevon::Zalento::Measuring
