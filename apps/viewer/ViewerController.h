#pragma once

#include "Document.h"
#include "FieldCatalogue.h"
#include "PictureProvider.h"
#include "ViewerStore.h"

#include "measuring/OutputFile.h"
#include "measuring/Picture.h"

#include <zalento/item/ZaItem.h>

#include <QImage>
#include <QObject>
#include <QPointF>
#include <QPointer>
#include <QSize>
#include <QStringList>
#include <QUrl>
#include <QVariantList>
#include <QVariantMap>

#include <memory>
#include <optional>
#include <vector>

namespace Drevon::Zalento {

/**
 * What the viewer knows and does; the QML files show it and call it.
 *
 * The truth is the session of the picture on view: an operation makes a new session, which is put
 * on the item, measured, and becomes one undo step when the gesture is finished. Points and
 * lengths are in pixels of the upright picture. After every change #revision grows and changed()
 * is sent; bindings on invokables go by #revision.
 */
class ViewerController : public QObject
{
    Q_OBJECT

    Q_PROPERTY(Drevon::Zalento::ZaItem *item READ item WRITE setItem NOTIFY changed)
    Q_PROPERTY(int revision READ revision NOTIFY changed)

    Q_PROPERTY(bool hasPicture READ hasPicture NOTIFY pictureChanged)
    Q_PROPERTY(QImage picture READ picture NOTIFY pictureChanged)
    Q_PROPERTY(QSize pictureSize READ pictureSize NOTIFY pictureChanged)
    Q_PROPERTY(QString pictureSource READ pictureSource NOTIFY pictureChanged)
    Q_PROPERTY(QString pictureName READ pictureName NOTIFY pictureChanged)
    Q_PROPERTY(QString pictureProblem READ pictureProblem NOTIFY pictureChanged)
    Q_PROPERTY(int pictureIndex READ pictureIndex NOTIFY pictureChanged)
    Q_PROPERTY(int pictureCount READ pictureCount NOTIFY pictureChanged)

    Q_PROPERTY(QVariantList kinds READ kinds CONSTANT)
    Q_PROPERTY(QString kind READ kind NOTIFY changed)
    Q_PROPERTY(QStringList kindFields READ kindFields NOTIFY fieldsChanged)
    Q_PROPERTY(QStringList alignmentFields READ alignmentFields NOTIFY fieldsChanged)
    Q_PROPERTY(bool hasModel READ hasModel NOTIFY changed)

    Q_PROPERTY(QString value READ value NOTIFY changed)
    Q_PROPERTY(QString secondValue READ secondValue NOTIFY changed)
    Q_PROPERTY(bool isImperial READ isImperial NOTIFY changed)
    Q_PROPERTY(QString scaleText READ scaleText NOTIFY changed)
    Q_PROPERTY(bool hasScale READ hasScale NOTIFY changed)

    /** What the next click does, or what just went wrong. */
    Q_PROPERTY(QString status READ status NOTIFY changed)
    /** 0 information, 1 warning, 2 error. */
    Q_PROPERTY(int statusLevel READ statusLevel NOTIFY changed)

    Q_PROPERTY(QVariantList points READ points NOTIFY changed)
    Q_PROPERTY(int selectedPoint READ selectedPoint WRITE selectPoint NOTIFY changed)
    Q_PROPERTY(QVariantList laserSpots READ laserSpots NOTIFY changed)
    Q_PROPERTY(bool isCalibrating READ isCalibrating NOTIFY changed)
    Q_PROPERTY(bool isPanning READ isPanning WRITE setIsPanning NOTIFY changed)

    Q_PROPERTY(bool rearCircleActive READ rearCircleActive WRITE setRearCircleActive NOTIFY changed)
    Q_PROPERTY(bool viewDownstream READ viewDownstream WRITE setViewDownstream NOTIFY changed)
    Q_PROPERTY(bool jointShown READ jointShown WRITE setJointShown NOTIFY changed)
    Q_PROPERTY(int viewStyle READ viewStyle WRITE setViewStyle NOTIFY changed)

    Q_PROPERTY(bool canUndo READ canUndo NOTIFY changed)
    Q_PROPERTY(bool canRedo READ canRedo NOTIFY changed)
    Q_PROPERTY(QString undoText READ undoText NOTIFY changed)
    Q_PROPERTY(QString redoText READ redoText NOTIFY changed)
    Q_PROPERTY(bool isModified READ isModified NOTIFY changed)
    Q_PROPERTY(int unsavedCount READ unsavedCount NOTIFY changed)

