#include "measure/Run.h"

#include <QFile>
#include <QGuiApplication>
#include <QTextCodec>

#include <cstdio>

#include <fcntl.h>
#include <unistd.h>

namespace {

// A closed standard stream would be given to the next file that is opened: values would end up in
// it. What takes the stream's place fails, as the closed one would.
void occupyClosedStreams()
{
    const struct
    {
        int descriptor;
        int wrongWay;
    } streams[] = {{STDIN_FILENO, O_WRONLY}, {STDOUT_FILENO, O_RDONLY}, {STDERR_FILENO, O_RDONLY}};
    for (const auto &stream : streams) {
        if (fcntl(stream.descriptor, F_GETFD) == -1) {
            open("/dev/null", stream.wrongWay); // takes the lowest free number: the stream's
        }
    }
}

// Names are UTF-8 whatever the locale says, as they are in sessions.
QStringList argumentsOf(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i) {
        arguments += QString::fromUtf8(argv[i]);
    }
    return arguments;
}

// Where no session manager has set up a folder for running programs, Qt says so, as often as it is
// used; the program needs none.
void printQtMessage(QtMsgType, const QMessageLogContext &, const QString &message)
{
    if (!message.startsWith(QLatin1String("QStandardPaths: "))) {
        std::fprintf(stderr, "zalento-measure: %s\n", qPrintable(message));
    }
}

} // namespace

int main(int argc, char **argv)
{
    occupyClosedStreams();
    qInstallMessageHandler(printQtMessage);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // The application takes options of its own, such as -platform: it gets none to take.
    int ownCount = argc > 0 ? 1 : 0;
    const QGuiApplication application(ownCount, argv);
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));

    QFile input;
    QFile output;
    QFile messages;
    input.open(stdin, QIODevice::ReadOnly);
    output.open(stdout, QIODevice::WriteOnly);
    messages.open(stderr, QIODevice::WriteOnly | QIODevice::Unbuffered);
    return Drevon::Zalento::Apps::run(argumentsOf(argc, argv), input, output, messages);
}
