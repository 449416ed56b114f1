#pragma once

#include "measure/Batch.h"
#include "measure/CommandLine.h"

#include <QByteArray>

namespace Drevon::Zalento::Apps {

/**
 * Turns results into UTF-8 text of a format. A document is start(), then result() for each with a
 * running number from 0, then end().
 */
class Report
{
public:
    explicit Report(Format format)
        : m_format(format)
    {}

    QByteArray start() const;
    QByteArray result(const PictureResult &result, int number) const;
    QByteArray end(int count) const;

private:
    Format m_format;
};

/** "measured", "no value" or "failed". */
QString statusName(Status status);

/** The shortest text that reads back as the same number, with '.'. */
QString numberText(double number);

/** One record of comma-separated values with its line break; quoted where needed. */
QByteArray csvLine(const QStringList &fields);

} // namespace Drevon::Zalento::Apps
