// The viewer as an operator meets it: in a window, with mouse, keys and fingers.
#include "ViewerDriver.h"

#include "measuring/SessionFile.h"
#include "support/TestCase.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QJsonArray>
#include <QJsonDocument>
#include <QMimeData>
#include <QProcess>
#include <QSignalSpy>
#include <QStyleHints>

#include <csignal>
#include <sys/resource.h>
#include <unistd.h>

// Makes writing into a folder impossible, or possible again.
using Block = std::function<bool(const QString &folder, bool isBlocked)>;
Q_DECLARE_METATYPE(Block)

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

// The program without a display measures the saved session the same, to the last bit.
void measuresTheSameWithoutDisplay(const ViewerDriver &d)
{
    QProcess program;
    program.start(ZALENTO_MEASURE, {"measure", "--session", d.exporter.suggestedPath("session"),
                                    "--format", "json"});
    QVERIFY(program.waitForFinished());
    const QByteArray output = program.readAllStandardOutput();
    const QJsonArray values = QJsonDocument::fromJson(output)[0]["values"].toArray();
    const auto &shown = d.editor.measurement().values;
    QVERIFY2(!shown.isEmpty() && values.size() == shown.size(), output);
    for (int i = 0; i < shown.size(); ++i) {
        QVERIFY2(values[i]["number"].toDouble() == shown[i].number, output);
        QCOMPARE(values[i]["text"].toString(), shown[i].text);
    }
}

} // namespace

class TestViewer : public TestCase
{
    Q_OBJECT

private slots:
    void measures_data();
    void measures();
    void crackNeedsAScale();
    void pointsAreCorrected();
    void outlineStaysClosed();
    void dragIsOneStep();
    void zoomAndPan();
    void fingers();
    void badValuesStayVisible();
    void controlsOfAKind_data();
    void controlsOfAKind();
    void nothingIsLostUnlessConfirmed();
    void nothingIsLostWhenNothingCanBeWritten_data();
    void nothingIsLostWhenNothingCanBeWritten();
    void pictureChangesWhileItIsOpen_data();
    void pictureChangesWhileItIsOpen();
    void exportsAndCopies();
    void picksFiles();
    void severalPictures();
    void recordSetsTheDiameter();
    void overlayHidesWhileHeld();
    void jointsAlignTheModel();
};

void TestViewer::measures_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("start");
    QTest::addColumn<QString>("fields");
    QTest::addColumn<QString>("clicks");
    QTest::addColumn<QString>("value");
    QTest::addColumn<double>("slack"); // relative: what one pixel makes
    const auto row = [](const char *sample, Qt::Key key, const char *start, const QString &fields,
                        const char *clicks, const char *value, double slack) {
        QTest::newRow(sample) << int(key) << QString(start) << fields << QString(clicks)
                              << QString(value) << slack;
    };
    const double scale = truth("crack", "crack.mmPerPixel").toDouble();
    row("crack", Qt::Key_1, "", QStringLiteral("mmPerPixel=%1").arg(scale), "crack.clicks",
        "crack.widthMm", 0.2);
    row("dimension", Qt::Key_2, "", "", "dimensions.0.clicks", "dimensions.0.lengthMm", 0.03);
    row("water", Qt::Key_3, "20 %", "", "water.edges.1.clicks", "water.percent", 0.02);
    row("branch", Qt::Key_4, "90°", "angleDEG=45 clock=3", "", "branch.angleDeg", 0.0);
    row("bend", Qt::Key_5, "45°", "angleDEG=30 clock=3", "", "bend.angleDeg", 0.0);
    row("joint", Qt::Key_5, "45°", "angleDEG=10 clock=9", "", "bend.angleDeg", 0.0);
    row("section", Qt::Key_6, "", "percentage=10", "section.clicks", "section.areaMm2", 0.03);
}

