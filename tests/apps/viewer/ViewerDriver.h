#pragma once

#include "StageView.h"
#include "Viewer.h"
#include "ViewerWindow.h"

#include <QAccessible>
#include <QDir>
#include <QFile>
#include <QLineF>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <functional>

namespace Drevon::Zalento::Test {

/** The viewer in a window of its own, with a hand on mouse, keys and screen. */
class ViewerDriver
{
public:
    explicit ViewerDriver(const QSize &windowSize = QSize(1280, 800),
                          const QString &language = "en")
    {
        QSettings().clear();
        viewer.preferences()->setWindowSize(windowSize);
        viewer.preferences()->setLanguage(language);
        scene.show();
        window()->requestActivate();
        if (!QTest::qWaitForWindowActive(window())) {
            qFatal("the viewer's window does not appear");
        }
    }

    Viewer viewer;
    MeasurementEditor &editor = *viewer.editor();
    MeasurementModel &measurements = *viewer.measurements();
    DocumentList &documents = *viewer.documents();
    Exporter &exporter = *viewer.exporter();
    Guidance &guidance = *viewer.guidance();
    ViewerWindow scene{viewer};
    QTemporaryDir folder;

    QQuickWindow *window() const { return scene.window(); }
    StageView *view() const { return find("stage")->property("view").value<StageView *>(); }

    /** Everything below @p root; what repeaters make has no QObject parent in the scene. */
    static QVector<QQuickItem *> below(QQuickItem *root)
    {
        QVector<QQuickItem *> items{root};
        for (int i = 0; i < items.size(); ++i) {
            items += items.at(i)->childItems().toVector();
        }
        return items;
    }
    bool hasItem(const QString &name) const { return named(window()->contentItem(), name); }
    QQuickItem *find(const QString &name) const { return find(name, window()->contentItem()); }
    QString text(const QString &itemName) const
    {
        return find(itemName)->property("text").toString();
    }
    QVector<QQuickItem *> visibleControls() const
    {
        QVector<QQuickItem *> controls;
        for (QQuickItem *item : below(window()->contentItem())) {
            if (item->isVisible() &&
                (item->inherits("QQuickAbstractButton") || item->inherits("QQuickTextField") ||
                 item->inherits("QQuickSlider"))) {
                controls.append(item);
            }
        }
        return controls;
    }

    /**
     * The visible controls without a name, too small for a finger, outside of the window, or with a
     * text that does not fit.
     */
    QStringList unfitControls() const
    {
        constexpr double smallestForAFinger = 44.0;
        const QRectF whole(QPointF(), window()->size());
        QStringList unfit;
        for (QQuickItem *item : visibleControls()) {
            auto *accessible = QAccessible::queryAccessibleInterface(item);
            const QString label = accessible ? accessible->text(QAccessible::Name) : QString();
            const QRectF place = item->mapRectToScene(item->boundingRect());
            const QQuickItem *area = scrolledArea(item);
            const bool isInside = !area ? whole.contains(place)
                                        : isWiderInside(area) || place.right() <= whole.right();
            const double side = std::min(item->width(), item->height());
            if (label.isEmpty() || side < smallestForAFinger || !isInside || isCutOff(item)) {
                unfit += QStringLiteral("%1 \"%2\"").arg(item->objectName(), label);
            }
        }
        return unfit;
    }

    /** What screen readers are told of without a name, and visible controls that they are not. */
    QStringList untoldItems() const
    {
        QStringList untold;
        QVector<QAccessibleInterface *> told{QAccessible::queryAccessibleInterface(window())};
        for (int i = 0; i < told.size(); ++i) {
            for (int child = 0; child < told[i]->childCount(); ++child) {
                told.append(told[i]->child(child));
            }
            const bool holdsOthers =
                told[i]->role() == QAccessible::Window || told[i]->role() == QAccessible::Client;
            if (!holdsOthers && !told[i]->state().invisible &&
                told[i]->text(QAccessible::Name).isEmpty()) {
                untold += told[i]->object()->objectName();
            }
        }
        for (QQuickItem *item : visibleControls()) {
            auto *accessible = QAccessible::queryAccessibleInterface(item);
            if (!told.contains(accessible) || accessible->role() == QAccessible::Client) {
                untold += item->objectName();
            }
        }
        return untold;
    }

    /** A copy of a sample in the folder. */
    QString copySample(const QString &name, const QString &copyName = {}) const
    {
        const QString copy = folder.filePath(copyName.isEmpty() ? name : copyName);
        QFile::copy(QStringLiteral(ZALENTO_SAMPLES "/") + name, copy);
        return copy;
    }
    QString openSample(const QString &name)
    {
        documents.openPaths({copySample(name)});
        return copySample(name);
    }

