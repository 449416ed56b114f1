#include "Guidance.h"

#include "measuring/Count.h"

#include <algorithm>

namespace Drevon::Zalento {

namespace {

QString calibration(int spotsExpected)
{
    return spotsExpected == 2 ? Guidance::tr("Click the first laser spot. Esc gives up.")
                              : Guidance::tr("Click the second laser spot. Esc gives up.");
}

QString alignment(const Situation &s)
{
    if (s.tool == Tool::Line) {
        return Guidance::tr(
            "Click along a feature of the wall that runs along the pipe: a seam, the water's "
            "edge. \"Points\" goes back to measuring.");
    }
    const int clicks =
        s.session.rings.isEmpty() ? 0 : Measuring::countOf(s.session.rings.last().points);
    return clicks < Measuring::smallestRingClicks
               ? Guidance::tr(
                     "Click on the edge of a joint: from the third click on the ring follows.")
               : Guidance::tr("The ring follows. Click more of the edge, or begin another joint.");
}

// The kind's own sentence for so many points; some name the next point's number.
QString nextStep(const Situation &s)
{
    const auto &texts = Measuring::infoOf(s.session.kind).guidance;
    const int count = Measuring::countOf(s.session.points);
    if (s.canClose) {
        const QString closing = Guidance::tr(
            "A click sets point %1; inside the dots it closes the outline. Shift+click, or a "
            "finger held down, sets a point there all the same.");
        return closing.arg(count + 1);
    }
    const QString text = Measuring::translated(
        texts[static_cast<std::size_t>(s.isClosed ? 3 : std::clamp(count, 0, 2))]);
    return text.contains(QLatin1String("%1")) ? text.arg(count + 1) : text;
}

} // namespace

QString guidanceFor(const Situation &s)
{
    if (s.laserSpotsExpected > 0) {
        return calibration(s.laserSpotsExpected);
    }
    if (s.tool != Tool::Measure) {
        return alignment(s);
    }
    if (s.isPanning) {
        return Guidance::tr("A drag pans the picture. Press \"Pan\" again to move the model.");
    }
    if (s.session.rearCircleActive &&
        Measuring::infoOf(s.session.kind).has(Measuring::Uses::Model)) {
        return Guidance::tr(
            "A drag moves the pipe's far end. Press \"Far end\" again to move the pipe.");
    }
    if (s.state == Measuring::MeasureState::NoScale) {
        const QString text = Guidance::tr(
            "No scale yet: press \"Laser spots\" and click the two spots, type mm per pixel, "
            "or load a calibration file. A click sets point %1.");
        return text.arg(s.session.points.size() + 1);
    }
    if (s.state == Measuring::MeasureState::NotSet) {
        return nextStep(s) + QLatin1Char(' ') +
               Guidance::tr("If it matches already, press \"Confirm\".");
    }
    return nextStep(s);
}

void Guidance::setSituation(const std::optional<Situation> &situation)
{
    m_situation = situation;
    show();
}

void Guidance::notice(Level level, const QString &text)
{
    m_noticeLevel = level;
    m_notice = text;
    show();
}

void Guidance::clearNotice()
{
    notice(Information, {});
}

void Guidance::show()
{
    QString text = m_notice;
    Level level = m_noticeLevel;
    if (text.isEmpty()) {
        const bool lacksScale =
            m_situation && m_situation->state == Measuring::MeasureState::NoScale;
        level = lacksScale ? Warning : Information;
        text = m_situation ? guidanceFor(*m_situation)
                           : tr("Open a picture: press Open, or drop pictures onto this window.");
    }
    if (text != m_text) {
        m_text = text;
        Q_EMIT textChanged();
    }
    if (level != m_level) {
        m_level = level;
        Q_EMIT levelChanged();
    }
}

} // namespace Drevon::Zalento
