#include "support/CommaLocale.h"
#include "support/TestCase.h"
#include "support/Tolerances.h"
#include "zalento/settings/ZASettings.h"

#include <QFile>
#include <QTemporaryDir>
#include <cmath>

using namespace Drevon::Zalento;
using namespace Drevon::Zalento::Test;

namespace {

// Nothing in it equals a default.
ZASettings unusual()
{
    ZASettings settings;
    settings.pipeDiameterMM = -1250;
    settings.fontSmall = QFont("DejaVu Serif", 7, QFont::Light, true);
    settings.fontLarge = QFont("DejaVu Sans Mono", 31);
    settings.colBackground = QColor(1, 2, 3, 4);
    settings.colMeasures = QColor(250, 0, 0);
    settings.colCylinder1 = QColor(5, 6, 7, 0);
    settings.colCylinder2 = QColor::fromHsv(120, 130, 140);
    settings.colHour = Qt::magenta;
    settings.colCamHeight = QColor(9, 8, 7);
    settings.MeasureUnit = MeasureUnit::Imperial;
    settings.fovYDEG = 61.25;
    settings.fovYHeightMM = 1234.5;
    settings.fovYDistanceMM = 0.25;
    return settings;
}

// Every field as text, one a line, so that a difference shows its name.
QString described(const ZASettings &s)
{
    const auto number = [](double value) { return QString::number(value, 'g', 17); };
    const auto color = [](const QColor &c) {
        return c.isValid() ? c.name(QColor::HexArgb) : QString("invalid");
    };
    // Qt's own form differs from version to version.
    const auto font = [](const QFont &f) {
        return QStringLiteral("%1,%2,%3,%4")
            .arg(f.family())
            .arg(f.pointSize())
            .arg(f.bold() ? "bold" : "normal", f.italic() ? "italic" : "upright");
    };
    return QStringList{"pipeDiameterMM " + QString::number(s.pipeDiameterMM),
                       "fontSmall " + font(s.fontSmall),
                       "fontLarge " + font(s.fontLarge),
                       "colBackground " + color(s.colBackground),
                       "colMeasures " + color(s.colMeasures),
                       "colCylinder1 " + color(s.colCylinder1),
                       "colCylinder2 " + color(s.colCylinder2),
                       "colHour " + color(s.colHour),
                       "colCamHeight " + color(s.colCamHeight),
                       "MeasureUnit " + QString::number(int(s.MeasureUnit)),
                       "fovYDEG " + number(s.fovYDEG),
                       "fovYHeightMM " + number(s.fovYHeightMM),
                       "fovYDistanceMM " + number(s.fovYDistanceMM)}
        .join('\n');
}

} // namespace

class TestZASettings : public TestCase
{
    Q_OBJECT

private slots:
    void init();
    void startsWithDefaults();
    void roundTrip();
    void content_data();
    void content();

private:
    QString fileName() const { return m_dir->filePath("store.ini"); }
    QByteArray saved(const ZASettings &settings) const;
    ZASettings loaded(ZASettings settings) const;
    void write(const QByteArray &content) const;

    QScopedPointer<QTemporaryDir> m_dir;
};

void TestZASettings::init()
{
    TestCase::init();
    m_dir.reset(new QTemporaryDir);
    QVERIFY(m_dir->isValid());
}

