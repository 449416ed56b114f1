#pragma once

#include "measure/CommandLine.h"

#include "measuring/ValueTable.h"

#include <QByteArray>

namespace Drevon::Zalento::Apps {

/**
 * Turns results into UTF-8 text of a format. A document is start(), then result() for each picture
 * with a running number from 0, then end().
 */
class ValuePrinter
{
public:
    explicit ValuePrinter(Format format)
        : m_format(format)
    {}

    QByteArray start() const;
    /** @param results of the picture's measurements, at least one */
    QByteArray result(const QVector<PictureValues> &results, int number) const;
    QByteArray end(int count) const;

private:
    QByteArray measurement(const PictureValues &result, bool isFirst) const;

    Format m_format;
};

} // namespace Drevon::Zalento::Apps
