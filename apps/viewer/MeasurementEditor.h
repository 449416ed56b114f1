#pragma once

#include "DocumentList.h"
#include "FeatureModel.h"
#include "Guidance.h"
#include "PointModel.h"
#include "Preferences.h"

#include "measuring/Editing.h"
#include "measuring/Measurement.h"

#include <zalento/item/ZaItem.h>

#include <QObject>
#include <QPointF>
#include <QPointer>
#include <QVariantList>

#include <optional>

namespace Drevon::Zalento {

/**
 * The measurement on view, being edited.
 *
 * The truth is the session of the document on view: an operation makes a new session, which is
 * replayed on the item once, measured, and becomes one undo step when the gesture is finished.
 * Nothing is painted for it. Points and lengths are in pixels of the upright picture.
 */
class MeasurementEditor : public QObject
{
    Q_OBJECT

    /** Shows the session; as large as the picture. */
    Q_PROPERTY(Drevon::Zalento::ZaItem *item READ item WRITE setItem NOTIFY itemChanged)

    /** Name of the kind, in sessions and of the item. */
    Q_PROPERTY(QString kind READ kind NOTIFY kindChanged)
    /** The kind lays a pipe over the picture, which can be aligned. */
    Q_PROPERTY(bool hasModel READ hasModel NOTIFY hasModelChanged)
    Q_PROPERTY(bool usesDirection READ usesDirection NOTIFY kindChanged)
    Q_PROPERTY(bool usesScale READ usesScale NOTIFY kindChanged)
    Q_PROPERTY(bool closesOutline READ closesOutline NOTIFY kindChanged)

    Q_PROPERTY(QString value READ value NOTIFY valueChanged)
    Q_PROPERTY(QString secondValue READ secondValue NOTIFY secondValueChanged)
    /** False while a value that is set by eye was neither set nor confirmed. */
    Q_PROPERTY(bool isSet READ isSet NOTIFY isSetChanged)
    /** What to know about the value, such as a point that lies too far away; may be empty. */
    Q_PROPERTY(QString valueNote READ valueNote NOTIFY valueNoteChanged)
    Q_PROPERTY(bool isImperial READ isImperial NOTIFY isImperialChanged)
    Q_PROPERTY(bool hasScale READ hasScale NOTIFY hasScaleChanged)
    Q_PROPERTY(QString scaleText READ scaleText NOTIFY scaleTextChanged)

    Q_PROPERTY(Drevon::Zalento::PointModel *points READ points CONSTANT)
    Q_PROPERTY(int selectedPoint READ selectedPoint WRITE selectPoint NOTIFY selectedPointChanged)
    /** Pixels around the area in which a click closes the outline; empty while none does. */
    Q_PROPERTY(QVariantList closingEdge READ closingEdge NOTIFY closingEdgeChanged)
    Q_PROPERTY(QVariantList laserSpots READ laserSpots NOTIFY laserSpotsChanged)
    Q_PROPERTY(bool isCalibrating READ isCalibrating NOTIFY isCalibratingChanged)
    /** A drag pans the picture instead of moving the model. */
    Q_PROPERTY(bool isPanning READ isPanning WRITE setIsPanning NOTIFY isPanningChanged)

    /** What a click sets: 0 a point of the measurement, 1 of a joint, 2 of a line to align to. */
    Q_PROPERTY(int tool READ toolNumber WRITE setToolNumber NOTIFY toolChanged)
    /** The model stays where it is: a drag beside a point pans. */
    Q_PROPERTY(bool isLocked READ isLocked WRITE setIsLocked NOTIFY isLockedChanged)
    Q_PROPERTY(bool fitsFov READ fitsFov WRITE setFitsFov NOTIFY fitsFovChanged)
    /** What the fit says; empty without joints and lines. */
    Q_PROPERTY(QString fitText READ fitText NOTIFY fitTextChanged)
    Q_PROPERTY(Drevon::Zalento::FeatureModel *features READ features CONSTANT)
    /** Where joints and lines were clicked: {pixel, residual, isSuspicious, isSelected} each. */
    Q_PROPERTY(QVariantList alignmentMarks READ alignmentMarks NOTIFY alignmentMarksChanged)