// Every kind with keys and clicks; all of it can be undone, and measures the same without a window.
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
    const Session start = *d.editor.session();
    d.key(key);
    QTEST(d.editor.value(), "start");
    d.editor.setJointShown(sample == "joint");
    for (const QString &field : fields.split(' ', Qt::SkipEmptyParts)) {
        d.type("field." + field.section('=', 0, 0), field.section('=', 1));
    }
    for (const QPointF &pixel : truePixels(sample, clicks)) {
        d.click(pixel.x(), pixel.y());
    }
    const double expected = truth(sample, value).toDouble();
    QVERIFY2(std::abs(number(d) - expected) <= slack * expected, qPrintable(d.editor.value()));
    QCOMPARE(d.text("valueText"), d.editor.value());
    for (const QQuickItem *item : d.visibleControls()) {
        const auto length = [item](const char *name) { return item->property(name).toDouble(); };
        const double room = item->width() - length("leftPadding") - length("rightPadding");
        QVERIFY2(!item->inherits("QQuickTextField") || length("contentWidth") <= room,
                 qPrintable(item->objectName()));
    }
    d.screenshot(sample);

    d.drag(d.at(300, 320), d.at(307, 331));
    d.key(Qt::Key_S, Qt::ControlModifier);
    QVERIFY(!d.editor.isModified());
    QCOMPARE(contentOf(picture), pictureBefore);
    measuresTheSameWithoutDisplay(d);
    const double measured = number(d);
    ViewerDriver again;
    again.documents.openPaths({picture});
    QCOMPARE(number(again), measured);
    QCOMPARE(again.editor.points()->pixels(), d.editor.points()->pixels());

    while (d.editor.canUndo()) {
        d.editor.undo();
    }
    QVERIFY(*d.editor.session() == start);
    while (d.editor.canRedo()) {
        d.editor.redo();
    }
    QVERIFY(number(d) == measured);
}

