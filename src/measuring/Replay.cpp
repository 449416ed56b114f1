#include "measuring/Replay.h"

#include "measuring/Editing.h"
#include "measuring/PipeView.h"

#include "zalento/pipes/ViewObject.h"
#include "zalento/pipes/gestureUnits.h"

#include <algorithm>
#include <optional>

namespace Drevon::Zalento::Measuring {

namespace {

// Of the largest picture whose overlay is drawn pixel for pixel.
constexpr double unscaledLines = 720.0;

// The straight pipe, which clearing and choosing a kind without another object put on view.
Pipe &straightPipe(ZaItem &item)
{
    return dynamic_cast<Pipe &>(item.getCurrentViewObject());
}

void layOut(const Session &session, ZaItem &item, double scale)
{
    const QRectF geometry = itemLayout(session).geometry;
    item.setPosition(geometry.topLeft() / scale);
    item.setSize(geometry.size() / scale);
}

// Without these an earlier session would show through.
void forgetPrevious(ZaItem &item)
{
    item.clearMeasurementPoints();
    item.setMeasureSettings(measureMentSettingsOf(infoOf(Kind::CrackWidth).nameText()));
    Pipe &pipe = straightPipe(item);
    pipe.selectedIndex = -1;
    pipe.highlightPoint = Vec3::Zero;
    pipe.laserScale = 0.0;
    pipe.laserDistance = 0.0;
    item.setPercentage(0.0);
}

// The diameter comes after the calibration text: setting it reads the text.
void showScale(const Session &session, ZaItem &item, double scale)
{
    straightPipe(item).setCameraCrackIni(session.calibrationText.toStdString());
    item.setDiameter(session.diameterMM);
    const std::optional<double> mmPerPixel = scale == 1.0 ? session.mmPerPixel : scaleOf(session);
    if (mmPerPixel) {
        item.requestCameraCalibration(*mmPerPixel * scale);
    }
}

void showKind(const Session &session, ZaItem &item)
{
    const KindInfo &info = infoOf(session.kind);
    item.setiWantToMeasure(info.nameText());
    // Selecting the kind that is selected does nothing, whatever is on view.
    item.setMeasureSettings(measureMentSettingsOf(info.nameText()));
    if (session.jointShown && info.has(Uses::Direction)) {
        item.setViewMode(static_cast<int>(ViewObject::Joint));
    }
    item.setPercentage(info.has(Uses::Percentage) ? session.percentage : 0.0);
    item.setAngle(session.angleDEG);
    item.setClock(session.clockDEG);
    item.setViewDownstream(session.viewDownstream);
}

// The same two controls move the model and the rear circle.
void showAlignment(const Session &session, ZaItem &item)
{
    item.setFovDeg(itemLayout(session).fovYDEG);
    item.rotate(session.rollDEG);
    item.setRearCircleActive(false);
    item.move(session.offset, 0.0);
    item.setCameraHeight(session.cameraHeightPercent);
    item.setRearCircleActive(true);
    item.move(session.rearCircleX, 0.0);
    item.setCameraHeight(session.rearCircleY + centredPercent);
    item.setRearCircleActive(session.rearCircleActive);
}

void showPoints(const Session &session, ZaItem &item)
{
    if (!infoOf(session.kind).has(Uses::Points) || session.points.isEmpty()) {
        return;
    }
    Pipe &pipe = straightPipe(item);
    for (const SessionPoint &point : session.points) {
        if (point.position) {
            pipe.hitPoints.emplace_back(*point.position);
        }
    }
    Q_EMIT pipe.hitPointListSizeChanged(static_cast<int>(pipe.hitPoints.size()));
}

} // namespace

void showSession(const Session &session, ZaItem &item, double scale)
{
    layOut(session, item, scale);
    forgetPrevious(item);
    showScale(session, item, scale);
    showKind(session, item);
    item.setMeasureUnit(static_cast<int>(session.unit));
    item.setViewStyle(static_cast<int>(session.viewStyle));
    showAlignment(session, item);
    showPoints(session, item);
}

double overlayScale(const QSize &picture)
{
    return std::max(1.0, std::min(picture.width(), picture.height()) / unscaledLines);
}

} // namespace Drevon::Zalento::Measuring
