#pragma once

#include "DocumentList.h"
#include "MeasurementEditor.h"

#include <QObject>
#include <QSettings>
#include <QStringList>

namespace Drevon::Zalento {

/**
 * What is known of a camera, kept under a name: the field of view for pictures of one size.
 * Profiles are offered for the pictures of their size.
 */
class CameraProfiles : public QObject
{
    Q_OBJECT

    /** Names of the profiles for the size of the picture on view. */
    Q_PROPERTY(QStringList names READ names NOTIFY namesChanged)

public:
    CameraProfiles(DocumentList &documents, MeasurementEditor &editor, Guidance &guidance);

    QStringList names() const;

    /** Keeps the field of view of the picture on view; a profile of this name is written over. */
    Q_INVOKABLE void keep(const QString &name);
    /** Takes the profile's field of view, which is not fitted then. */
    Q_INVOKABLE void apply(const QString &name);
    Q_INVOKABLE void remove(const QString &name);

Q_SIGNALS:
    void namesChanged();

private:
    QString group() const;

    DocumentList &m_documents;
    MeasurementEditor &m_editor;
    Guidance &m_guidance;
    mutable QSettings m_settings; ///< groups are entered for reading, too
};

} // namespace Drevon::Zalento
