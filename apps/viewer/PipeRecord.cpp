#include "PipeRecord.h"

#include <drevon/AppState.h>
#include <drevon/CDomainObject.h>
#include <drevon/CLocaleSupport.h>

#include <QCoreApplication>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>

#include <cmath>

namespace Drevon::Zalento {

namespace {

const char *const sizeField = "OBJ_Size1";
const char *const unitField = "unit";
constexpr int largestNominalSize = 100000;
constexpr qint64 largestRecordBytes = 1024 * 1024;

QString tr(const char *text)
{
    return QCoreApplication::translate("PipeRecord", text);
}

// A number that is not whole gives 0, which is no size.
int wholeNumber(const QJsonValue &value)
{
    const double number = value.toDouble();
    return number == std::floor(number) && std::abs(number) <= largestNominalSize
               ? static_cast<int>(number)
               : 0;
}

} // namespace

std::optional<PipeRecord> loadPipeRecord(const QString &path, QString &problem)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        problem = tr("%1: cannot be read: %2").arg(path, file.errorString());
        return std::nullopt;
    }
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(file.read(largestRecordBytes), &error);
    if (!document.isObject()) {
        problem = tr("%1: expected a JSON object: %2").arg(path, error.errorString());
        return std::nullopt;
    }
    const QJsonObject fields = document.object();
    const PipeRecord record{wholeNumber(fields.value(QLatin1String(sizeField))),
                            fields.value(QLatin1String(unitField)).toString(QStringLiteral("mm"))};
    problem = recordProblem(record);
    if (!problem.isEmpty()) {
        problem = tr("%1 (%2): %3").arg(path, QLatin1String(sizeField), problem);
        return std::nullopt;
    }
    return record;
}

QString recordProblem(const PipeRecord &record)
{
    static const QStringList units{QStringLiteral("mm"), QStringLiteral("inch"),
                                   QStringLiteral("ft")};
    if (record.nominalSize < 1 || record.nominalSize > largestNominalSize) {
        return tr("The nominal size is a whole number from 1 to %1.").arg(largestNominalSize);
    }
    if (!units.contains(record.unit)) {
        return tr("The unit is one of %1.").arg(units.join(QStringLiteral(", ")));
    }
    return {};
}

void activate(const PipeRecord &record)
{
    const QString field = QLatin1String(sizeField);
    Shared::CLocaleSupport::setCatalogTemplateColumnUnit(field, record.unit);
    auto structure = QSharedPointer<Database::CDomainObject>::create();
    structure->writeValue(field, record.nominalSize);
    AppState::instance()->setActiveStructure(structure);
}

} // namespace Drevon::Zalento
