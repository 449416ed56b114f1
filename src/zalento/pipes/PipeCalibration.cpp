// Scale of the picture plane: calibration text and laser spots.
#include "zalento/math/CLocale.h"
#include "zalento/pipes/Pipe.h"
#include "zalento/settings/UnitConv.h"

#include <QString>
#include <QStringList>

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <cstdlib>
#include <optional>

namespace Drevon::Zalento {

namespace {

const char *const laserKeyword = "LASER";
constexpr int laserFieldCount = 4;
constexpr int laserDistanceField = 3;
constexpr int scaleFieldCount = 3;

// The number at the start of a field, as std::stod reads it in the "C" locale; nothing when there
// is none or it lies outside the range of a double.
std::optional<double> readNumber(const QString &field)
{
    const QByteArray text = UnitConv::cultureIndependentDecimalSeparator(field).toLatin1();
    char *end = nullptr;
    errno = 0;
    const double number = strtod_l(text.constData(), &end, cLocale());
    if (end == text.constData() || errno == ERANGE) {
        return std::nullopt;
    }
    return number;
}

bool isLaserRecord(const QStringList &fields)
{
    return fields.front().compare(QLatin1String(laserKeyword), Qt::CaseInsensitive) == 0;
}

std::optional<Pipe::CalibrationPoint> readScaleRecord(const QStringList &fields)
{
    if (fields.size() != scaleFieldCount) {
        return std::nullopt;
    }
    const std::optional<double> diameterMM = readNumber(fields[0]);
    const std::optional<double> divisorPx = readNumber(fields[1]);
    const std::optional<double> dividendMM = readNumber(fields[2]);
    if (!diameterMM || !divisorPx || !dividendMM) {
        return std::nullopt;
    }
    return Pipe::CalibrationPoint{*diameterMM, *dividendMM / *divisorPx};
}

} // namespace

void Pipe::setCameraCrackIni(const std::string &text)
{
    cameraCrackIni = text;
    laserPresent = text.find(laserKeyword) != std::string::npos;
    laserCalibrated = false;
}

void Pipe::parseIniFile()
{
    const double nominalMM = std::round(diameterMM);
    std::vector<CalibrationPoint> table;
    const QString text =
        QString::fromLatin1(cameraCrackIni.data(), static_cast<int>(cameraCrackIni.size()));
    const QStringList lines = text.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    for (const QString &line : lines) {
        const QStringList fields = line.trimmed().split(QLatin1Char(';'));
        if (isLaserRecord(fields)) {
            laserCalibrated = false;
            if (fields.size() == laserFieldCount) {
                laserDistance = readNumber(fields[laserDistanceField]).value_or(laserDistance);
            }
            return;
        }
        const std::optional<CalibrationPoint> row = readScaleRecord(fields);
        if (!row) {
            continue;
        }
        if (row->diameterMM == nominalMM) {
            laserScale = row->scale;
            laserCalibrated = true;
            return;
        }
        table.push_back(*row);
    }
    interpolatePipeDiameter(table, nominalMM);
}

void Pipe::interpolatePipeDiameter(std::vector<CalibrationPoint> &rows, double d)
{
    // NaN has no place in an order.
    rows.erase(
        std::remove_if(rows.begin(), rows.end(),
                       [](const CalibrationPoint &row) { return std::isnan(row.diameterMM); }),
        rows.end());
    std::stable_sort(rows.begin(), rows.end(),
                     [](const CalibrationPoint &a, const CalibrationPoint &b) {
                         return a.diameterMM < b.diameterMM;
                     });
    if (rows.size() < 2 || d < rows.front().diameterMM || d > rows.back().diameterMM) {
        return;
    }
    const auto upper = std::lower_bound(
        rows.begin(), rows.end(), d,
        [](const CalibrationPoint &row, double diameter) { return row.diameterMM < diameter; });
    if (upper == rows.begin()) {
        return;
    }
    const CalibrationPoint &p0 = *std::prev(upper);
    const CalibrationPoint &p1 = *upper;
    laserCalibrated = true;
    laserScale =
        (p1.scale - p0.scale) * (d - p0.diameterMM) / (p1.diameterMM - p0.diameterMM) + p0.scale;
}

void Pipe::calibrateLaser(double mmPerPixel)
{
    if (mmPerPixel != 0.0) {
        laserScale = mmPerPixel;
    } else if (hitPoints.size() == 2) {
        const double distancePx =
            (hitPoints[0].position - hitPoints[1].position).length() * camera.viewport.width();
        if (distancePx != 0.0) {
            laserScale = laserDistance / distancePx;
        }
        clearHitPoints();
    }
    laserCalibrated = true;
}

} // namespace Drevon::Zalento
