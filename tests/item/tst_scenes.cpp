// Whole paints against those recorded in scenes.txt.
//
// A scene is a line of steps and, below it, what the item then paints and measures: a line for the
// calls that look alike. Their points are told by three sums: of x, of y, and of both weighted by
// their place among all points of the paint, which no change of place or order leaves as they were.
// "tst_scenes --record FILE" writes the file anew: look at every line that differs.
#include "support/PaintRecorder.h"
#include "support/TestCase.h"

#include "zalento/item/ZaItem.h"

#include <QFile>
#include <QFontMetrics>
#include <QHash>
#include <QMetaEnum>
#include <QPainter>
#include <QTest>

#include <cmath>

using namespace Drevon::Zalento;
using namespace Drevon::Zalento::Test;

namespace {

// Rounding differs between processors' mathematical functions.
constexpr double relativeSlack = 1e-9;
const QLatin1String sceneStart("scene ");

struct Scene
{
    QString steps;
    QStringList lines;
};

QVector<Scene> readScenes()
{
    QFile file(QStringLiteral(ZALENTO_SCENES));
    QVector<Scene> scenes;
    if (file.open(QIODevice::ReadOnly)) {
        for (const QString &line : QString::fromUtf8(file.readAll()).split('\n')) {
            if (line.startsWith(sceneStart)) {
                scenes.append({line.mid(sceneStart.size()), {}});
            } else if (!line.trimmed().isEmpty() && !scenes.isEmpty()) {
                scenes.last().lines.append(line.trimmed());
            }
        }
    }
    return scenes;
}

QString numbers(const QVector<double> &values)
{
    QStringList texts;
    for (const double value : values) {
        texts += QString::number(value, 'g', 15);
    }
    return texts.join(' ');
}

// How a call looks; those that look alike are told together.
QString lookOf(const PaintCall &call)
{
    return QStringLiteral("%1 %2 | %3 | %4")
        .arg(QMetaEnum::fromType<PaintCall::Kind>().valueToKey(int(call.kind)), call.text,
             penText(call.pen),
             call.brush.style() == Qt::NoBrush ? QStringLiteral("-")
                                               : call.brush.color().name(QColor::HexArgb));
}

// Of labels the place of the text's middle: its extent is the font's.
QVector<QPointF> placesOf(const PaintCall &call)
{
    QVector<QPointF> points = call.points;
    if (call.kind == PaintCall::Kind::Text) {
        points[0].rx() += 0.5 * QFontMetrics(call.font).boundingRect(call.text).width();
    } else if (call.kind == PaintCall::Kind::RectsFloat) {
        points = {points[0] + 0.5 * points[1]};
    }
    return points;
}

struct Sums
{
    int calls = 0;
    int points = 0;
    double x = 0.0;
    double y = 0.0;
    double placed = 0.0;
};

QStringList linesOf(const QVector<PaintCall> &calls)
{
    QStringList looks; // in the order in which they come
    QHash<QString, Sums> sums;
    int place = 0;
    for (const PaintCall &call : calls) {
        const QString look = lookOf(call);
        if (!sums.contains(look)) {
            looks += look;
        }
        Sums &sum = sums[look];
        ++sum.calls;
        for (const QPointF &point : placesOf(call)) {
            ++sum.points;
            sum.x += point.x();
            sum.y += point.y();
            sum.placed += ++place * (point.x() - point.y());
        }
    }
    QStringList lines;
    for (const QString &look : looks) {
        const Sums &sum = sums[look];
        lines += QStringLiteral("%1 | %2 x %3 | ").arg(look).arg(sum.calls).arg(sum.points) +
                 numbers({sum.x, sum.y, sum.placed});
    }
    return lines;
}

// "name=value": a property, or one of the item's operations.
void perform(ZaItem &item, const QString &step)
{
    const QString name = step.section('=', 0, 0);
    const QString value = step.section('=', 1);
    const double x = value.section(',', 0, 0).toDouble();
    const double y = value.section(',', 1, 1).toDouble();
    if (name == "size") {
        item.setSize(QSizeF(x, y));
    } else if (name == "click") {
        item.mouseClick(x, y);
    } else if (name == "move") {
        item.move(x, y);
    } else if (name == "rotate") {
        item.rotate(x);
    } else if (name == "scale") {
        item.requestCameraCalibration(x);
    } else if (name == "mode") {
        item.setMeasureSettings({0, value.toInt(), 2});
    } else if (name == "paint") {
        PaintRecorder recorder;
        QPainter painter(&recorder);
        item.paint(&painter);
    } else if (name == "viewDownstream") {
        item.setViewDownstream(value == "true");
    } else {
        QVERIFY2(item.setProperty(name.toLatin1(), value), qPrintable(step));
    }
}

QStringList paintedLines(const QString &steps)
{
    ZaItem::sharedMainPipeDiameter() = 300;
    ZaItem item;
    item.setSize(QSizeF(800, 600));
    for (const QString &step : steps.split(' ', Qt::SkipEmptyParts)) {
        perform(item, step);
    }
    PaintRecorder recorder;
    QPainter painter(&recorder);
    painter.setFont(QFont(QStringLiteral("DejaVu Sans"), 10));
    item.paint(&painter);
    QStringList lines = linesOf(recorder.calls());
    lines += "measures | " + numbers({item.measure1(), item.measure2()});
    if (const auto *lateral = dynamic_cast<const PipeLateral *>(&item.getCurrentViewObject())) {
        lines += "branch | " + numbers({lateral->lateralCylinder.lengthM});
    }
    if (const auto *pipe = dynamic_cast<const Pipe *>(&item.getCurrentViewObject())) {
        for (const HitPoint &point : pipe->hitPoints) {
            lines += "point | " + numbers({point.position.x, point.position.y, point.position.z});
        }
    }
    return lines;
}

// Words are the same; numbers but for their rounding.
bool isSame(const QString &got, const QString &expected)
{
    const QStringList a = got.split(' ');
    const QStringList b = expected.split(' ');
    // Boxes are as large as Qt makes the label's text, which was recorded with Qt 5: of another
    // version their three numbers are left out.
    const bool isOtherText = QT_VERSION >= QT_VERSION_CHECK(6, 0, 0) &&
                             (a.first() == "RectsFloat" || a.first() == "Text");
    const int leftOut = isOtherText ? 3 : 0;
    return std::equal(a.begin(), a.end() - leftOut, b.begin(), b.end() - leftOut,
                      [](const auto &x, const auto &y) {
                          bool isNumber = false;
                          const double value = x.toDouble(&isNumber);
                          const double wanted = y.toDouble();
                          return x == y ||
                                 (isNumber && std::abs(value - wanted) <=
                                                  relativeSlack * std::max(1.0, std::abs(wanted)));
                      });
}

int record(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        return 1;
    }
    for (const Scene &scene : readScenes()) {
        file.write((sceneStart + scene.steps + '\n').toUtf8());
        for (const QString &line : paintedLines(scene.steps)) {
            file.write(("  " + line + '\n').toUtf8());
        }
    }
    return 0;
}

} // namespace

class TestScenes : public TestCase
{
    Q_OBJECT

private slots:
    void paintsAsRecorded_data();
    void paintsAsRecorded();
};

void TestScenes::paintsAsRecorded_data()
{
    QTest::addColumn<QStringList>("expected");
    for (const Scene &scene : readScenes()) {
        QTest::newRow(qPrintable(scene.steps)) << scene.lines;
    }
}

void TestScenes::paintsAsRecorded()
{
    QFETCH(QStringList, expected);
    const QStringList lines = paintedLines(QString::fromUtf8(QTest::currentDataTag()));
    QVERIFY(!expected.isEmpty());
    for (int i = 0; i < std::min(lines.size(), expected.size()); ++i) {
        QVERIFY2(isSame(lines[i], expected[i]),
                 qPrintable(lines[i] + "\nrecorded: " + expected[i]));
    }
    QCOMPARE(lines.size(), expected.size());
}

int main(int argc, char **argv)
{
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == QLatin1String("--record")) {
        return record(arguments.value(2));
    }
    TestScenes test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_scenes.moc"
