// The arguments of zalento-measure. Nothing is measured: no file is touched.
#include "FuzzInput.h"
#include "measure/CommandLine.h"
#include "measure/Run.h"

#include <QBuffer>
#include <QCoreApplication>

#include <cmath>

using namespace Drevon::Zalento;
using namespace Drevon::Zalento::Apps;
using namespace Drevon::Zalento::Measuring;

namespace {

constexpr int mostArguments = 16;
constexpr int longestRaw = 12;

// What the program knows, and what it could be given. The corpus numbers them: new ones go last.
const char *const words =
    "measure|render|kinds|--kind|--diameter|--fov|--camera-height|--offset|--roll|"
    "--percentage|--angle|--rear-circle|--rear-circle-active|--clock|--direction|--joint|"
    "--view-style|--unit|--click|--mm-per-pixel|--laser|--calibration|--session|"
    "--no-session|--save-session|--recursive|--format|--overlay|--output|--force|--help|"
    "-h|--version|-v|--|-|CrackWidth|PipeDimension|WaterLevel|BranchAngle|BendAngle|"
    "CrossSection|metric|imperial|downstream|upstream|measure|ends|full|text|json|jsonl|"
    "csv|png|svg|both|a.jpg|1,2|1e3,-2.5|1,2 3,4|nan,1|0|30|-45|90.5|1e400|12,5|";

bool hasWarned = false;

QString takeRaw(FuzzInput &input)
{
    QByteArray bytes;
    for (int count = input.choice(longestRaw); count > 0; --count) {
        bytes += static_cast<char>(input.take<std::uint8_t>());
    }
    return QString::fromUtf8(bytes.constData()); // an argument ends at a zero
}

QString takeArgument(FuzzInput &input)
{
    static const QStringList known = QString::fromLatin1(words).split(QLatin1Char('|'));
    const int which = input.choice(known.size() + 4);
    if (which < known.size()) {
        return known[which];
    }
    if (which == known.size()) {
        return known[input.choice(known.size())] + QLatin1Char('=') + takeRaw(input);
    }
    return which == known.size() + 1 ? QString::number(input.takeDouble()) : takeRaw(input);
}

QStringList takeArguments(FuzzInput &input)
{
    QStringList arguments;
    for (int i = 0; i < mostArguments && !input.isEmpty(); ++i) {
        arguments += takeArgument(input);
    }
    return arguments;
}

void checkCommand(const CommandLine &command)
{
    const SessionOptions &options = command.session;
    if (command.verb == Verb::Kinds) {
        FUZZ_VERIFY(command.inputs.isEmpty() && options.numbers.isEmpty() && !options.kind);
        return;
    }
    FUZZ_VERIFY(!command.inputs.isEmpty() || !command.sessionFile.isEmpty());
    FUZZ_VERIFY(command.sessionFile.isEmpty() || !command.ignoresSessions);
    FUZZ_VERIFY(options.laserSpots.isEmpty() || options.laserSpots.size() == 2);
    FUZZ_VERIFY(command.verb != Verb::Render || command.writesPng || command.writesSvg);
    Session session;
    options.applyTo(session);
    FUZZ_VERIFY(sessionProblem(session).isEmpty());
}

void checkRefusal(const QStringList &arguments)
{
    QBuffer input;
    QBuffer output;
    QBuffer messages;
    input.open(QIODevice::ReadOnly);
    output.open(QIODevice::WriteOnly);
    messages.open(QIODevice::WriteOnly);
    FUZZ_VERIFY(run(arguments, input, output, messages) == WrongUsage);
    FUZZ_VERIFY(output.data().isEmpty() && !messages.data().isEmpty());
}

} // namespace

int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    // The parser's help names the program. Kept until the process ends.
    static const auto *application = new QCoreApplication(*argc, *argv);
    Q_UNUSED(application)
    qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext &, const QString &) { hasWarned = true; });
    return 0;
}

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    FuzzInput input(data, size);
    const bool runs = input.isOneIn(ZALENTO_FUZZ_RUNS_ONE_IN);
    const QStringList arguments = takeArguments(input);
    const CommandLineOutcome outcome = parseCommandLine(arguments);
    FUZZ_VERIFY(!hasWarned);
    FUZZ_VERIFY(outcome.command.has_value() == outcome.text.isEmpty());
    FUZZ_VERIFY(!outcome.command || !outcome.isProblem);
    if (outcome.command) {
        checkCommand(*outcome.command);
    } else if (outcome.isProblem && runs) {
        checkRefusal(arguments);
    }
    return 0;
}
