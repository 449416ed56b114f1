#pragma once

#include "measuring/Report.h"

#include <QString>

/**
 * @file
 * The texts of a report, as the part of HTML that QTextDocument knows.
 */
namespace Drevon::Zalento::Measuring {

/** The title, the record, how many pictures have which state, and the table of all of them. */
QString overviewHtml(const Report &report);

/** @param number of the picture, from 1 */
QString headingHtml(const ReportPicture &picture, int number);

/** What was measured on a picture with what the limit says of it, or why there is nothing. */
QString valuesHtml(const ReportPicture &picture);

/** What the values depend on: sizes, the alignment and its quality; and the record. */
QString detailsHtml(const ReportPicture &picture, const ReportRecord &record);

/** A sentence that stands out. */
QString noteHtml(const QString &text);

} // namespace Drevon::Zalento::Measuring
