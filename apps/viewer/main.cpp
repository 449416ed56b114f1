#include "ViewerController.h"
#include "ViewerWindow.h"

#include <QCommandLineParser>
#include <QGuiApplication>
#include <QOpenGLContext>
#include <QQuickWindow>

#include <cstdio>
#include <cstring>

namespace {

// Qt ends the program when it finds no display; this says what to do instead.
bool hasDisplay(int argc, char *argv[])
{
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "-platform") == 0) {
            return true;
        }
    }
    return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY") ||
           qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
}

// Without a usable graphics card everything is drawn by the processor.
void chooseRenderer()
{
    QOpenGLContext context;
    if (!qEnvironmentVariableIsSet("QT_QUICK_BACKEND") && !context.create()) {
        QQuickWindow::setSceneGraphBackend(QSGRendererInterface::Software);
    }
}

} // namespace

int main(int argc, char *argv[])
{
    using namespace Drevon::Zalento;

    if (!hasDisplay(argc, argv)) {
        std::fputs("zalento-viewer: there is no display; zalento-measure needs none\n", stderr);
        return 3;
    }
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

    chooseRenderer();
    ViewerController controller;
    ViewerWindow window(controller);
    if (!window.show()) {
        std::fputs("zalento-viewer: the window cannot be made\n", stderr);
        return 3;
    }
    controller.openPaths(parser.positionalArguments());
    return QGuiApplication::exec();
}
