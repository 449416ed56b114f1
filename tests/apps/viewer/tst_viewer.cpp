// The viewer as an operator meets it: in a window, with mouse, keys and fingers.
#include "ViewerDriver.h"

#include "measuring/SessionFile.h"
#include "measuring/SessionFit.h"
#include "support/PictureFiles.h"
#include "support/TestCase.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QJsonArray>
#include <QJsonDocument>
#include <QMimeData>
#include <QProcess>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QStyleHints>

namespace Drevon::Zalento::Test {

using Measuring::Session;

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
QJsonValue truth(const QString &sample, const QString &way)
{
    const QString path = QStringLiteral(ZALENTO_SAMPLES "/%1.truth.json").arg(sample);
    QJsonValue value = QJsonDocument::fromJson(contentOf(path)).object();
    for (const QString &step : way.split('.')) {
        value = value.isArray() ? value.toArray().at(step.toInt()) : value.toObject().value(step);
    }
    return value;
}

QVector<QPointF> truePixels(const QString &sample, const QString &way)
{
    QVector<QPointF> pixels;
    for (const QJsonValue click : truth(sample, way).toArray()) {
        pixels.append(QPointF(click[0].toDouble(), click[1].toDouble()));
    }
    return pixels;
}

double number(const ViewerDriver &d)
{
    const auto &values = d.editor.measurement().values;
    return values.isEmpty() ? -1.0 : values.first().number;
}

} // namespace

class TestViewer : public TestCase
{
    Q_OBJECT

private slots:
    void measures_data();
    void measures();
    void severalMeasurements();
    void crackNeedsAScale();
    void pointsAreCorrected();
    void outlineClosesWhenItIsToldTo();
    void dragIsOneStep();
    void zoomAndPan();
    void fingers();
    void badValuesStayVisible();
    void controlsFitFingersAndWindows_data();
    void controlsFitFingersAndWindows();
    void isUsedWithoutEyesOrMouse();
    void speaksTheOperatorsLanguage();
    void textsStandOut();
    void nothingIsLostUnlessConfirmed();
    void exportsOrSaysWhyNot_data();
    void exportsOrSaysWhyNot();
    void pictureVanishesWhileItIsOpen();
    void picksFiles();
    void severalPictures();
    void findsOneOfManyPictures();
    void recordSetsTheDiameter();
    void overlayHidesWhileHeld();
    void overlayTakesTheOperatorsColours();
    void jointsAlignTheModel();
    void jointClicksAreTakenByKeys();
    void nextPictureTakesTheCamera();
    void lensIsTakenOutOfThePicture();
    void valuesAreAssessed();
    void filmFramesAreMeasured();
};

void TestViewer::measures_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("start");
    QTest::addColumn<QString>("fields");
    QTest::addColumn<QString>("clicks");
    QTest::addColumn<QString>("value");
    QTest::addColumn<double>("slack"); // relative: what one pixel makes
    const auto row = [](const char *sample, Qt::Key key, const QString &start,
                        const QString &fields, const QString &clicks, const QString &value,
                        double slack) {
        QTest::newRow(sample) << int(key) << start << fields << clicks << value << slack;
    };
    row("dimension", Qt::Key_2, "–", "", "dimensions.0.clicks", "dimensions.0.lengthMm", 0.03);
    row("water", Qt::Key_3, "not set", "", "water.edges.1.clicks", "water.percent", 0.02);
    row("branch", Qt::Key_4, "not set", "angleDEG=45 clock=3", "", "branch.angleDeg", 0.0);
    row("bend", Qt::Key_5, "not set", "angleDEG=30 clock=3", "", "bend.angleDeg", 0.0);
    row("section", Qt::Key_6, "–", "percentage=10", "section.clicks", "section.areaMm2", 0.03);
}

