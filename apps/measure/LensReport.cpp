#include "measure/LensReport.h"

#include "measuring/OrderedJson.h"

#include <QJsonArray>

#include <algorithm>

namespace Drevon::Zalento::Apps {

namespace {

// Beyond, the board was bent or its corners were miscounted.
constexpr double largestRmsPX = 1.0;
// Share of the picture that boards are to be seen in.
constexpr double leastCoverage = 0.6;

double fovOf(const Lens &lens, LensView view)
{
    Lens seen = lens;
    seen.view = view;
    const Result<LensMapping> mapping = LensMapping::of(seen);
    return mapping ? mapping->fovYDEG() : 0.0;
}

QByteArray pictureJson(const BoardPicture &picture)
{
    const bool isUsed = picture.problem.isEmpty();
    OrderedJson json;
    json.add(QStringLiteral("picture"), picture.path);
    json.add(QStringLiteral("used"), isUsed);
    json.add(QStringLiteral("rmsPX"), isUsed ? QJsonValue(picture.rmsPX) : QJsonValue());
    json.add(QStringLiteral("reason"), picture.problem);
    return json.toLine();
}

} // namespace

std::array<double, lensParameters.size()> LensCalibration::parameters() const
{
    const QVector<double> &d = lens.distortion;
    return {lens.fx(), lens.fy(), lens.cameraMatrix[2], lens.cameraMatrix[5], d[0], d[1], d[2],
            d[3],      d[4]};
}

int LensCalibration::boardCount() const
{
    return static_cast<int>(
        std::count_if(pictures.begin(), pictures.end(),
                      [](const BoardPicture &picture) { return picture.problem.isEmpty(); }));
}

QStringList LensCalibration::warnings() const
{
    QStringList warnings;
    if (problem.isEmpty() && coverage < leastCoverage) {
        warnings += QStringLiteral("boards were seen in %1 % of the picture only: beyond, the "
                                   "distortion is extrapolated; hold the board into the corners, "
                                   "too")
                        .arg(qRound(coverage * 100.0));
    }
    if (problem.isEmpty() && rmsPX > largestRmsPX) {
        warnings += QStringLiteral("the corners lie %1 pixels (root mean square) from where they "
                                   "should: is the board flat, and the camera's focus fixed?")
                        .arg(rmsPX, 0, 'f', 2);
    }
    return warnings;
}

QByteArray lensText(const LensCalibration &calibration)
{
    const auto parameters = calibration.parameters();
    QString text = QStringLiteral("%1: %2 x %3 pixels, from %4 of %5 pictures\n")
                       .arg(calibration.lens.name)
                       .arg(calibration.lens.size.width())
                       .arg(calibration.lens.size.height())
                       .arg(calibration.boardCount())
                       .arg(calibration.pictures.size());
    for (std::size_t i = 0; i < lensParameters.size(); ++i) {
        text += QStringLiteral("  %1 %2, standard deviation %3\n")
                    .arg(QLatin1String(lensParameters[i]))
                    .arg(parameters[i], 0, 'g', 6)
                    .arg(calibration.standardDeviations[i], 0, 'g', 2);
    }
    text += QStringLiteral("  root mean square %1 px\n").arg(calibration.rmsPX, 0, 'f', 2);
    text += QStringLiteral("  boards cover %1 % of the picture\n")
                .arg(qRound(calibration.coverage * 100.0));
    text += QStringLiteral("  field of view %1 degrees (largest square), %2 (all)\n")
                .arg(fovOf(calibration.lens, LensView::Square), 0, 'f', 1)
                .arg(fovOf(calibration.lens, LensView::All), 0, 'f', 1);
    return text.toUtf8();
}

QByteArray lensJson(const LensCalibration &calibration)
{
    const auto parameters = calibration.parameters();
    OrderedJson values;
    OrderedJson deviations;
    for (std::size_t i = 0; i < lensParameters.size(); ++i) {
        values.add(QLatin1String(lensParameters[i]), parameters[i]);
        deviations.add(QLatin1String(lensParameters[i]), calibration.standardDeviations[i]);
    }
    QVector<QByteArray> pictures;
    for (const BoardPicture &picture : calibration.pictures) {
        pictures += pictureJson(picture);
    }
    const QSize size = calibration.lens.size;
    OrderedJson json;
    json.add(QStringLiteral("name"), calibration.lens.name);
    json.add(QStringLiteral("size"), QJsonArray{size.width(), size.height()});
    json.add(QStringLiteral("parameters"), values.toLine());
    json.add(QStringLiteral("standardDeviations"), deviations.toLine());
    json.add(QStringLiteral("rmsPX"), calibration.rmsPX);
    json.add(QStringLiteral("coverage"), calibration.coverage);
    json.add(QStringLiteral("fovYDEG"), fovOf(calibration.lens, LensView::Square));
    json.add(QStringLiteral("pictures"), jsonLines(pictures, "  "));
    return json.toLines("") + "\n";
}

} // namespace Drevon::Zalento::Apps
