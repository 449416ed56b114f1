// The display settings' store.
#include "FuzzInput.h"
#include "zalento/settings/ZASettings.h"

#include <QFile>
#include <QGuiApplication>
#include <QTemporaryDir>

using namespace Drevon::Zalento;

namespace {

QString storePath(const char *name)
{
    static const QTemporaryDir folder;
    return folder.filePath(QLatin1String(name));
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

ZASettings loaded(const QString &path)
{
    ZASettings settings;
    QSettings store(path, QSettings::IniFormat);
    settings.Load(store);
    FUZZ_VERIFY(store.group().isEmpty());
    return settings;
}

QByteArray saved(const ZASettings &settings)
{
    const QString path = storePath("saved.ini");
    QFile::remove(path);
    {
        QSettings store(path, QSettings::IniFormat);
        settings.Save(store);
        FUZZ_VERIFY(store.group().isEmpty());
    }
    return contentOf(path);
}

void write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    FUZZ_VERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
}

} // namespace

int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    // Fonts need an application.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // Kept until the process ends: some of Qt's own statics are gone before ours.
    static const auto *application = new QGuiApplication(*argc, *argv);
    Q_UNUSED(application)
    // Qt warns of every font that is none.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    return 0;
}

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray content(reinterpret_cast<const char *>(data), static_cast<int>(size));
    // Qt's own reader of stored variants is not what is checked here, and takes any size.
    if (content.contains("@Variant") && !content.contains("\\0\\0\\0\\x43")) {
        return 0;
    }
    const QString path = storePath("loaded.ini");
    write(path, content);
    const ZASettings settings = loaded(path);
    FUZZ_VERIFY(settings.MeasureUnit == MeasureUnit::Metric ||
                settings.MeasureUnit == MeasureUnit::Imperial);
    for (const QColor &color : {settings.colBackground, settings.colMeasures, settings.colHour}) {
        FUZZ_VERIFY(color.spec() <= QColor::ExtendedRgb);
    }

    // What was saved once is loaded and saved without a change.
    const QByteArray first = saved(settings);
    const ZASettings again = loaded(storePath("saved.ini"));
    FUZZ_VERIFY(again.pipeDiameterMM == settings.pipeDiameterMM);
    FUZZ_VERIFY(again.MeasureUnit == settings.MeasureUnit);
    FUZZ_VERIFY(again.colMeasures == settings.colMeasures);
    FUZZ_VERIFY(saved(again) == first);
    return 0;
}
