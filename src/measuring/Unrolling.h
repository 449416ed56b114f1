#pragma once

#include "measuring/Export.h"
#include "measuring/Result.h"
#include "measuring/Session.h"

#include <QImage>
#include <QPointF>

#include <memory>

namespace Drevon::Zalento::Measuring {

/** What of the pipe is made flat, and how large. */
struct UnrollRange
{
    double mmPerPixel = 1.0; ///< of the flat picture
    double fromMM = 0.0;     ///< along the pipe from the mouth
    double toMM = 0.0;       ///< behind #fromMM
};

/** Limits of UnrollRange::mmPerPixel, and of the distances in both directions. */
constexpr double smallestUnrollMMPerPixel = 0.01;
constexpr double largestUnrollMMPerPixel = 1000.0;
constexpr double largestUnrollDistanceMM = 1e6;
/** The most pixels that a flat picture may have. */
constexpr qint64 largestUnrolledPixels = 200'000'000;

/**
 * The pipe's wall as a flat picture to scale: columns run clockwise from 12 o'clock as the picture
 * shows it, rows with the distance from the mouth. A session of the kind CrossSection is cut open
 * at its plane instead: a square of the diameter, seen as in the picture.
 *
 * Places in the flat picture are in its pixels from its top left corner, with their fractions;
 * those in the session's picture likewise.
 */
class ZALENTO_MEASURING_EXPORT Unrolling
{
public:
    /** A range of the wall by default: from the mouth to two diameters behind it. */
    static UnrollRange defaultRange(const Session &session);

    /** @return a problem for a range that is empty, out of its limits or too large */
    static Result<Unrolling> of(const Session &session, const UnrollRange &range);

    /** Moves it; the other one may then only be destroyed or assigned to. */
    ///@{
    Unrolling(Unrolling &&) noexcept;
    Unrolling &operator=(Unrolling &&) noexcept;
    ///@}
    ~Unrolling();

    /** Of the flat picture, in pixels. */
    QSize size() const;
    /** What it was made for. */
    const UnrollRange &range() const;
    bool isPlane() const; ///< the cross-section plane, not the wall

    /** Where the picture shows a place of the flat one; not a number behind the camera. */
    QPointF toPicture(const QPointF &flat) const;
    /** Where a place of the picture lies in the flat one; not a number where no wall is. */
    QPointF toFlat(const QPointF &pixel) const;

    /** Millimetres along the pipe that a pixel of the picture is worth at a row of the wall. */
    double worthMM(double row) const;

    /** The flat picture; clear where the picture does not show the wall. Its dots per metre are
        those of its scale, so that it prints as large as the wall is. */
    QImage flattened(const QImage &picture) const;

private:
    class Implementation;
    explicit Unrolling(std::unique_ptr<Implementation> implementation);

    std::unique_ptr<Implementation> m_implementation;
};

} // namespace Drevon::Zalento::Measuring
