#include "measure/LensCalibration.h"

#include "measuring/Count.h"

#include "measuring/Picture.h"

#include <opencv2/calib3d.hpp>
#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <cmath>
#include <vector>

namespace Drevon::Zalento::Apps {

namespace {

// Fewer directions leave focal length and distortion to chance.
constexpr int fewestBoards = 5;
// Edges of the fields rise over two or three pixels; beyond so many, or this share of the width,
// corners are guessed.
constexpr double largestBlurPX = 5.0;
constexpr double largestBlurShare = 0.006;
// Of the picture's width: corners that lie nearer on the average show the board as before.
constexpr double leastMoveShare = 0.02;
// Boards that are all held within this angle leave the focal length open.
constexpr double leastTiltDEG = 15.0;
constexpr double degreesPerRadian = 57.29577951308232;

std::vector<cv::Point2f> pointsOf(const BoardPicture &picture)
{
    std::vector<cv::Point2f> points;
    for (const QPointF &corner : picture.corners) {
        points.emplace_back(static_cast<float>(corner.x()), static_cast<float>(corner.y()));
    }
    return points;
}

cv::Size sizeOf(const QSize &size)
{
    return {size.width(), size.height()};
}

// The board's own frame: its corners in mm, row by row.
std::vector<cv::Point3f> boardPoints(const BoardOptions &board)
{
    std::vector<cv::Point3f> points;
    for (int row = 0; row < board.corners.height(); ++row) {
        for (int column = 0; column < board.corners.width(); ++column) {
            points.emplace_back(static_cast<float>(column * board.squareMM),
                                static_cast<float>(row * board.squareMM), 0.0F);
        }
    }
    return points;
}

double blurOf(const cv::Mat &grey, const BoardOptions &board,
              const std::vector<cv::Point2f> &corners)
{
    constexpr float riseShare = 0.8F;
    return cv::estimateChessboardSharpness(grey, sizeOf(board.corners), corners, riseShare)[0];
}

// Of the corners, on the average; boards look the same when turned by half.
double moveBetween(const BoardPicture &a, const BoardPicture &b)
{
    const int count = countOf(a.corners);
    double straight = 0.0;
    double turned = 0.0;
    for (int i = 0; i < count; ++i) {
        const QPointF along = a.corners[i] - b.corners[i];
        const QPointF back = a.corners[i] - b.corners[count - 1 - i];
        straight += std::hypot(along.x(), along.y()) / count;
        turned += std::hypot(back.x(), back.y()) / count;
    }
    return std::min(straight, turned);
}

QString misfit(const BoardPicture &picture, const QVector<BoardPicture> &before)
{
    const double width = picture.size.width();
    if (picture.blurPX > std::max(largestBlurPX, largestBlurShare * width)) {
        return QStringLiteral("the board is blurred: its edges are %1 pixels wide")
            .arg(picture.blurPX, 0, 'f', 1);
    }
    for (const BoardPicture &other : before) {
        if (other.problem.isEmpty() && moveBetween(picture, other) < leastMoveShare * width) {
            return QStringLiteral("shows the board as %1 does").arg(other.path);
        }
    }
    return {};
}

// The size of those that count, by the first of them.
QString sizeMisfit(const BoardPicture &picture, const QVector<BoardPicture> &before)
{
    for (const BoardPicture &other : before) {
        if (other.problem.isEmpty() && other.size != picture.size) {
            return QStringLiteral("has %1 x %2 pixels, %3 has %4 x %5")
                .arg(picture.size.width())
                .arg(picture.size.height())
                .arg(other.path)
                .arg(other.size.width())
                .arg(other.size.height());
        }
    }
    return {};
}

QString detect(const QImage &image, const BoardOptions &board, BoardPicture &picture)
{
    const QImage grey = image.convertToFormat(QImage::Format_Grayscale8);
    const cv::Mat pixels(grey.height(), grey.width(), CV_8UC1, const_cast<uchar *>(grey.bits()),
                         static_cast<std::size_t>(grey.bytesPerLine()));
    std::vector<cv::Point2f> corners;
    const int accurately = cv::CALIB_CB_NORMALIZE_IMAGE | cv::CALIB_CB_ACCURACY;
    if (!cv::findChessboardCornersSB(pixels, sizeOf(board.corners), corners, accurately)) {
        return QStringLiteral("no board of %1 x %2 inner corners was found: it has to be whole in "
                              "the picture, sharp, and in even light")
            .arg(board.corners.width())
            .arg(board.corners.height());
    }
    for (const cv::Point2f &corner : corners) {
        picture.corners += QPointF(static_cast<double>(corner.x), static_cast<double>(corner.y));
    }
    picture.blurPX = blurOf(pixels, board, corners);
    return {};
}

QVector<BoardPicture *> counting(QVector<BoardPicture> &pictures)
{
    QVector<BoardPicture *> boards;
    for (BoardPicture &picture : pictures) {
        if (picture.problem.isEmpty()) {
            boards += &picture;
        }
    }
    return boards;
}

// Largest angle between the normals of two boards.
double tiltOf(const std::vector<cv::Mat> &rotations)
{
    std::vector<cv::Vec3d> normals;
    for (const cv::Mat &rotation : rotations) {
        cv::Mat matrix;
        cv::Rodrigues(rotation, matrix);
        normals.emplace_back(matrix.at<double>(0, 2), matrix.at<double>(1, 2),
                             matrix.at<double>(2, 2));
    }
    double smallestCosine = 1.0;
    for (const cv::Vec3d &a : normals) {
        for (const cv::Vec3d &b : normals) {
            smallestCosine = std::min(smallestCosine, std::abs(a.dot(b)));
        }
    }
    return std::acos(smallestCosine) * degreesPerRadian;
}

double coverageOf(const QVector<BoardPicture *> &boards)
{
    constexpr int shift = 3; // an eighth of the picture's size tells as much
    const QSize size = boards.first()->size / (1 << shift);
    cv::Mat seen = cv::Mat::zeros(size.height() + 1, size.width() + 1, CV_8UC1);
    for (const BoardPicture *board : boards) {
        std::vector<cv::Point> places;
        for (const QPointF &corner : board->corners) {
            places.emplace_back(qRound(corner.x()) >> shift, qRound(corner.y()) >> shift);
        }
        std::vector<cv::Point> hull;
        cv::convexHull(places, hull);
        cv::fillConvexPoly(seen, hull, cv::Scalar(1));
    }
    return static_cast<double>(cv::countNonZero(seen)) / static_cast<double>(seen.total());
}

void calibrate(const QVector<BoardPicture *> &boards, const BoardOptions &board,
               LensCalibration &result)
{
    std::vector<std::vector<cv::Point2f>> seen;
    for (const BoardPicture *picture : boards) {
        seen.push_back(pointsOf(*picture));
    }
    const std::vector<std::vector<cv::Point3f>> known(seen.size(), boardPoints(board));
    cv::Mat matrix;
    cv::Mat distortion;
    std::vector<cv::Mat> rotations;
    std::vector<cv::Mat> places;
    cv::Mat deviations;
    cv::Mat errors;
    result.rmsPX =
        cv::calibrateCamera(known, seen, sizeOf(boards.first()->size), matrix, distortion,
                            rotations, places, deviations, cv::noArray(), errors);
    for (int i = 0; i < boards.size(); ++i) {
        boards[i]->rmsPX = errors.at<double>(i);
    }
    std::copy_n(deviations.ptr<double>(), result.standardDeviations.size(),
                result.standardDeviations.begin());
    Lens &lens = result.lens;
    lens.size = boards.first()->size;
    std::copy_n(matrix.ptr<double>(), lens.cameraMatrix.size(), lens.cameraMatrix.begin());
    for (std::size_t i = 0; i < distortion.total(); ++i) {
        lens.distortion += distortion.at<double>(static_cast<int>(i));
    }
    lens.focalLengthSDPX = std::max(result.standardDeviations[0], result.standardDeviations[1]);
    if (tiltOf(rotations) < leastTiltDEG) {
        result.problem =
            QStringLiteral("the pictures are too similar: the board is held the same way in all "
                           "of them, which leaves the focal length open; tilt it by 30 degrees to "
                           "each side, and up and down");
    }
}

} // namespace

BoardPicture findBoard(const PictureRequest &request, const BoardOptions &board,
                       const QVector<BoardPicture> &before)
{
    BoardPicture picture;
    picture.path = request.path;
    picture.problem = request.problem;
    if (!picture.problem.isEmpty()) {
        return picture;
    }
    const Result<Picture> loaded = loadPicture(request.path);
    if (!loaded) {
        picture.problem = loaded.problem().textAfter(request.path);
        return picture;
    }
    picture.size = loaded->image.size();
    picture.problem = sizeMisfit(picture, before);
    if (picture.problem.isEmpty()) {
        picture.problem = detect(loaded->image, board, picture);
    }
    if (picture.problem.isEmpty()) {
        picture.problem = misfit(picture, before);
    }
    return picture;
}

LensCalibration calibrateLens(const QVector<BoardPicture> &pictures, const BoardOptions &board)
{
    LensCalibration result;
    result.pictures = pictures;
    const QVector<BoardPicture *> boards = counting(result.pictures);
    if (boards.size() < fewestBoards) {
        result.problem =
            QStringLiteral("there are too few pictures that count: %1 of %2, at least %3 that "
                           "show the board from different sides are needed, 10 to 20 are good")
                .arg(boards.size())
                .arg(pictures.size())
                .arg(fewestBoards);
        return result;
    }
    try {
        calibrate(boards, board, result);
    } catch (const cv::Exception &) {
        result.problem = QStringLiteral("no camera fits the pictures");
        return result;
    }
    result.coverage = coverageOf(boards);
    result.lens.name = board.name;
    if (const Outcome problem = checkLens(result.lens); problem && result.problem.isEmpty()) {
        result.problem = QStringLiteral("no camera fits the pictures: %1").arg(problem->text());
    }
    return result;
}

QByteArray lensFile(const LensCalibration &calibration, const BoardOptions &board,
                    const QString &path)
{
    const bool isJson = path.endsWith(QLatin1String(".json"), Qt::CaseInsensitive);
    cv::FileStorage file(isJson ? ".json" : ".yaml",
                         cv::FileStorage::WRITE | cv::FileStorage::MEMORY);
    const Lens &lens = calibration.lens;
    file << "camera_name" << lens.name.toStdString();
    file << "image_width" << lens.size.width() << "image_height" << lens.size.height();
    file << "camera_matrix" << cv::Mat(cv::Matx33d(lens.cameraMatrix.data()));
    file << "distortion_model"
         << "plumb_bob";
    file << "distortion_coefficients"
         << cv::Mat(1, countOf(lens.distortion), CV_64F,
                    const_cast<double *>(lens.distortion.data()));
    file << "focal_length_standard_deviation" << *lens.focalLengthSDPX;
    file << "standard_deviations"
         << "{";
    for (std::size_t i = 0; i < lensParameters.size(); ++i) {
        file << lensParameters[i] << calibration.standardDeviations[i];
    }
    file << "}";
    file << "root_mean_square" << calibration.rmsPX << "coverage" << calibration.coverage;
    file << "board_width" << board.corners.width() << "board_height" << board.corners.height();
    file << "square_size" << board.squareMM;
    return QByteArray::fromStdString(file.releaseAndGetString());
}

} // namespace Drevon::Zalento::Apps
