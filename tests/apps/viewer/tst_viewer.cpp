// The viewer as an operator meets it: in a window, with mouse, keys and fingers.
#include "ViewerDriver.h"

#include "StageView.h"

#include "session/SessionFile.h"
#include "session/SessionItem.h"
#include "support/TestCase.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QCryptographicHash>
#include <QDropEvent>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QMimeData>
#include <QSettings>
#include <QStyleHints>
#include <QTest>

namespace Drevon::Zalento::Test {

namespace {

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void writeTo(const QString &path, const QByteArray &content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), qint64(content.size()));
}

// A member of a sample's truth, by its names and indices.
QJsonValue truth(const QString &sample, const QStringList &way)
{
    const QString path = QStringLiteral(ZALENTO_SAMPLES "/%1.truth.json").arg(sample);
    QJsonValue value = QJsonDocument::fromJson(contentOf(path)).object();
    for (const QString &step : way) {
        bool isIndex = false;
        const int index = step.toInt(&isIndex);
        value = isIndex ? value.toArray().at(index) : value.toObject().value(step);
    }
    return value;
}

QVector<QPointF> truePixels(const QString &sample, const QStringList &way)
{
    QVector<QPointF> pixels;
    const QJsonArray clicks = truth(sample, way).toArray();
    for (const QJsonValue &click : clicks) {
        pixels.append(QPointF(click.toArray().at(0).toDouble(), click.toArray().at(1).toDouble()));
    }
    return pixels;
}

double number(const ViewerController &viewer)
{
    const Apps::Measurement *measured = viewer.measurement();
    return measured && !measured->values.isEmpty() ? measured->values.first().number : -1.0;
}

} // namespace

class TestViewer : public TestCase
{
    Q_OBJECT

private slots:
    void measuresCrackOnceThereIsAScale();
    void measuresDimension();
    void readsWaterLevelFromAClick();
    void measuresAngles_data();
    void measuresAngles();
    void measuresCrossSection();
    void dragIsOneStep();
    void zoomAndPan();
    void fingers();
    void loupeStandsClearOfTheFinger();
    void badValuesStayVisible_data();
    void badValuesStayVisible();
    void controlsOfAKind_data();
    void controlsOfAKind();
    void savedSessionGivesTheSameNumbers();
    void anotherPictureIsNotOverwritten();
    void exportsAndCopies();
    void picksFiles();
    void severalPictures();
    void closingAsksForUnsavedWork();
    void recordSetsTheDiameter();
    void calibrationFile();
    void overlayHidesWhileHeld();
    void fitsTheScreen_data();
    void fitsTheScreen();
};

