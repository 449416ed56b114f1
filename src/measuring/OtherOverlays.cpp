#include "measuring/OtherOverlays.h"

#include "measuring/Measurands.h"
#include "measuring/Measurement.h"
#include "measuring/PipeView.h"
#include "measuring/Replay.h"

#include "zalento/math/angles.h"

#include <QFontMetricsF>
#include <QPolygonF>

#include <cmath>

namespace Drevon::Zalento::Measuring {

namespace {

constexpr double mPerMM = 0.001;
constexpr double fractionPerPercent = 0.01;

// From the middle of what it names to the middle of a name, in lines of text upwards: above the two
// lines of the item's own label, on the line beside it, and on the rim.
constexpr double linesAboveLabel = 2.5;
constexpr double linesAboveWater = 0.6;
const QColor background(0, 0, 0, 180); // as that of the item's labels
const QColor ink(Qt::white);

// What nobody has set is no measurement.
bool hasNothingToShow(const Session &session)
{
    return infoOf(session.kind).has(Uses::Points) ? session.points.isEmpty() : !session.isSet;
}

double linesAbove(const Session &session)
{
    if (infoOf(session.kind).has(Uses::Points)) {
        return linesAboveLabel;
    }
    return session.kind == Kind::WaterLevel ? linesAboveWater : 0.0;
}

// A branch or a bend is nothing but a pipe: its first and last rings have to do.
ViewStyle styleBesideOthers(const Session &session)
{
    return infoOf(session.kind).has(Uses::Angle) && session.viewStyle != ViewStyle::MeasureOnly
               ? ViewStyle::Ends
               : ViewStyle::MeasureOnly;
}

// Of the points; beside the label on the water's surface; or where branch and bend point on the
// mouth.
QPointF middleOf(const Session &session)
{
    const PipeView view(session);
    if (infoOf(session.kind).has(Uses::Points)) {
        QPolygonF pixels;
        for (const SessionPoint &point : session.points) {
            pixels += view.project(point.position.value_or(Vec3()));
        }
        return pixels.boundingRect().center();
    }
    const double diameterM = session.diameterMM * mPerMM;
    const double share = session.percentage * fractionPerPercent;
    if (session.kind == Kind::WaterLevel) {
        const double halfWidthM = diameterM * std::sqrt(share * (1.0 - share));
        return view.project({halfWidthM * 0.5, (share - 0.5) * diameterM, 0});
    }
    const double clock = session.clockDEG * radiansPerDegree;
    return view.project({-std::sin(clock) * diameterM * 0.5, std::cos(clock) * diameterM * 0.5, 0});
}

} // namespace

OtherOverlays::OtherOverlays(const Session &session)
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
            showSession(other, *m_items.back());
        }
    }
}

// The item writes no angle beside a branch or a bend.
OtherOverlays::Name OtherOverlays::nameOf(const Session &session)
{
    Name name{middleOf(session), linesAbove(session), session.name};
    const Measurement measurement = measure(session);
    if (infoOf(session.kind).has(Uses::Angle) && !measurement.values.isEmpty()) {
        name.text += QStringLiteral(": ") + measurement.values.first().text;
    }
    return name;
}

void OtherOverlays::paint(QPainter &painter) const
{
    for (const std::unique_ptr<ZaItem> &item : m_items) {
        painter.save();
        painter.translate(item->position());
        item->paint(&painter);
        painter.restore();
    }
    painter.save();
    for (const Name &name : m_names) {
        paintName(painter, name);
    }
    painter.restore();
}

void OtherOverlays::paintName(QPainter &painter, const Name &name) const
{
    const QFontMetricsF metrics = painter.fontMetrics();
    QRectF box = metrics.boundingRect(QLatin1Char(' ') + name.text + QLatin1Char(' '));
    box.moveCenter(name.pixel - QPointF(0, name.linesAbove * box.height()));
    painter.fillRect(box, background);
    painter.setPen(ink);
    painter.drawText(box, Qt::AlignCenter, name.text);
}

} // namespace Drevon::Zalento::Measuring
