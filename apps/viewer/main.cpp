#include "Viewer.h"
#include "ViewerWindow.h"

#include <QByteArrayList>
#include <QCommandLineParser>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QIcon>
#include <QOpenGLContext>
#include <QQuickWindow>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace {

constexpr int exitNoWindow = 3;

// Qt aborts where it can open no window. The operator gets a sentence and an exit code instead.
void explainMissingDisplay(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type != QtFatalMsg) {
        std::fprintf(stderr, "%s\n", qPrintable(message));
        return;
    }
    std::fputs("zalento-viewer: there is no display to open a window on; "
               "zalento-measure works without one\n",
               stderr);
    std::_Exit(exitNoWindow);
}

// Help and version need no window, and are given without a display.
void letHelpDoWithoutDisplay(int argc, char *argv[])
{
    const QByteArrayList texts{"-h", "--help", "--help-all", "-v", "--version"};
    const bool isText = std::any_of(
        argv, argv + argc, [&texts](const char *argument) { return texts.contains(argument); });
    if (isText) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
}

// Without a usable graphics card everything is drawn by the processor.
void chooseRenderer()
{
    QOpenGLContext context;
    if (!qEnvironmentVariableIsSet("QT_QUICK_BACKEND") && !context.create()) {
        QQuickWindow::setSceneGraphBackend(QStringLiteral("software"));
    }
}

} // namespace

int main(int argc, char *argv[])
{
    using namespace Drevon::Zalento;

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    QGuiApplication::setAttribute(Qt::AA_EnableHighDpiScaling); // Qt 6 always does
#endif
    letHelpDoWithoutDisplay(argc, argv);
    qInstallMessageHandler(explainMissingDisplay);
    QGuiApplication app(argc, argv);
    qInstallMessageHandler(nullptr);
    QGuiApplication::setOrganizationName(QStringLiteral("Zalento"));
    QGuiApplication::setApplicationName(QStringLiteral("zalento-viewer"));
    QGuiApplication::setApplicationVersion(QStringLiteral(ZALENTO_VERSION));
    QGuiApplication::setDesktopFileName(QStringLiteral("zalento-viewer"));
    QGuiApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("zalento-viewer")));

    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Measures on pictures from inside pipes. F1 lists the keys."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addPositionalArgument(QStringLiteral("files"),
                                 QStringLiteral("Pictures, session files, or folders of pictures."),
                                 QStringLiteral("[files...]"));
    parser.process(app);

    if (!QFontMetrics(QFont()).inFont(QLatin1Char('0'))) {
        std::fputs("zalento-viewer: there is no font, so texts are not shown; "
                   "install one, for example fonts-dejavu-core\n",
                   stderr);
    }
    chooseRenderer();
    Viewer viewer;
    ViewerWindow window(viewer);
    if (!window.show()) {
        std::fputs("zalento-viewer: the window cannot be made\n", stderr);
        return exitNoWindow;
    }
    viewer.documents()->openPaths(parser.positionalArguments());
    return QGuiApplication::exec();
}
