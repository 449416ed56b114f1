#pragma once

#include "measuring/ReportPages.h"

#include <QPainter>
#include <QRectF>
#include <QSizeF>
#include <QTextDocument>
#include <QVector>

#include <functional>
#include <memory>
#include <vector>

class QTextCursor;

namespace Drevon::Zalento::Measuring {

/** What is painted into a report, to the scale of paper. */
struct ReportDrawing
{
    QSizeF sizeMM;                                                   ///< on paper
    std::function<void(QPainter &painter, const QRectF &box)> paint; ///< the box in dots
};

/** Texts and drawings, one below the other. */
class ReportDocument
{
public:
    /** @param pages outlive the document */
    explicit ReportDocument(ReportPages &pages);
    ~ReportDocument();

    /** Appends text, or a drawing, below what is there. */
    ///@{
    void add(const QString &html);
    void add(const ReportDrawing &drawing);
    ///@}
    /** The text, and on its right the drawings, if there are any. */
    void addBeside(const QString &html, const QVector<ReportDrawing> &drawings);

    /** Prints what was added. */
    void print() { m_pages.print(m_document); }

private:
    class InlineDrawing;

    QTextCursor nextBlock();
    void insert(QTextCursor cursor, const ReportDrawing &drawing);

    ReportPages &m_pages;
    std::vector<std::unique_ptr<InlineDrawing>> m_drawings;
    QTextDocument m_document;
};

} // namespace Drevon::Zalento::Measuring