void TestViewer::crackNeedsAScale()
{
    ViewerDriver d;
    d.openSample("crack.jpg");
    d.key(Qt::Key_1);
    for (const QPointF &edge : truePixels("crack", "crack.clicks")) {
        d.click(edge.x(), edge.y());
    }
    QCOMPARE(d.editor.points()->count(), 2);
    QVERIFY(d.guidance.text().startsWith("No scale yet"));
    QCOMPARE(d.text("valueText"), QString("no scale yet"));
    d.screenshot("crack-without-scale");

    d.clickItem("laserKey");
    for (const QPointF &spot : truePixels("crack", "laser.clicks")) {
        QVERIFY(d.guidance.text().contains("laser spot"));
        d.click(spot.x(), spot.y());
    }
    const double pixelMM = truth("crack", "crack.mmPerPixel").toDouble();
    QVERIFY2(std::abs(number(d) - truth("crack", "crack.widthMm").toDouble()) < pixelMM,
             qPrintable(d.editor.value()));
    d.key(Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(d.editor.value().isEmpty());
    QCOMPARE(d.editor.points()->count(), 2);

    // The scale of a file follows the diameter, which the panel therefore shows.
    const QString path = d.folder.filePath("camera.ini");
    writeTo(path, "200;768;160\n400;768;320\n");
    d.editor.loadCalibration(path);
    const double at300 = number(d);
    d.type("field.diameterMM", "400");
    QVERIFY(at300 > 0.0 && number(d) > at300);
    d.type("field.diameterMM", "500");
    QVERIFY(!d.editor.hasScale());
    d.type("field.mmPerPixel", "0,25");
    QVERIFY(d.editor.scaleText().startsWith("0.25 "));
    d.editor.loadCalibration(d.folder.filePath("missing.ini"));
    QCOMPARE(d.guidance.level(), Guidance::Error);
    QVERIFY(d.editor.hasScale());
}

void TestViewer::pointsAreCorrected()
{
    ViewerDriver d;
    d.openSample("dimension.jpg");
    d.click(110, 288);
    d.click(640, 300);
    const double measured = number(d);
    const QPointF placed = d.editor.session()->points.last().pixel;

    // A nudge is a step, and the point can be dragged; quick presses count like slow ones.
    d.key(Qt::Key_Up);
    d.key(Qt::Key_Left, Qt::ShiftModifier);
    QCOMPARE(d.editor.session()->points.last().pixel, placed + QPointF(-10, -1));
    const QPoint from = d.at(placed.x() - 10, placed.y() - 1);
    d.drag(from, from + QPoint(-60, 30));
    QVERIFY(std::abs(number(d) - measured) > 5.0);
    d.clickItem("undoKey");
    QCOMPARE(d.editor.session()->points.last().pixel, placed + QPointF(-10, -1));
    d.doubleClickItem("undoKey");
    QCOMPARE(d.editor.session()->points.last().pixel, placed);

    d.key(Qt::Key_U);
    QVERIFY(d.editor.value().endsWith('\''));
    QCOMPARE(number(d), measured);
    d.key(Qt::Key_Backspace);
    QCOMPARE(d.editor.points()->count(), 1);
    d.click(-3, 288);
    QCOMPARE(d.guidance.level(), Guidance::Warning);
    QCOMPARE(d.editor.points()->count(), 1);
    d.click(390, 288);
    QVERIFY(d.guidance.text().contains("beyond"));
}

void TestViewer::outlineStaysClosed()
{
    ViewerDriver d;
    d.openSample("section.jpg");
    d.key(Qt::Key_6);
    d.type("field.percentage", "10");
    const auto outline = truePixels("section", "section.clicks");
    for (const QPointF &corner : outline) {
        d.click(corner.x(), corner.y());
    }
    QVERIFY(d.guidance.text().startsWith("Closed"));
    QVERIFY(d.editor.secondValue().endsWith('%'));

    // The first point is the last one, too.
    const double before = number(d);
    d.drag(d.at(outline[0].x(), outline[0].y()), d.at(outline[0].x() + 30, outline[0].y()));
    QVERIFY(d.guidance.text().startsWith("Closed"));
    QVERIFY(number(d) > before);
    d.clickItem("clearKey");
    QCOMPARE(d.editor.points()->count(), 0);
    d.clickItem("undoKey");
    QCOMPARE(d.editor.points()->count(), outline.size() - 1);
}

void TestViewer::dragIsOneStep()
{
    ViewerDriver d;
    d.openSample("water.jpg");
    d.key(Qt::Key_3);
    const Session start = *d.editor.session();
    d.drag(d.at(300, 300), d.at(340, 320));
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
    QVERIFY((d.at(200, 150) - cursor).manhattanLength() <= 2);
    QVERIFY(d.find("overlay")->opacity() < 0.6);
    d.screenshot("zoomed");
    const QPoint before = d.at(200, 150);
    d.drag(cursor, cursor + QPoint(50, -30), Qt::MiddleButton);
    QVERIFY((d.at(200, 150) - before - QPoint(50, -30)).manhattanLength() <= 1);
    d.key(Qt::Key_1, Qt::ControlModifier);
    QCOMPARE(d.view()->scale(), 1.0);
    d.key(Qt::Key_Plus);
    QVERIFY(d.view()->scale() > 1.0);
    d.key(Qt::Key_Minus);
    QCOMPARE(d.view()->scale(), 1.0);
    d.key(Qt::Key_0, Qt::ControlModifier);
    QCOMPARE(d.view()->scale(), fitted);
    QCOMPARE(d.find("overlay")->opacity(), 1.0);
    d.clickItem("panKey");
    d.wheel(cursor, 3);
    d.drag(d.at(200, 150), d.at(210, 150));
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
    for (const char *text : {"abc", "", "29.9", "151", "inf", "45 apples"}) {
        d.type("field.angleDEG", text, Qt::Key_Tab);
        QCOMPARE(d.text("field.angleDEG"), QString(text));
        QVERIFY(*d.editor.session() == before);
        QVERIFY2(d.find("problem.angleDEG")->isVisible(), text);
    }
    d.screenshot("bad-value");
    d.type("field.angleDEG", "60,5");
    QCOMPARE(d.editor.session()->angleDEG, 60.5);
    QVERIFY(!d.find("problem.angleDEG")->isVisible());

    // A press on a button commits, too.
    d.type("field.angleDEG", "75", Qt::Key_End);
    QCOMPARE(d.editor.session()->angleDEG, 60.5);
    d.clickItem("unitKey");
    QCOMPARE(d.editor.session()->angleDEG, 75.0);
}

void TestViewer::controlsOfAKind_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QStringList>("fields");
    const QStringList alignment{"mouthPercent", "offset", "cameraHeightPercent", "rollDEG",
                                "fovYDEG"};
    QTest::newRow("crack") << 1 << QStringList{"mmPerPixel", "laserMM"};
    QTest::newRow("dimension") << 2 << QStringList{"diameterMM"} + alignment;
    QTest::newRow("water") << 3 << QStringList{"percentage"} + alignment;
    QTest::newRow("branch") << 4 << QStringList{"angleDEG", "percentage", "clock"} + alignment;
    QTest::newRow("bend") << 5 << QStringList{"angleDEG", "clock"} + alignment;
    QTest::newRow("section") << 6 << QStringList{"diameterMM", "percentage"} + alignment;
}

