#pragma once

#include "support/PaintRecorder.h"
#include "zalento/pipes/PipeBase.h"
#include "zalento/render/ModelViewScope.h"

#include <QPointF>
#include <QStringList>

namespace Drevon::Zalento::Test {

/** Drawing area of the pipe tests, in item pixels: not at the origin, so that a forgotten offset
    shows. */
constexpr QRectF drawingArea{96, 0, 576, 576};

inline QPointF projected(const MiniGL &camera, const Vec3 &point)
{
    Mat4 toPixels;
    camera.combinedMatrix(toPixels);
    Vec2 pixel;
    toPixels.multiply(point, pixel);
    return {pixel.x, pixel.y};
}

/** Item pixel at which a point of the pipe frame is drawn. */
inline QPointF pixelOf(PipeBase &pipe, const Vec3 &point, const Vec3 &rotation = Vec3::Zero,
                       const QPoint &offset = {})
{
    pipe.setupMiniGL(pipe.getDiameterM(), offset);
    const ModelViewScope scope(pipe.camera);
    pipe.camera.rotateByTouchRotationVector(Vec2(rotation.x, rotation.y));
    pipe.applyZRotation(rotation);
    return projected(pipe.camera, point);
}

/** The calls of one paint. */
inline QVector<PaintCall> painted(PipeBase &pipe, int viewStyle, const Vec3 &rotation = Vec3::Zero)
{
    PaintRecorder recorder;
    QPainter painter(&recorder);
    pipe.render(painter, ViewStyle(viewStyle), ZASettings(), rotation, QPoint());
    painter.end();
    return recorder.calls();
}

/** Adds @p line, or counts it when it repeats the last one: "red 2" twice reads "red 2 x2". */
inline void addCounted(QStringList &lines, const QString &line)
{
    const QStringList last = lines.isEmpty() ? QStringList() : lines.last().split(" x");
    if (last.value(0) != line) {
        lines.append(line);
    } else {
        lines.last() = QString("%1 x%2").arg(line).arg(last.value(1, "1").toInt() + 1);
    }
}

/** "green 2": the display settings' default colours by name, with their share of opacity in 255
    where they are translucent, and the width in pixels. */
inline QString penName(const QPen &pen)
{
    QColor opaque = pen.color();
    opaque.setAlpha(255);
    const QHash<QString, QString> names{{"#00ff00", "green"},
                                        {"#ffff00", "yellow"},
                                        {"#00ffff", "cyan"},
                                        {"#ff0000", "red"},
                                        {"#000000", "black"}};
    const int alpha = pen.color().alpha();
    return QString("%1%2 %3")
        .arg(names.value(opaque.name()), alpha == 255 ? QString() : QString("/%1").arg(alpha))
        .arg(pen.widthF());
}

} // namespace Drevon::Zalento::Test
