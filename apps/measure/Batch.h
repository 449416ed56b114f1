#pragma once

#include "measure/CommandLine.h"
#include "measure/PictureList.h"

#include "measuring/Measurement.h"
#include "measuring/Session.h"

#include <QSet>
#include <QString>
#include <QStringList>
#include <QVector>

#include <optional>

namespace Drevon::Zalento::Apps {

enum class Status { Measured, NoValue, Failed };

/** What came of one picture. */
struct PictureResult
{
    QString picture; ///< its path as given
    PictureIdentity identity;
    QString kind;
    Status status = Status::Failed;
    QVector<MeasuredValue> values;
    QString message;          ///< why there is no value; else empty
    QStringList warnings;     ///< for people
    QStringList written;      ///< files
    QStringList fileProblems; ///< files that could not be read or written, beside the picture
};

/** Measures pictures one after the other, as one command line asks for. */
class Batch
{
public:
    /**
     * @param command with the calibration text filled in
     * @param session to start from for every picture; none: the one beside each
     */
    Batch(const CommandLine &command, const std::optional<Session> &session);

    PictureResult run(const PictureRequest &request);

private:
    struct Work;
    std::optional<Session> startingSession(const PictureRequest &request, Work &work) const;
    void measurePicture(const Session *start, Work &work);
    void measureSession(const Session *start, Work &work);
    bool putOnItem(const Session *start, Work &work) const;
    QString mergeSession(const Session *start, Work &work) const;
    QString takeLaserScale(Work &work) const;
    QString placePoints(const Session *start, Work &work) const;
    void writeFiles(Work &work);
    void write(const QString &path, const QByteArray &content, PictureResult &result);
    bool isFreeToWrite(const QString &path, PictureResult &result);
    void saveSessionOf(Work &work);
    QString pathInOutput(const QString &path) const;

    const CommandLine &m_command;
    std::optional<Session> m_session;
    QSet<QString> m_written; // two pictures of one name would write the same file
};

} // namespace Drevon::Zalento::Apps
