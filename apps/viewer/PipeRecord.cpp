#include "PipeRecord.h"

#include "Guidance.h"

#include <drevon/AppState.h>
#include <drevon/CDomainObject.h>
#include <drevon/CLocaleSupport.h>

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

// A number that is not whole gives 0, which is no size.
int wholeNumber(const QJsonValue &value)
{
    const double number = value.toDouble();
    return number == std::floor(number) && std::abs(number) <= largestNominalSize
               ? static_cast<int>(number)
               : 0;
}

} // namespace

Measuring::Result<PipeRecord> loadPipeRecord(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return Measuring::Problem{path,
                                  PipeRecords::tr("cannot be read: %1").arg(file.errorString())};
    }
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(file.read(largestRecordBytes), &error);
    if (!document.isObject()) {
        return Measuring::Problem{
            path, PipeRecords::tr("expected a JSON object: %1").arg(error.errorString())};
    }
    const QJsonObject fields = document.object();
    const PipeRecord record{wholeNumber(fields.value(QLatin1String(sizeField))),
                            fields.value(QLatin1String(unitField)).toString(QStringLiteral("mm"))};
    if (const Measuring::Outcome problem = checkRecord(record)) {
        return problem->in(QStringLiteral("%1 (%2)").arg(path, QLatin1String(sizeField)));
    }
    return record;
}

Measuring::Outcome checkRecord(const PipeRecord &record)
{
    static const QStringList units{QStringLiteral("mm"), QStringLiteral("inch"),
                                   QStringLiteral("ft")};
    if (record.nominalSize < 1 || record.nominalSize > largestNominalSize) {
        return Measuring::Problem{
            {},
            PipeRecords::tr("The nominal size is a whole number from 1 to %1.")
                .arg(largestNominalSize)};
    }
    if (!units.contains(record.unit)) {
        return Measuring::Problem{
            {}, PipeRecords::tr("The unit is one of %1.").arg(units.join(QStringLiteral(", ")))};
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

PipeRecords::PipeRecords(Guidance &guidance)
    : m_guidance(guidance)
{}

QString PipeRecords::take(const QString &nominalSize, const QString &unit)
{
    const PipeRecord record{nominalSize.trimmed().toInt(), unit};
    if (const Measuring::Outcome problem = checkRecord(record)) {
        return problem->text();
    }
    activate(record);
    return {};
}

void PipeRecords::load(const QString &path)
{
    const auto record = loadPipeRecord(path);
    const auto told = Measuring::loadReportRecord(path);
    if (!record || !told) {
        const Measuring::Problem &problem = record ? told.problem() : record.problem();
        m_guidance.notice(Guidance::Error, problem.text());
        return;
    }
    activate(*record);
    m_told = *told;
    m_guidance.notice(Guidance::Information,
                      tr("Pipe record: %1 %2.").arg(record->nominalSize).arg(record->unit));
}

} // namespace Drevon::Zalento