    /** Window position of a picture pixel. */
    QPoint at(double pixelX, double pixelY) const
    {
        return find("stage")->mapToScene(view()->toView(QPointF(pixelX, pixelY))).toPoint();
    }
    static QPoint middleOf(const QQuickItem *item)
    {
        return item->mapToScene(QPointF(item->width() / 2, item->height() / 2)).toPoint();
    }
    void press(const QPoint &point)
    {
        QTest::mouseClick(window(), Qt::LeftButton, Qt::NoModifier, point);
    }
    void click(double pixelX, double pixelY) { press(at(pixelX, pixelY)); }
    void clickItem(const QString &name) { press(middleOf(find(name))); }
    void doubleClickItem(const QString &name)
    {
        QTest::mouseDClick(window(), Qt::LeftButton, Qt::NoModifier, middleOf(find(name)));
    }
    /** Waits until the dialog or menu stands where it stays. */
    QObject *waitForDialog(const QString &name) const
    {
        auto *dialog = window()->findChild<QObject *>(name);
        if (!dialog || !QTest::qWaitFor([=] { return dialog->property("opened").toBool(); })) {
            qFatal("%s does not open", qPrintable(name));
        }
        QTest::qWait(frameMs);
        return dialog;
    }
    void clickDialog(const QString &dialogName, const QString &itemName)
    {
        const QObject *dialog = waitForDialog(dialogName);
        press(middleOf(find(itemName, dialog->property("contentItem").value<QQuickItem *>())));
        QTest::qWait(frameMs);
    }
    void drag(const QPoint &from, const QPoint &to, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mousePress(window(), button, Qt::NoModifier, from);
        for (int i = 1; i <= dragSteps; ++i) {
            const QPointF at = from + (to - from) * i / dragSteps;
            QMouseEvent move(QEvent::MouseMove, at, at, window()->mapToGlobal(at.toPoint()),
                             Qt::NoButton, button, Qt::NoModifier);
            QCoreApplication::sendEvent(window(), &move);
        }
        QTest::mouseRelease(window(), button, Qt::NoModifier, to);
    }
    void wheel(const QPoint &at, int notches)
    {
        QWheelEvent event(at, window()->mapToGlobal(at), QPoint(), QPoint(0, notches * 120),
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(window(), &event);
    }
    void key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(window(), static_cast<Qt::Key>(key), modifiers);
    }
    void type(const QString &fieldName, const QString &text, int endKey = Qt::Key_Return)
    {
        find(fieldName)->forceActiveFocus();
        key(Qt::Key_A, Qt::ControlModifier);
        key(Qt::Key_Delete);
        for (const QChar c : text) {
            QTest::keyClick(window(), c.toLatin1());
        }
        key(endKey);
    }

    void hold(const QPoint &at, const QPoint &thenTo, const std::function<void()> &meanwhile)
    {
        QTest::touchEvent(window(), m_screen).press(0, at, window());
        QTest::qWait(holdMs);
        for (int i = 1; i <= dragSteps; ++i) {
            QTest::touchEvent(window(), m_screen)
                .move(0, at + (thenTo - at) * i / dragSteps, window());
        }
        meanwhile();
        QTest::touchEvent(window(), m_screen).release(0, thenTo, window());
    }
    void tap(const QPoint &at)
    {
        QTest::touchEvent(window(), m_screen).press(0, at, window());
        QTest::touchEvent(window(), m_screen).release(0, at, window());
    }
    void pinch(const QPoint &centre, double startDistance, double endDistance, double turnDeg,
               const QPoint &moved = {})
    {
        auto touch = QTest::touchEvent(window(), m_screen, false);
        QPoint left;
        QPoint right;
        for (int i = 0; i <= pinchSteps; ++i) {
            const double share = double(i) / pinchSteps;
            const double distance = startDistance + (endDistance - startDistance) * share;
            const QPointF arm = QLineF::fromPolar(distance / 2, turnDeg * share).p2();
            left = (centre + QPointF(moved) * share - arm).toPoint();
            right = (centre + QPointF(moved) * share + arm).toPoint();
            if (i == 0) {
                touch.press(0, left, window()).commit();
                touch.stationary(0).press(1, right, window()).commit();
            }
            touch.move(0, left, window()).move(1, right, window()).commit();
        }
        // Fingers do not lift at once, and the last one slips.
        touch.stationary(0).release(1, right, window()).commit();
        touch.move(0, left + QPoint(20, 20), window()).commit();
        touch.release(0, left + QPoint(40, 40), window()).commit();
    }

    /** Lets the scene catch up, and writes "<name>.png". */
    QImage screenshot(const QString &name)
    {
        QTest::qWait(frameMs / 2);
        const QImage image = window()->grabWindow();
        QDir().mkpath(ZALENTO_SCREENSHOTS);
        image.save(QStringLiteral(ZALENTO_SCREENSHOTS "/%1.png").arg(name));
        return image;
    }

private:
    // But for the names of files, which may be long.
    static bool isCutOff(QQuickItem *control)
    {
        const auto items = below(control);
        return !control->inherits("QQuickItemDelegate") &&
               std::any_of(items.begin(), items.end(), [](const QQuickItem *item) {
                   return item->property("truncated").toBool();
               });
    }
    static bool isWiderInside(const QQuickItem *area)
    {
        return area->property("contentWidth").toDouble() > area->width();
    }
    static const QQuickItem *scrolledArea(const QQuickItem *item)
    {
        while (item && !item->inherits("QQuickFlickable")) {
            item = item->parentItem();
        }
        return item;
    }
    static QQuickItem *named(QQuickItem *root, const QString &name)
    {
        for (QQuickItem *item : below(root)) {
            if (item->objectName() == name) {
                return item;
            }
        }
        return nullptr;
    }
    static QQuickItem *find(const QString &name, QQuickItem *root)
    {
        QQuickItem *item = root ? named(root, name) : nullptr;
        if (!item) {
            qFatal("the scene has no item %s", qPrintable(name));
        }
        return item;
    }

    static constexpr int dragSteps = 6;
    static constexpr int pinchSteps = 100; // it is noticed within the first few
    static constexpr int holdMs = 700;
    static constexpr int frameMs = 100; // rows and columns are laid out with the frame that follows
    decltype(QTest::createTouchDevice()) m_screen = QTest::createTouchDevice();
};

} // namespace Drevon::Zalento::Test
