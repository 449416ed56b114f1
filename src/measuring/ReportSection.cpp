#include "measuring/ReportSection.h"

#include "measuring/Count.h"
#include "measuring/Editing.h"
#include "measuring/Text.h"
#include "measuring/roundStep.h"

#include "zalento/math/angles.h"
#include "zalento/pipes/PipeLateral.h"

#include <QPainterPath>
#include <QPolygonF>

#include <algorithm>
#include <array>
#include <cmath>

namespace Drevon::Zalento::Measuring {

namespace {

constexpr double mmPerM = 1000.0;
constexpr double fractionPerPercent = 0.01;

// Of paper, in millimetres.
constexpr double rimMM = 8.0; ///< around the wall, for hours and branches
constexpr double captionMM = 5.0;
constexpr double hourMM = 5.0; ///< from the wall to the middle of an hour's number
constexpr double stubMM = 6.5; ///< of a branch
constexpr double textMM = 2.6;
constexpr double wallPenMM = 0.5;
constexpr double linePenMM = 0.3;
constexpr double pointMM = 0.7; ///< radius

const QColor ink(20, 20, 20);
const QColor quiet(120, 120, 120);
const QColor measured(200, 60, 0);
const QColor water(120, 180, 230);

class SectionPainter
{
public:
    SectionPainter(QPainter &painter, const QRectF &box, double unitsPerMM, const Session &session,
                   const QString &name)
        : m_painter(painter)
        , m_session(session)
        , m_name(name)
        , m_unit(unitsPerMM)
        , m_area(box.adjusted(0, 0, 0, -(name.isEmpty() ? 1 : 2) * captionMM * unitsPerMM))
        , m_caption(m_area.bottomLeft(), box.bottomRight())
        , m_centre(m_area.center())
    {
        const double room = std::min(m_area.width(), m_area.height()) / m_unit - 2 * rimMM;
        m_ratio = roundStep(session.diameterMM / room);
        m_radius = paper(session.diameterMM / 2);
        QFont font = painter.font();
        font.setPixelSize(static_cast<int>(std::lround(textMM * m_unit)));
        painter.setFont(font);
    }

    void paint(bool isMeasured)
    {
        if (isMeasured && m_session.kind == Kind::WaterLevel) {
            paintWater();
        }
        paintWall();
        if (isMeasured && infoOf(m_session.kind).has(Uses::Clock)) {
            paintDirection();
        }
        if (infoOf(m_session.kind).has(Uses::Points)) {
            paintPoints();
        }
        m_painter.setPen(ink);
        const QString scale =
            Text::tr("Scale 1 : %1, diameter %2 mm").arg(m_ratio).arg(m_session.diameterMM);
        m_painter.drawText(m_caption, Qt::AlignCenter,
                           m_name.isEmpty() ? scale : m_name + QLatin1Char('\n') + scale);
    }

private:
    double paper(double pipeMM) const { return pipeMM / m_ratio * m_unit; }
    QPen pen(const QColor &colour, double widthMM) const
    {
        return QPen(colour, widthMM * m_unit, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    }

    // From the axis, in the painter's units, to the hour of a clock angle in the picture.
    QPointF towards(double clockDEG, double distance) const
    {
        const double angle = clockDEG * radiansPerDegree;
        return m_centre + QPointF(std::sin(angle), -std::cos(angle)) * distance;
    }

    // A place of the pipe has its top at +y and its right at -x, before the roll.
    QPointF placeOf(const Vec3 &position) const
    {
        const double roll = m_session.rollDEG * radiansPerDegree;
        const double x = std::cos(roll) * position.x - std::sin(roll) * position.y;
        const double y = std::sin(roll) * position.x + std::cos(roll) * position.y;
        return m_centre - QPointF(paper(x * mmPerM), paper(y * mmPerM));
    }

    void paintWall() const
    {
        m_painter.setPen(pen(ink, wallPenMM));
        m_painter.setBrush(Qt::NoBrush);
        m_painter.drawEllipse(m_centre, m_radius, m_radius);
        m_painter.setPen(quiet);
        const double half = hourMM * m_unit;
        for (const int hour : {12, 3, 6, 9}) {
            const QPointF place = towards(hour * 30.0, m_radius + half);
            m_painter.drawText(QRectF(place - QPointF(half, half), QSizeF(2 * half, 2 * half)),
                               Qt::AlignCenter, QString::number(hour));
        }
    }

    void paintWater() const
    {
        QPainterPath inside;
        inside.addEllipse(QPointF(), m_radius, m_radius);
        const double level = m_session.percentage * fractionPerPercent;
        QPainterPath below;
        below.addRect(-m_radius, m_radius * (1 - 2 * level), 2 * m_radius, 2 * m_radius * level);
        m_painter.save();
        m_painter.translate(m_centre);
        m_painter.rotate(m_session.rollDEG);
        m_painter.setPen(Qt::NoPen);
        m_painter.setBrush(water);
        m_painter.drawPath(inside.intersected(below));
        m_painter.restore();
    }

    // A branch is as wide as it is; a bend has a line.
    void paintDirection() const
    {
        double half = 0.0;
        if (m_session.kind == Kind::BranchAngle) {
            PipeLateral branch;
            branch.setLateralDiameterPercent(m_session.percentage * fractionPerPercent);
            half = branch.getLateralDiameterPercent() * m_radius;
        }
        const double height = std::sqrt(m_radius * m_radius - half * half);
        m_painter.save();
        m_painter.translate(m_centre);
        m_painter.rotate(m_session.clockDEG + m_session.rollDEG);
        m_painter.setPen(pen(measured, wallPenMM));
        for (const double x : {-half, half}) {
            m_painter.drawLine(QPointF(x, -height), QPointF(x, -m_radius - stubMM * m_unit));
        }
        m_painter.restore();
    }

    void paintPoints() const
    {
        QPolygonF places;
        for (const SessionPoint &point : m_session.points) {
            if (point.position) {
                places.append(placeOf(*point.position));
            }
        }
        m_painter.save();
        m_painter.setClipRect(m_area);
        if (m_session.kind == Kind::CrossSection) {
            m_painter.setPen(pen(measured, linePenMM));
            m_painter.drawPolyline(places);
        }
        // The last point of a closed outline is its first.
        const int count = isClosedOutline(m_session) ? countOf(places) - 1 : countOf(places);
        for (int i = 0; i < count; ++i) {
            paintPoint(places[i], QString::number(i + 1));
        }
        m_painter.restore();
    }

    void paintPoint(const QPointF &place, const QString &name) const
    {
        m_painter.setPen(Qt::NoPen);
        m_painter.setBrush(measured);
        m_painter.drawEllipse(place, pointMM * m_unit, pointMM * m_unit);
        m_painter.setPen(measured);
        m_painter.drawText(place + QPointF(1.5, -1.5) * pointMM * m_unit, name);
    }

    QPainter &m_painter;
    const Session &m_session;
    const QString m_name;
    const double m_unit;
    const QRectF m_area;
    const QRectF m_caption;
    const QPointF m_centre;
    double m_ratio = 1.0;
    double m_radius = 0.0;
};

} // namespace

void paintSection(QPainter &painter, const QRectF &box, double unitsPerMM, const Session &session,
                  bool isMeasured, const QString &name)
{
    painter.save();
    SectionPainter(painter, box, unitsPerMM, session, name).paint(isMeasured);
    painter.restore();
}

} // namespace Drevon::Zalento::Measuring
