#include "Document.h"

#include "measuring/Measurands.h"
#include "measuring/Measurement.h"
#include "measuring/SessionFile.h"

#include <utility>

namespace Drevon::Zalento {

namespace {

// Sessions are small; this is a day's work on one picture.
constexpr int largestHistory = 500;

} // namespace

Document::Document(const QString &path)
    : picturePath(path)
    , sessionPath(Measuring::sessionPathOf(path))
    , m_history(std::make_unique<QUndoStack>())
{
    m_history->setUndoLimit(largestHistory);
}

QString Document::trouble() const
{
    if (session) {
        return problem.isEmpty() ? overwriteWarning : problem;
    }
    return problem.isEmpty() ? foundProblem : problem;
}

bool isMeasured(const Measuring::Session &session)
{
    bool found = false;
    Measuring::Session each = session;
    Measuring::forEachMeasurand(each, [&found](const Measuring::Session &measured) {
        found = found || !Measuring::measure(measured).values.isEmpty();
    });
    return found;
}

SessionStep::SessionStep(const QString &name, Measuring::Session before, Measuring::Session after,
                         int mergeNumber, Show show)
    : QUndoCommand(name)
    , m_before(std::move(before))
    , m_after(std::move(after))
    , m_mergeNumber(mergeNumber)
    , m_show(std::move(show))
{}

void SessionStep::redo()
{
    if (!m_isShown) {
        m_show(m_after);
    }
    m_isShown = false;
}

bool SessionStep::mergeWith(const QUndoCommand *next)
{
    m_after = static_cast<const SessionStep *>(next)->m_after;
    return true;
}

} // namespace Drevon::Zalento
