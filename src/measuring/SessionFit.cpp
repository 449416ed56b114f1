#include "measuring/SessionFit.h"

#include "measuring/Editing.h"

namespace Drevon::Zalento::Measuring {

Alignment alignmentOf(const Session &session)
{
    return {session.offset,      session.cameraHeightPercent, session.rearCircleX,
            session.rearCircleY, session.mouthPercent,        session.fovYDEG};
}

void setAlignment(Session &session, const Alignment &alignment)
{
    session.offset = alignment.offset;
    session.cameraHeightPercent = alignment.cameraHeightPercent;
    session.rearCircleX = alignment.rearCircleX;
    session.rearCircleY = alignment.rearCircleY;
    session.mouthPercent = alignment.mouthPercent;
    session.fovYDEG = alignment.fovYDEG;
}

bool hasAlignmentClicks(const Session &session)
{
    return !session.rings.isEmpty() || !session.lines.isEmpty();
}

Result<AlignmentFit> fitSession(Session &session)
{
    const Alignment before = alignmentOf(session);
    Result<AlignmentFit> fit =
        fitAlignment({session.rings, session.lines, session.fitsFov}, before, session.diameterMM,
                     session.picture.size, inputUncertainties(session).clickPX);
    if (!fit) {
        return fit;
    }
    Session fitted = session;
    setAlignment(fitted, fit->alignment);
    if (const Outcome problem = checkSession(fitted)) {
        return *problem;
    }
    if (fit->alignment.numbers() != before.numbers()) {
        pickPointsAnew(fitted);
    }
    session = fitted;
    return fit;
}

std::optional<AlignmentFit> fitOf(const Session &session)
{
    Session fitted = session;
    if (!hasAlignmentClicks(fitted)) {
        return std::nullopt;
    }
    const Result<AlignmentFit> fit = fitSession(fitted);
    return fit ? std::optional<AlignmentFit>(*fit) : std::nullopt;
}

} // namespace Drevon::Zalento::Measuring
