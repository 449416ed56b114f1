#pragma once

#include <zalento/settings/ZASettings.h>

#include <QObject>
#include <QSettings>
#include <QSize>
#include <QStringList>

namespace Drevon::Zalento {

/** What the viewer remembers from one day to the next, in the user's settings store. */
class Preferences : public QObject
{
    Q_OBJECT

    /** Pictures opened lately, the latest first; those that are gone are left out. */
    Q_PROPERTY(QStringList recentFiles READ recentFiles NOTIFY recentFilesChanged)
    Q_PROPERTY(QSize windowSize READ windowSize WRITE setWindowSize NOTIFY windowSizeChanged)
    /** "en", "de" or "fr"; empty for the system's. */
    Q_PROPERTY(QString language READ language WRITE setLanguage NOTIFY languageChanged)
    /** Where pictures were opened last; the home folder when that is gone. */
    Q_PROPERTY(QString folder READ folder WRITE setFolder NOTIFY folderChanged)

public:
    using QObject::QObject;

    QSize windowSize() const;
    void setWindowSize(const QSize &size);

    QStringList recentFiles() const;
    void addRecentFile(const QString &path);

    QString language() const;
    void setLanguage(const QString &language);

    QString folder() const;
    void setFolder(const QString &folder);

    ZASettings displaySettings() const;
    void setDisplaySettings(const ZASettings &settings);

Q_SIGNALS:
    void recentFilesChanged();
    void windowSizeChanged();
    void folderChanged();
    void languageChanged();

private:
    mutable QSettings m_settings; ///< ZASettings reads from one that it may change
};

} // namespace Drevon::Zalento
