// Reports as they are read: by the tools of poppler.
#include "RunProgram.h"
#include "support/PictureFiles.h"

#include "support/TestCase.h"

#include <QTemporaryDir>
#include <QTest>

#include <cmath>

using namespace Drevon::Zalento::Test;

namespace {

const char *const record = R"({"weather": "no overflow", "operator": "Jörg <J> & co", "date": 2026,
                               "place": "Hafenstraße 12", "OBJ_Size1": 300, "pipe": "R-117"})";

const char *const measurements[] = {
    "--kind CrackWidth --mm-per-pixel 0.5 --click 100,100 --click 110,100 crack.png",
    "--kind CrackWidth --measurement gap --click 200,200 --click 300,200 --force crack.png",
    "--kind CrossSection --click 320,100 --click 500,300 --click 200,300 --click 320,100 "
    "section.png",
    "--kind BendAngle unset.png",
    "--kind WaterLevel --percentage 25 --limit \"< 50 %\" --ring \"80,240 320,0 560,240\" "
    "water.png",
};

QByteArray outputOf(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    return process.waitForFinished() ? process.readAllStandardOutput() : QByteArray();
}

// In a line.
QString textOfPage(int page)
{
    const QString number = QString::number(page);
    return QString::fromUtf8(
               outputOf("pdftotext", {"-raw", "-f", number, "-l", number, "report.pdf", "-"}))
        .simplified();
}

} // namespace

class TestReport : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void tellsEveryPicture_data();
    void tellsEveryPicture();
    void embedsFonts();
    void drawsTheSectionToScale();

private:
    QTemporaryDir m_dir;
};

void TestReport::initTestCase()
{
    QDir::setCurrent(m_dir.path());
    for (const char *name : {"crack.png", "other.png", "section.png", "unset.png", "water.png"}) {
        QVERIFY(greyPicture(QSize(640, 480)).save(name));
    }
    QVERIFY(writeBytes("cut.png", "no picture"));
    QVERIFY(writeBytes("record.json", record));
    for (const char *line : measurements) {
        const Run saved = runProgram(words("measure --save-session --diameter 300") + words(line));
        QVERIFY2(saved.messages.contains("wrote"), saved.messages);
    }
    const Run run = runProgram(words("report --recursive . --record record.json "
                                     "--output report.pdf"));
    QVERIFY2(run.messages.endsWith("wrote report.pdf\n"), run.messages);
    QCOMPARE(run.code, 1); // not everything was measured
}

void TestReport::tellsEveryPicture_data()
{
    QTest::addColumn<int>("page");
    QTest::addColumn<QStringList>("texts");
    const auto row = [](const char *name, int page, const char *texts) {
        QTest::newRow(name) << page << QString::fromUtf8(texts).split('|', Qt::SkipEmptyParts);
    };
    row("record", 1,
        "Place Hafenstraße 12 Pipe R-117 Date 2026 Operator Jörg <J> & co weather no overflow");
    row("counts", 1, "Pictures: 6; measurements: 4 measured, 1 not set, 1 not measured, 1 failed");
    row("table", 1,
        "1 crack.png Crack width Crack width 5.0 mm ± 1.5 mm measured|2 cut.png failed: |"
        "3 other.png not measured: there is no session|5 unset.png Bend angle not set: needs|"
        "< 50 %: below measured");
    row("two cracks", 2,
        "1 · crack.png|Crack width · gap (Crack width) · 640|5.0 mm ± 1.5 mm clicks|gap (Crack "
        "width) Value|50.0 mm ± |Scale 0.5 mm a pixel|Pipe R-117");
    row("no picture", 3, "2 · cut.png|failed: ");
    row("two values", 5, "Area |Share of the section |not fitted");
    row("nothing set", 6, "nobody has set what it shows|not set: needs --angle");
    row("fitted", 7,
        "Water level 25.0 %|fitted to 1 joint, rms|Mouth, % 102.00 ± |Scale 1 : 5, diameter 300 "
        "mm");
    row("none behind the last", 8, "");
}

void TestReport::tellsEveryPicture()
{
    QFETCH(int, page);
    QFETCH(QStringList, texts);
    const QString told = textOfPage(page);
    QCOMPARE(told.isEmpty(), texts.isEmpty());
    for (const QString &text : texts) {
        QVERIFY2(told.contains(text), qPrintable(text + "\nis not in\n" + told));
    }
}

void TestReport::embedsFonts()
{
    const QList<QByteArray> fonts =
        outputOf("pdffonts", {"report.pdf"}).trimmed().split('\n').mid(2);
    QVERIFY(!fonts.isEmpty());
    for (const QByteArray &font : fonts) {
        QVERIFY2(font.simplified().contains(" Identity-H yes "), font); // "emb" behind "encoding"
    }
}

void TestReport::drawsTheSectionToScale()
{
    constexpr int dotsPerInch = 127;
    constexpr double pixelsPerMM = dotsPerInch / 25.4;
    outputOf("pdftoppm", {"-png", "-r", QString::number(dotsPerInch), "-f", "7", "-singlefile",
                          "report.pdf", "water-page"});
    const QImage page("water-page.png");
    QVERIFY(!page.isNull());
    QRect water;
    for (int y = 0; y < page.height(); ++y) {
        for (int x = 0; x < page.width(); ++x) {
            water |= page.pixel(x, y) == qRgb(120, 180, 230) ? QRect(x, y, 1, 1) : QRect();
        }
    }
    // A circle of 300 mm, 1 : 5: a quarter of its height, and the chord there.
    const QSizeF expectedMM(2 * 30 * std::sqrt(1 - 0.5 * 0.5), 0.25 * 2 * 30);
    const QSizeF missingMM = expectedMM - QSizeF(water.size()) / pixelsPerMM;
    const double borderMM = 1.5; // the wall's line, and pixels that are water in part
    for (const double missing : {missingMM.width(), missingMM.height()}) {
        QVERIFY2(missing > 0 && missing < borderMM, qPrintable(QString::number(missing)));
    }
}

QTEST_MAIN(TestReport)
#include "tst_report.moc"
