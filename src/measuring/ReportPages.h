#pragma once

#include <QPainter>
#include <QPdfWriter>
#include <QSizeF>
#include <QTextDocument>

namespace Drevon::Zalento::Measuring {

/** Of a page, in its units. */
constexpr int reportDotsPerInch = 600;
constexpr double reportDotsPerMM = reportDotsPerInch / 25.4;

/** The numbered pages of a PDF file. What was printed is in the file and no more in memory. */
class ReportPages
{
public:
    /** @param file is open, and outlives the pages */
    explicit ReportPages(QIODevice &file);

    /** Of the room for texts, in dots. */
    QSizeF size() const;

    /** Gives an empty document the font and the size of the pages. */
    void prepare(QTextDocument &document);

    /** Begins a page; a long document takes several. */
    void print(const QTextDocument &document);

    /** Completes the file. */
    void end() { m_painter.end(); }

private:
    void beginPage();

    QPdfWriter m_writer;
    QPainter m_painter;
    int m_count = 0;
};

} // namespace Drevon::Zalento::Measuring
