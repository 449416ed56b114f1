#pragma once

#include "DocumentList.h"
#include "MeasurementEditor.h"
#include "MeasurementModel.h"
#include "PipeRecord.h"
#include "ReportJob.h"

#include <QObject>
#include <QString>

namespace Drevon::Zalento {

/** Saves measurements, and writes overlays and values for others. */
class Exporter : public QObject
{
    Q_OBJECT

public:
    Exporter(DocumentList &documents, MeasurementEditor &editor,
             const MeasurementModel &measurements, const PipeRecords &records, Guidance &guidance);

    /** Saves beside the picture; sends confirmationNeeded() first where something may be lost. */
    Q_INVOKABLE bool save();
    /** Saves whatever was to be confirmed. */
    Q_INVOKABLE bool saveAnyway();
    /** Saves every modified session; stops at the first that needs a confirmation or fails. */
    Q_INVOKABLE bool saveAll();
    /** Suggested file: "png", "svg" of the overlay; "csv", "json" of the values of every picture
     * that is open, "pdf" of the report on them; "session". */
    Q_INVOKABLE QString suggestedPath(const QString &what) const;
    /** Writes what suggestedPath() names, over what is there; confirm that first. */
    Q_INVOKABLE bool exportTo(const QString &what, const QString &path);
    Q_INVOKABLE bool exists(const QString &path) const;
    Q_INVOKABLE void copyValue();

Q_SIGNALS:
    /** Saving would lose what @p question names; saveAnyway() does it all the same. */
    void confirmationNeeded(const QString &question);

private:
    bool saveAs(const QString &path);
    QString saveQuestion(const Document &document) const;
    bool write(Document &document);
    bool exportWall(const QString &path);
    bool exportReport(const QString &path);
    QByteArray exported(const QString &what) const;
    bool report(const Measuring::Outcome &problem, const QString &done);

    DocumentList &m_documents;
    MeasurementEditor &m_editor;
    const MeasurementModel &m_measurements;
    const PipeRecords &m_records;
    Guidance &m_guidance;
    ReportJob m_reportJob;
};

} // namespace Drevon::Zalento
