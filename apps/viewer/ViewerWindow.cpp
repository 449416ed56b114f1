#include "ViewerWindow.h"

#include "OverlayView.h"
#include "PictureProvider.h"
#include "StageGestures.h"
#include "StageView.h"
#include "ViewerController.h"

#include <zalento/item/registerTypes.h>

#include <QQuickStyle>
#include <QQuickWindow>

// The scene lies in a static library, whose resources are dropped unless they are asked for. The
// macro works outside of namespaces only.
static void keepScene()
{
    Q_INIT_RESOURCE(viewer);
}

namespace Drevon::Zalento {

ViewerWindow::ViewerWindow(ViewerController &controller)
{
    keepScene();
    constexpr char module[] = "Drevon.Zalento.Viewer";
    QQuickStyle::setStyle(QStringLiteral("Default"));
    registerTypes("Drevon.Zalento");
    qmlRegisterType<OverlayView>(module, 1, 0, "OverlayView");
    qmlRegisterType<StageGestures>(module, 1, 0, "StageGestures");
    qmlRegisterType<StageView>(module, 1, 0, "StageView");
    qmlRegisterSingletonInstance(module, 1, 0, "Viewer", &controller);

    auto *provider = new PictureProvider;
    controller.setPictureProvider(provider);
    m_engine.addImageProvider(QStringLiteral("picture"), provider);
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
