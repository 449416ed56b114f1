#pragma once

#include "support/PaintRecorder.h"
#include "support/Tolerances.h"

#include <QFontMetrics>

namespace Drevon::Zalento::Test {

/** What is wrong with a label: a filled box without a pen and a text on it, centred on @p center,
    its baseline @p lineOffset text heights below. Empty when nothing is. */
inline QByteArray labelFaults(const PaintCall &box, const PaintCall &text, const QPointF &center,
                              double lineOffset)
{
    if (box.kind != PaintCall::Kind::RectsFloat || box.pen.style() != Qt::NoPen ||
        text.kind != PaintCall::Kind::Text)
        return "no label: " + box.toString().toUtf8() + ", " + text.toString().toUtf8();
    const PaintRecorder device;
    const QRectF bounds = QFontMetrics(text.font, &device).boundingRect(text.text);
    const QPointF origin = center + QPointF(-0.5 * bounds.width(), lineOffset * bounds.height());
    const QPointF size(bounds.width(), bounds.height());
    return compareNear(text.points[0], origin, textTolerance).message +
           compareNear(box.points[0], origin + bounds.topLeft(), pixelTolerance).message +
           compareExact(box.points[1], size).message;
}

} // namespace Drevon::Zalento::Test