    Q_PROPERTY(bool rearCircleActive READ rearCircleActive WRITE setRearCircleActive NOTIFY
                   rearCircleActiveChanged)
    Q_PROPERTY(bool viewDownstream READ viewDownstream WRITE setViewDownstream NOTIFY
                   viewDownstreamChanged)
    Q_PROPERTY(bool jointShown READ jointShown WRITE setJointShown NOTIFY jointShownChanged)
    Q_PROPERTY(int viewStyle READ viewStyle WRITE setViewStyle NOTIFY viewStyleChanged)

    Q_PROPERTY(bool canUndo READ canUndo NOTIFY canUndoChanged)
    Q_PROPERTY(bool canRedo READ canRedo NOTIFY canRedoChanged)
    Q_PROPERTY(QString undoText READ undoText NOTIFY undoTextChanged)
    Q_PROPERTY(QString redoText READ redoText NOTIFY redoTextChanged)
    Q_PROPERTY(bool isModified READ isModified NOTIFY isModifiedChanged)

public:
    MeasurementEditor(DocumentList &documents, Preferences &preferences, Guidance &guidance);

    ZaItem *item() const { return m_item; }
    void setItem(ZaItem *item);

    QString kind() const { return m_shown.kind; }
    bool hasModel() const { return m_shown.hasModel; }
    bool usesDirection() const;
    bool usesScale() const;
    bool closesOutline() const;

    QString value() const { return m_shown.value; }
    QString secondValue() const { return m_shown.secondValue; }
    bool isSet() const { return m_shown.isSet; }
    QString valueNote() const { return m_shown.valueNote; }
    bool isImperial() const { return m_shown.isImperial; }
    bool hasScale() const { return m_shown.hasScale; }
    QString scaleText() const { return m_shown.scaleText; }

    PointModel *points() { return &m_points; }
    int selectedPoint() const { return m_selectedPoint; }
    void selectPoint(int index);
    QVariantList laserSpots() const { return m_laserSpots; }
    QVariantList closingEdge() const { return m_closingEdge; }
    bool isCalibrating() const { return m_laserSpotsExpected > 0; }
    bool isPanning() const { return m_isPanning; }
    void setIsPanning(bool panning);

    int toolNumber() const { return static_cast<int>(m_tool); }
    void setToolNumber(int tool);
    bool isLocked() const { return m_isLocked; }
    void setIsLocked(bool locked);
    bool fitsFov() const { return m_shown.fitsFov; }
    void setFitsFov(bool fits);
    QString fitText() const { return m_shown.fitText; }
    FeatureModel *features() { return &m_features; }
    QVariantList alignmentMarks() const { return m_alignmentMarks; }

    bool rearCircleActive() const { return m_shown.rearCircleActive; }
    void setRearCircleActive(bool active);
    bool viewDownstream() const { return m_shown.viewDownstream; }
    void setViewDownstream(bool downstream);
    bool jointShown() const { return m_shown.jointShown; }
    void setJointShown(bool shown);
    int viewStyle() const { return m_shown.viewStyle; }
    void setViewStyle(int style);

    bool canUndo() const { return m_shown.canUndo; }
    bool canRedo() const { return m_shown.canRedo; }
    QString undoText() const { return m_shown.undoText; }
    QString redoText() const { return m_shown.redoText; }
    bool isModified() const { return m_shown.isModified; }

    /** Null without a picture. */
    const Measuring::Session *session() const;
    const Measuring::Measurement &measurement() const { return m_measurement; }
    /** Of the session's alignment, if it has clicks that fit. */
    const std::optional<Measuring::AlignmentFit> &alignmentFit() const { return m_fit; }
    /** A gesture is under way: its steps come often. */
    bool isInGesture() const { return m_gestureStart.has_value(); }

