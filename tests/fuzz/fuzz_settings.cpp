// The display settings' store.
#include "FuzzInput.h"
#include "zalento/settings/ZASettings.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QRegularExpression>
#include <QTemporaryDir>

using namespace Drevon::Zalento;

namespace {

// In memory where the machine has such a folder: files of a moment need no disk.
QString folderTemplate()
{
    const QDir shared(QStringLiteral("/dev/shm"));
    return (shared.exists() ? shared : QDir::temp())
        .filePath(QStringLiteral("zalento-fuzz-XXXXXX"));
}

// Every store has a name of its own, gone with it: QSettings keeps the content of a store that has
// the old name, size and time.
class StoreFile
{
public:
    StoreFile()
    {
        static const QTemporaryDir folder(folderTemplate());
        static int number = 0;
        m_path = folder.filePath(QString::number(++number));
    }
    ~StoreFile() { QFile::remove(m_path); }

    const QString &path() const { return m_path; }

private:
    Q_DISABLE_COPY(StoreFile)
    QString m_path;
};

// Qt's own reader of stored variants is not what is checked here, and takes any size. Colours are
// let through, in the form in which Qt writes them.
bool holdsOtherVariants(const QByteArray &content)
{
    static const QRegularExpression color(
        QStringLiteral("@Variant\\(\\\\0\\\\0\\\\0\\\\x43(?![0-9a-fA-F])[^),]*\\)"));
    // The name, or escapes of which it could be made.
    static const QRegularExpression trace(
        QStringLiteral("Variant|\\\\(x0*[4-7][0-9a-f]|0*1|[\\r\\n])"),
        QRegularExpression::CaseInsensitiveOption);
    const QString text = QString::fromLatin1(content.constData(), content.size());
    return trace.match(QString(text).remove(color)).hasMatch();
}

ZASettings loaded(const QByteArray &content)
{
    const StoreFile file;
    QFile writing(file.path());
    FUZZ_VERIFY(writing.open(QIODevice::WriteOnly) && writing.write(content) == content.size());
    writing.close();
    ZASettings settings;
    QSettings store(file.path(), QSettings::IniFormat);
    settings.Load(store);
    FUZZ_VERIFY(store.group().isEmpty());
    return settings;
}

QByteArray saved(const ZASettings &settings)
{
    const StoreFile file;
    {
        QSettings store(file.path(), QSettings::IniFormat);
        settings.Save(store);
        FUZZ_VERIFY(store.group().isEmpty());
    }
    QFile reading(file.path());
    FUZZ_VERIFY(reading.open(QIODevice::ReadOnly));
    return reading.readAll();
}

void checkColors(const ZASettings &settings)
{
    for (const QColor &color : {settings.colBackground, settings.colMeasures, settings.colHour}) {
        FUZZ_VERIFY(color.spec() <= QColor::ExtendedRgb);
    }
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
    const FuzzInput input(data, size);
    const QByteArray content(reinterpret_cast<const char *>(data), static_cast<int>(size));
    if (holdsOtherVariants(content)) {
        return 0;
    }
    const ZASettings settings = loaded(content);
    FUZZ_VERIFY(settings.MeasureUnit == MeasureUnit::Metric ||
                settings.MeasureUnit == MeasureUnit::Imperial);
    checkColors(settings);
    if (!input.isOneIn(ZALENTO_FUZZ_SAVES_ONE_IN)) {
        return 0;
    }
    // What was saved once is loaded and saved without a change.
    const QByteArray first = saved(settings);
    const ZASettings again = loaded(first);
    FUZZ_VERIFY(again.pipeDiameterMM == settings.pipeDiameterMM);
    FUZZ_VERIFY(again.MeasureUnit == settings.MeasureUnit);
    FUZZ_VERIFY(again.colMeasures == settings.colMeasures);
    FUZZ_VERIFY(saved(again) == first);
    return 0;
}
