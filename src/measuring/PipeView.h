#pragma once

#include "measuring/Export.h"
#include "measuring/Session.h"

#include "zalento/math/Mat4.h"
#include "zalento/math/Vec3.h"

#include <QPointF>
#include <QRectF>

#include <memory>
#include <optional>

namespace Drevon::Zalento {
class Pipe;
}

namespace Drevon::Zalento::Measuring {

/**
 * The straight pipe before the camera, as a session aligns them: what the item computes when it
 * paints, without an item and without painting.
 *
 * Places in the picture are in pixels of the upright picture from its top-left corner; the session
 * has to know the picture's size. Positions are in the pipe frame in metres, for the kind
 * CrackWidth in fractions of the drawing area.
 */
class ZALENTO_MEASURING_EXPORT PipeView
{
public:
    explicit PipeView(const Session &session);
    ~PipeView();
    PipeView(PipeView &&) noexcept;
    PipeView &operator=(PipeView &&) noexcept;

    /** The square of the picture in which the item draws. */
    const QRectF &drawingArea() const { return m_drawingArea; }

    /** Where a click of the session's kind at @p pixel lies; nothing on a miss. */
    std::optional<Vec3> pick(const QPointF &pixel) const;
    /** The same on the wall, whatever the kind. */
    std::optional<Vec3> pickWall(const QPointF &pixel) const;

    /** Where the picture shows a position of the session's kind. */
    QPointF project(const Vec3 &position) const;

    /** The straight pipe, set up as the session says, with the session's points. */
    Pipe &pipe() { return *m_pipe; }

private:
    void placeCamera(const Session &session);
    std::optional<Vec3> pickPlane(const QPointF &pixel) const;
    std::optional<Vec3> pickPicture(const QPointF &pixel) const;
    QPoint pixelInArea(const QPointF &pixel) const;

    std::unique_ptr<Pipe> m_pipe;
    QRectF m_drawingArea;
    Vec3 m_rotation;
    Mat4 m_toPixels;
    bool m_isPlaced = false; ///< the camera does not stand where it looks
};

} // namespace Drevon::Zalento::Measuring
