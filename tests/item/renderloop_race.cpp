// Paints the item on another thread while this one changes it, which Qt Quick never does. The data
// race check has to report it: this shows that the check sees into the library.
#include "zalento/item/ZaItem.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <thread>

int main(int argc, char *argv[])
{
    constexpr int sidePx = 100;
    constexpr int frames = 20;
    constexpr int turns = 1000;

    const QGuiApplication application(argc, argv);
    Drevon::Zalento::ZaItem item;
    item.setSize(QSizeF(sidePx, sidePx));
    std::thread renderThread([&item] {
        QImage image(sidePx, sidePx, QImage::Format_ARGB32_Premultiplied);
        QPainter painter(&image);
        for (int i = 0; i < frames; ++i) {
            item.paint(&painter);
        }
    });
    for (int i = 0; i < turns; ++i) {
        item.rotate(i);
    }
    renderThread.join();
    return 0;
}
