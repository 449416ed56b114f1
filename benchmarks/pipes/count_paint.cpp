// Paints every pipe object once, and its floor once, for an instruction counter to watch: callgrind
// collects inside countedCall() and dumps behind it, in the order of the names that are printed.
#include "support/PaintFloor.h"
#include "support/PaintedObject.h"

#include <QGuiApplication>

#include <cstdio>

using namespace Drevon::Zalento;
using namespace Drevon::Zalento::Benchmarks;

// Under its plain name for the command line of callgrind.
extern "C" __attribute__((noinline)) void countedCall(const std::function<void()> &action)
{
    action();
}

namespace {

const QSize size(1080, 1080);

void count(const ObjectKind &kind, ViewStyle style)
{
    const auto pipe = kind.make();
    pipe->camera.onResize(QRectF(QPointF(0, 0), size));
    const PaintFloor floor([&](QPainter &p) { paintObject(*pipe, p, style); }, size);
    Canvas canvas(size);
    const std::function<void()> paintOurs = [&] { paintObject(*pipe, canvas.painter, style); };
    const std::function<void()> paintBare = [&] { floor.paint(canvas.painter); };
    // The first ones fill caches.
    paintOurs();
    paintBare();
    countedCall(paintOurs);
    countedCall(paintBare);
    std::printf("%s/style:%d\n", kind.name, static_cast<int>(style));
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    for (const ObjectKind &kind : objectKinds()) {
        for (const ViewStyle style : kind.styles) {
            count(kind, style);
        }
    }
    return 0;
}
