// The built program itself: what main() sets up before the rest runs.
#include "support/PictureFiles.h"

#include "measuring/SessionFile.h"
#include "support/TestCase.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <linux/capability.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

using namespace Drevon::Zalento::Measuring;
using namespace Drevon::Zalento::Test;

namespace {

constexpr rlim_t noLimit = RLIM_INFINITY;

// What befalls the started program.
struct Fault
{
    rlim_t largestFile = noLimit; // in bytes; a disk that is full is noticed in the same way
    bool killsAtLimit = false;
    bool isReadOnly = false; // the folder
};

// In the child, before the program begins.
void suffer(const Fault &fault)
{
    const rlimit noCore{0, 0};
    const rlimit files{fault.largestFile, fault.largestFile};
    setrlimit(RLIMIT_CORE, &noCore);
    setrlimit(RLIMIT_FSIZE, &files);
    signal(SIGXFSZ, fault.killsAtLimit ? SIG_DFL : SIG_IGN);
    // Root writes into every folder unless this is taken from it.
    if (fault.isReadOnly && geteuid() == 0 &&
        prctl(PR_CAPBSET_DROP, CAP_DAC_OVERRIDE, 0, 0, 0) != 0) {
        _exit(1);
    }
}

class Program : public QProcess
{
public:
    explicit Program(const Fault &fault)
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
        : m_fault(fault)
    {}

protected:
    void setupChildProcess() override
    {
        suffer(m_fault);
    }

private:
    Fault m_fault;
#else
    {
        setChildProcessModifier([fault] { suffer(fault); });
    }
#endif
};

struct Run
{
    int code = -1; // of a program that ended by itself
    QByteArray output;
    QByteArray messages;
};

// The redirection is the shell's: ">&-" closes the output.
Run start(const QStringList &arguments, const QStringList &environment = {},
          const QString &redirection = {}, const Fault &fault = {})
{
    Program process(fault);
    QStringList variables = QProcess::systemEnvironment();
    variables.removeAll(QStringLiteral("QT_QPA_PLATFORM=offscreen"));
    process.setEnvironment(variables + environment);
    const QStringList shell{"-c", "exec \"$0\" \"$@\" " + redirection,
                            QStringLiteral(ZALENTO_MEASURE)};
    process.start(QStringLiteral("/bin/sh"), shell + arguments);
    process.closeWriteChannel();
    if (!process.waitForFinished()) {
        return {};
    }
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            process.readAllStandardOutput(), process.readAllStandardError()};
}

const QStringList water{"measure", "--kind", "WaterLevel", "--percentage", "12.5"};

} // namespace

Q_DECLARE_METATYPE(Fault)

class TestMeasureProgram : public TestCase
{
    Q_OBJECT

private slots:
    void noticesStreamsThatFail_data();
    void noticesStreamsThatFail();
    void exitsAsToldByUsage();
    void showsProgressOnATerminalOnly();
    void keepsAReportWhereTheDiskIsFull();
};

void TestMeasureProgram::noticesStreamsThatFail_data()
{
    QTest::addColumn<QString>("redirection");
    QTest::addColumn<QString>("input");
    QTest::addColumn<int>("code");
    QTest::addColumn<QByteArray>("message");
    const auto row = [](const char *name, const char *redirection, const char *input, int code,
                        const char *message) {
        QTest::newRow(name) << redirection << input << code << QByteArray(message);
    };
    row("full output", ">/dev/full", "a.png", 3, "the values cannot be written: No space");
    row("closed output", ">&-", "a.png", 3, "the values cannot be written: Bad file");
    row("closed messages", "2>&-", "none.png", 1, "");
    row("everything closed", "<&- >&- 2>&-", "a.png", 3, "");
    row("closed list", "<&-", "-", 3, "the list of pictures: cannot be read: Bad file");
    row("folder as the list", "</", "-", 3, "the list of pictures: cannot be read: Is a directory");
}

// Nothing of what is printed gets into the files that are written.
void TestMeasureProgram::noticesStreamsThatFail()
{
    QFETCH(QString, redirection);
    QFETCH(QString, input);
    QFETCH(int, code);
    QFETCH(QByteArray, message);
    const QTemporaryDir dir;
    QVERIFY(greyPicture(QSize(64, 48)).save(dir.filePath(QStringLiteral("a.png"))));
    const QString picture = input == QLatin1String("-") ? input : dir.filePath(input);
    const Run outcome = start(water + QStringList{"--save-session", picture}, {}, redirection);
    QCOMPARE(outcome.code, code);
    QVERIFY2(outcome.messages.contains(message), outcome.messages);
    if (input == QLatin1String("a.png")) {
        QVERIFY(loadSession(sessionPathOf(picture)));
    }
}

void TestMeasureProgram::exitsAsToldByUsage()
{
    QCOMPARE(start({}).code, 2);
    QCOMPARE(start({"-platform", "xcb"}).code, 2); // not an option of ours, nor swallowed by Qt
    const Run version = start({"--version"});
    QCOMPARE(version.code, 0);
    QVERIFY(version.output.startsWith("zalento-measure 1."));
    QVERIFY(version.messages.isEmpty());
}

void TestMeasureProgram::showsProgressOnATerminalOnly()
{
    const QTemporaryDir dir;
    const QString picture = dir.filePath(QStringLiteral("a.png"));
    QVERIFY(greyPicture(QSize(64, 48)).save(picture));
    const QStringList arguments = water + QStringList{picture, picture};
    const QByteArray progress = "\r1 of 2, 0:00 left";
    QProcess terminal;
    const QStringList command = QStringList(QStringLiteral(ZALENTO_MEASURE)) + arguments;
    terminal.start("script", {"--quiet", "--command", command.join(' '), "/dev/null"});
    QVERIFY(terminal.waitForFinished());
    QVERIFY(terminal.readAllStandardOutput().contains(progress));
    const Run file = start(arguments);
    QCOMPARE(file.code, 0);
    QCOMPARE(file.messages, QByteArray());
}

void TestMeasureProgram::keepsAReportWhereTheDiskIsFull()
{
    const QTemporaryDir dir;
    const QString picture = dir.filePath(QStringLiteral("a.png"));
    QVERIFY(greyPicture(QSize(640, 480)).save(picture));
    const QString report = dir.filePath(QStringLiteral("a.pdf"));
    QVERIFY(writeBytes(report, "an older one"));
    const QByteArray before = folderState(dir.path());
    // In the middle of a picture, and of the fonts behind it.
    for (const rlim_t limit : {3000, 20000}) {
        Fault fault;
        fault.largestFile = limit;
        const Run run = start({"report", "--force", "--output", report, picture}, {}, {}, fault);
        QCOMPARE(run.code, 3);
        QVERIFY2(run.messages.contains("cannot be written"), run.messages);
        QCOMPARE(folderState(dir.path()), before);
    }
}

QTEST_MAIN(TestMeasureProgram)
#include "tst_measureprogram.moc"
