#include "support/TestCase.h"

#include <QTest>
#include <algorithm>

namespace Drevon::Zalento::Test {

namespace {

TestCase *current = nullptr;
QtMessageHandler previousHandler = nullptr;

} // namespace

void TestCase::expectWarning(const QString &part)
{
    const QMutexLocker lock(&m_mutex);
    m_announced.append(part);
}

QStringList TestCase::warningFaults() const
{
    const QMutexLocker lock(&m_mutex);
    QStringList faults;
    for (const QString &message : m_unexpected)
        faults.append("unannounced: " + message);
    for (const QString &part : m_announced)
        faults.append("not logged: " + part);
    return faults;
}

void TestCase::forgetWarnings()
{
    const QMutexLocker lock(&m_mutex);
    m_announced.clear();
    m_unexpected.clear();
}

bool TestCase::takeAnnounced(const QString &message)
{
    const QMutexLocker lock(&m_mutex);
    const auto found = std::find_if(m_announced.begin(), m_announced.end(),
                                    [&](const QString &part) { return message.contains(part); });
    if (found == m_announced.end()) {
        m_unexpected.append(message);
        return false;
    }
    m_announced.erase(found);
    return true;
}

void TestCase::handleMessage(QtMsgType type, const QMessageLogContext &context,
                             const QString &message)
{
    const bool harmless = type == QtDebugMsg || type == QtInfoMsg;
    if (harmless || !current->takeAnnounced(message))
        previousHandler(type, context, message);
}

void TestCase::init()
{
    forgetWarnings();
    current = this;
    previousHandler = qInstallMessageHandler(&TestCase::handleMessage);
}

void TestCase::cleanup()
{
    qInstallMessageHandler(previousHandler);
    QVERIFY2(warningFaults().isEmpty(), qPrintable(warningFaults().join("; ")));
}

} // namespace Drevon::Zalento::Test
