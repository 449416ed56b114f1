#pragma once

#include "measure/CommandLine.h"
#include "measure/PictureList.h"

#include "measuring/OutputFile.h"
#include "measuring/Result.h"
#include "measuring/Session.h"
#include "measuring/ValueTable.h"

#include <QSet>
#include <QString>
#include <QStringList>
#include <QVector>

#include <optional>

namespace Drevon::Zalento::Apps {

/** What came of one picture. */
struct PictureResult
{
    PictureValues values;
    QStringList warnings;     ///< for people
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
    Result<std::optional<Session>> startingSession(const PictureRequest &request, Work &work) const;
    Outcome measurePicture(const Session *start, Work &work);
    Outcome measureSession(const Session *start, Work &work);
    Outcome mergeSession(const Session *start, Work &work) const;
    Outcome fitToClicks(Work &work) const;
    Outcome fitAlignment(const Session *start, Work &work) const;
    void snap(Work &work) const;
    Outcome takeLaserScale(Work &work) const;
    Outcome placeClicks(Work &work) const;
    Outcome takeWaterLevel(Work &work) const;
    void tellValues(Work &work) const;
    void writeFiles(Work &work);
    void writeMap(Work &work);
    Outcome unroll(Work &work);
    void write(const QString &path, const QByteArray &content, PictureResult &result);
    void note(const Outcome &problem, const QString &path, PictureResult &result) const;
    bool isFreeToWrite(const QString &path, PictureResult &result);
    void saveSessionOf(Work &work);
    QString pathInOutput(const QString &path) const;
    Overwrite overwrite() const;

    const CommandLine &m_command;
    std::optional<Session> m_session;
    QSet<QString> m_written; // two pictures of one name would write the same file
};

} // namespace Drevon::Zalento::Apps
