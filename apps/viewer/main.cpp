#include "ViewerController.h"
#include "ViewerWindow.h"

#include <QCommandLineParser>
#include <QGuiApplication>

#include <cstdio>

int main(int argc, char *argv[])
{
    using namespace Drevon::Zalento;

    QGuiApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QGuiApplication app(argc, argv);
    QGuiApplication::setOrganizationName(QStringLiteral("Zalento"));
    QGuiApplication::setApplicationName(QStringLiteral("zalento-viewer"));
    QGuiApplication::setApplicationVersion(QStringLiteral(ZALENTO_VERSION));

    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Measures on pictures from inside pipes. F1 lists the keys."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addPositionalArgument(QStringLiteral("files"),
                                 QStringLiteral("Pictures, session files, or folders of pictures."),
                                 QStringLiteral("[files...]"));
    parser.process(app);

    ViewerController controller;
    ViewerWindow window(controller);
    if (!window.show()) {
        std::fputs("zalento-viewer: the window cannot be made\n", stderr);
        return 3;
    }
    controller.openPaths(parser.positionalArguments());
    return QGuiApplication::exec();
}
