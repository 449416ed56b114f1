#include "Language.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QStringList>
#include <QTranslator>

namespace Drevon::Zalento {

namespace {

QString spokenLanguage(const QString &language)
{
    static const QStringList spoken{QStringLiteral("en"), QStringLiteral("de"),
                                    QStringLiteral("fr")};
    for (const QString &wanted : QStringList(language) + QLocale::system().uiLanguages()) {
        const QString code = wanted.section(QLatin1Char('-'), 0, 0);
        if (spoken.contains(code)) {
            return code;
        }
    }
    return spoken.first();
}

void use(QTranslator &translator, const QString &name, const QString &folder)
{
    QCoreApplication::removeTranslator(&translator);
    if (translator.load(name, folder)) {
        QCoreApplication::installTranslator(&translator);
    }
}

QString translationsOfQt()
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    return QLibraryInfo::location(QLibraryInfo::TranslationsPath);
#else
    return QLibraryInfo::path(QLibraryInfo::TranslationsPath);
#endif
}

} // namespace

void useLanguage(const QString &language)
{
    static QTranslator texts; // plural forms are a translation's even in English
    static QTranslator systemTexts;
    const QString code = spokenLanguage(language);
    use(systemTexts, QStringLiteral("qtbase_") + code, translationsOfQt());
    use(texts, QStringLiteral("zalento_") + code, QStringLiteral(":/translations"));
}

} // namespace Drevon::Zalento
