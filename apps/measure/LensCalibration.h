#pragma once

#include "measure/CommandLine.h"
#include "measure/PictureList.h"

#include "measuring/Lens.h"

#include <QByteArray>
#include <QPointF>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QVector>

#include <array>

namespace Drevon::Zalento::Apps {

/** A photograph of the chessboard. */
struct BoardPicture
{
    QString path;
    QString problem; ///< why it is left out; empty for one that counts
    QSize size;
    /** Inner corners row by row, from the middle of the first pixel. */
    QVector<QPointF> corners;
    double blurPX = 0.0; ///< over how many pixels the edges of the fields rise
    double rmsPX = 0.0;  ///< of the corners from where the calibrated camera sees them
};

/** What is estimated, in the order of LensCalibration::standardDeviations. */
constexpr std::array<const char *, 9> lensParameters{"fx", "fy", "cx", "cy", "k1",
                                                     "k2", "p1", "p2", "k3"};

/** A camera from its pictures of a chessboard. */
struct LensCalibration
{
    Lens lens;
    QVector<BoardPicture> pictures;
    double rmsPX = 0.0;
    double coverage = 0.0; ///< share of the picture in which a board was seen
    std::array<double, lensParameters.size()> standardDeviations{};
    QString problem; ///< why there is no lens; empty with one

    /** In the order of lensParameters. */
    std::array<double, lensParameters.size()> parameters() const;
    int boardCount() const; ///< pictures that count
    /** What to do better, in sentences. */
    QStringList warnings() const;
};

/**
 * Finds the board in a picture.
 * @param before the pictures found so far: another size, or a board held as before, is left out
 */
BoardPicture findBoard(const PictureRequest &request, const BoardOptions &board,
                       const QVector<BoardPicture> &before);

/**
 * Calibrates a pinhole camera with five coefficients of distortion (Z. Zhang, A flexible new
 * technique for camera calibration, IEEE PAMI 22, 2000, as OpenCV does it).
 */
LensCalibration calibrateLens(const QVector<BoardPicture> &pictures, const BoardOptions &board);

/** The camera as a file in OpenCV's form: JSON where the path ends in .json, else YAML. */
QByteArray lensFile(const LensCalibration &calibration, const BoardOptions &board,
                    const QString &path);

} // namespace Drevon::Zalento::Apps
