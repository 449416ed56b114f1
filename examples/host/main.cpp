// inspector: one picture, the overlay over it, and what it measures.
#include "Inspection.h"

#include <measuring/registerMeasuringTypes.h>
#include <zalento/item/registerTypes.h>

#include <QCommandLineParser>
#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickWindow>

#include <cstdio>

namespace {

struct Options
{
    QString picture;
    int nominalSizeMM = 0;
    QString screenshot;
};

Options readOptions(const QCoreApplication &application)
{
    QCommandLineParser parser;
    parser.addHelpOption();
    const QCommandLineOption size("size", "Nominal size of the pipe in mm.", "mm", "300");
    const QCommandLineOption screenshot("screenshot", "Write the window to FILE and end.", "FILE");
    parser.addOptions({size, screenshot});
    parser.addPositionalArgument("PICTURE", "The picture to measure on.");
    parser.process(application);
    if (parser.positionalArguments().size() != 1) {
        parser.showHelp(1);
    }
    return {parser.positionalArguments().first(), parser.value(size).toInt(),
            parser.value(screenshot)};
}

// The second frame has everything that the first one led to.
void writeScreenshotAndEnd(QQuickWindow &window, const QString &path)
{
    QObject::connect(
        &window, &QQuickWindow::frameSwapped, &window,
        [&window, path, frames = 0]() mutable {
            if (++frames < 2) {
                window.update();
                return;
            }
            QCoreApplication::exit(window.grabWindow().save(path) ? 0 : 1);
        },
        Qt::QueuedConnection);
}

} // namespace

int main(int argc, char *argv[])
{
    QGuiApplication application(argc, argv);
    QCoreApplication::setOrganizationName("Inspector");
    const Options options = readOptions(application);
    const auto picture = Drevon::Zalento::Measuring::loadPicture(options.picture);
    if (!picture) {
        std::fprintf(stderr, "inspector: %s\n", qPrintable(picture.problem().text()));
        return 1;
    }
    Inspection::setNominalSize(options.nominalSizeMM);
    Inspection inspection(picture->identity);

    Drevon::Zalento::registerTypes("Inspector");
    Drevon::Zalento::Measuring::registerMeasuringTypes("Inspector");
    QQmlApplicationEngine engine;
    engine.setInitialProperties({{"inspection", QVariant::fromValue(&inspection)}});
    engine.load(QUrl("qrc:/Main.qml"));
    if (engine.rootObjects().isEmpty()) {
        return 1;
    }
    if (!options.screenshot.isEmpty()) {
        writeScreenshotAndEnd(*qobject_cast<QQuickWindow *>(engine.rootObjects().first()),
                              options.screenshot);
    }
    return QGuiApplication::exec();
}
