#pragma once

#include "measure/CommandLine.h"

#include "measuring/ValueTable.h"

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
    QByteArray result(const PictureValues &result, int number) const;
    QByteArray end(int count) const;

private:
    Format m_format;
};

} // namespace Drevon::Zalento::Apps
