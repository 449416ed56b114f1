#include "measuring/OverlayMeasurement.h"

#include "measuring/ItemSession.h"

#include <QMetaMethod>
#include <QMetaProperty>
#include <QQuickWindow>

#include <utility>

namespace Drevon::Zalento::Measuring {

namespace {

// A level is set by its percentage, an angle by itself.
Uses setterOf(const KindInfo &info)
{
    return info.has(Uses::Angle) ? Uses::Angle : Uses::Percentage;
}

QVariantList rowsOf(const QVector<BudgetRow> &budget)
{
    QVariantList rows;
    for (const BudgetRow &row : budget) {
        rows.append(QVariantMap{{QStringLiteral("source"), uncertaintySourceName(row.source)},
                                {QStringLiteral("standardUncertainty"), row.standardUncertainty},
                                {QStringLiteral("share"), row.share}});
    }
    return rows;
}

// Uncertainties are told in pixels, which an item without a size does not have.
Measurement measurementOf(const Session &session)
{
    return session.picture.size.isEmpty()
               ? measure(session)
               : measureWithUncertainty(session, {}, UncertaintyEffort::FirstOrder);
}

} // namespace

OverlayMeasurement::OverlayMeasurement(QObject *parent)
    : QObject(parent)
{}

void OverlayMeasurement::setOverlay(ZaItem *overlay)
{
    if (overlay == m_overlay) {
        return;
    }
    if (m_overlay) {
        m_overlay->disconnect(this);
        disconnect(m_frames);
    }
    m_overlay = overlay;
    if (m_isComplete) {
        follow();
    }
    Q_EMIT overlayChanged();
}

void OverlayMeasurement::componentComplete()
{
    m_isComplete = true;
    follow();
}

void OverlayMeasurement::setIsSet(bool set)
{
    if (set != m_isSet) {
        m_isSet = set;
        Q_EMIT isSetChanged();
        refresh();
    }
}

// Following the item

void OverlayMeasurement::follow()
{
    if (m_overlay) {
        connect(m_overlay, &ZaItem::iWantToMeasureChanged, this, [this] { setIsSet(false); });
        connect(m_overlay, &ZaItem::percentageChanged, this,
                [this] { noteSetting(Uses::Percentage); });
        connect(m_overlay, &ZaItem::angleChanged, this, [this] { noteSetting(Uses::Angle); });
        connect(m_overlay, &QQuickItem::windowChanged, this, &OverlayMeasurement::followFrames);
        connect(m_overlay, &QObject::destroyed, this, &OverlayMeasurement::refresh);
        const QMetaObject &own = staticMetaObject;
        const QMetaMethod slot = own.method(own.indexOfSlot("refresh()"));
        const QMetaObject &item = ZaItem::staticMetaObject;
        for (int i = item.propertyOffset(); i < item.propertyCount(); ++i) {
            if (item.property(i).hasNotifySignal()) {
                connect(m_overlay, item.property(i).notifySignal(), this, slot);
            }
        }
        followFrames();
    }
    refresh();
}

// Whatever changes on the item asks for a frame: clicks, drags and the scale, too.
void OverlayMeasurement::followFrames()
{
    disconnect(m_frames);
    if (const QQuickWindow *window = m_overlay->window()) {
        m_frames =
            connect(window, &QQuickWindow::afterAnimating, this, &OverlayMeasurement::refresh);
    }
}

void OverlayMeasurement::noteSetting(Uses use)
{
    const auto kind = kindNamed(m_overlay->iWantToMeasure());
    if (kind && infoOf(*kind).has(Uses::SetByEye) && setterOf(infoOf(*kind)) == use) {
        setIsSet(true);
    }
}

// Telling

void OverlayMeasurement::refresh()
{
    if (m_isComplete) {
        tell(seenNow());
    }
}

OverlayMeasurement::Told OverlayMeasurement::seenNow()
{
    const std::optional<Session> before = std::exchange(m_measured, std::nullopt);
    if (!m_overlay) {
        return {};
    }
    Told told = objectOn(*m_overlay);
    if (m_overlay->iWantToMeasure().isEmpty()) {
        return told;
    }
    Result<Session> session = sessionOf(*m_overlay);
    if (!session) {
        told.state = Faulty;
        told.error = session.problem().text();
        return told;
    }
    session->isSet = m_isSet;
    m_measured = *session;
    if (m_measured == before) {
        return m_told;
    }
    addMeasurement(told, measurementOf(*session));
    return told;
}

OverlayMeasurement::Told OverlayMeasurement::objectOn(const ZaItem &item)
{
    Told told;
    const auto kind = kindNamed(item.iWantToMeasure());
    told.kind = kind ? static_cast<Kind>(*kind) : NoKind;
    const int object = item.viewObject();
    told.object =
        object >= StraightPipe && object <= Joint ? static_cast<Object>(object) : NoObject;
    return told;
}

void OverlayMeasurement::addMeasurement(Told &told, const Measurement &measurement)
{
    told.state = static_cast<State>(measurement.state);
    told.note = measurement.note;
    if (measurement.values.isEmpty()) {
        return;
    }
    const Value &value = measurement.values.first();
    told.value = value.number;
    told.unit = value.unit;
    told.text = value.text;
    told.fullText = value.fullText();
    if (value.uncertainty) {
        told.uncertainty = value.uncertainty->expanded();
        told.budget = rowsOf(value.uncertainty->budget);
    }
}

void OverlayMeasurement::tell(const Told &now)
{
    const Told before = m_told;
    m_told = now;
    const auto tellOf = [&](auto member, auto signal) {
        if (before.*member != now.*member) {
            Q_EMIT(this->*signal)();
        }
    };
    tellOf(&Told::kind, &OverlayMeasurement::kindChanged);
    tellOf(&Told::object, &OverlayMeasurement::objectChanged);
    tellOf(&Told::state, &OverlayMeasurement::stateChanged);
    tellOf(&Told::value, &OverlayMeasurement::valueChanged);
    tellOf(&Told::unit, &OverlayMeasurement::unitChanged);
    tellOf(&Told::text, &OverlayMeasurement::textChanged);
    tellOf(&Told::fullText, &OverlayMeasurement::fullTextChanged);
    tellOf(&Told::uncertainty, &OverlayMeasurement::uncertaintyChanged);
    tellOf(&Told::budget, &OverlayMeasurement::budgetChanged);
    tellOf(&Told::note, &OverlayMeasurement::noteChanged);
    tellOf(&Told::error, &OverlayMeasurement::errorChanged);
}

} // namespace Drevon::Zalento::Measuring
