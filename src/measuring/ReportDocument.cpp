#include "measuring/ReportDocument.h"

#include <QAbstractTextDocumentLayout>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextTable>

#include <algorithm>

namespace Drevon::Zalento::Measuring {

namespace {

constexpr double gapMM = 3.0; ///< between a text and what stands beside it
constexpr int drawingsPerRow = 2;

} // namespace

/** A drawing that stands in a document like a letter. */
class ReportDocument::InlineDrawing : public QObject, public QTextObjectInterface
{
    Q_OBJECT
    Q_INTERFACES(QTextObjectInterface)

public:
    explicit InlineDrawing(ReportDrawing drawing)
        : m_drawing(std::move(drawing))
    {}

    QSizeF intrinsicSize(QTextDocument *, int, const QTextFormat &) override
    {
        return m_drawing.sizeMM * reportDotsPerMM;
    }
    void drawObject(QPainter *painter, const QRectF &box, QTextDocument *, int,
                    const QTextFormat &) override
    {
        painter->save();
        m_drawing.paint(*painter, box);
        painter->restore();
    }

private:
    const ReportDrawing m_drawing;
};

ReportDocument::ReportDocument(ReportPages &pages)
    : m_pages(pages)
{
    m_pages.prepare(m_document);
}

ReportDocument::~ReportDocument() = default;

void ReportDocument::add(const QString &html)
{
    nextBlock().insertHtml(html);
}

void ReportDocument::add(const ReportDrawing &drawing)
{
    insert(nextBlock(), drawing);
}

void ReportDocument::addBeside(const QString &html, const QVector<ReportDrawing> &drawings)
{
    if (drawings.isEmpty()) {
        add(html);
        return;
    }
    double widthMM = gapMM;
    for (const ReportDrawing &drawing : drawings.mid(0, drawingsPerRow)) {
        widthMM += drawing.sizeMM.width();
    }
    const double percent = 100 * widthMM * reportDotsPerMM / m_pages.size().width();
    QTextTableFormat format;
    format.setBorder(0);
    format.setCellSpacing(0);
    format.setWidth(QTextLength(QTextLength::PercentageLength, 100));
    format.setColumnWidthConstraints({QTextLength(QTextLength::PercentageLength, 100 - percent),
                                      QTextLength(QTextLength::PercentageLength, percent)});
    const QTextTable *table = nextBlock().insertTable(1, 2, format);
    table->cellAt(0, 0).firstCursorPosition().insertHtml(html);
    for (const ReportDrawing &drawing : drawings) {
        insert(table->cellAt(0, 1).lastCursorPosition(), drawing);
    }
}

// HTML goes on with the paragraph that it is put into. Behind a table there is an empty one.
QTextCursor ReportDocument::nextBlock()
{
    QTextCursor cursor(&m_document);
    cursor.movePosition(QTextCursor::End);
    if (!cursor.block().text().isEmpty()) {
        cursor.insertBlock(QTextBlockFormat(), QTextCharFormat());
    }
    return cursor;
}

void ReportDocument::insert(QTextCursor cursor, const ReportDrawing &drawing)
{
    const int type = QTextFormat::UserObject + static_cast<int>(m_drawings.size());
    m_drawings.push_back(std::make_unique<InlineDrawing>(drawing));
    m_document.documentLayout()->registerHandler(type, m_drawings.back().get());
    QTextCharFormat format;
    format.setObjectType(type);
    cursor.insertText(QString(QChar::ObjectReplacementCharacter), format);
}

} // namespace Drevon::Zalento::Measuring

#include "ReportDocument.moc"
