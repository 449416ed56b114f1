#include "Assessment.h"

#include "PictureProvider.h"

#include "measuring/Count.h"
#include "measuring/PlaceUncertainty.h"
#include "measuring/UncertaintyText.h"

#include "zalento/settings/UnitConv.h"

#include <QColor>

#include <algorithm>
#include <cmath>

namespace Drevon::Zalento {

using Measuring::Uses;

namespace {

// The map is coarse and smoothed: what it tells changes slowly.
constexpr int mapWidth = 240;

constexpr double percentPerOne = 100.0;

QString labelOf(Measuring::UncertaintySource source)
{
    using Source = Measuring::UncertaintySource;
    switch (source) {
    case Source::Clicks:
        return Assessment::tr("clicks");
    case Source::Pixels:
        return Assessment::tr("pixels");
    case Source::Alignment:
        return Assessment::tr("alignment");
    case Source::Diameter:
        return Assessment::tr("diameter");
    case Source::FieldOfView:
        return Assessment::tr("field of view");
    case Source::Laser:
        return Assessment::tr("laser");
    case Source::Scale:
        return Assessment::tr("scale");
    case Source::Setting:
        break;
    }
    return Assessment::tr("set by eye");
}

QString adviceFor(Measuring::UncertaintySource source, bool isFitted)
{
    using Source = Measuring::UncertaintySource;
    switch (source) {
    case Source::Clicks:
        return Assessment::tr("Most comes from the clicks: zoom in, or measure nearer.");
    case Source::Pixels:
        return Assessment::tr("Most comes from the picture's pixels: measure nearer.");
    case Source::Alignment:
        return isFitted ? Assessment::tr("Most comes from the fit: click more of the joints.")
                        : Assessment::tr("Most comes from the alignment: click the joints.");
    case Source::Diameter:
        return Assessment::tr("Most comes from the diameter: measure it.");
    case Source::FieldOfView:
        return Assessment::tr("Most comes from the field of view: fit it to two joints.");
    case Source::Laser:
        return Assessment::tr("Most comes from the laser spots: zoom in and click them anew.");
    case Source::Scale:
        return Assessment::tr("Most comes from the scale that was typed: use laser spots.");
    case Source::Setting:
        break;
    }
    return Assessment::tr("Most comes from what was set by eye.");
}

QString textOf(Measuring::Decision decision)
{
    switch (decision) {
    case Measuring::Decision::Below:
        return Assessment::tr("below the limit");
    case Measuring::Decision::Above:
        return Assessment::tr("above the limit");
    case Measuring::Decision::Undecided:
        break;
    }
    return Assessment::tr("cannot be decided at 95 %");
}

// "± 3 mm", "± 0.12''".
QString lengthText(double mm, MeasureUnit unit)
{
    const QString text = UnitConv::mmOrInchStr(mm, unit);
    return Measuring::uncertaintyText({{}, mm, QStringLiteral("mm"), text, {}, {}}, mm);
}

} // namespace

Assessment::Assessment(MeasurementEditor &editor)
    : m_editor(editor)
{
    connect(&editor, &MeasurementEditor::measurementChanged, this, &Assessment::follow);
    connect(&editor, &MeasurementEditor::sessionChanged, this, &Assessment::follow);
    connect(&editor, &MeasurementEditor::selectedPointChanged, this, &Assessment::findEllipse);
}

void Assessment::follow()
{
    Q_EMIT changed();
    findEllipse();
    if (m_map != NoMap && !m_editor.isInGesture()) {
        drawMap();
    }
}

const Measuring::Uncertainty *Assessment::uncertainty() const
{
    const auto &values = m_editor.measurement().values;
    const bool isKnown =
        m_editor.isReady() && !values.isEmpty() && values.first().uncertainty.has_value();
    return isKnown ? &*values.first().uncertainty : nullptr;
}

QVariantList Assessment::budget() const
{
    QVariantList rows;
    if (const Measuring::Uncertainty *known = uncertainty()) {
        for (const Measuring::BudgetRow &row : known->budget) {
            rows += QVariantMap{{QStringLiteral("source"), static_cast<int>(row.source)},
                                {QStringLiteral("label"), labelOf(row.source)},
                                {QStringLiteral("share"), row.share}};
        }
    }
    return rows;
}

// Shares that are told as 0 are left out.
QString Assessment::budgetText() const
{
    QStringList parts;
    if (const Measuring::Uncertainty *known = uncertainty()) {
        for (const Measuring::BudgetRow &row : known->budget) {
            const int percent = qRound(row.share * percentPerOne);
            if (percent > 0) {
                parts += tr("%1 %2 %").arg(labelOf(row.source)).arg(percent);
            }
        }
    }
    return parts.join(QStringLiteral(", "));
}

QString Assessment::advice() const
{
    const Measuring::Uncertainty *known = uncertainty();
    return known && !known->budget.isEmpty()
               ? adviceFor(known->budget.first().source, m_editor.alignmentFit().has_value())
               : QString();
}

QString Assessment::decision() const
{
    const auto &values = m_editor.measurement().values;
    if (!uncertainty() || limit().isEmpty()) {
        return {};
    }
    const auto held = std::find_if(values.begin(), values.end(), [](const auto &value) {
        return value.uncertainty && value.uncertainty->decision;
    });
    return held == values.end() ? tr("The limit is of another unit.")
                                : textOf(*held->uncertainty->decision);
}

QString Assessment::limit() const
{
    return m_editor.session() ? m_editor.session()->limit : QString();
}

QString Assessment::setLimit(const QString &text)
{
    if (!m_editor.isReady()) {
        return {};
    }
    Measuring::Session session = *m_editor.session();
    session.limit = UnitConv::cultureIndependentDecimalSeparator(text.trimmed());
    if (const Measuring::Outcome problem = checkSession(session)) {
        return problem->what;
    }
    m_editor.change(tr("Limit"), session, MeasurementEditor::Moves::Nothing);
    return {};
}

QString Assessment::repeats() const
{
    const auto &values = m_editor.measurement().values;
    if (!m_editor.isReady()) {
        return {};
    }
    const int kept = Measuring::countOf(m_editor.session()->repeats);
    if (values.isEmpty()) {
        return kept > 0 ? tr("%n result(s) kept", nullptr, kept) : QString();
    }
    const auto &statistics = values.first().repeats;
    if (!statistics) {
        return {};
    }
    Measuring::Value mean = Measuring::inTableUnit(values.first());
    mean.number = statistics->mean;
    return tr("%n results: mean %1, spread %2, of the mean %3", nullptr, statistics->count)
        .arg(Measuring::textWithUncertainty(mean, Measuring::coverageFactor *
                                                      statistics->standardDeviationOfMean)
                 .section(QStringLiteral(" ±"), 0, 0),
             Measuring::uncertaintyText(mean, statistics->standardDeviation).mid(2),
             Measuring::uncertaintyText(mean, statistics->standardDeviationOfMean).mid(2));
}

bool Assessment::canMeasureAgain() const
{
    return m_editor.isReady() && !m_editor.measurement().values.isEmpty();
}

void Assessment::findEllipse()
{
    const int selected = m_editor.selectedPoint();
    QVariantList corners;
    m_pointText.clear();
    if (selected >= 0 && m_editor.isReady() && m_editor.hasModel()) {
        const Measuring::PlaceUncertainty places(*m_editor.session(), m_editor.alignmentFit());
        const QPointF pixel = m_editor.points()->at(selected);
        for (const QPointF &corner : places.ellipse(pixel)) {
            corners += corner;
        }
        if (const auto place = places.at(pixel)) {
            const MeasureUnit unit = m_editor.session()->unit;
            const bool isOnPlane = m_editor.session()->kind == Measuring::Kind::CrossSection;
            m_pointText =
                (isOnPlane ? tr("Point %1: %2 across, %3 up")
                           : tr("Point %1: %2 around, %3 along the pipe"))
                    .arg(selected + 1)
                    .arg(lengthText(place->aroundMM, unit), lengthText(place->alongMM, unit));
        }
    }
    m_ellipse = corners;
    Q_EMIT ellipseChanged();
}

// Map

QString Assessment::mapTitle() const
{
    switch (m_map) {
    case ScaleMap:
        return tr("Millimetres a pixel");
    case UncertaintyMap:
        return tr("Uncertainty of a point, mm");
    case NoMap:
        break;
    }
    return {};
}

QString Assessment::mapSource() const
{
    return m_map == NoMap ? QString() : QStringLiteral("image://map/%1").arg(m_mapNumber);
}

QVariantList Assessment::mapLegend() const
{
    QVariantList rows;
    double from = 0.0;
    for (const Measuring::MapStep &step : Measuring::mapSteps()) {
        const bool isLast = std::isinf(step.upToMM);
        rows += QVariantMap{
            {QStringLiteral("colour"), QColor(step.colour)},
            {QStringLiteral("text"), isLast ? tr("> %1").arg(from) : tr("≤ %1").arg(step.upToMM)}};
        from = step.upToMM;
    }
    return rows;
}

void Assessment::showNextMap()
{
    const bool hasMaps = m_editor.isReady() && m_editor.hasModel();
    m_map = hasMaps && m_map != UncertaintyMap ? static_cast<Map>(m_map + 1) : NoMap;
    drawMap();
}

void Assessment::drawMap()
{
    if (!m_editor.isReady() || !m_editor.hasModel()) {
        m_map = NoMap;
    }
    if (m_map != NoMap && m_mapProvider) {
        const auto quantity =
            m_map == ScaleMap ? Measuring::MapQuantity::Scale : Measuring::MapQuantity::Uncertainty;
        m_mapProvider->setPicture(
            Measuring::wallMap(*m_editor.session(), m_editor.alignmentFit(), quantity, mapWidth));
        ++m_mapNumber;
    }
    Q_EMIT mapChanged();
}

} // namespace Drevon::Zalento