// What can be pressed has a name, is large enough for a finger and does not hang out of the window,
// of which the picture gets most.
void TestViewer::controlsOfAKind()
{
    QFETCH(int, kind);
    for (const QSize &size : {QSize(1280, 800), QSize(1024, 600)}) {
        ViewerDriver d(size);
        d.openSample("dimension.jpg");
        d.key(Qt::Key_0 + kind);
        d.screenshot(QStringLiteral("%1-%2").arg(QTest::currentDataTag()).arg(size.width()));
        QCOMPARE(d.window()->size(), size);
        QStringList fields;
        const auto controls = d.visibleControls();
        for (QQuickItem *item : controls) {
            const QString name = item->objectName();
            if (name.startsWith("field.")) {
                fields.append(name.mid(int(qstrlen("field."))));
            }
            auto *accessible = QAccessible::queryAccessibleInterface(item);
            const QString label = accessible ? accessible->text(QAccessible::Name) : QString();
            QVERIFY2(!label.isEmpty(), qPrintable(name));
            constexpr double smallestForAFinger = 44.0;
            QVERIFY2(item->width() >= smallestForAFinger && item->height() >= smallestForAFinger,
                     qPrintable(label));
            const QRectF place = item->mapRectToScene(item->boundingRect());
            const bool scrolls = d.find("controls")->isAncestorOf(item);
            QVERIFY2(scrolls ? place.right() <= size.width()
                             : QRectF(QPointF(), size).contains(place),
                     qPrintable(label));
        }
        QVERIFY(controls.size() > 20);
        QTEST(fields, "fields");
        QVERIFY(d.find("stage")->width() * d.find("stage")->height() >=
                0.5 * size.width() * size.height());
    }
}

void TestViewer::nothingIsLostUnlessConfirmed()
{
    ViewerDriver d;
    const QString picture = d.openSample("dimension.jpg");
    d.click(110, 288);
    const QString sessionPath = Measuring::sessionPathOf(picture);
    d.window()->close();
    QCOMPARE(d.waitForDialog("unsavedDialog")->property("text").toString(),
             QString("1 measurement is not saved."));
    d.screenshot("unsaved-question");
    d.clickDialog("unsavedDialog", "cancelKey");
    QVERIFY(d.window()->isVisible() && !QFile::exists(sessionPath));
    QVERIFY(d.exporter.save());
    const QByteArray saved = contentOf(sessionPath);
    d.window()->close();
    QVERIFY(!d.window()->isVisible());
    QVERIFY(QFile::remove(picture));
    d.copySample("water.jpg", "dimension.jpg");

    ViewerDriver again;
    again.documents.openPaths({picture});
    QCOMPARE(again.guidance.level(), Guidance::Warning);
    again.click(640, 300);
    again.key(Qt::Key_S, Qt::ControlModifier);
    again.waitForDialog("saveDialog");
    again.screenshot("replace-question");
    again.clickDialog("saveDialog", "cancelKey");
    QCOMPARE(contentOf(sessionPath), saved);
    QVERIFY(again.editor.isModified());
    again.key(Qt::Key_S, Qt::ControlModifier);
    again.clickDialog("saveDialog", "acceptKey");
    QVERIFY(contentOf(sessionPath) != saved);
    QVERIFY(!again.editor.isModified());

    // Somebody else has saved in the meantime.
    writeTo(sessionPath, saved);
    QFile other(sessionPath);
    QVERIFY(
        other.open(QIODevice::ReadWrite) &&
        other.setFileTime(QDateTime::currentDateTime().addSecs(60), QFile::FileModificationTime));
    other.close();
    again.click(300, 300);
    QVERIFY(!again.exporter.save());
    QCOMPARE(contentOf(sessionPath), saved);

    // What cannot be read is not overwritten either.
    writeTo(sessionPath, "{\"schema\": \"zalento-session 9.0\"}");
    ViewerDriver third;
    third.documents.openPaths({picture});
    QCOMPARE(third.guidance.level(), Guidance::Error);
    QVERIFY(third.documents.hasPicture());
    QVERIFY(!third.exporter.save());
    QVERIFY(contentOf(sessionPath).contains("9.0"));
}

