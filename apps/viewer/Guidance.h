#pragma once

#include "measuring/Measurement.h"
#include "measuring/Session.h"

#include <QObject>
#include <QString>

#include <optional>

namespace Drevon::Zalento {

/** What a click sets: a point of the measurement, or of a joint or a line to align to. */
enum class Tool { Measure, Joint, Line };

/** What the status line goes by. */
struct Situation
{
    Measuring::Session session;
    Measuring::MeasureState state = Measuring::MeasureState::NeedsPoints;
    bool isClosed = false;      ///< the points are a closed outline
    bool canClose = false;      ///< a click near the first point closes it
    int laserSpotsExpected = 0; ///< clicks that the calibration still waits for
    bool isPanning = false;     ///< a drag pans instead of moving the model
    Tool tool = Tool::Measure;
};

/** What the next click or drag does, in one sentence or two. */
QString guidanceFor(const Situation &situation);

/** The status line: what just happened or went wrong, else what to do next. */
class Guidance : public QObject
{
    Q_OBJECT

    Q_PROPERTY(QString text READ text NOTIFY textChanged)
    Q_PROPERTY(Level level READ level NOTIFY levelChanged)

public:
    enum Level { Information, Warning, Error };
    Q_ENUM(Level)

    using QObject::QObject;

    QString text() const { return m_text; }
    Level level() const { return m_level; }

    /** Without a situation there is no picture. */
    void setSituation(const std::optional<Situation> &situation);
    /** Stays until the next one, or clearNotice(). */
    void notice(Level level, const QString &text);
    void clearNotice();

Q_SIGNALS:
    void textChanged();
    void levelChanged();

private:
    void show();

    std::optional<Situation> m_situation;
    QString m_notice;
    Level m_noticeLevel = Information;
    QString m_text;
    Level m_level = Information;
};

} // namespace Drevon::Zalento
