#pragma once

#include "measuring/Export.h"
#include "measuring/Result.h"

#include <QImage>
#include <QJsonObject>
#include <QPointF>
#include <QSize>
#include <QString>
#include <QVector>

#include <array>
#include <optional>

namespace Drevon::Zalento::Measuring {

/** What is shown of a picture from which the lens was taken out. */
enum class LensView {
    Square, ///< the largest centred square of the picture is full: no black corners in it
    All,    ///< all that the camera saw, black around it
};

/** Names of the views in files and on the command line: "square", "all". */
ZALENTO_MEASURING_EXPORT QString lensViewName(LensView view);
ZALENTO_MEASURING_EXPORT std::optional<LensView> lensViewNamed(const QString &name);

/**
 * A camera whose lens bends straight lines: radial and tangential distortion after D. C. Brown,
 * Close-range camera calibration, Photogrammetric Engineering 37 (1971), the radial part a quotient
 * of polynomials where eight coefficients are given.
 *
 * Matrix and coefficients are those of OpenCV, as calibration programs write them: the middle of
 * the first pixel is (0, 0) to the matrix, whereas it is (0.5, 0.5) wherever else pixels are told
 * here.
 */
struct Lens
{
    QString name; ///< for people
    QSize size;   ///< of the upright pictures that it holds for, in pixels
    /** Row by row: fx, 0, cx, 0, fy, cy, 0, 0, 1, in pixels. */
    std::array<double, 9> cameraMatrix{};
    /** k1, k2, p1, p2, then k3, then k4, k5, k6. */
    QVector<double> distortion;
    LensView view = LensView::Square; ///< of the undistorted picture
    /** Standard deviation of the focal length in pixels, where it is known. */
    std::optional<double> focalLengthSDPX;
    QJsonObject unknownFields; ///< of a file written by a later version; kept

    /** Focal length across, in pixels. */
    double fx() const { return cameraMatrix[0]; }
    /** Focal length down, in pixels. */
    double fy() const { return cameraMatrix[4]; }
};

ZALENTO_MEASURING_EXPORT bool operator==(const Lens &a, const Lens &b);
inline bool operator!=(const Lens &a, const Lens &b)
{
    return !(a == b);
}

/** How a pinhole camera's picture lies to the one that was taken through a lens. */
class LensMapping
{
public:
    /** @return a problem, which names the field, for a lens that maps nothing */
    ZALENTO_MEASURING_EXPORT static Result<LensMapping> of(const Lens &lens);

    /** Vertical field of view of the shown picture's largest centred square. */
    ZALENTO_MEASURING_EXPORT double fovYDEG() const;
    /** Of the shown picture's pinhole camera. */
    double focalLengthPX() const { return m_shownFocalPX; }

    /** Where a pixel of the shown picture lies in the one that was taken; nothing where the lens
        maps nothing, though the place may lie outside of the picture. */
    ZALENTO_MEASURING_EXPORT std::optional<QPointF> toTaken(const QPointF &shown) const;
    /** The same the other way round. */
    ZALENTO_MEASURING_EXPORT std::optional<QPointF> toShown(const QPointF &taken) const;

private:
    explicit LensMapping(const Lens &lens);
    bool fitsIntoTaken(const QPointF &direction) const;
    bool isSquareFull(double halfSide) const;
    double largestFullSquare() const;
    double squareOfAll() const;
    std::optional<QPointF> takenOf(const QPointF &direction) const;
    std::optional<QPointF> directionOf(const QPointF &taken) const;

    // Of the lens; a direction is (x / z, y / z) before the camera.
    struct Bent
    {
        QPointF place;
        QPointF byX; // derivatives of the place
        QPointF byY;
    };
    Bent bend(const QPointF &direction) const;
    double bentRadius(double radius) const;
    double foldRadius() const;

    QSizeF m_size;
    QPointF m_takenFocalPX;
    QPointF m_takenCentre;
    std::array<double, 8> m_coefficients{};
    double m_foldRadius = 0.0; // beyond, a place stands for two directions
    double m_shownFocalPX = 0.0;
};

/** What is wrong with the lens: names the field and what was expected. */
ZALENTO_MEASURING_EXPORT Outcome checkLens(const Lens &lens);

/**
 * The picture as a pinhole camera would have taken it, in the same size.
 * @return a problem for a picture of another size than the lens's, or where the library was built
 *         without what this needs
 */
ZALENTO_MEASURING_EXPORT Result<QImage> undistorted(const QImage &picture, const Lens &lens);

/**
 * Reads a lens from what calibration programs and robot software write, OpenCV's YAML or JSON:
 * camera_matrix, distortion_coefficients, image_width, image_height, and a name if there is one.
 * Without a name it gets the file's. A problem names the file.
 */
ZALENTO_MEASURING_EXPORT Result<Lens> loadLens(const QString &path);

} // namespace Drevon::Zalento::Measuring
