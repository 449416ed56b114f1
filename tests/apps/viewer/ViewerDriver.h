#pragma once

#include "ViewerController.h"
#include "ViewerWindow.h"

#include <QPointF>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSize>
#include <QString>
#include <QTemporaryDir>
#include <QVector>

#include <functional>
#include <memory>

class QTouchDevice;

namespace Drevon::Zalento::Test {

/** The viewer in a window of its own, with a hand on mouse, keys and screen. */
class ViewerDriver
{
public:
    explicit ViewerDriver(const QSize &windowSize = QSize(1280, 800));

    ViewerController viewer;
    std::unique_ptr<ViewerWindow> scene;
    QTemporaryDir folder;

    QQuickWindow *window() const { return scene->window(); }
    /** The item of this object name; the test fails when there is none. */
    QQuickItem *find(const QString &name) const;
    bool hasItem(const QString &name) const;
    /** Buttons, fields and sliders that can be seen. */
    QVector<QQuickItem *> visibleControls() const;
    /** Copies a sample into the folder and opens it. */
    QString openSample(const QString &name);
    /** A copy of a sample in the folder, not opened. */
    QString copySample(const QString &name, const QString &copyName = {});

    /** Window position of a picture pixel, and of an item's middle. */
    QPoint at(double pixelX, double pixelY) const;
    QPoint middleOf(const QString &name) const;

    void click(double pixelX, double pixelY);
    void clickItem(const QString &name);
    /** Until the dialog or menu stands where it stays. */
    void waitForDialog(const QString &name) const;
    /** Clicks an item of the dialog. */
    void clickDialog(const QString &dialogName, const QString &itemName);
    void drag(const QPoint &from, const QPoint &to, Qt::MouseButton button = Qt::LeftButton);
    void key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void type(const QString &fieldName, const QString &text, int endKey = Qt::Key_Return);
    void wheel(const QPoint &at, int notches);
    void tap(const QPoint &at);
    void hold(const QPoint &at, const QPoint &thenTo, const std::function<void()> &meanwhile);
    void pinch(const QPoint &centre, double startDistance, double endDistance, double turnDeg,
               const QPoint &moved = {});

    /** Lets the scene catch up, and writes "<name>.png". */
    QImage screenshot(const QString &name);

private:
    QTouchDevice *m_screen = nullptr;
};

} // namespace Drevon::Zalento::Test
