#include "measuring/OtherOverlays.h"

#include "measuring/Measurands.h"
#include "measuring/Measurement.h"
#include "measuring/PipeView.h"
#include "measuring/Replay.h"

#include "zalento/math/angles.h"

#include <QFontMetricsF>
#include <QPolygonF>

#include <algorithm>
#include <cmath>

namespace Drevon::Zalento::Measuring {

namespace {

constexpr double mPerMM = 0.001;
constexpr double fractionPerPercent = 0.01;

// From the middle of what it names to the middle of a name, in lines of text: beyond the two lines
// of the item's own label, on the line beside it, and on the rim.
constexpr double linesFromLabel = 2.5;
constexpr double linesFromWater = 0.6;
// The same from the outermost of the points that it names.
constexpr double linesFromPoints = 1.2;
const QColor background(0, 0, 0, 180); // as that of the item's labels
const QColor ink(Qt::white);

// What nobody has set is no measurement.
bool hasNothingToShow(const Session &session)
{
    return infoOf(session.kind).has(Uses::Points) ? session.points.isEmpty() : !session.isSet;
}

double linesFromMiddle(const Session &session)
{
    if (infoOf(session.kind).has(Uses::Points)) {
        return linesFromLabel;
    }
    return session.kind == Kind::WaterLevel ? linesFromWater : 0.0;
}

// A branch or a bend is nothing but a pipe: its first and last rings have to do.
ViewStyle styleBesideOthers(const Session &session)
{
    return infoOf(session.kind).has(Uses::Angle) && session.viewStyle != ViewStyle::MeasureOnly
               ? ViewStyle::Ends
               : ViewStyle::MeasureOnly;
}

QRectF placeOfPoints(const Session &session)
{
    const PipeView view(session);
    QPolygonF pixels;
    for (const SessionPoint &point : session.points) {
        pixels += view.project(point.position.value_or(Vec3()));
    }
    return pixels.boundingRect();
}

// The points; beside the label on the water's surface; or where branch and bend point on the mouth.
QRectF placeOf(const Session &session)
{
    if (infoOf(session.kind).has(Uses::Points)) {
        return placeOfPoints(session);
    }
    const PipeView view(session);
    const double diameterM = session.diameterMM * mPerMM;
    const double share = session.percentage * fractionPerPercent;
    if (session.kind == Kind::WaterLevel) {
        const double halfWidthM = diameterM * std::sqrt(share * (1.0 - share));
        return {view.project({halfWidthM * 0.5, (share - 0.5) * diameterM, 0}), QSizeF()};
    }
    const double clock = session.clockDEG * radiansPerDegree;
    const Vec3 onMouth(-std::sin(clock) * diameterM * 0.5, std::cos(clock) * diameterM * 0.5, 0);
    return {view.project(onMouth), QSizeF()};
}

} // namespace

OtherOverlays::OtherOverlays(const Session &session, double scale, const ZASettings &display)
    : m_scale(scale)
{
    const int atHand = measurandAtHand(session);
    for (int number = 0; number < measurandsOf(session).size(); ++number) {
        Session other = withMeasurand(session, number);
        if (hasNothingToShow(other)) {
            continue;
        }
        m_names += nameOf(other);
        if (number != atHand) {
            other.viewStyle = styleBesideOthers(other);
            m_items.push_back(std::make_unique<ZaItem>());
            m_items.back()->setSettings(display);
            showSession(other, *m_items.back(), m_scale);
        }
    }
}

// The item writes no angle beside a branch or a bend.
OtherOverlays::Name OtherOverlays::nameOf(const Session &session)
{
    const double fromEdge = infoOf(session.kind).has(Uses::Points) ? linesFromPoints : 0.0;
    Name name{placeOf(session), linesFromMiddle(session), fromEdge, session.name};
    const Measurement measurement = measure(session);
    if (infoOf(session.kind).has(Uses::Angle) && !measurement.values.isEmpty()) {
        name.text += QStringLiteral(": ") + measurement.values.first().text;
    }
    return name;
}

void OtherOverlays::paint(QPainter &painter) const
{
    painter.save();
    painter.scale(m_scale, m_scale);
    for (const std::unique_ptr<ZaItem> &item : m_items) {
        painter.save();
        painter.translate(item->position());
        item->paint(&painter);
        painter.restore();
    }
    for (const Name &name : m_names) {
        paintName(painter, name);
    }
    painter.restore();
}

// Above what it names, below where the picture ends before.
void OtherOverlays::paintName(QPainter &painter, const Name &name) const
{
    const QRectF named(name.named.topLeft() / m_scale, name.named.size() / m_scale);
    const QFontMetricsF metrics = painter.fontMetrics();
    QRectF box = metrics.boundingRect(QLatin1Char(' ') + name.text + QLatin1Char(' '));
    const double away = std::max(name.linesFromMiddle * box.height(),
                                 named.height() * 0.5 + name.linesFromEdge * box.height());
    box.moveCenter(named.center() - QPointF(0, away));
    if (box.top() < 0.0) {
        box.moveCenter(named.center() + QPointF(0, away));
    }
    painter.fillRect(box, background);
    painter.setPen(ink);
    painter.drawText(box, Qt::AlignCenter, name.text);
}

} // namespace Drevon::Zalento::Measuring
