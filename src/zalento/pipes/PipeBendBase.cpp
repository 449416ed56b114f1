#include "zalento/pipes/PipeBendBase.h"

#include "zalento/math/angles.h"
#include "zalento/math/truncateToInt.h"
#include "zalento/render/ModelViewScope.h"

#include <algorithm>
#include <cmath>

namespace Drevon::Zalento {

namespace {

// Drawn diameter as a share of the nominal one: the model's wall lies inside the pipe's.
constexpr double drawnShare = 0.9512;

constexpr int turnStepDeg = 5;
constexpr int straightSteps = 6;

// Circles in front of the bend stand this many to a nominal diameter.
constexpr double frontCirclesPerDiameter = 5;

constexpr double mouthPenPx = 3.5;
constexpr double circlePenPx = 2.0;
constexpr double continuationPenPx = 1.0;

} // namespace

// The pipe as it is drawn: the camera's model-view matrix travels along it, circle by circle.
class PipeBendBase::CircleChain
{
public:
    CircleChain(PipeBendBase &pipe, QPainter &painter, ViewStyle viewStyle,
                const ZASettings &settings)
        : m_pipe(pipe)
        , m_painter(painter)
        , m_isFull(viewStyle == ViewStyle::Full)
        , m_settings(settings)
    {}

    void move(double z) { m_pipe.camera.modelViewMatrix.translate(0, 0, z); }

    void mouth(const QColor &color, double penPx) { circle(color, penPx, false, nullptr); }

    // A circle that is translucent outside the outline recorded last.
    void clipped(const QColor &color, double penPx) { circle(color, penPx, false, &m_outline); }

    void recorded(const QColor &color, double penPx) { circle(color, penPx, true, &m_outline); }

    void turns(int count)
    {
        for (int i = 0; i < count; ++i) {
            m_pipe.camera.modelViewMatrix.rotate(-turnStepDeg, 0, 1, 0);
            if (m_isFull) {
                clipped(QColor(255, 0, 0, 255), circlePenPx);
            }
        }
    }

    // The continuation in equal steps; the last circle is always drawn.
    void straight(double length, bool records)
    {
        for (int m = 0; m < straightSteps; ++m) {
            move(-length / straightSteps);
            if (m == straightSteps - 1 || m_isFull) {
                circle(m_settings.colCylinder2, continuationPenPx, records, &m_outline);
            }
        }
    }

    bool isFull() const { return m_isFull; }
    const ZASettings &settings() const { return m_settings; }

private:
    void circle(const QColor &color, double penPx, bool records, std::vector<Vec2> *outline)
    {
        m_pipe.camera.renderEllipse(m_painter, color, penPx, m_pipe.circlePoints, true, records,
                                    outline);
    }

    PipeBendBase &m_pipe;
    QPainter &m_painter;
    bool m_isFull;
    const ZASettings &m_settings;
    std::vector<Vec2> m_outline;
};

void PipeBendBase::setAngleDeg(double a)
{
    // Adding zero: a request just below it would stay a negative zero and be written "-0".
    angleDeg = std::round(a / turnStepDeg) * turnStepDeg + 0.0;
    measure1 = angleDeg;
    observable = ObservableType::BendAngle;
}

void PipeBendBase::setDiameterM(double d)
{
    diameterM = d;
    constructCirclePoints();
}

double PipeBendBase::getDiameterM() const
{
    return diameterM * drawnShare;
}

void PipeBendBase::constructCirclePoints()
{
    const double r = diameterM * drawnShare * 0.5;
    const double step = twoPi / segmentCount;
    circlePoints.resize(static_cast<std::size_t>(segmentCount) + 1);
    for (int i = 0; i <= segmentCount; ++i) {
        const double a = halfPi + i * step;
        circlePoints[static_cast<std::size_t>(i)] = Vec3(r * std::sin(a) - r, r * std::cos(a), 0);
    }
}

void PipeBendBase::renderBase(QPainter &painter, bool downstream, ViewStyle viewStyle,
                              const ZASettings &settings, double straightLength, Vec3 rotation,
                              QPoint offset)
{
    if (viewStyle == ViewStyle::MeasureOnly) {
        return;
    }
    setupMiniGL(diameterM * drawnShare, offset);
    const ModelViewScope scope(camera);
    applyViewRotation(rotation);
    // Centres the circle on the pipe axis; the turn axis then touches the wall.
    camera.modelViewMatrix.translate(diameterM * drawnShare * 0.5, 0, 0);
    CircleChain chain(*this, painter, viewStyle, settings);
    if (downstream) {
        renderDownstream(chain, straightLength);
    } else {
        renderUpstream(chain, straightLength);
    }
}

void PipeBendBase::renderDownstream(CircleChain &chain, double straightLength) const
{
    const QColor &color = chain.settings().colCylinder1;
    const double s = diameterM / frontCirclesPerDiameter;
    chain.move(2 * s);
    chain.mouth(color, circlePenPx);
    chain.move(-s);
    chain.mouth(color, circlePenPx);
    chain.move(-s);
    chain.mouth(color, mouthPenPx);
    chain.turns(turnCount());
    chain.straight(straightLength, false);
}

void PipeBendBase::renderUpstream(CircleChain &chain, double straightLength) const
{
    const QColor &color = chain.settings().colCylinder1;
    const double s = diameterM / frontCirclesPerDiameter;
    chain.mouth(chain.settings().colCylinder2, mouthPenPx);
    chain.straight(straightLength, true);
    chain.turns(turnCount());
    chain.move(-s);
    if (chain.isFull()) {
        chain.clipped(color, continuationPenPx);
    }
    chain.move(-s);
    chain.clipped(color, continuationPenPx);
}

int PipeBendBase::turnCount() const
{
    return std::max(truncateToInt(angleDeg) / turnStepDeg, 0);
}

} // namespace Drevon::Zalento
