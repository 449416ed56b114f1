#include "FlatWall.h"

#include "PictureProvider.h"

#include <cmath>

namespace Drevon::Zalento {

using Measuring::Session;

namespace {

// Wide enough for the panel that shows it, and quick enough to follow every change.
constexpr double widthPX = 640.0;
constexpr double pi = 3.14159265358979323846;

// Farther than an export: what is blurred may still help to find the way.
constexpr double lengthInDiameters = 3.0;

// Of a session only the alignment counts, and what lies on the model does not.
Session alignmentAlone(Session session)
{
    session.points.clear();
    session.repeats.clear();
    session.limit.clear();
    return session;
}

Measuring::UnrollRange rangeOf(const Session &session)
{
    Measuring::UnrollRange range = Measuring::Unrolling::defaultRange(session);
    const bool isPlane = session.kind == Measuring::Kind::CrossSection;
    range.toMM = lengthInDiameters * session.diameterMM;
    range.mmPerPixel = (isPlane ? 1.0 : pi) * session.diameterMM / widthPX;
    return range;
}

} // namespace

FlatWall::FlatWall(DocumentList &documents, MeasurementEditor &editor)
    : m_documents(documents)
    , m_editor(editor)
{
    connect(&editor, &MeasurementEditor::sessionChanged, this, &FlatWall::follow);
    connect(&editor, &MeasurementEditor::measurementChanged, this, &FlatWall::follow);
    connect(&documents, &DocumentList::currentChanged, this, [this] {
        m_flattened.reset();
        follow();
    });
}

void FlatWall::setIsShown(bool shown)
{
    if (shown != m_isShown) {
        m_isShown = shown;
        Q_EMIT isShownChanged();
        follow();
    }
}

QString FlatWall::source() const
{
    return m_unrolling ? QStringLiteral("image://wall/%1").arg(m_number) : QString();
}

QVariantList FlatWall::points() const
{
    QVariantList flat;
    if (m_isShown && m_unrolling && m_editor.isReady()) {
        for (int i = 0; i < m_editor.points()->count(); ++i) {
            const QPointF place = m_unrolling->toFlat(m_editor.points()->at(i));
            if (std::isfinite(place.x()) && std::isfinite(place.y())) {
                flat += place;
            }
        }
    }
    return flat;
}

void FlatWall::click(const QPointF &flat)
{
    if (m_unrolling) {
        const QPointF pixel = m_unrolling->toPicture(flat);
        if (std::isfinite(pixel.x()) && std::isfinite(pixel.y())) {
            m_editor.click(pixel);
        }
    }
}

// A drag of the model ends before the wall is made flat anew.
void FlatWall::follow()
{
    if (!m_isShown || m_editor.isInGesture()) {
        return;
    }
    const auto now = m_editor.isReady()
                         ? std::optional<Session>(alignmentAlone(*m_editor.session()))
                         : std::nullopt;
    if (!m_flattened || !now || *now != *m_flattened) {
        m_flattened = now;
        flatten();
    }
    Q_EMIT pointsChanged();
}

void FlatWall::flatten()
{
    m_unrolling.reset();
    m_problem.clear();
    if (m_flattened) {
        auto unrolling = Measuring::Unrolling::of(*m_flattened, rangeOf(*m_flattened));
        if (unrolling) {
            m_unrolling = std::move(*unrolling);
            if (m_provider) {
                m_provider->setPicture(m_unrolling->flattened(m_documents.picture()));
            }
            ++m_number;
        } else {
            m_problem = unrolling.problem().what;
        }
    }
    Q_EMIT wallChanged();
}

} // namespace Drevon::Zalento
