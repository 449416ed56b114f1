#include "measuring/Lens.h"

#include "measuring/Text.h"

#include <QFile>
#include <QFileInfo>

#include <opencv2/core.hpp>

#include <algorithm>
#include <initializer_list>
#include <limits>

namespace Drevon::Zalento::Measuring {

namespace {

// Files of cameras have some kilobytes.
constexpr qint64 largestLensBytes = 1024 * 1024;

using Names = std::initializer_list<const char *>;

// Calibration programs do not agree on capitals and short forms.
cv::FileNode nodeOf(const cv::FileNode &parent, Names names)
{
    for (const char *name : names) {
        const cv::FileNode node = parent[name];
        if (!node.empty()) {
            return node;
        }
    }
    return {};
}

// Of a matrix (rows, cols, data), of a list, and of a list of rows.
QVector<double> numbersOf(const cv::FileNode &node)
{
    if (node.isMap()) {
        return numbersOf(node["data"]);
    }
    if (node.isInt() || node.isReal()) {
        return {static_cast<double>(node)};
    }
    QVector<double> numbers;
    if (node.isSeq()) {
        for (const cv::FileNode &element : node) {
            numbers += numbersOf(element);
        }
    }
    return numbers;
}

QString textOf(const cv::FileNode &node)
{
    return node.isString() ? QString::fromStdString(node.string()) : QString();
}

Outcome readModel(const cv::FileNode &root)
{
    const QString model = textOf(nodeOf(root, {"distortion_model", "distortionModel"}));
    if (model.isEmpty() || model == QLatin1String("plumb_bob") ||
        model == QLatin1String("rational_polynomial")) {
        return {};
    }
    return Problem{QStringLiteral("distortion_model"),
                   Text::tr("expected plumb_bob or rational_polynomial, found %1").arg(model)};
}

QSize readSize(const cv::FileNode &root)
{
    QVector<double> numbers = numbersOf(nodeOf(root, {"image_size", "imageSize", "size"}));
    if (numbers.isEmpty()) {
        numbers =
            numbersOf(nodeOf(root, {"image_width", "image_Width", "imageWidth", "width"})) +
            numbersOf(nodeOf(root, {"image_height", "image_Height", "imageHeight", "height"}));
    }
    const bool isSize = numbers.size() == 2 && numbers[0] >= 1 && numbers[1] >= 1 &&
                        numbers[0] <= std::numeric_limits<short>::max() &&
                        numbers[1] <= std::numeric_limits<short>::max();
    return isSize ? QSize(qRound(numbers[0]), qRound(numbers[1])) : QSize();
}

Result<Lens> lensOf(const cv::FileNode &root)
{
    if (const Outcome problem = readModel(root)) {
        return *problem;
    }
    Lens lens;
    lens.name = textOf(nodeOf(root, {"camera_name", "cameraName", "name"}));
    lens.size = readSize(root);
    if (lens.size.isEmpty()) {
        return Problem{QStringLiteral("image_width, image_height"),
                       Text::tr("expected a width and a height in pixels")};
    }
    const QVector<double> matrix =
        numbersOf(nodeOf(root, {"camera_matrix", "cameraMatrix", "Camera_Matrix", "K"}));
    if (matrix.size() != static_cast<int>(lens.cameraMatrix.size())) {
        return Problem{QStringLiteral("camera_matrix"),
                       Text::tr("expected %1, found %2")
                           .arg(Text::tr("a list of 9 numbers, row by row"))
                           .arg(matrix.size())};
    }
    std::copy(matrix.begin(), matrix.end(), lens.cameraMatrix.begin());
    lens.distortion =
        numbersOf(nodeOf(root, {"distortion_coefficients", "distortionCoefficients", "dist_coeffs",
                                "distCoeffs", "Distortion_Coefficients", "distortion", "D"}));
    const QVector<double> spread = numbersOf(nodeOf(root, {"focal_length_standard_deviation"}));
    if (!spread.isEmpty()) {
        lens.focalLengthSDPX = spread.first();
    }
    const Outcome problem = checkLens(lens);
    return problem ? Result<Lens>(*problem) : Result<Lens>(lens);
}

// Robot software leaves out the line that OpenCV knows its YAML by.
std::string withSignature(const QByteArray &content)
{
    const QByteArray text = content.trimmed();
    const bool isKnown =
        text.startsWith('{') || text.startsWith("%YAML") || text.startsWith("<?xml");
    const char *const signature = text.startsWith("---") ? "%YAML:1.0\n" : "%YAML:1.0\n---\n";
    return (isKnown ? text : signature + text + '\n').toStdString();
}

// Problems are returned, and not printed, too.
int ignoreError(int, const char *, const char *, const char *, int, void *)
{
    return 0;
}

Result<Lens> parseLens(const QByteArray &content)
{
    cv::redirectError(ignoreError);
    try {
        const cv::FileStorage file(withSignature(content),
                                   cv::FileStorage::READ | cv::FileStorage::MEMORY);
        cv::redirectError(nullptr);
        if (file.isOpened() && file.root().isMap()) {
            return lensOf(file.root());
        }
    } catch (const cv::Exception &) {
        cv::redirectError(nullptr);
    }
    return Problem{{}, Text::tr("is no file of a camera: expected OpenCV's YAML or JSON")};
}

} // namespace

Result<Lens> loadLens(const QString &path)
{
    QFile file(path);
    if (QFileInfo(path).isDir()) {
        return Problem{path, Text::tr("is a folder, not a file of a camera")};
    }
    if (!file.open(QIODevice::ReadOnly)) {
        return Problem{path, Text::tr("cannot be read: %1").arg(file.errorString())};
    }
    const QByteArray content = file.read(largestLensBytes + 1);
    if (content.size() > largestLensBytes) {
        return Problem{path, Text::tr("is too large for a file of a camera")};
    }
    Result<Lens> lens = parseLens(content);
    if (!lens) {
        return lens.problem().in(path);
    }
    if (lens->name.isEmpty()) {
        lens->name = QFileInfo(path).completeBaseName();
    }
    return lens;
}

} // namespace Drevon::Zalento::Measuring
