#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QRegularExpression>
#include <QtTest>

namespace {

QStringList documents()
{
    const QString root = QStringLiteral(ZALENTO_SOURCE_DIR);
    QStringList files;
    for (const QString &name : QDir(root).entryList({"*.md"}, QDir::Files)) {
        files << root + '/' + name;
    }
    for (const char *folder : {"/docs", "/samples"}) {
        QDirIterator it(root + folder, {"*.md"}, QDir::Files, QDirIterator::Subdirectories);
        while (it.hasNext()) {
            files << it.next();
        }
    }
    return files;
}

QString contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace

class tst_Documents : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void links_data();
    void links();
    void qmlSnippets();
};

void tst_Documents::links_data()
{
    QTest::addColumn<QString>("path");
    for (const QString &path : documents()) {
        QTest::newRow(qPrintable(QFileInfo(path).fileName())) << path;
    }
}

// Every file that a document links to, or shows, is there.
void tst_Documents::links()
{
    QFETCH(QString, path);
    const QString content = contentOf(path);
    QVERIFY(!content.isEmpty());
    const QRegularExpression link(QStringLiteral("\\]\\(([^)#:]+)(#[^)]*)?\\)"));
    QRegularExpressionMatchIterator it = link.globalMatch(content);
    while (it.hasNext()) {
        const QString target = it.next().captured(1);
        QVERIFY2(QFileInfo::exists(QFileInfo(path).dir().filePath(target)), qPrintable(target));
    }
}

void tst_Documents::qmlSnippets()
{
    QQmlEngine engine;
    engine.addImportPath(QStringLiteral(ZALENTO_QML_DIR));
    const QRegularExpression block(QStringLiteral("```qml\\n(.*?)```"),
                                   QRegularExpression::DotMatchesEverythingOption);
    int count = 0;
    for (const QString &path : documents()) {
        QRegularExpressionMatchIterator it = block.globalMatch(contentOf(path));
        while (it.hasNext()) {
            QQmlComponent component(&engine);
            component.setData(it.next().captured(1).toUtf8(), QUrl::fromLocalFile(path));
            QVERIFY2(component.isReady(), qPrintable(component.errorString()));
            ++count;
        }
    }
    QVERIFY(count > 0);
}

QTEST_MAIN(tst_Documents)
#include "tst_documents.moc"
