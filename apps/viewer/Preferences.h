#pragma once

#include <zalento/settings/ZASettings.h>

#include <QColor>
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
    /** Of new measurements. */
    Q_PROPERTY(bool isImperial READ isImperial NOTIFY displayChanged)
    /** Colours of the overlay. */
    Q_PROPERTY(QColor measureColour READ measureColour WRITE setMeasureColour NOTIFY displayChanged)
    Q_PROPERTY(QColor pipeColour READ pipeColour WRITE setPipeColour NOTIFY displayChanged)
    Q_PROPERTY(QColor joinedColour READ joinedColour WRITE setJoinedColour NOTIFY displayChanged)

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

    bool isImperial() const { return displaySettings().MeasureUnit != MeasureUnit::Metric; }
    void setUnit(MeasureUnit unit) { setDisplay(&ZASettings::MeasureUnit, unit); }
    QColor measureColour() const { return displaySettings().colMeasures; }
    void setMeasureColour(const QColor &colour) { setDisplay(&ZASettings::colMeasures, colour); }
    QColor pipeColour() const { return displaySettings().colCylinder1; }
    void setPipeColour(const QColor &colour) { setDisplay(&ZASettings::colCylinder1, colour); }
    QColor joinedColour() const { return displaySettings().colCylinder2; }
    void setJoinedColour(const QColor &colour) { setDisplay(&ZASettings::colCylinder2, colour); }
    /** The colours that the viewer comes with. */
    Q_INVOKABLE void resetColours();

    ZASettings displaySettings() const;

Q_SIGNALS:
    void recentFilesChanged();
    void windowSizeChanged();
    void folderChanged();
    void languageChanged();
    void displayChanged();

private:
    template <typename T>
    void setDisplay(T ZASettings::*field, const T &value)
    {
        ZASettings display = displaySettings();
        if (display.*field != value) {
            display.*field = value;
            setDisplaySettings(display);
        }
    }
    void setDisplaySettings(const ZASettings &settings);

    mutable QSettings m_settings; ///< ZASettings reads from one that it may change
};

} // namespace Drevon::Zalento