// The bytes of a file into which the settings were saved.
QByteArray TestZASettings::saved(const ZASettings &settings) const
{
    QFile::remove(fileName());
    {
        QSettings store(fileName(), QSettings::IniFormat);
        settings.Save(store);
        store.setValue("outside", 1); // the group is closed again
    }
    QFile file(fileName());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

ZASettings TestZASettings::loaded(ZASettings settings) const
{
    QSettings store(fileName(), QSettings::IniFormat);
    settings.Load(store);
    if (!store.group().isEmpty()) {
        qWarning("The group was left open");
    }
    return settings;
}

void TestZASettings::write(const QByteArray &content) const
{
    QFile file(fileName());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("[Preferences]\n" + content + '\n');
}

void TestZASettings::startsWithDefaults()
{
    const QString defaults = "pipeDiameterMM 300\n"
                             "fontSmall Arial,8,normal,upright\n"
                             "fontLarge Arial,12,bold,upright\n"
                             "colBackground #ff000000\n"
                             "colMeasures #ff00ffff\n"
                             "colCylinder1 #ff00ff00\n"
                             "colCylinder2 #ffffff00\n"
                             "colHour #ffffa500\n"
                             "colCamHeight #ffffa500\n"
                             "MeasureUnit 0\n"
                             "fovYDEG 37.5\n"
                             "fovYHeightMM 300\n"
                             "fovYDistanceMM 322";
    QCOMPARE(described(ZASettings()), defaults);
    const ZASettings copy(unusual());
    QCOMPARE(described(copy), described(unusual()));
    QCOMPARE(ZASettings::sConfigGroup, QString("Preferences"));
    QCOMPARE(ZASettings::sOrange, QColor(255, 165, 0));
}

void TestZASettings::roundTrip()
{
    const QByteArray bytes = saved(unusual());
    QVERIFY(bytes.contains("\nMeasureUnit=ft\n"));
    QVERIFY(bytes.contains("\nfovYDistanceMM=0.250000\n"));
    QVERIFY(bytes.contains("[General]\noutside=1\n"));
    QVERIFY(!bytes.contains("fovYDEG"));
    ZASettings expected = unusual();
    expected.fovYDEG = 37.5; // never saved
    QCOMPARE(described(loaded(ZASettings())), described(expected));
    QVERIFY(saved(ZASettings()).contains("\nMeasureUnit=m\n"));
}

void TestZASettings::content_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("field"); // the line of described() that differs from the defaults
    QTest::addColumn<QString>("warning");
    const auto row = [](const char *name, const char *content, const char *field,
                        const char *warning = "") {
        QTest::newRow(name) << QByteArray(content) << QString(field) << QString(warning);
    };
    row("diameter", "pipeDiameterMM=450", "pipeDiameterMM 450");
    row("diameter that is no number", "pipeDiameterMM=wide", "pipeDiameterMM 0");
    row("unit in capitals", "MeasureUnit=M", "MeasureUnit 1");
    row("unknown unit", "MeasureUnit=mm", "MeasureUnit 1");
    row("empty unit", "MeasureUnit=", "MeasureUnit 1");
    row("colour name", "colHour=#102030", "colHour #ff102030");
    row("colour that is none", "colMeasures=no colour", "colMeasures invalid");
    row("empty colour", "colBackground=", "colBackground invalid");
    row("field of view", "fovYDEG=61.25", "fovYDEG 61.25");
    row("field of view with a comma", "fovYDEG=\"61,25\"", "fovYDEG 0");
    // A list that claims 2^31 - 1 elements.
    row("value larger than memory", "fovYDEG=@Variant(\\0\\0\\0\\t\\x7f\\xff\\xff\\xff)",
        "fovYDEG 37.5");
    row("height that is no number", "fovYHeightMM=high", "fovYHeightMM 0");
    row("distance", "fovYDistanceMM=12.5", "fovYDistanceMM 12.5");
    row("font", "fontSmall=\"Mono,9,-1,5,50,1,0,0,0,0\"", "fontSmall Mono,9,normal,italic");
    row("font of two numbers too few", "fontSmall=\"Mono,9,-1,5,50,0,0\"",
        "fontSmall Arial,8,normal,upright", "QFont::fromString");
}

void TestZASettings::content()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, field);
    QFETCH(QString, warning);
    if (!warning.isEmpty()) {
        expectWarning(warning); // Qt's own
    }
    write(content);
    QStringList expected = described(ZASettings()).split('\n');
    const QString name = field.section(' ', 0, 0) + ' ';
    for (QString &line : expected) {
        line = line.startsWith(name) ? field : line;
    }
    QCOMPARE(described(loaded(ZASettings())), expected.join('\n'));
}

QTEST_MAIN(TestZASettings)
#include "tst_zasettings.moc"
