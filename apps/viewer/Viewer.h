#pragma once

#include "Assessment.h"
#include "CameraProfiles.h"
#include "DocumentList.h"
#include "Exporter.h"
#include "FieldModel.h"
#include "FilmBrowser.h"
#include "FlatWall.h"
#include "Guidance.h"
#include "KindModel.h"
#include "MeasurementEditor.h"
#include "MeasurementModel.h"
#include "PipeRecord.h"
#include "Preferences.h"
#include "Thumbnails.h"

#include <QObject>
#include <QUrl>

namespace Drevon::Zalento {

/** The parts of the viewer, each with a job of its own; the scene knows it as "Viewer". */
class Viewer : public QObject
{
    Q_OBJECT

    Q_PROPERTY(Drevon::Zalento::Preferences *preferences READ preferences CONSTANT)
    Q_PROPERTY(Drevon::Zalento::Guidance *guidance READ guidance CONSTANT)
    Q_PROPERTY(Drevon::Zalento::DocumentList *documents READ documents CONSTANT)
    Q_PROPERTY(Drevon::Zalento::MeasurementEditor *editor READ editor CONSTANT)
    Q_PROPERTY(Drevon::Zalento::MeasurementModel *measurements READ measurements CONSTANT)
    Q_PROPERTY(Drevon::Zalento::Assessment *assessment READ assessment CONSTANT)
    Q_PROPERTY(Drevon::Zalento::FilmBrowser *film READ film CONSTANT)
    Q_PROPERTY(Drevon::Zalento::FlatWall *wall READ wall CONSTANT)
    Q_PROPERTY(Drevon::Zalento::KindModel *kinds READ kinds CONSTANT)
    Q_PROPERTY(Drevon::Zalento::FieldModel *kindFields READ kindFields CONSTANT)
    Q_PROPERTY(Drevon::Zalento::FieldModel *alignmentFields READ alignmentFields CONSTANT)
    Q_PROPERTY(Drevon::Zalento::CameraProfiles *cameras READ cameras CONSTANT)
    Q_PROPERTY(Drevon::Zalento::Exporter *exporter READ exporter CONSTANT)
    Q_PROPERTY(Drevon::Zalento::PipeRecords *records READ records CONSTANT)
    /** The platform has a file dialog of its own. */
    Q_PROPERTY(bool hasPlatformDialogs READ hasPlatformDialogs CONSTANT)

public:
    Viewer();

    Preferences *preferences() { return &m_preferences; }
    Guidance *guidance() { return &m_guidance; }
    DocumentList *documents() { return &m_documents; }
    MeasurementEditor *editor() { return &m_editor; }
    MeasurementModel *measurements() { return &m_measurements; }
    Assessment *assessment() { return &m_assessment; }
    FilmBrowser *film() { return &m_film; }
    FlatWall *wall() { return &m_wall; }
    KindModel *kinds() { return &m_kinds; }
    FieldModel *kindFields() { return &m_kindFields; }
    FieldModel *alignmentFields() { return &m_alignmentFields; }
    CameraProfiles *cameras() { return &m_cameras; }
    Exporter *exporter() { return &m_exporter; }
    PipeRecords *records() { return &m_records; }
    Thumbnails &thumbnails() { return m_thumbnails; }

    bool hasPlatformDialogs() const;

    /** Says everything again, after the language has changed. */
    void retranslate();

    Q_INVOKABLE QUrl urlOf(const QString &path) const { return QUrl::fromLocalFile(path); }
    Q_INVOKABLE QString pathOf(const QUrl &url) const { return url.toLocalFile(); }

    /** Gives the keys back to the picture, and with it commits what was typed. */
    Q_INVOKABLE void focusStage() { Q_EMIT stageFocusRequested(); }

Q_SIGNALS:
    void stageFocusRequested();

private:
    Preferences m_preferences;
    Guidance m_guidance;
    DocumentList m_documents{m_preferences, m_guidance};
    Thumbnails m_thumbnails;
    MeasurementEditor m_editor{m_documents, m_preferences, m_guidance};
    MeasurementModel m_measurements{m_documents, m_editor};
    Assessment m_assessment{m_editor};
    FilmBrowser m_film{m_documents, m_preferences, m_guidance};
    FlatWall m_wall{m_documents, m_editor};
    KindModel m_kinds;
    FieldModel m_kindFields;
    FieldModel m_alignmentFields;
    CameraProfiles m_cameras{m_documents, m_editor, m_guidance};
    PipeRecords m_records{m_guidance};
    Exporter m_exporter{m_documents, m_editor, m_measurements, m_records, m_guidance};
};

} // namespace Drevon::Zalento
