#pragma once

#include "DocumentList.h"
#include "MeasurementEditor.h"

#include <QObject>
#include <QSettings>
#include <QStringList>

namespace Drevon::Zalento {

/**
 * What is known of a camera, kept under a name: the field of view for pictures of one size, or its
 * lens. Profiles are offered for the pictures of their size.
 */
class CameraProfiles : public QObject
{
    Q_OBJECT

    /** Names of the profiles for the size of the picture on view. */
    Q_PROPERTY(QStringList names READ names NOTIFY namesChanged)
    /** Of the lens that was taken out of the picture on view; empty for none. */
    Q_PROPERTY(QString lensName READ lensName NOTIFY lensChanged)
    /** All that the camera saw is shown, and not the largest square without black corners. */
    Q_PROPERTY(bool showsAll READ showsAll WRITE setShowsAll NOTIFY lensChanged)

public:
    CameraProfiles(DocumentList &documents, MeasurementEditor &editor, Guidance &guidance);

    QStringList names() const;

    QString lensName() const;
    bool showsAll() const;
    void setShowsAll(bool all);

    /** Whether the profile of this name has a lens. */
    Q_INVOKABLE bool hasLens(const QString &name) const;
    /** Takes a lens from a file of OpenCV's form out of the picture. */
    Q_INVOKABLE void loadLens(const QString &path);
    /** Takes the lens that the clicked joints tell. */
    Q_INVOKABLE void estimateLens();
    /** The picture as it was taken. */
    Q_INVOKABLE void removeLens();

    /** Keeps what is known of the camera; a profile of this name is written over. */
    Q_INVOKABLE void keep(const QString &name);
    /** Takes the profile's lens, or its field of view, which is not fitted then. */
    Q_INVOKABLE void apply(const QString &name);
    Q_INVOKABLE void remove(const QString &name);

Q_SIGNALS:
    void namesChanged();
    void lensChanged();

private:
    QString group() const;
    QVariant kept(const QString &name) const;
    bool takeLens(const QString &step, const std::optional<Measuring::Lens> &lens);
    void takeFov(const QString &name, double fovYDEG);

    DocumentList &m_documents;
    MeasurementEditor &m_editor;
    Guidance &m_guidance;
    mutable QSettings m_settings; ///< groups are entered for reading, too
};

} // namespace Drevon::Zalento