void TestViewer::nothingIsLostWhenNothingCanBeWritten_data()
{
    QTest::addColumn<Block>("block");
    QTest::newRow("the folder is gone") << Block([](const QString &folder, bool on) {
        return QDir().rename(on ? folder : folder + "-gone", on ? folder + "-gone" : folder);
    });
    QTest::newRow("the folder is read-only") << Block([](const QString &folder, bool on) {
        constexpr uid_t nobody = 65534; // root may write everywhere
        const auto read = QFileDevice::ReadOwner | QFileDevice::ExeOwner;
        return getuid() == 0
                   ? seteuid(on ? nobody : 0) == 0
                   : QFile::setPermissions(folder, on ? read : read | QFileDevice::WriteOwner);
    });
    QTest::newRow("the disk is full") << Block([](const QString &, bool on) {
        std::signal(SIGXFSZ, on ? SIG_IGN : SIG_DFL);
        rlimit limit{};
        getrlimit(RLIMIT_FSIZE, &limit);
        limit.rlim_cur = on ? 10 : limit.rlim_max;
        return setrlimit(RLIMIT_FSIZE, &limit) == 0;
    });
}

void TestViewer::nothingIsLostWhenNothingCanBeWritten()
{
    QFETCH(Block, block);
    ViewerDriver d;
    QVERIFY(QDir(d.folder.path()).mkdir("pipe"));
    const QString folder = d.folder.filePath("pipe");
    d.documents.openPaths({d.copySample("dimension.jpg", "pipe/dimension.jpg")});
    d.click(110, 288);
    d.click(640, 300);
    const Session measured = *d.editor.session();
    const QStringList kinds{"session", "png", "svg", "csv", "json"};
    for (const QString &kind : kinds) {
        const QString target = d.exporter.suggestedPath(kind);
        writeTo(target, "old");
        QVERIFY(block(folder, true));
        const bool isWritten =
            kind == "session" ? d.exporter.saveAnyway() : d.exporter.exportTo(kind, target);
        QVERIFY(block(folder, false));
        QVERIFY2(!isWritten && d.guidance.level() == Guidance::Error, qPrintable(kind));
        QVERIFY(d.guidance.text().contains(QFileInfo(target).fileName()));
        QCOMPARE(contentOf(target), QByteArray("old"));
        QVERIFY(d.editor.isModified());
        QVERIFY(*d.editor.session() == measured);
    }
    QCOMPARE(QDir(folder).entryList(QDir::Files).size(), kinds.size() + 1);
    QVERIFY(d.exporter.saveAnyway());
}

void TestViewer::pictureChangesWhileItIsOpen_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("another picture") << contentOf(ZALENTO_SAMPLES "/water.jpg");
    QTest::newRow("garbage") << QByteArray("not a picture");
    QTest::newRow("vanished") << QByteArray();
}

void TestViewer::pictureChangesWhileItIsOpen()
{
    QFETCH(QByteArray, content);
    ViewerDriver d;
    const QString other = d.copySample("section.jpg");
    const QString picture = d.copySample("dimension.jpg");
    d.documents.openPaths({picture, other});
    d.click(110, 288);
    d.click(640, 300);
    const Session measured = *d.editor.session();
    const QImage seen = d.documents.picture();
    QVERIFY(QFile::remove(picture));
    if (!content.isEmpty()) {
        writeTo(picture, content);
    }

    // The picture on view stays; saving asks first.
    QSignalSpy questions(&d.exporter, &Exporter::confirmationNeeded);
    QVERIFY(!d.exporter.save());
    QCOMPARE(questions.size(), 1);
    QCOMPARE(d.documents.picture(), seen);
    QVERIFY(d.exporter.exportTo("png", d.folder.filePath("seen.png")));

    // Coming back to it tells, keeps the points, and still asks.
    d.documents.showNext();
    d.documents.showPrevious();
    QCOMPARE(d.documents.pictureName(), QString("dimension.jpg"));
    QVERIFY2(d.guidance.level() != Guidance::Information, qPrintable(d.guidance.text()));
    QCOMPARE(d.documents.hasPicture(), content.size() > 100);
    d.screenshot(QTest::currentDataTag());
    QCOMPARE(d.editor.session()->points.size(), 2);
    QVERIFY(d.editor.isModified());
    QVERIFY(!d.exporter.saveAll());
    QCOMPARE(questions.size(), 2);
    QVERIFY(d.exporter.saveAnyway());
    const auto saved = Measuring::loadSession(Measuring::sessionPathOf(picture));
    QVERIFY(saved && saved->points == measured.points);
}

