// What a build without OpenCV says of a calibration.
#include "measure/LensCalibration.h"

namespace Drevon::Zalento::Apps {

BoardPicture findBoard(const PictureRequest &request, const BoardOptions &,
                       const QVector<BoardPicture> &)
{
    BoardPicture picture;
    picture.path = request.path;
    return picture;
}

LensCalibration calibrateLens(const QVector<BoardPicture> &, const BoardOptions &)
{
    LensCalibration result;
    result.problem = QStringLiteral("this build has no OpenCV, which finds boards in pictures");
    return result;
}

QByteArray lensFile(const LensCalibration &, const BoardOptions &, const QString &)
{
    return {};
}

} // namespace Drevon::Zalento::Apps