    Q_PROPERTY(QStringList recentFiles READ recentFiles NOTIFY recentFilesChanged)
    Q_PROPERTY(QSize windowSize READ windowSize WRITE setWindowSize NOTIFY windowSizeChanged)

public:
    explicit ViewerController(QObject *parent = nullptr);
    ~ViewerController() override;

    /** Hands the picture to the scene; the engine owns it. */
    void setPictureProvider(PictureProvider *provider) { m_provider = provider; }

    ZaItem *item() const { return m_item; }
    void setItem(ZaItem *item);
    int revision() const { return m_revision; }

    bool hasPicture() const { return m_picture.has_value(); }
    QImage picture() const { return m_picture ? m_picture->image : QImage(); }
    QSize pictureSize() const { return picture().size(); }
    QString pictureSource() const;
    QString pictureName() const;
    QString pictureProblem() const;
    int pictureIndex() const { return m_index; }
    int pictureCount() const { return static_cast<int>(m_documents.size()); }

    QVariantList kinds() const;
    QString kind() const;
    QStringList kindFields() const;
    QStringList alignmentFields() const;
    bool hasModel() const;

    QString value() const;
    QString secondValue() const;
    bool isImperial() const;
    QString scaleText() const;
    bool hasScale() const;
    QString status() const;
    int statusLevel() const;

    QVariantList points() const;
    int selectedPoint() const { return m_selectedPoint; }
    void selectPoint(int index);
    QVariantList laserSpots() const { return m_laserSpots; }
    bool isCalibrating() const { return m_laserSpotsExpected > 0; }
    bool isPanning() const { return m_isPanning; }
    void setIsPanning(bool panning);

    bool rearCircleActive() const;
    void setRearCircleActive(bool active);
    bool viewDownstream() const;
    void setViewDownstream(bool downstream);
    bool jointShown() const;
    void setJointShown(bool shown);
    int viewStyle() const;
    void setViewStyle(int style);

    bool canUndo() const;
    bool canRedo() const;
    QString undoText() const;
    QString redoText() const;
    bool isModified() const;
    int unsavedCount() const;

    QStringList recentFiles() const { return m_store.recentFiles(); }
    QSize windowSize() const { return m_store.windowSize(); }
    void setWindowSize(const QSize &size);

    /** The session of the picture on view; nothing without a picture. */
    const Measuring::Session *session() const;
    const Measuring::Measurement *measurement() const;

    /** @name Pictures and files */
    /** @{ */
    /** Opens pictures, session files, and the pictures in folders; shows the first of them. */
    Q_INVOKABLE void openPaths(const QStringList &paths);
    Q_INVOKABLE void openUrls(const QList<QUrl> &urls);
    Q_INVOKABLE void showPicture(int index);
    Q_INVOKABLE void nextPicture() { showPicture(m_index + 1); }
    Q_INVOKABLE void previousPicture() { showPicture(m_index - 1); }
    Q_INVOKABLE QString startFolder() const { return m_store.folder(); }
    /** Saves beside the picture; sends confirmationNeeded() first where something may be lost. */
    Q_INVOKABLE bool save();
    /** Saves to @p path, over what is there; the session is saved there from then on. */
    Q_INVOKABLE bool saveAs(const QString &path);
    /** Saves whatever was to be confirmed. */
    Q_INVOKABLE bool saveAnyway();
    /** Saves every modified session; stops at the first that needs a confirmation or fails. */
    Q_INVOKABLE bool saveAll();
    /** Suggested file: "png", "svg" of the overlay; "csv", "json" of the values; "session". */
    Q_INVOKABLE QString suggestedPath(const QString &what) const;
    /** Writes what suggestedPath() names, over what is there; confirm that first. */
    Q_INVOKABLE bool exportTo(const QString &what, const QString &path);
    Q_INVOKABLE bool exists(const QString &path) const;
    Q_INVOKABLE void copyValue();
    /** @return what is wrong with the record; empty when it was taken */
    Q_INVOKABLE QString takeRecord(const QString &nominalSize, const QString &unit);
    Q_INVOKABLE QString loadRecord(const QString &path);
    Q_INVOKABLE void loadCalibration(const QString &path);
    /** @} */

