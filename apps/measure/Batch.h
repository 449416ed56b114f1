#pragma once

#include "measure/CommandLine.h"
#include "measure/OrderedJobs.h"
#include "measure/PictureList.h"

#include "measuring/OutputFile.h"
#include "measuring/Result.h"
#include "measuring/Session.h"
#include "measuring/ValueTable.h"

#include <QSet>
#include <QString>
#include <QStringList>
#include <QVector>

#include <memory>
#include <optional>

namespace Drevon::Zalento::Apps {

/** What came of one picture. */
struct PictureResult
{
    PictureValues values;                ///< of the measurement at hand
    QVector<PictureValues> valuesBefore; ///< of the session's others, where they are asked for
    QVector<PictureValues> valuesBehind;
    std::optional<Session> session; ///< nothing where it could not be measured
    QStringList warnings;           ///< for people
    QVector<Problem> fileProblems;  ///< files that could not be read or written, beside the picture

    /** Of every measurement that was asked for, in the session's order. */
    QVector<PictureValues> all() const
    {
        return valuesBefore + QVector<PictureValues>{values} + valuesBehind;
    }
};

/**
 * Measures pictures as one command line asks for. What takes time is done for several at the same
 * time, and what one picture can take from another in their order: the same comes of it as one
 * after the other.
 */
class Batch
{
public:
    /** What is under way with one picture. */
    struct Work;

    /**
     * @param command with the calibration text filled in
     * @param session to start from for every picture; none: the one beside each
     * @param jobs which call measure()
     */
    Batch(const CommandLine &command, const std::optional<Session> &session, OrderedJobs &jobs);

    /** Reads a picture, measures on it and draws what is to be written. In any thread. */
    std::shared_ptr<Work> measure(const PictureRequest &request) const;

    /** Writes the files. In the order of the pictures, on the thread that runs the jobs. */
    PictureResult finish(std::shared_ptr<Work> work);

private:
    void measureRequest(Work &work) const;
    Result<std::optional<Session>> startingSession(Work &work) const;
    Outcome measurePicture(const Session *start, Work &work) const;
    Outcome measureSession(const Session *start, Work &work) const;
    Outcome mergeSession(const Session *start, Work &work) const;
    Outcome takeEstimatedLens(Work &work) const;
    Outcome undistortPicture(Work &work) const;
    Outcome takeMeasurement(Session &session, bool isFresh) const;
    Outcome fitToClicks(Work &work) const;
    Outcome fitAlignment(const Session *start, Work &work) const;
    void snap(Work &work) const;
    Outcome takeLaserScale(Work &work) const;
    Outcome placeClicks(Work &work) const;
    Outcome takeWaterLevel(Work &work) const;
    void tellValues(Work &work) const;
    PictureValues valuesOf(const Session &session, Work &work) const;
    void drawFiles(Work &work) const;
    void drawOverlay(Work &work) const;
    void drawMap(Work &work) const;
    void unroll(Work &work) const;
    bool readWhatIsWritten(const Work &work) const;
    void writeFiles(Work &work);
    void note(const Outcome &problem, const QString &path, PictureResult &result) const;
    bool isFreeToWrite(const QString &path, PictureResult &result);
    void saveSessionOf(Work &work);
    QString pathInOutput(const QString &path) const;
    Overwrite overwrite() const;

    const CommandLine &m_command;
    const std::optional<Session> m_session;
    OrderedJobs &m_jobs;
    QSet<QString> m_written; // two pictures of one name would write the same file
};

} // namespace Drevon::Zalento::Apps
