// The controller's numbers, by the names of the field catalogue.
#include "ViewerController.h"

#include <algorithm>
#include <cmath>

namespace Drevon::Zalento {

using Measuring::Session;

// The scale and the laser spots lie in the picture; everything else is about the model.
bool ViewerController::movesModel(const QString &fieldName)
{
    return fieldName != QLatin1String("mmPerPixel") && fieldName != QLatin1String("laserMM");
}

Field ViewerController::field(const QString &name) const
{
    return fieldNamed(name, sessionCopy());
}

QVariantMap ViewerController::fieldInfo(const QString &name) const
{
    const Field info = field(name);
    return {
        {QStringLiteral("label"), info.label},       {QStringLiteral("unit"), info.unit},
        {QStringLiteral("smallest"), info.smallest}, {QStringLiteral("largest"), info.largest},
        {QStringLiteral("step"), info.step},         {QStringLiteral("hasSlider"), info.hasSlider}};
}

QString ViewerController::fieldText(const QString &name) const
{
    return Zalento::fieldText(field(name), sessionCopy());
}

double ViewerController::fieldValue(const QString &name) const
{
    return field(name).get(sessionCopy()).value_or(0.0);
}

QString ViewerController::commitField(const QString &name, const QString &text)
{
    const Field info = field(name);
    QString problem;
    const std::optional<double> value = readField(info, text, problem);
    if (problem.isEmpty() && isReady()) {
        Session session = sessionCopy();
        info.set(session, value);
        change(info.label, session, movesModel(name));
    }
    return problem;
}

// A step from between two multiples of the step leads to the next multiple.
void ViewerController::stepField(const QString &name, int count)
{
    if (!isReady()) {
        return;
    }
    const Field info = field(name);
    Session session = sessionCopy();
    const double value = info.get(session).value_or(0.0);
    constexpr double slack = 1e-6; // of a step: a multiple that was not met exactly
    const double multiples =
        count < 0 ? std::ceil(value / info.step - slack) : std::floor(value / info.step + slack);
    info.set(session, std::clamp((multiples + count) * info.step, info.smallest, info.largest));
    change(info.label, session, movesModel(name));
}

void ViewerController::dragField(const QString &name, double value)
{
    if (!isReady()) {
        return;
    }
    const Field info = field(name);
    Session session = sessionCopy();
    info.set(session, std::clamp(value, info.smallest, info.largest));
    preview(session, movesModel(name));
}

void ViewerController::endFieldDrag()
{
    finishGesture(tr("Slider"));
}

} // namespace Drevon::Zalento
