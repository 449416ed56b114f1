// The viewer until its first frame with the picture: starts as zalento-viewer does, and ends there.
#include "Viewer.h"
#include "ViewerWindow.h"

#include <QGuiApplication>
#include <QQuickWindow>

#include <cstdlib>

int main(int argc, char **argv)
{
    using namespace Drevon::Zalento;

    const QGuiApplication app(argc, argv);
    QGuiApplication::setOrganizationName(QStringLiteral("Zalento"));
    QGuiApplication::setApplicationName(QStringLiteral("zalento-first-frame"));
    Viewer viewer;
    ViewerWindow window(viewer);
    if (!window.show()) {
        return EXIT_FAILURE;
    }
    viewer.documents()->openPaths(QGuiApplication::arguments().mid(1));
    if (!viewer.documents()->hasPicture()) {
        return EXIT_FAILURE;
    }
    QObject::connect(window.window(), &QQuickWindow::frameSwapped, &app, &QCoreApplication::quit,
                     Qt::QueuedConnection);
    return QGuiApplication::exec();
}