    /** @name Gestures, in picture pixels */
    /** @{ */
    Q_INVOKABLE void click(const QPointF &pixel);
    /** The same, but for a click that would close the outline: it sets a point all the same. */
    Q_INVOKABLE void clickKeepingOpen(const QPointF &pixel);
    /** Whether click() would close the outline. */
    Q_INVOKABLE bool closesAt(const QPointF &pixel) const;
    /**
     * Takes hold of the point within @p radius, else of the model.
     * @return false when there is nothing to move: the drag pans
     */
    Q_INVOKABLE bool beginDrag(const QPointF &pixel, double radius);
    Q_INVOKABLE void dragTo(const QPointF &pixel);
    Q_INVOKABLE void endDrag();
    /** Gives up the drag or pinch under way, else the calibration, else the selection. */
    Q_INVOKABLE void cancel();
    Q_INVOKABLE bool isDraggingPoint() const { return m_draggedPoint >= 0; }
    Q_INVOKABLE void beginPinch();
    /** @param turnDeg to the left, since the begin */
    Q_INVOKABLE void pinch(double turnDeg);
    Q_INVOKABLE void endPinch();
    /** Moves the selected point; steps of a held key are undone as one. */
    Q_INVOKABLE bool nudge(double dx, double dy, bool isRepeated);
    Q_INVOKABLE void startCalibration();
    /** @} */

    /** @name Steps */
    /** @{ */
    /** Measures another kind; what is measured already stays beside it. */
    Q_INVOKABLE void chooseKind(const QString &kind);
    /** The kind of this row of the list of kinds. */
    Q_INVOKABLE void chooseKindAt(int row);
    /** What is set by eye is as it is shown. */
    Q_INVOKABLE void confirm();
    /** Keeps the value as an earlier result, and takes it away. */
    Q_INVOKABLE void measureAgain();
    Q_INVOKABLE void toggleUnit();
    /** The units of the measurement on view, if there is one, and of those to come. */
    Q_INVOKABLE void useUnits(bool imperial);
    Q_INVOKABLE void undo();
    Q_INVOKABLE void redo();
    Q_INVOKABLE void dropLastPoint();
    Q_INVOKABLE void clearPoints();
    Q_INVOKABLE void resetAlignment();
    /** Fits the model to the edges of its joints that the picture shows. */
    Q_INVOKABLE void snap();
    /** Takes the alignment of the picture before this one, instead of joints and lines. */
    Q_INVOKABLE void alignAsBefore();
    Q_INVOKABLE void loadCalibration(const QString &path);
    /** @} */

    /** @name Joints and lines, by the rows of #features */
    /** @{ */
    /** Selects the click within @p radius, to be nudged or dropped; false when there is none. */
    Q_INVOKABLE bool selectAlignmentClick(const QPointF &pixel, double radius);
    /** The next click of the tool begins another joint or line. */
    Q_INVOKABLE void beginFeature();
    Q_INVOKABLE void removeFeature(int row);
    /** @return what is wrong with the distance; empty when it was taken */
    Q_INVOKABLE QString setFeatureDistance(int row, const QString &mm);
    /** @} */

    /** Makes a session with another measurement at hand, or another name, the one on view. */
    void changeMeasurement(const QString &name, const Measuring::Session &session);

    /** Whether points have to be looked up anew. */
    enum class Moves { Nothing, Model };

    /** Makes @p session the one on view, as one undo step. */
    void change(const QString &name, const Measuring::Session &session, Moves moves,
                int mergeNumber = -1);
    /** The same while a gesture lasts; finishGesture() makes the step. */
    void preview(Measuring::Session session, Moves moves);
    void finishGesture(const QString &name, int mergeNumber = -1);

    /** A picture and its session are on view. */
    bool isReady() const { return m_item && m_documents.hasPicture() && session(); }

    /** To be called when the document on view was saved. */
    void noteSaved() { refresh(); }