// Every kind with keys and clicks; all of it can be saved, and undone.
void TestViewer::measures()
{
    QFETCH(int, key);
    QFETCH(QString, fields);
    QFETCH(QString, clicks);
    QFETCH(QString, value);
    QFETCH(double, slack);
    const QString sample = QTest::currentDataTag();
    ViewerDriver d;
    const QString picture = d.openSample(sample + ".jpg");
    const QByteArray pictureBefore = contentOf(picture);
    const Session opened = *d.editor.session();
    d.key(key);
    QTEST(d.text("valueText"), "start");
    for (const QString &field : fields.split(' ', Qt::SkipEmptyParts)) {
        d.type("field." + field.section('=', 0, 0), field.section('=', 1));
    }
    for (const QPointF &pixel : truePixels(sample, clicks)) {
        d.click(pixel.x(), pixel.y());
    }
    const double expected = truth(sample, value).toDouble();
    QVERIFY2(std::abs(number(d) - expected) <= slack * expected, qPrintable(d.editor.value()));
    QCOMPARE(d.text("valueText"), d.editor.value());
    d.screenshot(sample);

    d.drag(d.at(300, 320), d.at(307, 331));
    d.key(Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(contentOf(picture), pictureBefore);
    const double measured = number(d);
    ViewerDriver again;
    again.documents.openPaths({picture});
    QCOMPARE(number(again), measured);
    QCOMPARE(again.editor.points()->pixels(), d.editor.points()->pixels());

    while (d.editor.canUndo()) {
        d.editor.undo();
    }
    QVERIFY(*d.editor.session() == opened);
    while (d.editor.canRedo()) {
        d.editor.redo();
    }
    QVERIFY(number(d) == measured);
}

// A length, a level and a second length; each stays when another one is measured.
void TestViewer::severalMeasurements()
{
    ViewerDriver d;
    const QString picture = d.openSample("dimension.jpg");
    const Session opened = *d.editor.session();
    const auto names = [&d] {
        QStringList rows;
        for (int i = 0; i < d.measurements.count(); ++i) {
            rows += d.text(QStringLiteral("measurement.%1").arg(i)).section(':', 0, 0);
        }
        return rows.join(", ");
    };
    d.click(110, 288);
    d.click(640, 300);
    const double length = number(d);
    d.key(Qt::Key_3);
    d.click(150, 400);
    d.key(Qt::Key_N);
    QCOMPARE(d.editor.value(), QString());
    d.key(Qt::Key_F2);
    d.waitForDialog("nameDialog");
    d.type("nameField", "Water level");
    QVERIFY(d.hasItem("nameField"));
    d.type("nameField", "after rain");
    QCOMPARE(names(), QString("Pipe dimension, Water level, after rain"));
    QCOMPARE(d.unfitControls(), QStringList());

    // Another picture of the overlay: the names of all.
    const QImage alone = d.screenshot("one-of-several");
    d.key(Qt::Key_A);
    QVERIFY(d.screenshot("several") != alone);
    d.key(Qt::Key_V);
    QCOMPARE(number(d), length);
    QCOMPARE(d.editor.points()->count(), 2);
    const QString table = d.folder.filePath("values.csv");
    QVERIFY(d.exporter.exportTo("csv", table));
    const QByteArrayList lines = contentOf(table).split('\n');
    QVERIFY(lines[1].contains(",Pipe dimension,") && lines[3].contains(",after rain,"));

    d.key(Qt::Key_S, Qt::ControlModifier);
    ViewerDriver again;
    again.documents.openPaths({picture});
    QVERIFY(*again.editor.session() == *d.editor.session());
    again.clickItem("measurement.2");
    again.key(Qt::Key_Delete, Qt::ControlModifier);
    QCOMPARE(again.measurements.count(), 2);
    QCOMPARE(again.editor.kind(), QString("WaterLevel"));
    while (d.editor.canUndo()) {
        d.editor.undo();
    }
    QVERIFY(*d.editor.session() == opened);
}

void TestViewer::crackNeedsAScale()
{
    ViewerDriver d;
    d.openSample("crack.jpg");
    d.key(Qt::Key_1);
    for (const QPointF &edge : truePixels("crack", "crack.clicks")) {
        d.click(edge.x(), edge.y());
    }
    QCOMPARE(d.text("valueText"), QString("no scale yet"));
    d.screenshot("crack-without-scale");

    d.clickItem("laserKey");
    for (const QPointF &spot : truePixels("crack", "laser.clicks")) {
        QVERIFY(d.guidance.text().contains("laser spot"));
        d.click(spot.x(), spot.y());
    }
    const double pixelMM = truth("crack", "crack.mmPerPixel").toDouble();
    QVERIFY(std::abs(number(d) - truth("crack", "crack.widthMm").toDouble()) < pixelMM);
    d.key(Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(d.editor.value().isEmpty());
    QCOMPARE(d.editor.points()->count(), 2);

    // The scale of a file follows the diameter, which the panel therefore shows.
    const QString path = d.folder.filePath("camera.ini");
    writeTo(path, "200;768;160\n400;768;320\n");
    d.editor.loadCalibration(path);
    QVERIFY(number(d) > 0.0);
    d.type("field.diameterMM", "500");
    QVERIFY(!d.editor.hasScale());
    d.editor.loadCalibration(d.folder.filePath("missing.ini"));
    QCOMPARE(d.guidance.level(), Guidance::Error);
    QVERIFY(!d.editor.session()->calibrationText.isEmpty());
}

void TestViewer::pointsAreCorrected()
{
    ViewerDriver d;
    d.openSample("dimension.jpg");
    QSignalSpy replays(&d.editor, &MeasurementEditor::sessionChanged);
    d.click(110, 288);
    QCOMPARE(replays.size(), 1);
    d.click(640, 300);
    const QPointF placed = d.editor.session()->points.last().pixel;
    const double measured = number(d);

    // A nudge is a step, and the point can be dragged; quick presses count like slow ones.
    d.key(Qt::Key_Up);
    d.key(Qt::Key_Left, Qt::ShiftModifier);
    QCOMPARE(d.editor.session()->points.last().pixel, placed + QPointF(-10, -1));
    const QPoint from = d.at(placed.x() - 10, placed.y() - 1);
    d.drag(from, from + QPoint(-60, 30));
    QVERIFY(std::abs(number(d) - measured) > 5.0);
    d.clickItem("undoKey");
    d.doubleClickItem("undoKey");
    QCOMPARE(d.editor.session()->points.last().pixel, placed);

    d.key(Qt::Key_U);
    QVERIFY(d.editor.value().endsWith('\''));
    QCOMPARE(number(d), measured);
    const auto shownDiameter = [&d] {
        return d.text("field.diameterMM") + d.text("unit.diameterMM");
    };
    QCOMPARE(shownDiameter(), QString("11.811in"));
    d.key(Qt::Key_U);
    QCOMPARE(shownDiameter(), QString("300mm"));
    d.key(Qt::Key_U);
    d.key(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QApplication::clipboard()->text(), d.editor.value());
    d.key(Qt::Key_Backspace);
    d.click(-3, 288);
    QCOMPARE(d.guidance.level(), Guidance::Warning);
    QCOMPARE(d.editor.points()->count(), 1);
    d.click(390, 290);
    QVERIFY(d.guidance.text().contains("beyond"));
    QVERIFY(d.text("secondValueText").startsWith("Point 2 lies beyond"));
}

void TestViewer::outlineClosesWhenItIsToldTo()
{
    ViewerDriver d;
    d.openSample("section.jpg");
    d.key(Qt::Key_6);
    const QPointF first(384, 350);
    const QPointF near(400, 360);
    for (const QPointF &point : {first, QPointF(560, 300), QPointF(384, 150)}) {
        QVERIFY(d.editor.closingEdge().isEmpty() && !d.editor.closesAt(near));
        d.click(point.x(), point.y());
    }
    QVERIFY(d.editor.closesAt(near) && !d.editor.closesAt(QPointF(500, 350)));
    for (const QVariant &dot : d.editor.closingEdge()) {
        const QPointF inwards = (first - dot.toPointF()) / 50.0;
        QVERIFY(d.editor.closesAt(dot.toPointF() + inwards));
        QVERIFY(!d.editor.closesAt(dot.toPointF() - inwards));
    }
    QTest::mouseClick(d.window(), Qt::LeftButton, Qt::ShiftModifier, d.at(near.x(), near.y()));
    QCOMPARE(d.editor.points()->count(), 4);
    d.hold(d.at(380, 340), d.at(380, 345), [] {});
    QCOMPARE(d.editor.points()->count(), 5);
    QVERIFY(!d.editor.value().contains("²"));
    d.click(370, 366);
    QVERIFY2(d.editor.value().contains("²"), qPrintable(d.editor.value()));
    QVERIFY(d.editor.closingEdge().isEmpty());
}

void TestViewer::dragIsOneStep()
{
    ViewerDriver d;
    d.openSample("water.jpg");
    d.key(Qt::Key_3);
    const Session start = *d.editor.session();
    QSignalSpy replays(&d.editor, &MeasurementEditor::sessionChanged);
    d.drag(d.at(300, 300), d.at(340, 320));
    QVERIFY(replays.size() <= 7); // one for each of six moves, and one for the release
    QVERIFY(d.editor.session()->offset != start.offset);
    QVERIFY(d.editor.session()->cameraHeightPercent > start.cameraHeightPercent);
    d.clickItem("farEndKey");
    d.drag(d.at(300, 300), d.at(320, 280));
    QVERIFY(d.editor.session()->rearCircleX != 0.0);
    const QQuickItem *slider = d.find("slider.percentage");
    const QPoint middle = d.middleOf(slider);
    d.drag(middle - QPoint(int(slider->width() / 4), 0), middle);
    QVERIFY(std::abs(number(d) - 50.0) <= 1.0);
    d.screenshot("aligned");
    for (int i = 0; i < 4; ++i) {
        QVERIFY(*d.editor.session() != start);
        d.key(Qt::Key_Z, Qt::ControlModifier);
    }
    QVERIFY(*d.editor.session() == start);

    // Esc gives a drag up; what follows until the release does nothing.
    QTest::mousePress(d.window(), Qt::LeftButton, Qt::NoModifier, d.at(300, 300));
    QTest::mouseMove(d.window(), d.at(350, 300));
    QVERIFY(*d.editor.session() != start);
    d.key(Qt::Key_Escape);
    QTest::mouseMove(d.window(), d.at(380, 300));
    QTest::mouseRelease(d.window(), Qt::LeftButton, Qt::NoModifier, d.at(380, 300));
    QVERIFY(*d.editor.session() == start);
}

void TestViewer::zoomAndPan()
{
    ViewerDriver d;
    d.openSample("dimension.jpg");
    const double fitted = d.view()->scale();
    const QPoint cursor = d.at(200, 150);
    d.wheel(cursor, 6);
    QVERIFY(d.view()->scale() > 3 * fitted);
    QVERIFY((d.at(200, 150) - cursor).manhattanLength() <= 4); // half a pixel, magnified
    QVERIFY(d.find("overlay")->opacity() < 0.6);
    d.screenshot("zoomed");
    for (const bool pans : {false, true}) {
        d.editor.setIsPanning(pans);
        const QPoint before = d.at(200, 150);
        d.drag(cursor, cursor + QPoint(50, -30), pans ? Qt::LeftButton : Qt::MiddleButton);
        QVERIFY((d.at(200, 150) - before - QPoint(50, -30)).manhattanLength() <= 1);
    }
    d.key(Qt::Key_1, Qt::ControlModifier);
    QCOMPARE(d.view()->scale(), 1.0);
    d.key(Qt::Key_Plus);
    QVERIFY(d.view()->scale() > 1.0);
    d.key(Qt::Key_0, Qt::ControlModifier);
    QCOMPARE(d.view()->scale(), fitted);
    QVERIFY(!d.editor.canUndo());
}

void TestViewer::fingers()
{
    ViewerDriver d;
    d.openSample("dimension.jpg");
    d.tap(d.at(110, 288));
    QCOMPARE(d.editor.points()->count(), 1);

    // What a held finger aims at is placed when it lifts; the loupe stands clear of the finger.
    const QQuickItem *loupe = d.find("loupe");
    const auto place = [loupe] { return loupe->mapRectToScene(loupe->boundingRect()); };
    d.hold(d.at(560, 300), d.at(600, 310), [&] {
        QVERIFY(loupe->isVisible());
        QVERIFY(place().bottom() < d.at(600, 310).y());
        d.screenshot("loupe");
        QCOMPARE(d.editor.points()->count(), 1);
    });
    QVERIFY(!loupe->isVisible());
    QCOMPARE(d.editor.points()->count(), 2);
    const QPointF placed = d.editor.session()->points.last().pixel;
    QVERIFY((placed - QPointF(600, 310)).manhattanLength() <= 2.0);
    const QPoint high = d.at(200, 20);
    d.hold(high, high, [&] { QVERIFY(place().top() > high.y()); });

    const double scale = d.view()->scale();
    d.pinch(d.at(384, 288), 200, 400, 26);
    QVERIFY(std::abs(d.view()->scale() / scale - 2.0) < 0.2);
    QVERIFY2(std::abs(d.editor.session()->rollDEG + 20.0) < 3.0,
             qPrintable(QString::number(d.editor.session()->rollDEG)));
    d.key(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(d.editor.session()->rollDEG, 0.0);

    // Two fingers that move along together pan, and change nothing.
    const Session before = *d.editor.session();
    const QPoint middle = d.at(384, 288);
    d.pinch(middle, 200, 200, 0, QPoint(60, 20));
    QVERIFY((d.at(384, 288) - middle - QPoint(60, 20)).manhattanLength() <= 12);
    QVERIFY(*d.editor.session() == before);
}

void TestViewer::badValuesStayVisible()
{
    ViewerDriver d;
    d.openSample("branch.jpg");
    d.key(Qt::Key_4);
    const Session before = *d.editor.session();
    d.type("field.angleDEG", "90"); // what it shows already
    QCOMPARE(number(d), 90.0);
    d.key(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(d.text("valueText"), QString("not set"));
    d.clickItem("confirmKey");
    QCOMPARE(number(d), 90.0);
    d.key(Qt::Key_Z, Qt::ControlModifier);
    d.type("field.clock", "2"); // not an angle, nor its confirmation
    d.type("field.percentage", "41");
    QCOMPARE(d.text("valueText"), QString("not set"));
    d.key(Qt::Key_Z, Qt::ControlModifier);
    d.key(Qt::Key_Z, Qt::ControlModifier);
    for (const char *text : {"29.9", "45 apples"}) {
        d.type("field.angleDEG", text, Qt::Key_Tab);
        QCOMPARE(d.text("field.angleDEG"), QString(text));
        QVERIFY(*d.editor.session() == before);
        QVERIFY2(d.find("problem.angleDEG")->isVisible(), text);
    }
    d.type("field.angleDEG", "60,5");
    QCOMPARE(d.editor.session()->angleDEG, 60.5);
    QVERIFY(!d.find("problem.angleDEG")->isVisible());

    // A press on a button commits, too.
    d.type("field.angleDEG", "75", Qt::Key_End);
    QCOMPARE(d.editor.session()->angleDEG, 60.5);
    d.clickItem("unitKey");
    QCOMPARE(d.editor.session()->angleDEG, 75.0);
}

void TestViewer::controlsFitFingersAndWindows_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<double>("smallestShare"); // of the window, for the picture
    QTest::addColumn<QString>("language");
    QTest::newRow("lying") << QSize(800, 480) << 0.5 << "en";
    QTest::newRow("lying-de") << QSize(800, 480) << 0.5 << "de";
    QTest::newRow("lying-fr") << QSize(800, 480) << 0.5 << "fr";
    QTest::newRow("standing-de") << QSize(720, 1280) << 0.55 << "de";
}

// What can be pressed has a name, is large enough for a finger and does not hang out of the window,
// of which the picture gets most.
void TestViewer::controlsFitFingersAndWindows()
{
    QFETCH(QSize, size);
    QFETCH(double, smallestShare);
    QFETCH(QString, language);
    ViewerDriver d(size, language);
    const QString tag = QTest::currentDataTag();
    d.openSample("dimension.jpg");
    const QQuickItem *stage = d.find("stage");
    const QSizeF stageSize = stage->size();
    QVERIFY(stageSize.width() * stageSize.height() > smallestShare * size.width() * size.height());
    for (int key = Qt::Key_1; key <= Qt::Key_6; ++key) {
        d.key(key);
        d.screenshot(QStringLiteral("%1-%2").arg(tag).arg(key - Qt::Key_0));
        QCOMPARE(stage->size(), stageSize); // whatever the hint says
        QVERIFY2(d.unfitControls().isEmpty(), qPrintable(d.unfitControls().join(", ")));
    }
    for (const char *name : {"recordDialog", "cameraDialog", "displayDialog", "keyList", "mainMenu",
                             "exportMenu", "saveDialog", "filePicker"}) {
        QString(name) == "filePicker"
            ? d.key(Qt::Key_O, Qt::ControlModifier)
            : void(QMetaObject::invokeMethod(d.window()->findChild<QObject *>(name), "open"));
        d.waitForDialog(name);
        d.screenshot(tag + '-' + name);
        QVERIFY2(d.unfitControls().isEmpty(),
                 qPrintable(name + QString(": ") + d.unfitControls().join(", ")));
        QVERIFY2(d.untoldItems().isEmpty(),
                 qPrintable(name + QString(": ") + d.untoldItems().join(", ")));
        QMetaObject::invokeMethod(d.window()->findChild<QObject *>(name), "close");
    }
}

// Who sees nothing is told of everything, and who has no mouse gets everywhere.
void TestViewer::isUsedWithoutEyesOrMouse()
{
    ViewerDriver d;
    d.openSample("section.jpg");
    d.key(Qt::Key_6);
    QCOMPARE(d.untoldItems(), QStringList());

    const auto described = [&d](const char *name) {
        return QAccessible::queryAccessibleInterface(d.find(name))->text(QAccessible::Description);
    };
    QCOMPARE(described("kind.CrossSection") + described("kind.WaterLevel"), QString("chosen"));
    const auto *depth =
        QAccessible::queryAccessibleInterface(d.find("slider.percentage"))->valueInterface();
    QVERIFY(depth->maximumValue().toDouble() > depth->currentValue().toDouble());

    const auto focused = [&d] { return d.window()->activeFocusItem()->objectName(); };
    d.key(Qt::Key_F6);
    QCOMPARE(focused(), QString("valueText"));
    d.key(Qt::Key_F7);
    QCOMPARE(focused(), QString("field.diameterMM"));
    d.key(Qt::Key_F8);
    QCOMPARE(focused(), QString("stage"));
    d.find("kind.WaterLevel")->forceActiveFocus(Qt::TabFocusReason);
    d.key(Qt::Key_Return);
    QCOMPARE(d.editor.kind(), QString("WaterLevel"));

    d.copySample("water.jpg");
    d.key(Qt::Key_O, Qt::ControlModifier);
    d.waitForDialog("filePicker");
    QTRY_VERIFY(d.hasItem("file.water.jpg"));
    d.key(Qt::Key_Down);
    d.key(Qt::Key_Down);
    d.key(Qt::Key_Return);
    QCOMPARE(d.documents.pictureName(), QString("water.jpg"));
}

// The language changes under way; files have none.
void TestViewer::speaksTheOperatorsLanguage()
{
    ViewerDriver d;
    const QString picture = d.openSample("branch.jpg");
    d.key(Qt::Key_4);
    QCOMPARE(d.text("kind.BranchAngle"), QString("Branch angle"));
    d.viewer.preferences()->setLanguage("fr");
    QTRY_COMPARE(d.text("kind.BranchAngle"), QString("Branchement"));
    d.viewer.preferences()->setLanguage("de");
    QTRY_COMPARE(d.text("kind.BranchAngle"), QString("Abzweigwinkel"));
    QCOMPARE(d.text("valueText"), QString("nicht gesetzt"));
    QVERIFY2(d.guidance.text().startsWith("Das Rohr zurechtziehen"), qPrintable(d.guidance.text()));
    const auto labels = [](const FieldModel *fields) {
        QStringList texts;
        for (int row = 0; row < fields->rowCount(); ++row) {
            texts += fields->data(fields->index(row), FieldModel::LabelRole).toString();
        }
        return texts.join(", ");
    };
    QCOMPARE(labels(d.viewer.kindFields()), QString("Winkel, Abzweiggröße, Richtung, Uhr"));
    d.type("field.angleDEG", "200");
    QCOMPARE(d.text("problem.angleDEG"), QString("Bitte von 30 bis 150 °."));
    d.type("field.angleDEG", "60,5");
    d.window()->close();
    QCOMPARE(d.waitForDialog("unsavedDialog")->property("text").toString(),
             QString("1 Messung ist nicht gesichert."));
    d.clickDialog("unsavedDialog", "acceptKey");
    QVERIFY(contentOf(Measuring::sessionPathOf(picture)).contains("60.5"));
}

// Relative luminance and contrast as WCAG 2.1 defines them.
void TestViewer::textsStandOut()
{
    constexpr double smallestContrast = 4.5;
    ViewerDriver d;
    QQmlComponent component(qmlEngine(d.find("stage")));
    component.setData("import QtQml 2.15\nQtObject { property var theme: Theme }",
                      QUrl("qrc:/viewer/Colours.qml"));
    const QScopedPointer<QObject> colours(component.create());
    const auto *theme = colours->property("theme").value<QObject *>();
    const auto luminance = [theme](const char *name) {
        const QColor colour = theme->property(name).value<QColor>();
        const auto linear = [](double c) {
            return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
               0.0722 * linear(colour.blueF());
    };
    const auto contrast = [&](const char *text, const char *ground) {
        const double a = luminance(text) + 0.05;
        const double b = luminance(ground) + 0.05;
        return std::max(a, b) / std::min(a, b);
    };
    for (const char *ground : {"window", "panel", "control", "controlDown"}) {
        for (const char *text : {"text", "quiet", "accent", "warning", "error"}) {
            QVERIFY2(contrast(text, ground) >= smallestContrast, text);
        }
    }
    QVERIFY(contrast("accentText", "accent") >= smallestContrast);
}

void TestViewer::nothingIsLostUnlessConfirmed()
{
    ViewerDriver d;
    const QString picture = d.openSample("dimension.jpg");
    const QString sessionPath = Measuring::sessionPathOf(picture);
    d.click(110, 288);
    d.window()->close();
    QCOMPARE(d.waitForDialog("unsavedDialog")->property("text").toString(),
             QString("1 measurement is not saved."));
    d.clickDialog("unsavedDialog", "cancelKey");
    QVERIFY(d.window()->isVisible() && !QFile::exists(sessionPath));
    QVERIFY(d.exporter.save());
    const QByteArray saved = contentOf(sessionPath);
    d.window()->close();
    QVERIFY(!d.window()->isVisible());

    // Another picture has taken the name.
    QVERIFY(QFile::remove(picture));
    d.copySample("water.jpg", "dimension.jpg");
    ViewerDriver again;
    again.documents.openPaths({picture});
    QCOMPARE(again.guidance.level(), Guidance::Warning);
    again.click(640, 300);
    again.key(Qt::Key_S, Qt::ControlModifier);
    again.clickDialog("saveDialog", "cancelKey");
    QCOMPARE(contentOf(sessionPath), saved);
    QVERIFY(again.editor.isModified());
    again.key(Qt::Key_S, Qt::ControlModifier);
    again.clickDialog("saveDialog", "acceptKey");
    QVERIFY(contentOf(sessionPath) != saved);
    QVERIFY(!again.editor.isModified());

    // Somebody else has written there in the meantime: what cannot be read is not overwritten.
    const QByteArray theirs = "{\"schema\": \"zalento-session 9.0\"}";
    writeTo(sessionPath, theirs);
    again.click(300, 300);
    QVERIFY(!again.exporter.save());
    ViewerDriver third;
    third.documents.openPaths({picture});
    QCOMPARE(third.guidance.level(), Guidance::Error);
    QVERIFY(third.documents.hasPicture());
    QVERIFY(!third.exporter.save());
    QCOMPARE(contentOf(sessionPath), theirs);
}

void TestViewer::exportsOrSaysWhyNot_data()
{
    QTest::addColumn<QByteArray>("begin");
    QTest::newRow("session") << QByteArray("{");
    QTest::newRow("png") << QByteArray("\x89PNG");
    QTest::newRow("svg") << QByteArray("<?xml");
    QTest::newRow("csv") << QByteArray("picture,");
    QTest::newRow("json") << QByteArray("[");
    QTest::newRow("pdf") << QByteArray("%PDF-");
}

void TestViewer::exportsOrSaysWhyNot()
{
    QFETCH(QByteArray, begin);
    const QString what = QTest::currentDataTag();
    ViewerDriver d;
    QVERIFY(QDir(d.folder.path()).mkdir("pipe"));
    d.documents.openPaths({d.copySample("dimension.jpg", "pipe/dimension.jpg")});
    d.click(110, 288);
    const QString target = d.exporter.suggestedPath(what);
    QVERIFY(d.exporter.exportTo(what, target));
    QTRY_VERIFY2(contentOf(target).startsWith(begin), contentOf(target).left(20));
    d.click(640, 300);
    QVERIFY(QDir(d.folder.filePath("pipe")).removeRecursively());
    QVERIFY(!d.exporter.exportTo(what, target));
    QCOMPARE(d.guidance.level(), Guidance::Error);
    QVERIFY(d.guidance.text().contains(QFileInfo(target).fileName()));
    QVERIFY(d.editor.isModified());
}

void TestViewer::pictureVanishesWhileItIsOpen()
{
    ViewerDriver d;
    const QString picture = d.copySample("dimension.jpg");
    d.documents.openPaths({picture, d.copySample("section.jpg")});
    d.click(110, 288);
    const Session measured = *d.editor.session();
    QVERIFY(QFile::remove(picture));
    QSignalSpy questions(&d.exporter, &Exporter::confirmationNeeded);
    QVERIFY(!d.exporter.save());
    QCOMPARE(questions.size(), 1);
    QVERIFY(d.exporter.exportTo("png", d.folder.filePath("seen.png")));

    // Coming back to it tells, keeps the points, and still asks.
    d.documents.showNext();
    d.documents.showPrevious();
    QVERIFY(!d.documents.hasPicture());
    QCOMPARE(d.guidance.level(), Guidance::Error);
    QVERIFY(!d.exporter.saveAll());
    QCOMPARE(questions.size(), 2);
    QVERIFY(*d.editor.session() == measured);
}

void TestViewer::picksFiles()
{
    ViewerDriver d;
    d.openSample("dimension.jpg");
    d.copySample("water.jpg");
    d.key(Qt::Key_O, Qt::ControlModifier);
    QObject *picker = d.waitForDialog("filePicker");
    QTRY_VERIFY(d.hasItem("file.water.jpg"));
    d.clickItem("file.water.jpg");
    d.clickItem("pickerAccept");
    QCOMPARE(d.documents.pictureName(), QString("water.jpg"));
    QCOMPARE(d.documents.count(), 2);
    QTRY_VERIFY(!picker->property("visible").toBool());

    // A file that is there is replaced at the second press, which a double click is not.
    const QString target = d.exporter.suggestedPath("png");
    writeTo(target, "precious");
    d.clickItem("exportKey");
    d.waitForDialog("exportMenu");
    d.key(Qt::Key_Down);
    d.key(Qt::Key_Return);
    d.waitForDialog("filePicker");
    d.doubleClickItem("pickerAccept");
    QCOMPARE(d.text("pickerAccept"), QString("Replace"));
    QTest::qWait(QGuiApplication::styleHints()->mouseDoubleClickInterval() + 1);
    QCOMPARE(contentOf(target), QByteArray("precious"));
    d.clickItem("pickerAccept");
    QCOMPARE(QImage(target).size(), d.documents.pictureSize());
}

void TestViewer::severalPictures()
{
    ViewerDriver d;
    const QString first = d.copySample("dimension.jpg");
    const QString second = d.copySample("water.jpg");
    const QString broken = d.folder.filePath("broken.jpg");
    writeTo(broken, "not a picture");
    const QString drawing = d.folder.filePath("drawing.svg");
    writeTo(drawing, "<svg xmlns=\"http://www.w3.org/2000/svg\"/>");
    QMimeData dropped;
    dropped.setUrls({QUrl::fromLocalFile(first), QUrl::fromLocalFile(broken),
                     QUrl::fromLocalFile(drawing), QUrl::fromLocalFile(second)});
    QDragEnterEvent enter({400, 300}, Qt::CopyAction, &dropped, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(d.window(), &enter);
    QDropEvent drop({400, 300}, Qt::CopyAction, &dropped, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(d.window(), &drop);
    QCOMPARE(d.documents.count(), 3);
    QVERIFY(d.guidance.text().startsWith("drawing.svg: is no picture"));
    d.click(110, 288);

    d.clickItem("nextKey");
    QVERIFY(d.documents.pictureProblem().startsWith("broken.jpg: is no picture"));
    d.key(Qt::Key_PageDown);
    QCOMPARE(d.documents.pictureName(), QString("water.jpg"));
    QVERIFY(!d.editor.canUndo());
    d.doubleClickItem("previousKey");
    QCOMPARE(d.editor.points()->count(), 1);
    const QString table = d.folder.filePath("table.csv");
    d.documents.openPaths({first, d.copySample("bend.jpg"), d.copySample("crack.jpg")});
    d.copySample("crack.jpg.zalento.json");
    QVERIFY(d.exporter.exportTo("csv", table));
    for (const char *record :
         {"dimension.jpg,PipeDimension,no value", "broken.jpg,,failed", "water.jpg,,not measured",
          "bend.jpg,,not measured", "crack.jpg,CrackWidth,measured,crackWidth,"}) {
        QVERIFY2(contentOf(table).contains(record), contentOf(table));
    }
    d.key(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(d.editor.points()->count(), 0);
    QCOMPARE(d.viewer.preferences()->recentFiles().first(), first);
}

void TestViewer::findsOneOfManyPictures()
{
    ViewerDriver d;
    QVERIFY(writeBytes(d.folder.filePath("Pipe 2.jpg"), "not a picture"));
    for (const char *copy : {"crack.jpg:pipe 10.jpg", "water.jpg:pipe 12.jpg",
                             "crack.jpg.zalento.json:pipe 10.jpg.zalento.json",
                             "dimension.jpg:pipe 1.jpg", "section.jpg:pipe 20.jpg"}) {
        d.copySample(QString(copy).section(':', 0, 0), QString(copy).section(':', 1));
    }
    QVERIFY(writeBytes(d.folder.filePath("pipe 12.jpg.zalento.json"), "{"));
    d.documents.openPaths({d.folder.path()});
    const auto told = [&d] {
        QStringList names;
        for (QQuickItem *card : ViewerDriver::below(d.find("strip"))) {
            if (card->isVisible() && card->objectName().startsWith("picture.")) {
                auto *accessible = QAccessible::queryAccessibleInterface(card);
                names += accessible->text(QAccessible::Name);
            }
        }
        names.sort();
        return names;
    };
    QTRY_COMPARE(told(),
                 QStringList({"1: pipe 1.jpg", "2: Pipe 2.jpg, trouble", "3: pipe 10.jpg, measured",
                              "4: pipe 12.jpg, trouble", "5: pipe 20.jpg"}));
    d.click(110, 288);
    d.click(640, 300);
    QCOMPARE(told().first(), QString("1: pipe 1.jpg, not saved, measured"));
    d.screenshot("strip");

    const auto goTo = [&d](const QString &text) {
        d.key(Qt::Key_G);
        d.type("stripSearch", text);
        return d.documents.pictureName();
    };
    QCOMPARE(goTo("PE 12"), QString("pipe 12.jpg"));
    QCOMPARE(goTo("1"), QString("pipe 1.jpg"));
    QCOMPARE(goTo("5"), QString("pipe 20.jpg"));
    QCOMPARE(goTo("none"), QString("pipe 20.jpg"));
    QTRY_VERIFY(told().isEmpty());
    d.key(Qt::Key_Escape);
    QTRY_COMPARE(told().size(), 5);
    d.clickItem("picture.4");
    QCOMPARE(d.documents.pictureName(), QString("pipe 12.jpg"));

    // The strip goes, and comes with the keys.
    d.clickItem("stripKey");
    QVERIFY(told().isEmpty());
    d.key(Qt::Key_F9);
    d.key(Qt::Key_Home);
    d.key(Qt::Key_Right);
    d.key(Qt::Key_Right);
    d.key(Qt::Key_Return);
    QCOMPARE(d.documents.pictureName(), QString("pipe 10.jpg"));

    const QVector<QStringList> listed{{"1", "3"}, {"2", "4", "5"}, {"1"}, {"2", "4"}};
    for (int state = 1; state <= listed.size(); ++state) {
        d.clickItem("stripState");
        d.waitForDialog("stripStateMenu");
        d.clickItem(QStringLiteral("stripState.%1").arg(state));
        QTRY_COMPARE(told().replaceInStrings(QRegularExpression(":.*"), QString()),
                     listed[state - 1]);
    }

    // On a small screen it leaves the picture its place again.
    ViewerDriver small(QSize(800, 480), "de");
    small.documents.openPaths({d.folder.path()});
    const QQuickItem *strip = small.find("strip");
    QVERIFY(!strip->isVisible());
    small.key(Qt::Key_F9);
    QVERIFY(strip->isVisible());
    small.screenshot("strip-small");
    QVERIFY2(small.unfitControls().isEmpty(), qPrintable(small.unfitControls().join(", ")));
    small.clickItem("picture.2");
    QVERIFY(!strip->isVisible() && small.documents.currentIndex() == 1);
}

void TestViewer::recordSetsTheDiameter()
{
    ViewerDriver d;
    d.openSample("dimension.jpg");
    d.clickItem("recordKey");
    d.waitForDialog("recordDialog");
    d.type("recordSize", "600");
    QCOMPARE(d.editor.session()->diameterMM, 600.0);
    d.key(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(d.editor.session()->diameterMM, 300.0);

    const QString path = d.folder.filePath("record.json");
    writeTo(path, R"({"OBJ_Size1": 8, "unit": "inch"})");
    d.viewer.records()->load(path);
    QCOMPARE(d.guidance.level(), Guidance::Information);
    for (const char *bad : {R"({"OBJ_Size1": 2.5})", R"({"unit": "inch"})", "[]",
                            R"({"OBJ_Size1": 8, "unit": "furlong"})"}) {
        writeTo(path, bad);
        d.viewer.records()->load(path);
        QVERIFY2(d.guidance.level() == Guidance::Error, bad);
        QCOMPARE(d.editor.session()->diameterMM, 203.0);
    }
}

void TestViewer::overlayHidesWhileHeld()
{
    ViewerDriver d;
    d.openSample("dimension.jpg");
    const QImage shown = d.screenshot("overlay");
    QTest::keyPress(d.window(), Qt::Key_H);
    QVERIFY(d.screenshot("overlay-hidden") != shown);
    QTest::keyRelease(d.window(), Qt::Key_H);
    QCOMPARE(d.screenshot("overlay"), shown);
}

// Colours reach the overlay and what is exported, and are there on another day.
void TestViewer::overlayTakesTheOperatorsColours()
{
    ViewerDriver d;
    d.openSample("dimension.jpg");
    const auto exported = [&d] {
        const QString svg = d.folder.filePath("overlay.svg");
        return d.exporter.exportTo("svg", svg) ? contentOf(svg) : QByteArray();
    };
    QVERIFY(exported().contains("#00ff00"));
    QMetaObject::invokeMethod(d.window()->findChild<QObject *>("displayDialog"), "open");
    d.clickDialog("displayDialog", "pipeColour.#ff00ff");
    QVERIFY(exported().contains("#ff00ff") && !exported().contains("#00ff00"));
    d.screenshot("colours");
    QCOMPARE(Preferences().pipeColour(), QColor("#ff00ff"));
    QVERIFY(!d.editor.isModified());
    d.clickDialog("displayDialog", "usualColoursKey");
    QVERIFY(exported().contains("#00ff00"));

    QMetaObject::invokeMethod(d.find("units"), "chosen", Q_ARG(int, 1));
    QVERIFY(d.editor.isImperial() && Preferences().isImperial());
}

// Clicked joints put the model where the sample was made, from an alignment that is far off.
void TestViewer::jointsAlignTheModel()
{
    ViewerDriver d;
    d.openSample("dimension.jpg");
    d.type("field.offset", "60");
    d.drag(d.at(384, 570), d.at(384, 480)); // the mouth's rim
    QVERIFY(d.editor.session()->mouthPercent < 90.0);
    const Session start = *d.editor.session();
    d.editor.setProperty("tool", 1);
    for (int joint = 0; joint < 2; ++joint) {
        const auto edge = truePixels("dimension", QStringLiteral("joints.%1.clicks").arg(joint));
        for (int i = 1; i < edge.size(); i += 2) {
            d.click(edge[i].x(), edge[i].y());
        }
        d.editor.beginFeature();
    }
    d.screenshot("joints");
    const Session fitted = *d.editor.session();
    QCOMPARE(d.editor.features()->count(), 2);
    QVERIFY(d.editor.fitText().startsWith("Fitted"));
    QVERIFY(std::abs(fitted.mouthPercent - 100.0) < 1.0 && std::abs(fitted.offset) < 3.0);
    QVERIFY(!d.editor.setFeatureDistance(1, "far").isEmpty());
    QVERIFY(d.editor.setFeatureDistance(1, "1000").isEmpty());

    // A click that is dragged away shifts the fit, and is undone with the rest.
    const QPointF click = fitted.rings[0].points[0];
    d.drag(d.at(click.x(), click.y()), d.at(click.x() + 20, click.y() + 5));
    QVERIFY(*d.editor.session() != fitted);
    d.key(Qt::Key_S, Qt::ControlModifier);
    ViewerDriver again;
    again.documents.openPaths({d.documents.current()->picturePath});
    QVERIFY(*again.editor.session() == *d.editor.session());
    while (*d.editor.session() != start && d.editor.canUndo()) {
        d.editor.undo();
    }
    QVERIFY(*d.editor.session() == start);
}

// A limit, a map, and the same once more.
void TestViewer::valuesAreAssessed()
{
    ViewerDriver d;
    d.openSample("dimension.jpg");
    const auto ends = truePixels("dimension", "dimensions.0.clicks");
    const auto measureOnce = [&] {
        for (const QPointF &end : ends) {
            d.click(end.x(), end.y());
        }
    };
    Assessment &assessment = *d.viewer.assessment();
    QVERIFY(assessment.budget().isEmpty() && !assessment.canMeasureAgain());
    measureOnce();
    QVERIFY(d.editor.value().contains(" ± "));
    QVERIFY(!assessment.ellipse().isEmpty() && assessment.pointText().contains("around"));
    double shares = 0.0;
    for (const QVariant &row : assessment.budget()) {
        shares += row.toMap()["share"].toDouble();
    }
    QVERIFY(std::abs(shares - 1.0) < 1e-9);
    QVERIFY(!d.text("adviceText").isEmpty());

    QVERIFY(!assessment.setLimit("about a metre").isEmpty());
    QVERIFY(d.editor.session()->limit.isEmpty());
    QCOMPARE(assessment.setLimit("> 1 mm"), QString());
    QCOMPARE(d.text("decisionText"), QString("above the limit"));

    // The same points on the flat wall; a click there is one in the picture.
    FlatWall &wall = *d.viewer.wall();
    d.key(Qt::Key_W);
    QVERIFY(wall.isShown() && wall.problem().isEmpty());
    QCOMPARE(wall.points().size(), 2);
    const QPointF flat = wall.points().last().toPointF() + QPointF(40, 5);
    wall.click(flat);
    QCOMPARE(wall.points().size(), 3);
    QVERIFY(QLineF(wall.points().last().toPointF(), flat).length() < 0.01);
    d.screenshot("wall");
    QVERIFY(d.exporter.exportTo("wall", d.folder.filePath("flat.png")));
    QVERIFY(!QImage(d.folder.filePath("flat.png")).isNull());
    d.key(Qt::Key_W);

    d.key(Qt::Key_R);
    QVERIFY(d.editor.value().isEmpty() && d.editor.points()->count() == 0);
    QCOMPARE(d.text("repeatsText"), QString("1 result kept"));
    measureOnce();
    QVERIFY2(assessment.repeats().startsWith("2 results: mean"), qPrintable(assessment.repeats()));

    d.key(Qt::Key_M);
    QCOMPARE(assessment.map(), int(Assessment::ScaleMap));
    d.key(Qt::Key_M);
    QVERIFY(d.find("map")->isVisible());
    d.screenshot("map");
    d.key(Qt::Key_1); // a crack has no pipe
    QCOMPARE(assessment.map(), int(Assessment::NoMap));
}

// Without a pointer: a cursor clicks, and takes what was clicked.
void TestViewer::jointClicksAreTakenByKeys()
{
    ViewerDriver d;
    d.openSample("dimension.jpg");
    const QQuickItem *cursor = d.find("cursor");
    d.key(Qt::Key_Return);
    QVERIFY(cursor->isVisible());
    QCOMPARE(d.editor.points()->count(), 0);
    const QQuickItem *stage = d.find("stage");
    const QPointF middle = d.view()->toPicture({stage->width() / 2, stage->height() / 2});
    d.key(Qt::Key_Left, Qt::ShiftModifier);
    d.key(Qt::Key_Down);
    d.key(Qt::Key_J);
    d.key(Qt::Key_Return);
    const auto clicks = [&] { return d.editor.session()->rings.value(0).points; };
    QCOMPARE(clicks(), QVector<QPointF>{middle + QPointF(-10, 1)});
    d.key(Qt::Key_Left, Qt::ShiftModifier);
    d.key(Qt::Key_Return);
    d.key(Qt::Key_Right, Qt::ShiftModifier);
    d.key(Qt::Key_Return); // takes the first again
    QCOMPARE(clicks().size(), 2);
    d.key(Qt::Key_Escape);
    QVERIFY(!cursor->isVisible());
    d.key(Qt::Key_Up);
    QCOMPARE(clicks().value(0), middle + QPointF(-10, 0));
    d.key(Qt::Key_Backspace);
    QCOMPARE(clicks(), QVector<QPointF>{middle + QPointF(-20, 1)});

    // A second joint whose only click is dropped begins again.
    d.key(Qt::Key_J);
    d.click(300, 300);
    d.key(Qt::Key_Backspace);
    QCOMPARE(d.editor.session()->rings.size(), 1);
    d.drag(d.at(310, 300), d.at(310, 300) + QPoint(3, 2)); // a press that slips is a click
    QCOMPARE(d.editor.session()->rings.size(), 2);
}

void TestViewer::nextPictureTakesTheCamera()
{
    ViewerDriver d;
    const QString other = d.copySample("tilted.jpg");
    d.documents.openPaths({d.copySample("dimension.jpg"), d.copySample("water.jpg"), other});
    d.type("field.fovYDEG", "41.5");
    d.drag(d.at(300, 300), d.at(320, 310));
    const Measuring::Alignment aligned = Measuring::alignmentOf(*d.editor.session());
    d.editor.setIsLocked(true);
    d.drag(d.at(300, 300), d.at(320, 310));
    d.editor.setIsLocked(false);
    d.viewer.cameras()->keep("pole / 2");
    QCOMPARE(Measuring::alignmentOf(*d.editor.session()).numbers(), aligned.numbers());
    d.documents.showNext();
    d.clickItem("asBeforeKey");
    QCOMPARE(Measuring::alignmentOf(*d.editor.session()).numbers(), aligned.numbers());
    d.type("field.fovYDEG", "60");
    QCOMPARE(d.viewer.cameras()->names(), QStringList{"pole / 2"});
    d.viewer.cameras()->apply("pole / 2");
    QCOMPARE(d.editor.session()->fovYDEG, 41.5);
    d.documents.showNext(); // a picture of another size
    QVERIFY(d.viewer.cameras()->names().isEmpty());

    // Joints hold the model: a hand that drags it is told.
    d.editor.setProperty("tool", 1);
    for (const QPointF &edge : truePixels("tilted", "joints.0.clicks").mid(1, 4)) {
        d.click(edge.x(), edge.y());
    }
    d.editor.setProperty("tool", 0);
    const Session fitted = *d.editor.session();
    d.drag(d.at(300, 300), d.at(320, 310));
    QVERIFY(*d.editor.session() == fitted);
    QVERIFY2(d.guidance.text().contains("hold the model"), qPrintable(d.guidance.text()));
    d.find("resetKey")->forceActiveFocus(); // which scrolls it into sight
    d.clickItem("resetKey");
    QVERIFY(d.editor.session()->rings.isEmpty());
}

void TestViewer::lensIsTakenOutOfThePicture()
{
    ViewerDriver d;
    CameraProfiles *cameras = d.viewer.cameras();
    d.documents.openPaths({d.copySample("dimension.jpg"), d.copySample("water.jpg")});
    const QString file = d.folder.filePath("wide.yaml");
    QVERIFY(writeBytes(file, "camera_name: wide\nimage_width: 768\nimage_height: 576\n"
                             "camera_matrix: [700, 0, 383.5, 0, 700, 287.5, 0, 0, 1]\n"
                             "distortion_coefficients: [-0.2, 0.02, 0, 0]\n"));
    d.click(300, 200);
    const Session asTaken = *d.editor.session();
    const QImage taken = d.documents.picture();

    cameras->loadLens(file);
    if (!Measuring::loadLens(file)) {
        QVERIFY(d.guidance.text().contains("no OpenCV"));
        return;
    }
    const Session straight = *d.editor.session();
    QCOMPARE(cameras->lensName(), QStringLiteral("wide"));
    QVERIFY(d.documents.picture() != taken);
    QVERIFY(straight.fovYDEG != asTaken.fovYDEG);
    QVERIFY(straight.points.first().pixel != asTaken.points.first().pixel);
    cameras->setShowsAll(true);
    QVERIFY(d.editor.session()->fovYDEG > straight.fovYDEG);
    d.editor.undo();
    QVERIFY(*d.editor.session() == straight);
    cameras->keep("pole");
    QVERIFY(cameras->hasLens("pole"));

    d.editor.undo();
    QVERIFY(*d.editor.session() == asTaken);
    QCOMPARE(d.documents.picture(), taken);
    d.editor.redo();
    d.documents.showNext(); // a picture of the same camera
    QCOMPARE(cameras->lensName(), QStringLiteral("wide"));
    cameras->removeLens();
    QCOMPARE(
        d.documents.picture(),
        QImage(d.folder.filePath("water.jpg")).convertToFormat(d.documents.picture().format()));
    cameras->apply("pole");
    QCOMPARE(cameras->lensName(), QStringLiteral("pole"));

    cameras->removeLens();
    cameras->estimateLens();
    QVERIFY2(d.guidance.text().contains("expected 3 joints"), qPrintable(d.guidance.text()));
    cameras->loadLens(d.folder.filePath("none.yaml"));
    QVERIFY2(d.guidance.text().contains("none.yaml"), qPrintable(d.guidance.text()));
    cameras->remove("pole");
}

// A frame is looked for with keys, gets its counter, and is a picture then that knows its film.
void TestViewer::filmFramesAreMeasured()
{
#ifdef FFMPEG
    ViewerDriver d(QSize(800, 480));
    const QString film = d.folder.filePath("run.mpg");
    QCOMPARE(
        QProcess::execute(FFMPEG, {"-v", "error", "-loop", "1", "-i", d.copySample("dimension.jpg"),
                                   "-t", "2", "-r", "25", "-c:v", "mpeg2video", "-f", "vob", film}),
        0);
    d.documents.openPaths({film});
    d.waitForDialog("filmPanel");
    QTRY_VERIFY(d.hasItem("filmTime") && d.text("filmTime").startsWith("0:00.000"));
    d.key(Qt::Key_Right);
    QTRY_COMPARE(d.viewer.film()->frame(), 1);
    d.key(Qt::Key_Right, Qt::ShiftModifier);
    QTRY_COMPARE(d.text("filmTime"), QString("0:01.040 · frame 27 of 50"));
    QCOMPARE(d.unfitControls(), QStringList());
    QCOMPARE(d.untoldItems(), QStringList());
    d.type("filmCounter", "x");
    QVERIFY(d.viewer.film()->isShown());
    d.type("filmCounter", "12,5");
    QTRY_COMPARE(d.documents.pictureName(), QString("run.mpg.0-00-01.040.png"));
    QTRY_VERIFY(!d.window()->findChild<QObject *>("filmPanel")->property("visible").toBool());
    d.click(110, 288);
    d.click(640, 300);
    QVERIFY(number(d) > 0.0);
    d.type("field.counterM", "13");
    d.key(Qt::Key_S, Qt::ControlModifier);
    const auto saved = Measuring::loadSession(d.documents.current()->sessionPath);
    QCOMPARE(saved->counterM.value(), 13.0);
    QCOMPARE(saved->film->path, film);
    QCOMPARE(saved->film->number, 26);

    // The film goes on where it was, of a frame that is measured the session stays as it is.
    d.key(Qt::Key_T);
    d.waitForDialog("filmPanel");
    QCOMPARE(d.viewer.film()->frame(), 26);
    d.type("filmCounter", "14");
    QVERIFY(d.viewer.film()->isShown());
    QCOMPARE(d.documents.current()->session->counterM.value(), 13.0);

    // The next day the picture leads to its film; what is no film is told.
    ViewerDriver nextDay(QSize(800, 480));
    nextDay.documents.openPaths({d.documents.current()->picturePath});
    nextDay.key(Qt::Key_T);
    nextDay.waitForDialog("filmPanel");
    QTRY_COMPARE(nextDay.viewer.film()->frame(), 26);
    nextDay.key(Qt::Key_Escape);
    QTRY_VERIFY(!nextDay.viewer.film()->isShown());
    writeTo(film, "no film");
    nextDay.documents.openPaths({film});
    QTRY_COMPARE(nextDay.guidance.level(), Guidance::Error);
#else
    QSKIP("without ffmpeg there is no film");
#endif
}

} // namespace Drevon::Zalento::Test

int main(int argc, char *argv[])
{
    // Settings of its own: what one test run leaves, another would start with.
    const QTemporaryDir settings;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());
    // Where Qt Widgets is linked, for its undo stack, Qt Test takes the application for this one.
    QApplication app(argc, argv);
    QCoreApplication::setOrganizationName("Zalento");
    QCoreApplication::setApplicationName("tst_viewer");
    Drevon::Zalento::Test::TestViewer test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_viewer.moc"