void TestViewer::exportsAndCopies()
{
    ViewerDriver d;
    d.openSample("dimension.jpg");
    d.click(110, 288);
    d.click(640, 300);
    d.key(Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QApplication::clipboard()->text(), d.editor.value());
    d.clickItem("exportKey");
    d.waitForDialog("exportMenu");
    d.screenshot("export-menu");
    d.key(Qt::Key_Escape);

    const auto exported = [&d](const char *what) {
        const QString path = d.exporter.suggestedPath(what);
        return d.exporter.exportTo(what, path) ? path : QString();
    };
    const QString png = exported("png");
    QVERIFY(png.endsWith("/dimension.overlay.png"));
    QCOMPARE(QImage(png).size(), d.documents.pictureSize());
    QVERIFY(QImage(png) != d.documents.picture().convertToFormat(QImage(png).format()));
    QVERIFY(contentOf(exported("svg")).contains("<svg"));
    QVERIFY(contentOf(exported("csv")).contains("dimension.jpg"));
    const QJsonDocument json = QJsonDocument::fromJson(contentOf(exported("json")));
    QCOMPARE(json[0]["values"][0]["number"].toDouble(), number(d));
}

void TestViewer::picksFiles()
{
    ViewerDriver d;
    d.openSample("dimension.jpg");
    d.copySample("water.jpg");
    d.key(Qt::Key_O, Qt::ControlModifier);
    QObject *picker = d.waitForDialog("filePicker");
    QTRY_VERIFY(d.hasItem("file.water.jpg"));
    d.screenshot("open");
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
    d.screenshot("replace-file");
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
    QMimeData dropped;
    dropped.setUrls(
        {QUrl::fromLocalFile(first), QUrl::fromLocalFile(broken), QUrl::fromLocalFile(second)});
    QDragEnterEvent enter({400, 300}, Qt::CopyAction, &dropped, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(d.window(), &enter);
    QDropEvent drop({400, 300}, Qt::CopyAction, &dropped, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(d.window(), &drop);
    QCOMPARE(d.documents.count(), 3);
    d.click(110, 288);

    d.clickItem("nextKey");
    QVERIFY(!d.documents.hasPicture());
    QVERIFY(d.documents.pictureProblem().contains("broken.jpg"));
    d.screenshot("broken-picture");
    d.key(Qt::Key_PageDown);
    QCOMPARE(d.documents.pictureName(), QString("water.jpg"));
    QCOMPARE(d.editor.points()->count(), 0);
    QVERIFY(!d.editor.canUndo());
    d.doubleClickItem("previousKey");
    QCOMPARE(d.editor.points()->count(), 1);
    d.key(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(d.editor.points()->count(), 0);
    QCOMPARE(d.viewer.preferences()->recentFiles().first(), first);
    d.documents.openPaths({second});
    QCOMPARE(d.documents.count(), 3);
}

void TestViewer::recordSetsTheDiameter()
{
    ViewerDriver d;
    d.openSample("dimension.jpg");
    d.click(110, 288);
    d.click(640, 300);
    const double before = number(d);
    d.clickItem("recordKey");
    d.waitForDialog("recordDialog");
    d.type("recordSize", "0");
    QCOMPARE(d.editor.session()->diameterMM, 300.0);
    d.screenshot("record");
    d.type("recordSize", "600");
    QCOMPARE(d.editor.session()->diameterMM, 600.0);
    QVERIFY(std::abs(number(d) / before - 2.0) < 0.01);
    d.key(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(number(d), before);

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
    const QRect stage = d.find("stage")->mapRectToScene(d.find("stage")->boundingRect()).toRect();
    const auto greenPixels = [&](const QString &name) {
        const QImage image = d.screenshot(name).copy(stage).convertToFormat(QImage::Format_RGB32);
        const auto *first = reinterpret_cast<const QRgb *>(image.constBits());
        return std::count_if(first, first + image.width() * image.height(), [](QRgb c) {
            return qGreen(c) > 200 && qRed(c) < 60 && qBlue(c) < 60;
        });
    };
    QVERIFY(greenPixels("overlay") > 1000);
    QTest::keyPress(d.window(), Qt::Key_H);
    QVERIFY(greenPixels("overlay-hidden") == 0);
    QTest::keyRelease(d.window(), Qt::Key_H);
    QVERIFY(greenPixels("overlay") > 1000);
    d.key(Qt::Key_F1);
    d.waitForDialog("keyList");
    d.screenshot("keys");
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