    /** To be called when the language has changed. */
    void retranslate() { showCurrent(); }

Q_SIGNALS:
    void itemChanged();
    /** Another session is on view: everything that was read of it may be different. */
    void sessionChanged();
    /** The values or their uncertainties were found anew. */
    void measurementChanged();
    void kindChanged();
    void hasModelChanged();
    void valueChanged();
    void secondValueChanged();
    void isSetChanged();
    void valueNoteChanged();
    void isImperialChanged();
    void hasScaleChanged();
    void scaleTextChanged();
    void selectedPointChanged();
    void laserSpotsChanged();
    void closingEdgeChanged();
    void isCalibratingChanged();
    void isPanningChanged();
    void toolChanged();
    void isLockedChanged();
    void fitsFovChanged();
    void fitTextChanged();
    void alignmentMarksChanged();
    void rearCircleActiveChanged();
    void viewDownstreamChanged();
    void jointShownChanged();
    void viewStyleChanged();
    void canUndoChanged();
    void canRedoChanged();
    void undoTextChanged();
    void redoTextChanged();
    void isModifiedChanged();

private:
    // What the properties tell; a signal is sent for each that differs from what was told before.
    struct Shown
    {
        QString kind = Measuring::infoOf(Measuring::Session().kind).nameText();
        bool hasModel = false;
        QString value;
        QString secondValue;
        bool isSet = true;
        QString valueNote;
        bool isImperial = false;
        bool hasScale = false;
        QString scaleText;
        bool fitsFov = false;
        QString fitText;
        bool rearCircleActive = false;
        bool viewDownstream = true;
        bool jointShown = false;
        int viewStyle = 2;
        bool canUndo = false;
        bool canRedo = false;
        QString undoText;
        QString redoText;
        bool isModified = false;
    };

    void show(Measuring::Session session);
    void assess(Measuring::UncertaintyEffort effort);
    void refresh();
    Shown shownNow() const;
    void tell(const Shown &now);
    void showPoints();
    void showClosingEdge();
    void showGuidance();
    Measuring::Session sessionCopy() const;

    void showCurrent();
    void showDisplay();
    void leaveCurrent();
    void takeItemDiameter();
    void fit(Measuring::Session &session);
    void tellHeldModel(const Measuring::Session &asked);
    void goOnWithLastFeature();
    int featureCount() const;
    void showAlignmentClicks();
    void addAlignmentClick(const QPointF &pixel);
    void dropAlignmentClick();
    int nearestAlignmentClick(const QPointF &pixel, double radius) const;
    static QVector<QPointF *> alignmentClicksOf(Measuring::Session &session);
    bool nudgeAlignmentClick(const QPointF &step);
    bool beginModelDrag(const QPointF &pixel, double radius);
    // How a click becomes a point of the session.
    using SetPoint = Measuring::ClickResult (*)(Measuring::Session &, const QPointF &);
    void clickWith(SetPoint setPoint, const QPointF &pixel);
    void setPointWith(SetPoint setPoint, const QPointF &pixel);
    void setWaterLineAt(const QPointF &pixel);
    void addLaserSpot(const QPointF &pixel);
    void expectLaserSpots(int count, const QVariantList &spots);

    DocumentList &m_documents;
    Preferences &m_preferences;
    Guidance &m_guidance;
    QPointer<ZaItem> m_item;
    Measuring::Measurement m_measurement;
    Shown m_shown;
    PointModel m_points;
    int m_selectedPoint = -1;

    Tool m_tool = Tool::Measure;
    int m_clickedFeature = 0; ///< among the tool's joints or lines; their number: a new one
    bool m_isLocked = false;
    FeatureModel m_features;
    QVariantList m_alignmentMarks;
    std::optional<Measuring::AlignmentFit> m_fit;
    QString m_fitProblem; ///< of the last fit; empty when it went well, or there was none

    std::optional<Measuring::Session> m_gestureStart;
    double m_rimStart = 0.0;  ///< distance of the grip from the mouth's centre; 0 inside of it
    int m_draggedClick = -1;  ///< of a joint or a line
    int m_selectedClick = -1; ///< the one set or moved last
    QPointF m_dragStart;
    QPointF m_dragAnchor;
    int m_draggedPoint = -1;
    int m_laserSpotsExpected = 0;
    QVariantList m_laserSpots;
    QVariantList m_closingEdge;
    bool m_isPanning = false;
    int m_nudgeNumber = 0;
};

} // namespace Drevon::Zalento
