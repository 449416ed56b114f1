#pragma once

#include <QMutex>
#include <QObject>
#include <QStringList>

namespace Drevon::Zalento::Test {

/** Base of a test class: a test function fails that logs a warning (or worse) which it did not
    announce, or that announces one which is not logged. A class with an init() or cleanup() of
    its own calls these. */
class TestCase : public QObject
{
    Q_OBJECT

public:
    /** The running test function has to log exactly one warning that contains @p part. */
    void expectWarning(const QString &part);

    /** What is wrong so far: "unannounced: ..." and "not logged: ...". */
    QStringList warningFaults() const;

    /** Forgets announced warnings and logged ones. */
    void forgetWarnings();

protected slots:
    void init();
    void cleanup();

private:
    static void handleMessage(QtMsgType type, const QMessageLogContext &context,
                              const QString &message);
    bool takeAnnounced(const QString &message);

    mutable QMutex m_mutex; // warnings come from the render thread too
    QStringList m_announced;
    QStringList m_unexpected;
};

} // namespace Drevon::Zalento::Test
