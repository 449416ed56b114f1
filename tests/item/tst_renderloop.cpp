// The item in a real window, under the render loop that QSG_RENDER_LOOP and QT_QUICK_BACKEND
// select.
#include "support/TestCase.h"

#include "zalento/item/ZaItem.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickView>
#include <QQuickWindow>
#include <QSGRendererInterface>
#include <QSet>
#include <QTest>
#include <QThread>
#include <atomic>

using namespace Drevon::Zalento;
using namespace Drevon::Zalento::Test;

namespace {

bool expectsThread()
{
    return qgetenv("QSG_RENDER_LOOP") == "threaded";
}

bool expectsSoftware()
{
    return qgetenv("QT_QUICK_BACKEND") == "software";
}

} // namespace

/** The item, which also remembers where it was painted. */
class WatchedItem : public ZaItem
{
    Q_OBJECT

public:
    std::atomic<int> paintsOnGuiThread{0};
    std::atomic<int> paintsElsewhere{0};

    int paints() const { return paintsOnGuiThread + paintsElsewhere; }

    void paint(QPainter *painter) override
    {
        ++(QThread::currentThread() == thread() ? paintsOnGuiThread : paintsElsewhere);
        ZaItem::paint(painter);
    }
};

/** What QML has been told, and where. */
class Witness : public QObject
{
    Q_OBJECT

public:
    QVector<double> values;
    QSet<QThread *> threads;

    Q_INVOKABLE void note(double value)
    {
        values.append(value);
        threads.insert(QThread::currentThread());
    }
};

class TestRenderLoop : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void paintsWhereTheLoopRendersAndReportsOnTheGuiThread();

private:
    Witness m_witness;
    QScopedPointer<QQuickView> m_view;
    WatchedItem *m_item = nullptr;
};

void TestRenderLoop::initTestCase()
{
    qmlRegisterType<WatchedItem>("RenderLoopTest", 1, 0, "WatchedItem");
    qmlRegisterSingletonInstance("RenderLoopTest", 1, 0, "Witness", &m_witness);
    m_view.reset(new QQuickView);
    QQmlComponent component(m_view->engine());
    component.setData("import QtQuick 2.15\n"
                      "import RenderLoopTest 1.0\n"
                      "WatchedItem {\n"
                      "    width: 400; height: 300\n"
                      "    iWantToMeasure: 'PipeDimension'\n"
                      "    onMeasure1Changed: measure => Witness.note(measure)\n"
                      "}\n",
                      QUrl());
    m_item = qobject_cast<WatchedItem *>(component.create());
    QVERIFY2(m_item, qPrintable(component.errorString()));
    m_view->setContent(QUrl(), nullptr, m_item);
    m_view->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_view.data()));
    const auto api = m_view->rendererInterface()->graphicsApi();
    QCOMPARE(api,
             expectsSoftware() ? QSGRendererInterface::Software : QSGRendererInterface::OpenGL);
}

void TestRenderLoop::paintsWhereTheLoopRendersAndReportsOnTheGuiThread()
{
    m_item->mouseClick(200, 40);
    m_item->mouseClick(200, 260);
    QTRY_VERIFY(!m_witness.values.isEmpty() && m_witness.values.last() > 0);
    QCOMPARE(m_witness.values.last(), m_item->measure1());
    QCOMPARE(m_witness.threads, QSet<QThread *>{QThread::currentThread()});
    QCOMPARE(m_item->paintsElsewhere > 0, expectsThread());
    QCOMPARE(m_item->paintsOnGuiThread > 0, !expectsThread());
}

QTEST_MAIN(TestRenderLoop)
#include "tst_renderloop.moc"
