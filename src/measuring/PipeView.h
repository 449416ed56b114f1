#pragma once

#include "measuring/AlignmentFit.h"
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
 * How the item lies over the picture. Its drawing area is the picture's largest centred square, or
 * as much smaller or larger as the mouth's circle is to be; the perspective stays that of the
 * picture.
 */
struct ItemLayout
{
    QRectF geometry;      ///< of the item, in picture pixels
    double fovYDEG = 0.0; ///< of its drawing area
};

ZALENTO_MEASURING_EXPORT ItemLayout itemLayout(const Session &session);

/**
 * The straight pipe before the camera, as a session aligns them: what the item computes when it
 * paints, without an item and without painting.
 *
 * Places in the picture are in pixels of the upright picture from its top-left corner, with their
 * fractions: (0.5, 0.5) is the middle of the first pixel. The session has to know the picture's
 * size. Positions are in the pipe frame in metres, for the kind
 * CrackWidth in fractions of the drawing area.
 */
class ZALENTO_MEASURING_EXPORT PipeView
{
public:
    /** The view as the session has it. */
    explicit PipeView(const Session &session);
    ~PipeView();
    /** Moves the view; the other one may then only be destroyed or assigned to. */
    ///@{
    PipeView(PipeView &&) noexcept;
    PipeView &operator=(PipeView &&) noexcept;
    ///@}

    /** Side in pixels of the square in which the item draws. */
    double drawingWidthPX() const { return m_drawingArea.width(); }

    /** The alignment as it is drawn: in whole gesture units, the camera inside, and the far end
        where drawing corrects it. */
    const Alignment &drawnAlignment() const { return m_drawn; }

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
    Vec2 placeInArea(const QPointF &pixel) const;

    std::unique_ptr<Pipe> m_pipe;
    QPointF m_origin;     ///< of the item, in the picture
    QRectF m_drawingArea; ///< in the item
    Vec3 m_rotation;
    Alignment m_drawn;
    Mat4 m_toPixels;
    bool m_isPlaced = false; ///< the camera does not stand where it looks
};

} // namespace Drevon::Zalento::Measuring
