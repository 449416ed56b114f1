#include "measure/LibraryMessages.h"
#include "measure/Run.h"

#include <QFile>
#include <QGuiApplication>
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
#include <QTextCodec>
#endif

#include <cstdio>

#include <fcntl.h>
#include <unistd.h>

namespace {

namespace Apps = Drevon::Zalento::Apps;

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
void printQtMessage(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    const bool isUseless = message.startsWith(QLatin1String("QStandardPaths: "));
    const bool isTold =
        isUseless || (type != QtFatalMsg && Apps::LibraryMessages::keep(message.toUtf8() + '\n'));
    if (!isTold) {
        std::fprintf(stderr, "zalento-measure: %s\n", qPrintable(message));
    }
}

ssize_t printLibraryText(void *, const char *text, std::size_t size)
{
    const bool isKept = Apps::LibraryMessages::keep(QByteArray(text, static_cast<int>(size)));
    return isKept ? static_cast<ssize_t>(size) : write(STDERR_FILENO, text, size);
}

// Readers of pictures print to the C library's stream, several of them at a time.
void catchStandardError()
{
    cookie_io_functions_t functions{};
    functions.write = printLibraryText;
    if (FILE *stream = fopencookie(nullptr, "w", functions)) {
        setvbuf(stream, nullptr, _IONBF, 0);
        stderr = stream;
    }
}

} // namespace

int main(int argc, char **argv)
{
    occupyClosedStreams();
    catchStandardError();
    qInstallMessageHandler(printQtMessage);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // The application takes options of its own, such as -platform: it gets none to take.
    int ownCount = argc > 0 ? 1 : 0;
    const QGuiApplication application(ownCount, argv);
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8")); // as Qt 6 has it
#endif

    QFile input;
    QFile output;
    QFile messages;
    input.open(stdin, QIODevice::ReadOnly);
    output.open(stdout, QIODevice::WriteOnly);
    messages.open(STDERR_FILENO, QIODevice::WriteOnly | QIODevice::Unbuffered);
    return Apps::run(argumentsOf(argc, argv), input, output, messages);
}
