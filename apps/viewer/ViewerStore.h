#pragma once

#include <zalento/settings/ZASettings.h>

#include <QSettings>
#include <QSize>
#include <QStringList>

namespace Drevon::Zalento {

/** What the viewer remembers from one day to the next, in the user's settings store. */
class ViewerStore
{
public:
    QSize windowSize() const;
    void setWindowSize(const QSize &size);

    /** Pictures opened lately, the latest first; those that are gone are left out. */
    QStringList recentFiles() const;
    void addRecentFile(const QString &path);

    QString folder() const;
    void setFolder(const QString &folder);

    ZASettings displaySettings();
    void setDisplaySettings(const ZASettings &settings);

private:
    QSettings m_settings;
};

} // namespace Drevon::Zalento
