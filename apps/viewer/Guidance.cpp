#include "Guidance.h"

#include <QCoreApplication>

namespace Drevon::Zalento {

namespace {

QString tr(const char *text)
{
    return QCoreApplication::translate("Guidance", text);
}

QString calibration(int spotsExpected)
{
    return spotsExpected == 2 ? tr("Click the first laser spot. Esc gives up.")
                              : tr("Click the second laser spot. Esc gives up.");
}

QString crack(const Situation &s)
{
    if (s.measurement.state == Measuring::MeasureState::NoScale) {
        return tr("No scale yet: press \"Laser spots\" and click the two spots, type mm per pixel, "
                  "or load a calibration file. A click sets point %1.")
            .arg(s.session.points.size() + 1);
    }
    switch (s.session.points.size()) {
    case 0:
        return tr("Click one edge of the crack. A drag pans the picture.");
    case 1:
        return tr("Click the other edge of the crack.");
    default:
        return tr("A click lengthens the line. Drag a point, or nudge it with the arrow keys.");
    }
}

QString dimension(const Situation &s)
{
    switch (s.session.points.size()) {
    case 0:
        return tr("Drag the green pipe onto the picture's, then click one end on the wall.");
    case 1:
        return tr("Click the other end on the wall.");
    default:
        return tr("A click lengthens the line. Drag a point, or nudge it with the arrow keys.");
    }
}

QString crossSection(const Situation &s)
{
    if (s.isClosed) {
        return tr("Closed. Drag a point to correct it; a click starts a new outline.");
    }
    const int count = s.session.points.size();
    if (count == 0) {
        return tr("Set the plane's depth, then click along the outline on the plane.");
    }
    if (count < 3) {
        return tr("A click sets point %1 of the outline; two points measure a length.")
            .arg(count + 1);
    }
    return tr("A click sets point %1; one near the first point closes the outline.").arg(count + 1);
}

} // namespace

QString guidance(const Situation &s)
{
    if (s.laserSpotsExpected > 0) {
        return calibration(s.laserSpotsExpected);
    }
    if (s.isPanning) {
        return tr("A drag pans the picture. Press the hand again to move the model.");
    }
    if (s.session.rearCircleActive && s.session.kind != QLatin1String("CrackWidth")) {
        return tr("A drag moves the pipe's far end. Press \"Far end\" again to move the pipe.");
    }
    const QString &kind = s.session.kind;
    if (kind == QLatin1String("CrackWidth")) {
        return crack(s);
    }
    if (kind == QLatin1String("PipeDimension")) {
        return dimension(s);
    }
    if (kind == QLatin1String("CrossSection")) {
        return crossSection(s);
    }
    if (kind == QLatin1String("WaterLevel")) {
        return tr("Drag the pipe into place, then click where the water meets the wall.");
    }
    if (kind == QLatin1String("BranchAngle")) {
        return tr("Drag the pipe into place; set angle, size and direction until the yellow curve "
                  "meets the branch.");
    }
    return tr("Drag the pipe into place; set angle and direction until the circles follow the "
              "bend.");
}

} // namespace Drevon::Zalento
