#include "ViewerDriver.h"

#include "StageView.h"

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTest>

#include <algorithm>
#include <cmath>

namespace Drevon::Zalento::Test {

namespace {

constexpr int dragSteps = 6;
constexpr int holdMs = 700;
constexpr int angleDeltaPerNotch = 120;
constexpr int dialogMs = 100;

// What repeaters make has no QObject parent in the scene: go by the items.
QVector<QQuickItem *> allBelow(QQuickItem *root)
{
    QVector<QQuickItem *> items{root};
    for (int i = 0; i < items.size(); ++i) {
        const auto children = items.at(i)->childItems();
        for (QQuickItem *child : children) {
            items.append(child);
        }
    }
    return items;
}

QQuickItem *findBelow(QQuickItem *root, const QString &name)
{
    const auto items = allBelow(root);
    const auto found = std::find_if(items.begin(), items.end(), [&name](const QQuickItem *item) {
        return item->objectName() == name;
    });
    return found == items.end() ? nullptr : *found;
}

} // namespace

ViewerDriver::ViewerDriver(const QSize &windowSize)
{
    QSettings().clear();
    viewer.setWindowSize(windowSize);
    scene = std::make_unique<ViewerWindow>(viewer);
    if (!scene->show() || !QTest::qWaitForWindowExposed(window())) {
        qFatal("the viewer's window does not appear");
    }
    window()->requestActivate();
    if (!QTest::qWaitForWindowActive(window())) {
        qFatal("the viewer's window does not become active");
    }
    m_screen = QTest::createTouchDevice();
}

QQuickItem *ViewerDriver::find(const QString &name) const
{
    QQuickItem *item = findBelow(window()->contentItem(), name);
    if (!item) {
        qFatal("the scene has no item %s", qPrintable(name));
    }
    return item;
}

bool ViewerDriver::hasItem(const QString &name) const
{
    return findBelow(window()->contentItem(), name) != nullptr;
}

QVector<QQuickItem *> ViewerDriver::visibleControls() const
{
    QVector<QQuickItem *> controls;
    for (QQuickItem *item : allBelow(window()->contentItem())) {
        const bool isControl = item->inherits("QQuickAbstractButton") ||
                               item->inherits("QQuickTextField") || item->inherits("QQuickSlider");
        if (isControl && item->isVisible()) {
            controls.append(item);
        }
    }
    return controls;
}

void ViewerDriver::waitForDialog(const QString &name) const
{
    const auto *dialog = window()->findChild<QObject *>(name);
    const auto isOpened = [dialog] { return dialog && dialog->property("opened").toBool(); };
    if (!QTest::qWaitFor(isOpened)) {
        qFatal("%s does not open", qPrintable(name));
    }
    // Rows and columns are laid out with the frame that follows.
    QTest::qWait(dialogMs);
}

void ViewerDriver::clickDialog(const QString &dialogName, const QString &itemName)
{
    const auto *dialog = window()->findChild<QObject *>(dialogName);
    auto *content = dialog ? dialog->property("contentItem").value<QQuickItem *>() : nullptr;
    QQuickItem *item = content ? findBelow(content, itemName) : nullptr;
    if (!item) {
        qFatal("there is no %s in %s", qPrintable(itemName), qPrintable(dialogName));
    }
    const QPointF middle(item->width() / 2, item->height() / 2);
    QTest::mouseClick(window(), Qt::LeftButton, Qt::NoModifier, item->mapToScene(middle).toPoint());
    QTest::qWait(dialogMs);
}

QString ViewerDriver::copySample(const QString &name, const QString &copyName)
{
    const QString copy = folder.filePath(copyName.isEmpty() ? name : copyName);
    const QString sample = QStringLiteral(ZALENTO_SAMPLES "/") + name;
    if (!QFile::exists(copy) && !QFile::copy(sample, copy)) {
        qFatal("the sample %s cannot be copied", qPrintable(name));
    }
    return copy;
}

QString ViewerDriver::openSample(const QString &name)
{
    const QString path = copySample(name);
    viewer.openPaths({path});
    return path;
}

QPoint ViewerDriver::at(double pixelX, double pixelY) const
{
    QQuickItem *stage = find(QStringLiteral("stage"));
    auto *view = stage->property("view").value<StageView *>();
    return stage->mapToScene(view->toView(QPointF(pixelX, pixelY))).toPoint();
}

QPoint ViewerDriver::middleOf(const QString &name) const
{
    const QQuickItem *item = find(name);
    return item->mapToScene(QPointF(item->width() / 2, item->height() / 2)).toPoint();
}

void ViewerDriver::click(double pixelX, double pixelY)
{
    QTest::mouseClick(window(), Qt::LeftButton, Qt::NoModifier, at(pixelX, pixelY));
}

void ViewerDriver::clickItem(const QString &name)
{
    QTest::mouseClick(window(), Qt::LeftButton, Qt::NoModifier, middleOf(name));
}

void ViewerDriver::drag(const QPoint &from, const QPoint &to, Qt::MouseButton button)
{
    QTest::mousePress(window(), button, Qt::NoModifier, from);
    for (int i = 1; i <= dragSteps; ++i) {
        QMouseEvent move(QEvent::MouseMove, from + (to - from) * i / dragSteps, Qt::NoButton,
                         button, Qt::NoModifier);
        QCoreApplication::sendEvent(window(), &move);
    }
    QTest::mouseRelease(window(), button, Qt::NoModifier, to);
}

void ViewerDriver::key(int key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(window(), static_cast<Qt::Key>(key), modifiers);
}

void ViewerDriver::type(const QString &fieldName, const QString &text, int endKey)
{
    QQuickItem *field = find(fieldName);
    field->forceActiveFocus();
    QTest::keyClick(window(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(window(), Qt::Key_Delete);
    for (const QChar c : text) {
        QTest::keyClick(window(), c.toLatin1());
    }
    QTest::keyClick(window(), static_cast<Qt::Key>(endKey));
}

void ViewerDriver::wheel(const QPoint &at, int notches)
{
    QWheelEvent event(at, window()->mapToGlobal(at), QPoint(),
                      QPoint(0, notches * angleDeltaPerNotch), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(window(), &event);
}

void ViewerDriver::tap(const QPoint &at)
{
    QTest::touchEvent(window(), m_screen).press(0, at, window());
    QTest::touchEvent(window(), m_screen).release(0, at, window());
}

void ViewerDriver::hold(const QPoint &at, const QPoint &thenTo,
                        const std::function<void()> &meanwhile)
{
    QTest::touchEvent(window(), m_screen).press(0, at, window());
    QTest::qWait(holdMs);
    for (int i = 1; i <= dragSteps; ++i) {
        QTest::touchEvent(window(), m_screen).move(0, at + (thenTo - at) * i / dragSteps, window());
    }
    QTest::qWait(0);
    meanwhile();
    QTest::touchEvent(window(), m_screen).release(0, thenTo, window());
}

void ViewerDriver::pinch(const QPoint &centre, double startDistance, double endDistance,
                         double turnDeg, const QPoint &moved)
{
    const auto fingers = [&](double share) {
        const double distance = startDistance + (endDistance - startDistance) * share;
        const double angle = -turnDeg * share * M_PI / 180.0; // screen y points down
        const QPointF half(std::cos(angle) * distance / 2, std::sin(angle) * distance / 2);
        const QPointF middle = centre + QPointF(moved) * share;
        return std::make_pair((middle - half).toPoint(), (middle + half).toPoint());
    };
    const auto start = fingers(0.0);
    auto touch = QTest::touchEvent(window(), m_screen, false);
    touch.press(0, start.first, window()).commit();
    touch.stationary(0).press(1, start.second, window()).commit();
    for (int i = 1; i <= dragSteps; ++i) {
        const auto now = fingers(double(i) / dragSteps);
        touch.move(0, now.first, window()).move(1, now.second, window()).commit();
    }
    const auto end = fingers(1.0);
    touch.release(0, end.first, window()).release(1, end.second, window()).commit();
}

QImage ViewerDriver::screenshot(const QString &name)
{
    QTest::qWait(50);
    const QImage image = window()->grabWindow();
    QDir().mkpath(QStringLiteral(ZALENTO_SCREENSHOTS));
    if (!image.save(QStringLiteral(ZALENTO_SCREENSHOTS "/%1.png").arg(name))) {
        qFatal("the screenshot %s cannot be written", qPrintable(name));
    }
    return image;
}

} // namespace Drevon::Zalento::Test
