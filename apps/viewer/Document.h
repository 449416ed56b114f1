#pragma once

#include "measuring/Session.h"

#include <QDateTime>
#include <QString>
#include <QUndoStack>

#include <functional>
#include <memory>
#include <optional>

namespace Drevon::Zalento {

/** A picture in the viewer: its measurement, what can be undone, and where that is saved. */
class Document
{
public:
    explicit Document(const QString &picturePath);

    QString picturePath;
    QString sessionPath;
    /** Why the picture cannot be shown; empty when it can. */
    QString problem;
    /** What a look in the background found, while the picture was not shown; empty for nothing. */
    QString foundProblem;
    /** There is a value: of the session, or of the one that is saved before that was read. */
    bool isMeasured = false;
    /** What has to be confirmed before the session file is overwritten; empty for nothing. */
    QString overwriteWarning;
    /** When the session file and the picture were last changed, as loaded or saved here. */
    QDateTime sessionStamp;
    QDateTime pictureStamp;
    /** The measurement; empty until the picture was shown. */
    std::optional<Measuring::Session> session;

    QUndoStack &history() { return *m_history; }
    bool isModified() const { return !m_history->isClean(); }

    /** What stands in the way of measuring or of saving; empty for nothing. */
    QString trouble() const;

private:
    std::unique_ptr<QUndoStack> m_history;
};

/** Any of a session's measurements has a value. */
bool isMeasured(const Measuring::Session &session);

/**
 * One finished gesture: the session before and after it. It is pushed when its end is on view
 * already, so only undoing and what follows shows anything.
 *
 * Steps with the same positive merge number become one, as those of a key that is held.
 */
class SessionStep : public QUndoCommand
{
public:
    using Show = std::function<void(const Measuring::Session &)>;

    SessionStep(const QString &name, Measuring::Session before, Measuring::Session after,
                int mergeNumber, Show show);

    void undo() override { m_show(m_before); }
    void redo() override;
    int id() const override { return m_mergeNumber; }
    bool mergeWith(const QUndoCommand *next) override;

private:
    Measuring::Session m_before;
    Measuring::Session m_after;
    int m_mergeNumber;
    Show m_show;
    bool m_isShown = true; ///< the stack's first redo() comes with the push
};

} // namespace Drevon::Zalento
