#include "ViewerWindow.h"

#include "OverlayView.h"
#include "PictureProvider.h"
#include "StageGestures.h"
#include "StageView.h"
#include "ViewerController.h"

#include <zalento/item/registerTypes.h>

#include <QQuickStyle>
#include <QQuickWindow>

#include <mutex>

// The scene lies in a static library, whose resources are dropped unless they are asked for. The
// macro works outside of namespaces only.
static void keepScene()
{
    Q_INIT_RESOURCE(viewer);
}

namespace Drevon::Zalento {

namespace {

// Under this name the engine knows the controller.
const char *const controllerProperty = "viewerController";

QObject *controllerOf(QQmlEngine *engine, QJSEngine *)
{
    auto *controller = engine->property(controllerProperty).value<QObject *>();
    QQmlEngine::setObjectOwnership(controller, QQmlEngine::CppOwnership);
    return controller;
}

// For the first window of the process.
void prepareScene()
{
    keepScene();
    QQuickStyle::setStyle(QStringLiteral("Default"));
    constexpr char module[] = "Drevon.Zalento.Viewer";
    registerTypes("Drevon.Zalento");
    qmlRegisterType<OverlayView>(module, 1, 0, "OverlayView");
    qmlRegisterType<StageGestures>(module, 1, 0, "StageGestures");
    qmlRegisterType<StageView>(module, 1, 0, "StageView");
    qmlRegisterSingletonType<ViewerController>(module, 1, 0, "Viewer", controllerOf);
}

} // namespace

ViewerWindow::ViewerWindow(ViewerController &controller)
{
    static std::once_flag sceneIsPrepared;
    std::call_once(sceneIsPrepared, prepareScene);

    auto *provider = new PictureProvider;
    controller.setPictureProvider(provider);
    m_engine.addImageProvider(QStringLiteral("picture"), provider);
    m_engine.setProperty(controllerProperty, QVariant::fromValue<QObject *>(&controller));
}

bool ViewerWindow::show()
{
    m_engine.load(QUrl(QStringLiteral("qrc:/viewer/Main.qml")));
    return window() != nullptr;
}

QQuickWindow *ViewerWindow::window() const
{
    const QObjectList roots = m_engine.rootObjects();
    return roots.isEmpty() ? nullptr : qobject_cast<QQuickWindow *>(roots.first());
}

} // namespace Drevon::Zalento
