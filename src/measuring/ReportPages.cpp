#include "measuring/ReportPages.h"

#include "measuring/Text.h"

#include <QAbstractTextDocumentLayout>
#include <QGuiApplication>
#include <QTextOption>

namespace Drevon::Zalento::Measuring {

namespace {

// Of paper, in millimetres.
constexpr double marginMM = 15.0;
constexpr double footerMM = 8.0;

constexpr double textPT = 9.0;
constexpr double noLigatures = 0.05; // any spacing but none turns them off

const QColor ink(20, 20, 20);

QFont textFont()
{
    QFont font(QGuiApplication::font().family());
    font.setPointSizeF(textPT);
    // With ligatures of their own, such as that of f and l, words are not found by their letters.
    font.setLetterSpacing(QFont::AbsoluteSpacing, noLigatures);
    return font;
}

} // namespace

ReportPages::ReportPages(QIODevice &file)
    : m_writer(&file)
{
    m_writer.setTitle(Text::tr("Inspection report"));
    m_writer.setCreator(QStringLiteral("Zalento"));
    m_writer.setResolution(reportDotsPerInch);
    m_writer.setPageSize(QPageSize(QPageSize::A4));
    m_writer.setPageMargins(QMarginsF(marginMM, marginMM, marginMM, marginMM),
                            QPageLayout::Millimeter);
    m_painter.begin(&m_writer);
    m_painter.setFont(textFont());
}

QSizeF ReportPages::size() const
{
    return {static_cast<double>(m_writer.width()), m_writer.height() - footerMM * reportDotsPerMM};
}

void ReportPages::prepare(QTextDocument &document)
{
    document.setUndoRedoEnabled(false);
    document.documentLayout()->setPaintDevice(&m_writer);
    document.setDefaultFont(textFont());
    document.setDocumentMargin(0.0);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    document.setDefaultTextOption(option);
    document.setPageSize(size());
}

void ReportPages::print(const QTextDocument &document)
{
    const int count = document.pageCount();
    for (int i = 0; i < count; ++i) {
        beginPage();
        const QRectF view(QPointF(0, i * size().height()), size());
        m_painter.save();
        m_painter.translate(-view.topLeft());
        m_painter.setClipRect(view);
        QAbstractTextDocumentLayout::PaintContext context;
        context.clip = view;
        context.palette.setColor(QPalette::Text, ink);
        document.documentLayout()->draw(&m_painter, context);
        m_painter.restore();
    }
}

void ReportPages::beginPage()
{
    if (m_count > 0) {
        m_writer.newPage();
    }
    ++m_count;
    const QRectF footer(0, size().height(), size().width(), footerMM * reportDotsPerMM);
    m_painter.setPen(ink);
    m_painter.drawText(footer, Qt::AlignRight | Qt::AlignBottom, QString::number(m_count));
}

} // namespace Drevon::Zalento::Measuring
