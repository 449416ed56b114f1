#include "Preferences.h"

#include <QDir>
#include <QFileInfo>

namespace Drevon::Zalento {

namespace {

constexpr int largestRecentCount = 12;
// A common touch screen's.
constexpr QSize usualWindowSize(1280, 800);

const QString windowSizeKey = QStringLiteral("Viewer/windowSize");
const QString recentFilesKey = QStringLiteral("Viewer/recentFiles");
const QString languageKey = QStringLiteral("Viewer/language");
const QString folderKey = QStringLiteral("Viewer/folder");

} // namespace

QSize Preferences::windowSize() const
{
    const QSize size = m_settings.value(windowSizeKey).toSize();
    return size.isEmpty() ? usualWindowSize : size;
}

void Preferences::setWindowSize(const QSize &size)
{
    if (size == windowSize()) {
        return;
    }
    m_settings.setValue(windowSizeKey, size);
    Q_EMIT windowSizeChanged();
}

QStringList Preferences::recentFiles() const
{
    QStringList files;
    for (const QString &path : m_settings.value(recentFilesKey).toStringList()) {
        if (QFileInfo::exists(path)) {
            files.append(path);
        }
    }
    return files;
}

void Preferences::addRecentFile(const QString &path)
{
    const QString absolute = QFileInfo(path).absoluteFilePath();
    QStringList files = recentFiles();
    files.removeAll(absolute);
    files.prepend(absolute);
    m_settings.setValue(recentFilesKey, QStringList(files.mid(0, largestRecentCount)));
    Q_EMIT recentFilesChanged();
}

QString Preferences::language() const
{
    return m_settings.value(languageKey).toString();
}

void Preferences::setLanguage(const QString &language)
{
    if (language == this->language()) {
        return;
    }
    m_settings.setValue(languageKey, language);
    Q_EMIT languageChanged();
}

QString Preferences::folder() const
{
    const QString folder = m_settings.value(folderKey).toString();
    return QDir(folder).exists() && !folder.isEmpty() ? folder : QDir::homePath();
}

void Preferences::setFolder(const QString &folder)
{
    m_settings.setValue(folderKey, folder);
    Q_EMIT folderChanged();
}

ZASettings Preferences::displaySettings() const
{
    ZASettings settings;
    settings.Load(m_settings);
    return settings;
}

void Preferences::setDisplaySettings(const ZASettings &settings)
{
    settings.Save(m_settings);
    Q_EMIT displayChanged();
}

void Preferences::resetColours()
{
    const ZASettings initial;
    ZASettings display = displaySettings();
    for (QColor ZASettings::*colour :
         {&ZASettings::colMeasures, &ZASettings::colCylinder1, &ZASettings::colCylinder2}) {
        display.*colour = initial.*colour;
    }
    setDisplaySettings(display);
}

} // namespace Drevon::Zalento
