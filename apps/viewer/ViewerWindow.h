#pragma once

#include <QQmlApplicationEngine>

class QQuickWindow;

namespace Drevon::Zalento {

class Viewer;

/** The viewer's window with its scene. The controller outlives it. */
class ViewerWindow
{
public:
    explicit ViewerWindow(Viewer &viewer);

    /** @return false when the scene cannot be loaded; the reasons stand on stderr */
    bool show();

    /** Null before show(). */
    QQuickWindow *window() const;

private:
    QQmlApplicationEngine m_engine;
};

} // namespace Drevon::Zalento
