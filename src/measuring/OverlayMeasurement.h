#pragma once

#include "measuring/Export.h"
#include "measuring/Kind.h"
#include "measuring/Measurement.h"
#include "measuring/Session.h"

#include "zalento/item/ZaItem.h"
#include "zalento/pipes/ViewObject.h"

#include <QObject>
#include <QPointer>
#include <QQmlParserStatus>
#include <QString>
#include <QVariant>
#include <QVariantList>

#include <optional>

namespace Drevon::Zalento::Measuring {

/**
 * What an item measures, to bind to; `Measurement` of the QML module Drevon.Zalento.Measuring:
 *
 * @code
 * Measurement { id: measurement; overlay: item }
 * Text { text: measurement.error || measurement.note || measurement.fullText }
 * @endcode
 *
 * Every property is signalled for every kind, with each of the item's own signals and, for what
 * has none, before each frame of its window. A number that was not measured is undefined. The item
 * has to lie over its picture pixel for pixel, see sessionOf(); transforms do not matter.
 */
class ZALENTO_MEASURING_EXPORT OverlayMeasurement : public QObject, public QQmlParserStatus
{
    Q_OBJECT
    Q_INTERFACES(QQmlParserStatus)

    /** The item that is told of; none at first. */
    Q_PROPERTY(Drevon::Zalento::ZaItem *overlay READ overlay WRITE setOverlay NOTIFY overlayChanged)
    /** Of the name that the item has; NoKind for none and for a misspelt one. */
    Q_PROPERTY(Kind kind READ kind NOTIFY kindChanged)
    /** The object on view; NoObject for one that does not exist. */
    Q_PROPERTY(Object object READ object NOTIFY objectChanged)
    /** Whether there is a value, and why not. */
    Q_PROPERTY(State state READ state NOTIFY stateChanged)
    /**
     * Of a kind that is set by eye: its value was set, which writing the item's percentage (of a
     * water level) or angle does, or confirmed, which writing this property does. Another kind
     * starts anew. What is bound while the scene is made is no setting.
     */
    Q_PROPERTY(bool isSet READ isSet WRITE setIsSet NOTIFY isSetChanged)
    /** The measured number in #unit, a length or an area always metric; else undefined. */
    Q_PROPERTY(QVariant value READ value NOTIFY valueChanged)
    /** "mm", "mm²", "%" or "deg"; empty without a value. */
    Q_PROPERTY(QString unit READ unit NOTIFY unitChanged)
    /** The value as the overlay shows it, in the item's units; empty without one. */
    Q_PROPERTY(QString text READ text NOTIFY textChanged)
    /** The same with its uncertainty: "90 mm ± 4 mm". */
    Q_PROPERTY(QString fullText READ fullText NOTIFY fullTextChanged)
    /** Expanded uncertainty (k = 2) in #unit; undefined where it cannot be told. */
    Q_PROPERTY(QVariant uncertainty READ uncertainty NOTIFY uncertaintyChanged)
    /**
     * What the uncertainty comes from, the largest first: {source, standardUncertainty, share}
     * each, see BudgetRow and uncertaintySourceName().
     */
    Q_PROPERTY(QVariantList budget READ budget NOTIFY budgetChanged)
    /** What to do next where nothing is measured; else empty. */
    Q_PROPERTY(QString note READ note NOTIFY noteChanged)
    /** What the item was given wrongly, by property; else empty. See sessionOf(). */
    Q_PROPERTY(QString error READ error NOTIFY errorChanged)

public:
    /** Measuring::Kind for QML. */
    enum Kind {
        NoKind = -1,
        CrackWidth = static_cast<int>(Measuring::Kind::CrackWidth),
        PipeDimension = static_cast<int>(Measuring::Kind::PipeDimension),
        WaterLevel = static_cast<int>(Measuring::Kind::WaterLevel),
        BranchAngle = static_cast<int>(Measuring::Kind::BranchAngle),
        BendAngle = static_cast<int>(Measuring::Kind::BendAngle),
        CrossSection = static_cast<int>(Measuring::Kind::CrossSection),
    };
    Q_ENUM(Kind)

    /** ViewObject for QML. */
    enum Object {
        NoObject = -1,
        StraightPipe = static_cast<int>(ViewObject::StraightPipe),
        Lateral = static_cast<int>(ViewObject::Lateral),
        Bend = static_cast<int>(ViewObject::Bend),
        Joint = static_cast<int>(ViewObject::Joint),
    };
    Q_ENUM(Object)

    /** MeasureState for QML, and why there is nothing to measure. */
    enum State {
        Measured = static_cast<int>(MeasureState::Measured),
        NeedsPoints = static_cast<int>(MeasureState::NeedsPoints),
        NoScale = static_cast<int>(MeasureState::NoScale),
        NotSet = static_cast<int>(MeasureState::NotSet),
        Idle,   ///< there is no overlay, or it has no kind
        Faulty, ///< #error says why
    };
    Q_ENUM(State)

    /** Without an item. */
    explicit OverlayMeasurement(QObject *parent = nullptr);

    /** Reads or writes the property of this name, see there. */
    ///@{
    ZaItem *overlay() const { return m_overlay; }
    void setOverlay(ZaItem *overlay);
    Kind kind() const { return m_told.kind; }
    Object object() const { return m_told.object; }
    State state() const { return m_told.state; }
    bool isSet() const { return m_isSet; }
    void setIsSet(bool set);
    QVariant value() const { return m_told.value; }
    QString unit() const { return m_told.unit; }
    QString text() const { return m_told.text; }
    QString fullText() const { return m_told.fullText; }
    QVariant uncertainty() const { return m_told.uncertainty; }
    QVariantList budget() const { return m_told.budget; }
    QString note() const { return m_told.note; }
    QString error() const { return m_told.error; }
    ///@}

    /** Between these two, while the scene is made, nothing is measured. */
    ///@{
    void classBegin() override { m_isComplete = false; }
    void componentComplete() override;
    ///@}

Q_SIGNALS:
    /** The property of this name has changed. */
    ///@{
    void overlayChanged();
    void kindChanged();
    void objectChanged();
    void stateChanged();
    void isSetChanged();
    void valueChanged();
    void unitChanged();
    void textChanged();
    void fullTextChanged();
    void uncertaintyChanged();
    void budgetChanged();
    void noteChanged();
    void errorChanged();
    ///@}

private Q_SLOTS:
    void refresh();

private:
    // What the properties tell; a signal is sent for each that differs from what was told before.
    struct Told
    {
        Kind kind = NoKind;
        Object object = NoObject;
        State state = Idle;
        QVariant value;
        QString unit;
        QString text;
        QString fullText;
        QVariant uncertainty;
        QVariantList budget;
        QString note;
        QString error;
    };

    void follow();
    void followFrames();
    void noteSetting(Measuring::Uses use);
    Told seenNow();
    static Told objectOn(const ZaItem &item);
    static void addMeasurement(Told &told, const Measurement &measurement);
    void tell(const Told &now);

    QPointer<ZaItem> m_overlay;
    QMetaObject::Connection m_frames;
    bool m_isComplete = true; ///< also when it is made in C++
    bool m_isSet = false;
    std::optional<Session> m_measured; ///< what #m_told tells of
    Told m_told;
};

} // namespace Drevon::Zalento::Measuring
