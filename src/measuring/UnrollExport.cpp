#include "measuring/UnrollExport.h"

#include "measuring/OutputFile.h"
#include "measuring/roundStep.h"

#include <QFontMetrics>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace Drevon::Zalento::Measuring {

namespace {

// Of the flat picture's larger side; texts stay readable in small ones and calm in large ones.
constexpr int textParts = 70;
constexpr int smallestTextPX = 12;
constexpr int largestTextPX = 60;

constexpr int hours = 12;

// Ticks stand at least this many text heights apart.
constexpr double tickSpacing = 3.0;

// From here on a pixel of the picture covers so many rows that they turn grey.
constexpr double sharpRows = 4.0;
constexpr int greyest = 215;
const QColor blurred(128, 128, 128);

const QColor paper(250, 250, 250);
const QColor ink(20, 20, 20);

class AxesPainter
{
public:
    AxesPainter(const Unrolling &unrolling, const QImage &flat)
        : m_unrolling(unrolling)
        , m_flat(flat)
        , m_text(std::clamp(std::max(flat.width(), flat.height()) / textParts, smallestTextPX,
                            largestTextPX))
        , m_origin(5 * m_text, 3 * m_text)
        , m_mmPerPixel(unrolling.range().mmPerPixel)
    {
        m_font.setPixelSize(m_text);
    }

    QImage painted()
    {
        QImage image(m_flat.size() + QSize(m_origin.x() + 2 * m_text, m_origin.y() + 4 * m_text),
                     QImage::Format_RGB32);
        image.fill(paper);
        image.setDotsPerMeterX(m_flat.dotsPerMeterX());
        image.setDotsPerMeterY(m_flat.dotsPerMeterY());
        QPainter painter(&image);
        painter.setFont(m_font);
        painter.setPen(ink);
        painter.drawImage(m_origin, m_flat);
        paintBlur(painter);
        painter.drawRect(QRect(m_origin - QPoint(1, 1), m_flat.size() + QSize(1, 1)));
        paintDistances(painter);
        m_unrolling.isPlane() ? paintWidths(painter) : paintHours(painter);
        paintScaleBar(painter);
        return image;
    }

private:
    void paintBlur(QPainter &painter) const
    {
        if (m_unrolling.isPlane()) {
            return;
        }
        for (int row = 0; row < m_flat.height(); ++row) {
            const double rows = m_unrolling.worthMM(row) / m_mmPerPixel;
            if (rows > sharpRows) {
                QColor grey = blurred;
                grey.setAlpha(static_cast<int>(greyest * (1.0 - sharpRows / rows)));
                painter.fillRect(m_origin.x(), m_origin.y() + row, m_flat.width(), 1, grey);
            }
        }
    }

    double tickStepMM() const { return roundStep(tickSpacing * m_text * m_mmPerPixel); }

    void paintDistances(QPainter &painter) const
    {
        const double from = m_unrolling.isPlane() ? 0.0 : m_unrolling.range().fromMM;
        const double step = tickStepMM();
        for (double mm = std::ceil(from / step) * step; mm <= from + m_flat.height() * m_mmPerPixel;
             mm += step) {
            const int y = m_origin.y() + qRound((mm - from) / m_mmPerPixel);
            painter.drawLine(m_origin.x() - m_text / 2, y, m_origin.x(), y);
            painter.drawText(QRect(0, y - m_text, m_origin.x() - m_text, 2 * m_text),
                             Qt::AlignRight | Qt::AlignVCenter, QString::number(mm + 0.0));
        }
        painter.drawText(QRect(0, m_text / 2, m_origin.x() - m_text, 2 * m_text),
                         Qt::AlignRight | Qt::AlignVCenter, QStringLiteral("mm"));
    }

    void paintHours(QPainter &painter) const
    {
        for (int hour = 0; hour <= hours; ++hour) {
            const int x = m_origin.x() + m_flat.width() * hour / hours;
            paintTopTick(painter, x, QString::number(hour == 0 ? hours : hour));
        }
    }

    void paintWidths(QPainter &painter) const
    {
        const double step = tickStepMM();
        for (double mm = 0.0; mm <= m_flat.width() * m_mmPerPixel; mm += step) {
            paintTopTick(painter, m_origin.x() + qRound(mm / m_mmPerPixel), QString::number(mm));
        }
    }

    void paintTopTick(QPainter &painter, int x, const QString &text) const
    {
        painter.drawLine(x, m_origin.y() - m_text / 2, x, m_origin.y());
        painter.drawText(QRect(x - 3 * m_text, m_text / 2, 6 * m_text, 2 * m_text),
                         Qt::AlignHCenter | Qt::AlignVCenter, text);
    }

    // A fifth of the width, or a little more.
    void paintScaleBar(QPainter &painter) const
    {
        const double mm = roundStep(m_flat.width() * m_mmPerPixel / 5);
        const int y = m_origin.y() + m_flat.height() + m_text;
        const QRect bar(m_origin.x(), y, qRound(mm / m_mmPerPixel), std::max(m_text / 3, 3));
        painter.fillRect(bar, ink);
        painter.drawText(QRect(bar.left(), bar.bottom() + 2, 40 * m_text, 2 * m_text),
                         Qt::AlignLeft | Qt::AlignTop,
                         QStringLiteral("%1 mm; %2 mm a pixel").arg(mm).arg(m_mmPerPixel));
    }

    const Unrolling &m_unrolling;
    const QImage &m_flat;
    int m_text; // height in pixels
    QPoint m_origin;
    double m_mmPerPixel;
    QFont m_font;
};

} // namespace

QString unrolledPathOf(const QString &picturePath, const QString &folder)
{
    return pathBeside(picturePath, folder, QStringLiteral(".unrolled.png"));
}

QImage withAxes(const Unrolling &unrolling, const QImage &flat)
{
    return AxesPainter(unrolling, flat).painted();
}

} // namespace Drevon::Zalento::Measuring