    /** @name Gestures */
    /** @{ */
    Q_INVOKABLE void click(const QPointF &pixel);
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
    /** @param turnDeg to the left, since the begin; @param scale of the picture on the stage */
    Q_INVOKABLE void pinch(double turnDeg, double scale);
    Q_INVOKABLE void endPinch();
    /** Moves the selected point; steps of a held key are undone as one. */
    Q_INVOKABLE bool nudge(double dx, double dy, bool isRepeated);
    Q_INVOKABLE void startCalibration();
    /** @} */

    /** @name Steps */
    /** @{ */
    Q_INVOKABLE void chooseKind(const QString &kind);
    Q_INVOKABLE void chooseKindNumber(int number);
    Q_INVOKABLE void toggleUnit();
    Q_INVOKABLE void undo();
    Q_INVOKABLE void redo();
    Q_INVOKABLE void dropLastPoint();
    Q_INVOKABLE void clearPoints();
    Q_INVOKABLE void resetAlignment();
    /** @} */

    /** @name Fields, by the names of FieldCatalogue */
    /** @{ */
    Q_INVOKABLE QVariantMap fieldInfo(const QString &name) const;
    Q_INVOKABLE QString fieldText(const QString &name) const;
    Q_INVOKABLE double fieldValue(const QString &name) const;
    /** @return what is wrong with the text; empty when it was taken */
    Q_INVOKABLE QString commitField(const QString &name, const QString &text);
    Q_INVOKABLE void stepField(const QString &name, int count);
    /** A slider under way; endFieldDrag() makes it one step. */
    Q_INVOKABLE void dragField(const QString &name, double value);
    Q_INVOKABLE void endFieldDrag();
    /** @} */

    Q_INVOKABLE void focusStage() { Q_EMIT stageFocusRequested(); }

Q_SIGNALS:
    void changed();
    void pictureChanged();
    void fieldsChanged();
    void recentFilesChanged();
    void windowSizeChanged();
    void stageFocusRequested();
    /** Saving would lose what @p question names; saveAnyway() does it all the same. */
    void confirmationNeeded(const QString &question);

private:
    enum class Level { Information, Warning, Error };

    Document *current() const;
    bool isReady() const;
    Measuring::Session sessionCopy() const;
    Measuring::Session newSession() const;

    void show(const Measuring::Session &session);
    void notifyChanged();
    void pickPointsAnew();
    void preview(const Measuring::Session &session, bool movesModel);
    void finishGesture(const QString &name, int mergeNumber = -1);
    void change(const QString &name, const Measuring::Session &session, bool movesModel,
                int mergeNumber = -1);
    void takeItemDiameter();
    void notice(Level level, const QString &text);

    void appendPath(const QString &path, int &firstShown);
    int indexOf(const QString &picturePath) const;
    void leavePicture();
    void loadPictureOf(Document &document);
    void loadSidecar(Document &document);
    void warnOfOtherPicture(Document &document, Measuring::Session &session);
    QString saveQuestion(const Document &document) const;
    bool write(Document &document);
    bool report(const QString &problem, const QString &done);
    QByteArray exported(const QString &what);

    void setPointAt(const QPointF &pixel);
    void setWaterLineAt(const QPointF &pixel);
    void addLaserSpot(const QPointF &pixel);
    int pointNear(const QPointF &pixel, double radius) const;
    bool isClosedPolygon() const;
    Field field(const QString &name) const;
    static bool movesModel(const QString &fieldName);

    ViewerStore m_store;
    PictureProvider *m_provider = nullptr;
    QPointer<ZaItem> m_item;
    std::vector<std::unique_ptr<Document>> m_documents;
    int m_index = -1;
    std::optional<Measuring::Picture> m_picture;
    int m_pictureNumber = 0;
    int m_revision = 0;

    std::optional<Measuring::Session> m_gestureStart;
    QPointF m_dragStart;
    QPointF m_dragAnchor;
    int m_draggedPoint = -1;
    int m_selectedPoint = -1;
    int m_laserSpotsExpected = 0;
    QVariantList m_laserSpots;
    bool m_isPanning = false;
    int m_nudgeNumber = 0;
    QStringList m_shownFields;

    QString m_notice;
    Level m_noticeLevel = Level::Information;
};

} // namespace Drevon::Zalento
