#include "measuring/ItemSession.h"

#include "measuring/Editing.h"
#include "measuring/PipeView.h"
#include "measuring/Text.h"

#include "zalento/pipes/ViewObject.h"

#include <algorithm>

namespace Drevon::Zalento::Measuring {

namespace {

constexpr double percentPerOne = 100.0;
// A clock rotation of 0 turns a lateral, a bend or a joint this far about the pipe axis.
constexpr double clockZeroDEG = 90.0;
// Beyond any picture; keeps sizes within an int.
constexpr double largestSidePX = 1e6;

Result<Kind> kindOn(const ZaItem &item)
{
    const auto kind = kindNamed(item.iWantToMeasure());
    if (!kind) {
        return Problem{QStringLiteral("iWantToMeasure"),
                       Text::tr("expected one of %1, found \"%2\"")
                           .arg(kindNames().join(QLatin1String(", ")), item.iWantToMeasure())};
    }
    const QString property = QStringLiteral("viewObject");
    if (const Outcome problem =
            checkNumber(property, item.viewObject(), 0, static_cast<double>(ViewObject::Joint))) {
        return *problem;
    }
    const KindInfo &info = infoOf(*kind);
    const auto object = ViewObject(item.viewObject());
    const bool isJoint = object == ViewObject::Joint && info.has(Uses::Direction);
    if (object != info.object && !isJoint) {
        return Problem{property, Text::tr("%1 is not measured on object %2")
                                     .arg(info.nameText())
                                     .arg(item.viewObject())};
    }
    return *kind;
}

QSize wholeSize(const ZaItem &item)
{
    return QSizeF(std::clamp(item.width(), 0.0, largestSidePX),
                  std::clamp(item.height(), 0.0, largestSidePX))
        .toSize();
}

void readAlignment(ZaItem &item, Session &session)
{
    session.picture.size = wholeSize(item);
    session.diameterMM = item.diameter();
    session.offset = item.modelOffset();
    session.rollDEG = item.rollDEG();
    session.cameraHeightPercent = item.cameraHeight() * percentPerOne;
    session.fovYDEG = item.getFovDeg();
    session.rearCircleActive = item.rearCircleActive();
    session.rearCircleX = item.rearCircleOffset().x;
    session.rearCircleY = item.rearCircleOffset().y;
}

double angleOf(const PipeBase &object)
{
    const auto *lateral = dynamic_cast<const PipeLateral *>(&object);
    return lateral ? lateral->getAngleDeg() : dynamic_cast<const PipeBendBase &>(object).angleDeg;
}

// Of a kind that has a branch, a bend or a joint on view.
void readTurn(ZaItem &item, Session &session)
{
    const PipeBase &object = item.getCurrentViewObject();
    session.angleDEG = angleOf(object);
    session.clockDEG = static_cast<int>(object.clockDeg - clockZeroDEG);
    session.viewDownstream = item.viewDownstream();
    session.jointShown = ViewObject(item.viewObject()) == ViewObject::Joint;
}

// The item measures with the scale that was set, also when the text says another one or none.
void readScale(const Pipe &pipe, Session &session)
{
    session.calibrationText = QString::fromStdString(pipe.cameraCrackIni);
    if (scaleOf(session).value_or(0.0) == pipe.laserScale) {
        return;
    }
    session.calibrationText.clear();
    if (pipe.laserScale != 0.0) {
        session.mmPerPixel = pipe.laserScale;
    }
}

void readPoints(const Pipe &pipe, Session &session)
{
    const PipeView view(session);
    for (const HitPoint &point : pipe.hitPoints) {
        session.points.append({view.project(point.position), point.position, {}});
    }
}

void readMeasurand(ZaItem &item, Session &session)
{
    const KindInfo &info = infoOf(session.kind);
    if (info.has(Uses::Angle)) {
        readTurn(item, session);
    }
    const auto *pipe = dynamic_cast<const Pipe *>(&item.getCurrentViewObject());
    if (info.has(Uses::Percentage)) {
        const bool isPlane = info.mode == MeasureMode::CrossSection;
        session.percentage =
            percentPerOne * (isPlane ? pipe->cylinder.crossSectDistancePercent : item.percentage());
    }
    if (info.has(Uses::Scale)) {
        readScale(*pipe, session);
    }
    if (info.has(Uses::Points) && !session.picture.size.isEmpty()) {
        readPoints(*pipe, session);
    }
}

} // namespace

Result<Session> sessionOf(ZaItem &item)
{
    const Result<Kind> kind = kindOn(item);
    if (!kind) {
        return kind.problem();
    }
    Session session;
    session.kind = *kind;
    session.unit = item.measureUnit() == 0 ? MeasureUnit::Metric : MeasureUnit::Imperial;
    session.viewStyle =
        ViewStyle(std::clamp(item.viewStyle(), static_cast<int>(ViewStyle::MeasureOnly),
                             static_cast<int>(ViewStyle::Full)));
    readAlignment(item, session);
    readMeasurand(item, session);
    if (const Outcome problem = checkSession(session)) {
        return *problem;
    }
    return session;
}

} // namespace Drevon::Zalento::Measuring