void TestViewer::measuresCrackOnceThereIsAScale()
{
    ViewerDriver d;
    d.openSample(QStringLiteral("crack.jpg"));
    d.key(Qt::Key_1);
    const auto edges = truePixels(QStringLiteral("crack"), {"crack", "clicks"});
    for (const QPointF &edge : edges) {
        d.click(edge.x(), edge.y());
    }
    QCOMPARE(d.viewer.points().size(), 2);
    QVERIFY(d.viewer.status().startsWith(QStringLiteral("No scale yet")));
    QCOMPARE(d.find(QStringLiteral("valueText"))->property("text").toString(),
             QStringLiteral("no scale yet"));
    d.screenshot(QStringLiteral("crack-without-scale"));

    d.clickItem(QStringLiteral("laserKey"));
    const auto spots = truePixels(QStringLiteral("crack"), {"laser", "clicks"});
    QVERIFY(d.viewer.status().contains(QStringLiteral("first laser spot")));
    d.click(spots[0].x(), spots[0].y());
    QVERIFY(d.viewer.status().contains(QStringLiteral("second laser spot")));
    d.click(spots[1].x(), spots[1].y());
    const double width = truth(QStringLiteral("crack"), {"crack", "widthMm"}).toDouble();
    const double pixelMM = truth(QStringLiteral("crack"), {"crack", "mmPerPixel"}).toDouble();
    QVERIFY2(std::abs(number(d.viewer) - width) < pixelMM, qPrintable(d.viewer.value()));
    QCOMPARE(d.find(QStringLiteral("valueText"))->property("text").toString(), d.viewer.value());
    d.screenshot(QStringLiteral("crack"));

    d.key(Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(d.viewer.value().isEmpty());
    QCOMPARE(d.viewer.points().size(), 2);
    d.key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY(!d.viewer.value().isEmpty());
}

void TestViewer::measuresDimension()
{
    ViewerDriver d;
    d.openSample(QStringLiteral("dimension.jpg"));
    const auto ends = truePixels(QStringLiteral("dimension"), {"dimensions", "2", "clicks"});
    d.click(ends[0].x(), ends[0].y());
    d.click(ends[1].x() - 1, ends[1].y());
    const double trueMM =
        truth(QStringLiteral("dimension"), {"dimensions", "2", "lengthMm"}).toDouble();
    QVERIFY2(std::abs(number(d.viewer) - trueMM) < 0.02 * trueMM, qPrintable(d.viewer.value()));
    const double measured = number(d.viewer);
    d.screenshot(QStringLiteral("dimension"));

    // A nudge is a step, a held key is one, and the point can be dragged.
    const QPointF placed = d.viewer.session()->points.last().pixel;
    d.key(Qt::Key_Up);
    d.key(Qt::Key_Left, Qt::ShiftModifier);
    QCOMPARE(d.viewer.session()->points.last().pixel, placed + QPointF(-10, -1));
    const QPoint from = d.at(placed.x() - 10, placed.y() - 1);
    d.drag(from, from + QPoint(-60, 30));
    QVERIFY(std::abs(number(d.viewer) - measured) > 5.0);
    d.key(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(d.viewer.session()->points.last().pixel, placed + QPointF(-10, -1));
    d.key(Qt::Key_Z, Qt::ControlModifier);
    d.key(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(number(d.viewer), measured);

    d.key(Qt::Key_U);
    QVERIFY(d.viewer.value().endsWith(QLatin1Char('\'')));
    QCOMPARE(number(d.viewer), measured);
    d.key(Qt::Key_U);
    d.key(Qt::Key_Backspace);
    QCOMPARE(d.viewer.points().size(), 1);
    d.click(-3, 288);
    QCOMPARE(d.viewer.statusLevel(), 1);
    QCOMPARE(d.viewer.points().size(), 1);
    d.click(384, 288);
    QVERIFY(d.viewer.status().contains(QStringLiteral("beyond")));
}

void TestViewer::readsWaterLevelFromAClick()
{
    ViewerDriver d;
    d.openSample(QStringLiteral("water.jpg"));
    d.clickItem(QStringLiteral("kind.WaterLevel"));
    const auto edge = truePixels(QStringLiteral("water"), {"water", "edges", "1", "clicks"});
    d.click(edge[0].x(), edge[0].y());
    const double percent = truth(QStringLiteral("water"), {"water", "percent"}).toDouble();
    QVERIFY2(std::abs(number(d.viewer) - percent) < 0.5, qPrintable(d.viewer.value()));
    d.screenshot(QStringLiteral("water"));

    // The slider does the same in one step.
    const QQuickItem *slider = d.find(QStringLiteral("slider.percentage"));
    const QPoint middle = d.middleOf(QStringLiteral("slider.percentage"));
    d.drag(middle - QPoint(int(slider->width() / 4), 0), middle);
    QVERIFY(std::abs(number(d.viewer) - 50.0) <= 1.0);
    d.key(Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(std::abs(number(d.viewer) - percent) < 0.5);
}

void TestViewer::measuresAngles_data()
{
    QTest::addColumn<QString>("sample");
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("start");
    QTest::addColumn<QString>("angle");
    QTest::addColumn<QString>("clock");
    QTest::newRow("branch") << "branch.jpg" << int(Qt::Key_4) << "90°"
                            << "45"
                            << "3";
    QTest::newRow("bend") << "bend.jpg" << int(Qt::Key_5) << "45°"
                          << "30"
                          << "3";
    QTest::newRow("joint") << "joint.jpg" << int(Qt::Key_5) << "45°"
                           << "10"
                           << "9";
}

void TestViewer::measuresAngles()
{
    QFETCH(QString, sample);
    QFETCH(int, key);
    QFETCH(QString, angle);
    ViewerDriver d;
    d.openSample(sample);
    d.key(key);
    QTEST(d.viewer.value(), "start");
    d.click(300, 300);
    QVERIFY(d.viewer.points().isEmpty());
    d.type(QStringLiteral("field.angleDEG"), angle);
    QFETCH(QString, clock);
    d.type(QStringLiteral("field.clock"), clock);
    QCOMPARE(d.viewer.value(), angle + QStringLiteral("°"));
    d.screenshot(QString::fromLatin1(QTest::currentDataTag()));
    for (int i = 0; i < 3; ++i) {
        d.key(Qt::Key_Z, Qt::ControlModifier);
    }
    QCOMPARE(d.viewer.kind(), QStringLiteral("PipeDimension"));
}

void TestViewer::measuresCrossSection()
{
    ViewerDriver d;
    d.openSample(QStringLiteral("section.jpg"));
    d.key(Qt::Key_6);
    d.type(QStringLiteral("field.percentage"),
           QString::number(truth(QStringLiteral("section"), {"section", "percent"}).toDouble()));
    const auto outline = truePixels(QStringLiteral("section"), {"section", "clicks"});
    for (const QPointF &corner : outline) {
        d.click(corner.x(), corner.y());
    }
    QVERIFY(d.viewer.status().startsWith(QStringLiteral("Closed")));
    const double area = truth(QStringLiteral("section"), {"section", "areaMm2"}).toDouble();
    QVERIFY2(std::abs(number(d.viewer) - area) < 0.03 * area, qPrintable(d.viewer.value()));
    QCOMPARE(d.viewer.secondValue(), QStringLiteral("16 %"));
    d.screenshot(QStringLiteral("section"));

    // The first point is the last one, too: dragged, the outline stays closed.
    const double before = number(d.viewer);
    d.drag(d.at(outline[0].x(), outline[0].y()), d.at(outline[0].x() + 30, outline[0].y()));
    QVERIFY(d.viewer.status().startsWith(QStringLiteral("Closed")));
    QVERIFY(number(d.viewer) > before);
    d.clickItem(QStringLiteral("clearKey"));
    QVERIFY(d.viewer.points().isEmpty());
    d.clickItem(QStringLiteral("undoKey"));
    QCOMPARE(d.viewer.points().size(), outline.size() - 1);
}

void TestViewer::dragIsOneStep()
{
    ViewerDriver d;
    d.openSample(QStringLiteral("dimension.jpg"));
    const Apps::Session start = *d.viewer.session();
    d.drag(d.at(300, 300), d.at(340, 320));
    QVERIFY(d.viewer.session()->offset != start.offset);
    QVERIFY(d.viewer.session()->cameraHeightPercent > start.cameraHeightPercent);
    d.clickItem(QStringLiteral("farEndKey"));
    d.drag(d.at(300, 300), d.at(320, 280));
    QVERIFY(d.viewer.session()->rearCircleX != 0.0);
    d.screenshot(QStringLiteral("aligned"));
    for (int i = 0; i < 3; ++i) {
        d.key(Qt::Key_Z, Qt::ControlModifier);
    }
    QVERIFY(*d.viewer.session() == start);
    QVERIFY(!d.viewer.canUndo());

    // Esc gives a drag up; what follows until the release does nothing.
    QTest::mousePress(d.window(), Qt::LeftButton, Qt::NoModifier, d.at(300, 300));
    QTest::mouseMove(d.window(), d.at(350, 300));
    QVERIFY(*d.viewer.session() != start);
    d.key(Qt::Key_Escape);
    QTest::mouseMove(d.window(), d.at(380, 300));
    QTest::mouseRelease(d.window(), Qt::LeftButton, Qt::NoModifier, d.at(380, 300));
    QVERIFY(*d.viewer.session() == start);
    QVERIFY(!d.viewer.canUndo());
}

void TestViewer::zoomAndPan()
{
    ViewerDriver d;
    d.openSample(QStringLiteral("dimension.jpg"));
    auto *view = d.find(QStringLiteral("stage"))->property("view").value<StageView *>();
    const double fitted = view->scale();
    const QPoint cursor = d.at(200, 150);
    d.wheel(cursor, 6);
    QVERIFY(view->scale() > 3 * fitted);
    QVERIFY((d.at(200, 150) - cursor).manhattanLength() <= 2);
    d.screenshot(QStringLiteral("zoomed"));
    const QPoint before = d.at(200, 150);
    d.drag(cursor, cursor + QPoint(50, -30), Qt::MiddleButton);
    QVERIFY((d.at(200, 150) - before - QPoint(50, -30)).manhattanLength() <= 1);
    QVERIFY(!d.viewer.canUndo());

    d.key(Qt::Key_1, Qt::ControlModifier);
    QCOMPARE(view->scale(), 1.0);
    d.key(Qt::Key_Plus);
    QVERIFY(view->scale() > 1.0);
    d.key(Qt::Key_Minus);
    QCOMPARE(view->scale(), 1.0);
    d.key(Qt::Key_0, Qt::ControlModifier);
    QCOMPARE(view->scale(), fitted);
    d.clickItem(QStringLiteral("panKey"));
    d.wheel(cursor, 3);
    d.drag(d.at(200, 150), d.at(210, 150));
    QVERIFY(!d.viewer.canUndo());
}

void TestViewer::fingers()
{
    ViewerDriver d;
    d.openSample(QStringLiteral("dimension.jpg"));
    d.tap(d.at(110, 288));
    QCOMPARE(d.viewer.points().size(), 1);

    // What a held finger aims at is placed when it lifts.
    d.hold(d.at(560, 300), d.at(600, 310), [&d] {
        QVERIFY(d.find(QStringLiteral("loupe"))->isVisible());
        d.screenshot(QStringLiteral("loupe"));
        QCOMPARE(d.viewer.points().size(), 1);
    });
    QVERIFY(!d.find(QStringLiteral("loupe"))->isVisible());
    QCOMPARE(d.viewer.points().size(), 2);
    const QPointF placed = d.viewer.session()->points.last().pixel;
    QVERIFY((placed - QPointF(600, 310)).manhattanLength() <= 2.0);

    auto *view = d.find(QStringLiteral("stage"))->property("view").value<StageView *>();
    const double scale = view->scale();
    d.pinch(d.at(384, 288), 200, 400, 26);
    QVERIFY(std::abs(view->scale() / scale - 2.0) < 0.05);
    QVERIFY2(std::abs(d.viewer.session()->rollDEG + 20.0) < 2.0,
             qPrintable(QString::number(d.viewer.session()->rollDEG)));
    d.key(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(d.viewer.session()->rollDEG, 0.0);

    // Two fingers that move along together pan, and roll nothing.
    const QPoint before = d.at(384, 288);
    d.pinch(before, 200, 200, 0, QPoint(60, 20));
    QVERIFY((d.at(384, 288) - before - QPoint(60, 20)).manhattanLength() <= 3);
    QCOMPARE(d.viewer.points().size(), 2);
    QCOMPARE(d.viewer.undoText(), QStringLiteral("Set point"));
}

void TestViewer::loupeStandsClearOfTheFinger()
{
    ViewerDriver d;
    d.openSample(QStringLiteral("dimension.jpg"));
    const QQuickItem *loupe = d.find(QStringLiteral("loupe"));
    const auto place = [&] { return loupe->mapRectToScene(loupe->boundingRect()); };
    QRectF high;
    QRectF low;
    const QPoint top = d.at(200, 20);
    const QPoint bottom = d.at(200, 500);
    d.hold(top, top, [&] { high = place(); });
    d.hold(bottom, bottom, [&] { low = place(); });
    QVERIFY(high.top() > top.y());
    QVERIFY(low.bottom() < bottom.y());
}

void TestViewer::badValuesStayVisible_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("no number") << "abc";
    QTest::newRow("empty") << "";
    QTest::newRow("below the range") << "29.9";
    QTest::newRow("above the range") << "151";
    QTest::newRow("not finite") << "inf";
    QTest::newRow("a number and more") << "45 apples";
}

void TestViewer::badValuesStayVisible()
{
    QFETCH(QString, text);
    ViewerDriver d;
    d.openSample(QStringLiteral("branch.jpg"));
    d.key(Qt::Key_4);
    const Apps::Session before = *d.viewer.session();
    const QString name = QStringLiteral("field.angleDEG");
    d.type(name, text, Qt::Key_Tab);
    QCOMPARE(d.find(name)->property("text").toString(), text);
    QVERIFY(*d.viewer.session() == before);
    QVERIFY(!d.find(QStringLiteral("problem.angleDEG"))->property("text").toString().isEmpty());
    if (text == QLatin1String("abc")) {
        d.screenshot(QStringLiteral("bad-value"));
    }
    // Undo brings another value; the bad text stays until it is put right.
    d.viewer.stepField(QStringLiteral("clock"), 1);
    QCOMPARE(d.find(name)->property("text").toString(), text);
    d.type(name, QStringLiteral("60,5"));
    QCOMPARE(d.viewer.session()->angleDEG, 60.5);
    QVERIFY(!d.find(QStringLiteral("problem.angleDEG"))->isVisible());

    // A press on a button commits, too.
    d.type(name, QStringLiteral("75"), Qt::Key_End);
    QCOMPARE(d.viewer.session()->angleDEG, 60.5);
    d.clickItem(QStringLiteral("unitKey"));
    QCOMPARE(d.viewer.session()->angleDEG, 75.0);
}

void TestViewer::controlsOfAKind_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QStringList>("fields");
    const QStringList alignment{"offset", "cameraHeightPercent", "rollDEG", "fovYDEG"};
    QTest::newRow("crack") << int(Qt::Key_1) << QStringList{"mmPerPixel", "laserMM"};
    QTest::newRow("dimension") << int(Qt::Key_2) << QStringList{"diameterMM"} + alignment;
    QTest::newRow("water") << int(Qt::Key_3) << QStringList{"percentage"} + alignment;
    QTest::newRow("branch") << int(Qt::Key_4)
                            << QStringList{"angleDEG", "percentage", "clock"} + alignment;
    QTest::newRow("bend") << int(Qt::Key_5) << QStringList{"angleDEG", "clock"} + alignment;
    QTest::newRow("section") << int(Qt::Key_6)
                             << QStringList{"diameterMM", "percentage"} + alignment;
}

// Every visible control has a name, is large enough for a finger and lies inside the window.
void TestViewer::controlsOfAKind()
{
    QFETCH(int, key);
    QFETCH(QStringList, fields);
    ViewerDriver d;
    d.openSample(QStringLiteral("dimension.jpg"));
    d.key(Qt::Key_1);
    d.key(key);
    QStringList shown;
    int controls = 0;
    for (const QQuickItem *item : d.visibleControls()) {
        ++controls;
        if (item->objectName().startsWith(QStringLiteral("field."))) {
            shown.append(item->objectName().mid(int(qstrlen("field."))));
        }
        QAccessibleInterface *accessible =
            QAccessible::queryAccessibleInterface(const_cast<QQuickItem *>(item));
        QVERIFY2(accessible && !accessible->text(QAccessible::Name).isEmpty(),
                 qPrintable(item->objectName() + item->property("text").toString()));
        constexpr double smallestForAFinger = 44.0;
        QVERIFY2(item->width() >= smallestForAFinger && item->height() >= smallestForAFinger,
                 qPrintable(item->objectName() + item->property("text").toString()));
    }
    QVERIFY(controls > 20);
    QCOMPARE(shown, fields);
}

void TestViewer::savedSessionGivesTheSameNumbers()
{
    ViewerDriver d;
    const QString picture = d.openSample(QStringLiteral("dimension.jpg"));
    const QByteArray pictureBefore = contentOf(picture);
    d.click(110, 288);
    d.click(640, 300);
    d.drag(d.at(300, 300), d.at(307, 311));
    d.key(Qt::Key_S, Qt::ControlModifier);
    QVERIFY(!d.viewer.isModified());
    QCOMPARE(contentOf(picture), pictureBefore);
    const double measured = number(d.viewer);
    QVERIFY(measured > 0.0);

    ViewerDriver again;
    again.viewer.openPaths({picture});
    QCOMPARE(number(again.viewer), measured);
    QCOMPARE(again.viewer.points(), d.viewer.points());

    // The command line puts the same session on an item of its own.
    QString problem;
    std::optional<Apps::Session> session = Apps::loadSession(Apps::sessionPathOf(picture), problem);
    QVERIFY2(session, qPrintable(problem));
    ZaItem item;
    Apps::layOutItem(item, session->picture.size);
    QVERIFY(Apps::applySession(*session, item).isEmpty());
    const Apps::Measurement alone = Apps::measure(item);
    QVERIFY(alone.values.first().number == measured);
    QCOMPARE(alone.values.first().text, d.viewer.value());
}

void TestViewer::anotherPictureIsNotOverwritten()
{
    ViewerDriver d;
    const QString picture = d.openSample(QStringLiteral("dimension.jpg"));
    d.click(110, 288);
    QVERIFY(d.viewer.save());
    const QString sessionPath = Apps::sessionPathOf(picture);
    const QByteArray saved = contentOf(sessionPath);
    QFile::remove(picture);
    d.copySample(QStringLiteral("water.jpg"), QStringLiteral("dimension.jpg"));

    ViewerDriver again;
    again.viewer.openPaths({picture});
    QCOMPARE(again.viewer.statusLevel(), 1);
    again.click(640, 300);
    again.key(Qt::Key_S, Qt::ControlModifier);
    again.waitForDialog(QStringLiteral("saveDialog"));
    again.screenshot(QStringLiteral("replace-question"));
    QCOMPARE(contentOf(sessionPath), saved);
    again.clickDialog(QStringLiteral("saveDialog"), QStringLiteral("cancelKey"));
    QCOMPARE(contentOf(sessionPath), saved);
    QVERIFY(again.viewer.isModified());
    again.key(Qt::Key_S, Qt::ControlModifier);
    again.waitForDialog(QStringLiteral("saveDialog"));
    again.clickDialog(QStringLiteral("saveDialog"), QStringLiteral("acceptKey"));
    QVERIFY(contentOf(sessionPath) != saved);
    QVERIFY(!again.viewer.isModified());

    // Somebody else has saved in the meantime.
    writeTo(sessionPath, saved);
    QFile touched(sessionPath);
    QVERIFY(touched.open(QIODevice::ReadWrite));
    QVERIFY(touched.setFileTime(QDateTime::currentDateTime().addSecs(60),
                                QFileDevice::FileModificationTime));
    touched.close();
    again.click(300, 300);
    QVERIFY(!again.viewer.save());
    QCOMPARE(contentOf(sessionPath), saved);

    // What cannot be read is not overwritten either.
    writeTo(sessionPath, "{\"schema\": \"zalento-session 9.0\"}");
    ViewerDriver third;
    third.viewer.openPaths({picture});
    QCOMPARE(third.viewer.statusLevel(), 2);
    QVERIFY(third.viewer.hasPicture());
    QVERIFY(!third.viewer.save());
    QVERIFY(contentOf(sessionPath).contains("9.0"));
}

void TestViewer::exportsAndCopies()
{
    ViewerDriver d;
    d.openSample(QStringLiteral("dimension.jpg"));
    d.click(110, 288);
    d.click(640, 300);
    d.key(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QApplication::clipboard()->text(), d.viewer.value());

    d.clickItem(QStringLiteral("exportKey"));
    d.waitForDialog(QStringLiteral("exportMenu"));
    d.screenshot(QStringLiteral("export-menu"));
    d.key(Qt::Key_Escape);
    const QString png = d.viewer.suggestedPath(QStringLiteral("png"));
    QVERIFY(png.endsWith(QStringLiteral("/dimension.overlay.png")));
    QVERIFY(d.viewer.exportTo(QStringLiteral("png"), png));
    const QImage exported(png);
    QCOMPARE(exported.size(), d.viewer.pictureSize());
    QVERIFY(exported != d.viewer.picture().convertToFormat(exported.format()));

    const QString csv = d.viewer.suggestedPath(QStringLiteral("csv"));
    QVERIFY(d.viewer.exportTo(QStringLiteral("csv"), csv));
    const QList<QByteArray> lines = contentOf(csv).split('\n');
    QCOMPARE(lines.at(0).trimmed(), QByteArray("picture,kind,name,number,unit,text"));
    QCOMPARE(lines.at(1).split(',').at(3).toDouble(), number(d.viewer));
    const QString json = d.viewer.suggestedPath(QStringLiteral("json"));
    QVERIFY(d.viewer.exportTo(QStringLiteral("json"), json));
    const QJsonValue row = QJsonDocument::fromJson(contentOf(json)).array().at(0);
    QCOMPARE(row.toObject().value("values").toArray().at(0).toObject().value("number").toDouble(),
             number(d.viewer));

    QVERIFY(!d.viewer.exportTo(QStringLiteral("svg"), QStringLiteral("/nowhere/x.svg")));
    QCOMPARE(d.viewer.statusLevel(), 2);
}

void TestViewer::picksFiles()
{
    ViewerDriver d;
    d.openSample(QStringLiteral("dimension.jpg"));
    d.copySample(QStringLiteral("water.jpg"));
    d.click(110, 288);
    d.key(Qt::Key_O, Qt::ControlModifier);
    d.waitForDialog(QStringLiteral("filePicker"));
    QTRY_VERIFY(d.hasItem(QStringLiteral("file.water.jpg")));
    d.screenshot(QStringLiteral("open"));
    d.clickItem(QStringLiteral("file.water.jpg"));
    d.clickItem(QStringLiteral("pickerAccept"));
    QCOMPARE(d.viewer.pictureName(), QStringLiteral("water.jpg"));
    QCOMPARE(d.viewer.pictureCount(), 2);
    QTRY_VERIFY(!d.hasItem(QStringLiteral("pickerAccept")));

    // A file that is there is replaced at the second press, which a double click is not.
    const QString target = d.viewer.suggestedPath(QStringLiteral("png"));
    writeTo(target, "precious");
    QMetaObject::invokeMethod(d.window()->findChild<QObject *>(QStringLiteral("filePicker")),
                              "exportTo", Q_ARG(QVariant, QStringLiteral("png")));
    d.waitForDialog(QStringLiteral("filePicker"));
    QTest::mouseDClick(d.window(), Qt::LeftButton, Qt::NoModifier,
                       d.middleOf(QStringLiteral("pickerAccept")));
    QCOMPARE(d.find(QStringLiteral("pickerAccept"))->property("text").toString(),
             QStringLiteral("Replace"));
    QTest::qWait(QGuiApplication::styleHints()->mouseDoubleClickInterval() + 1);
    QCOMPARE(contentOf(target), QByteArray("precious"));
    d.screenshot(QStringLiteral("replace-file"));
    d.clickItem(QStringLiteral("pickerAccept"));
    QCOMPARE(QImage(target).size(), d.viewer.pictureSize());
}

void TestViewer::severalPictures()
{
    ViewerDriver d;
    const QString first = d.copySample(QStringLiteral("dimension.jpg"));
    const QString second = d.copySample(QStringLiteral("water.jpg"));
    const QString broken = d.folder.filePath(QStringLiteral("broken.jpg"));
    writeTo(broken, "not a picture");

    QMimeData dropped;
    dropped.setUrls(
        {QUrl::fromLocalFile(first), QUrl::fromLocalFile(broken), QUrl::fromLocalFile(second)});
    const QPoint middle(400, 300);
    QDragEnterEvent enter(middle, Qt::CopyAction, &dropped, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(d.window(), &enter);
    QDropEvent drop(middle, Qt::CopyAction, &dropped, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(d.window(), &drop);
    QCOMPARE(d.viewer.pictureCount(), 3);
    d.click(110, 288);

    d.clickItem(QStringLiteral("nextKey"));
    QVERIFY(!d.viewer.hasPicture());
    QVERIFY(d.viewer.pictureProblem().contains(QStringLiteral("broken.jpg")));
    d.screenshot(QStringLiteral("broken-picture"));
    d.key(Qt::Key_PageDown);
    QCOMPARE(d.viewer.pictureName(), QStringLiteral("water.jpg"));
    QVERIFY(d.viewer.points().isEmpty());
    QVERIFY(!d.viewer.canUndo());
    d.key(Qt::Key_PageUp);
    d.clickItem(QStringLiteral("previousKey"));
    QCOMPARE(d.viewer.points().size(), 1);
    d.key(Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(d.viewer.points().isEmpty());
    QCOMPARE(d.viewer.recentFiles().first(), first);
    d.viewer.openPaths({second});
    QCOMPARE(d.viewer.pictureCount(), 3);
}

void TestViewer::closingAsksForUnsavedWork()
{
    ViewerDriver d;
    const QString picture = d.openSample(QStringLiteral("dimension.jpg"));
    d.click(110, 288);
    d.window()->close();
    d.waitForDialog(QStringLiteral("unsavedDialog"));
    QVERIFY(d.window()->isVisible());
    d.screenshot(QStringLiteral("unsaved-question"));
    d.clickDialog(QStringLiteral("unsavedDialog"), QStringLiteral("cancelKey"));
    QVERIFY(!QFile::exists(Apps::sessionPathOf(picture)));
    QVERIFY(d.viewer.save());
    QVERIFY(QFile::exists(Apps::sessionPathOf(picture)));
    d.window()->close();
    QVERIFY(!d.window()->isVisible());
}

void TestViewer::recordSetsTheDiameter()
{
    ViewerDriver d;
    d.openSample(QStringLiteral("dimension.jpg"));
    d.click(110, 288);
    d.click(640, 300);
    const double before = number(d.viewer);
    d.clickItem(QStringLiteral("recordKey"));
    d.waitForDialog(QStringLiteral("recordDialog"));
    d.type(QStringLiteral("recordSize"), QStringLiteral("0"));
    QVERIFY(d.viewer.session()->diameterMM == 300.0);
    d.screenshot(QStringLiteral("record"));
    d.type(QStringLiteral("recordSize"), QStringLiteral("600"));
    QCOMPARE(d.viewer.session()->diameterMM, 600.0);
    QVERIFY(std::abs(number(d.viewer) / before - 2.0) < 0.01);
    d.key(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(number(d.viewer), before);

    const QString path = d.folder.filePath(QStringLiteral("record.json"));
    writeTo(path, R"({"OBJ_Size1": 8, "unit": "inch"})");
    QVERIFY(d.viewer.loadRecord(path).isEmpty());
    QCOMPARE(d.viewer.session()->diameterMM, 203.0);
    for (const char *bad : {R"({"OBJ_Size1": 2.5})", R"({"unit": "inch"})", "[]",
                            R"({"OBJ_Size1": 8, "unit": "furlong"})"}) {
        writeTo(path, bad);
        QVERIFY2(!d.viewer.loadRecord(path).isEmpty(), bad);
        QCOMPARE(d.viewer.session()->diameterMM, 203.0);
    }
}

void TestViewer::calibrationFile()
{
    ViewerDriver d;
    d.openSample(QStringLiteral("crack.jpg"));
    const QString path = d.folder.filePath(QStringLiteral("camera.ini"));
    writeTo(path, "200;768;160\n400;768;320\n");
    d.viewer.loadCalibration(path);
    QCOMPARE(d.viewer.kind(), QStringLiteral("CrackWidth"));
    QVERIFY(d.viewer.hasScale());
    // The scale follows the diameter now, which the panel therefore shows.
    const QString at300 = d.viewer.scaleText();
    d.type(QStringLiteral("field.diameterMM"), QStringLiteral("400"));
    QVERIFY(d.viewer.scaleText() != at300);
    d.type(QStringLiteral("field.diameterMM"), QStringLiteral("500"));
    QVERIFY(!d.viewer.hasScale());
    d.type(QStringLiteral("field.mmPerPixel"), QStringLiteral("0,25"));
    QVERIFY(d.viewer.scaleText().startsWith(QStringLiteral("0.25 ")));
    d.viewer.loadCalibration(d.folder.filePath(QStringLiteral("missing.ini")));
    QCOMPARE(d.viewer.statusLevel(), 2);
    QVERIFY(d.viewer.hasScale());
}

void TestViewer::overlayHidesWhileHeld()
{
    ViewerDriver d;
    d.openSample(QStringLiteral("dimension.jpg"));
    const QRect stage =
        d.find(QStringLiteral("stage"))
            ->mapRectToScene(QRectF(QPointF(), d.find(QStringLiteral("stage"))->size()))
            .toRect();
    const auto greenPixels = [&](const QImage &image) {
        int count = 0;
        for (int y = stage.top(); y < stage.bottom(); ++y) {
            for (int x = stage.left(); x < stage.right(); ++x) {
                const QColor c = image.pixelColor(x, y);
                count += c.green() > 200 && c.red() < 60 && c.blue() < 60;
            }
        }
        return count;
    };
    QVERIFY(greenPixels(d.screenshot(QStringLiteral("overlay"))) > 1000);
    QTest::keyPress(d.window(), Qt::Key_H);
    QCOMPARE(greenPixels(d.screenshot(QStringLiteral("overlay-hidden"))), 0);
    QTest::keyRelease(d.window(), Qt::Key_H);
    QVERIFY(greenPixels(d.screenshot(QStringLiteral("overlay"))) > 1000);
    d.key(Qt::Key_F1);
    d.waitForDialog(QStringLiteral("keyList"));
    d.screenshot(QStringLiteral("keys"));
}

void TestViewer::fitsTheScreen_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<double>("smallestShare");
    QTest::newRow("1280x800") << QSize(1280, 800) << 0.6;
    QTest::newRow("1024x600") << QSize(1024, 600) << 0.5;
}

// The picture gets the space, and nothing hangs out of the window.
void TestViewer::fitsTheScreen()
{
    QFETCH(QSize, size);
    QFETCH(double, smallestShare);
    ViewerDriver d(size);
    d.openSample(QStringLiteral("branch.jpg"));
    for (const Qt::Key key : {Qt::Key_1, Qt::Key_4}) {
        d.key(key);
        d.screenshot(QStringLiteral("%1-kind%2").arg(QTest::currentDataTag()).arg(key - Qt::Key_0));
        QCOMPARE(d.window()->size(), size);
        const QRectF frame(QPointF(0, 0), QSizeF(size));
        for (const QQuickItem *item : d.visibleControls()) {
            const QRectF place = item->mapRectToScene(item->boundingRect());
            const bool scrolls = d.find(QStringLiteral("controls"))->isAncestorOf(item);
            QVERIFY2(scrolls ? place.right() <= frame.right() : frame.contains(place),
                     qPrintable(item->objectName()));
        }
    }
    const QQuickItem *stage = d.find(QStringLiteral("stage"));
    QVERIFY(stage->width() * stage->height() >= smallestShare * size.width() * size.height());
}

} // namespace Drevon::Zalento::Test

int main(int argc, char *argv[])
{
    // Settings of its own: what one test run leaves, another would start with.
    const QTemporaryDir settings;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());
    // Where Qt Widgets is linked, for its undo stack, Qt Test takes the application for this one.
    QApplication app(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("Zalento"));
    QCoreApplication::setApplicationName(QStringLiteral("tst_viewer"));
    Drevon::Zalento::Test::TestViewer test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_viewer.moc"
