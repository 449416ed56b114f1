// The text of a session file.
#include "FuzzInput.h"
#include "measuring/SessionFile.h"
#include "measuring/Replay.h"
#include "measuring/SessionJson.h"

#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>

using namespace Drevon::Zalento;
using namespace Drevon::Zalento::Measuring;

namespace {

constexpr int mostFields = 12;
constexpr int mostDepth = 4;
const QSize smallPicture(48, 48);

// The corpus numbers these: new ones go last.
const char *const names =
    "picture|path|size|sha256|kind|unit|diameterMM|offset|rollDEG|fovYDEG|direction|"
    "viewStyle|rearCircleX|rearCircleY|rearCircleActive|percentage|angleDEG|clockDEG|"
    "jointShown|calibration|mmPerPixel|points|pixel|position|schema|note|"
    "cameraHeightPercent|schema\xc3\xa4";
const char *const texts =
    "CrackWidth|PipeDimension|WaterLevel|BranchAngle|BendAngle|CrossSection|metric|"
    "imperial|downstream|upstream|measure|ends|full|LASER;;;50|150;1;1\n|../pipe.jpg||"
    "zalento-session 1.0|zalento-session 1.9|zalento-session 2.0|"
    "0123456789abcdef0123456789abcdef0123456789abcdef0123456789abcdef";

QStringList listOf(const char *words)
{
    return QString::fromUtf8(words).split(QLatin1Char('|'));
}

QString oneOf(const QStringList &list, FuzzInput &input)
{
    return list[input.choice(list.size())];
}

QJsonValue takeValue(FuzzInput &input, int depth);

QJsonArray takeList(FuzzInput &input, int depth)
{
    QJsonArray list;
    for (int count = input.choice(4); count > 0; --count) {
        list.append(takeValue(input, depth + 1));
    }
    return list;
}

QJsonObject takeObject(FuzzInput &input, int depth)
{
    static const QStringList known = listOf(names);
    QJsonObject object;
    for (int count = input.choice(mostFields); count > 0 && !input.isEmpty(); --count) {
        const QString name = oneOf(known, input);
        object.insert(name, takeValue(input, depth + 1));
    }
    return object;
}

QJsonValue takeValue(FuzzInput &input, int depth)
{
    static const QStringList known = listOf(texts);
    switch (depth < mostDepth ? input.choice(9) : input.choice(5)) {
    case 0:
        return QJsonValue(QJsonValue::Null);
    case 1:
        return input.choice(2) == 1;
    case 2:
        return input.takeInt();
    case 3:
        return oneOf(known, input);
    case 4:
        return input.takeDouble();
    case 5:
        return QJsonArray{input.takeDouble(), input.takeDouble()};
    case 6:
        return QJsonArray{input.takeDouble(), input.takeDouble(), input.takeDouble()};
    case 7:
        return takeList(input, depth);
    default:
        return takeObject(input, depth);
    }
}

// Text as it comes, or fields that a session could have.
QByteArray takeJson(FuzzInput &input)
{
    if (input.choice(2) == 0) {
        return QByteArray::fromStdString(input.takeRest());
    }
    QJsonObject object;
    object.insert(QStringLiteral("schema"), QStringLiteral("zalento-session 1.0"));
    const QJsonObject taken = takeObject(input, 0);
    for (auto field = taken.begin(); field != taken.end(); ++field) {
        object.insert(field.key(), field.value());
    }
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

bool isOfNewerMajor(const QJsonObject &object)
{
    static const QRegularExpression newer(
        QStringLiteral("\\Azalento-session 0*([2-9]|[1-9][0-9]+)\\.[0-9]+\\z"));
    const QString schema = object.value(QLatin1String("schema")).toString();
    return schema.size() < 25 && newer.match(schema).hasMatch();
}

// Every field of the file is one that the program writes, or is kept as it is.
void checkNothingIsLost(const QJsonObject &read, const QJsonObject &written)
{
    static const QJsonObject known = QJsonDocument::fromJson(sessionToJson(Session())).object();
    for (auto field = read.begin(); field != read.end(); ++field) {
        const bool isOwn =
            known.contains(field.key()) || field.key() == QLatin1String("mmPerPixel");
        FUZZ_VERIFY(isOwn ? written.contains(field.key())
                          : written.value(field.key()) == field.value());
    }
}

void checkWrittenAgain(const Session &session, const QByteArray &read)
{
    const QByteArray written = sessionToJson(session);
    QString problem;
    const std::optional<Session> again = sessionFromJson(written, problem);
    FUZZ_VERIFY(again && problem.isEmpty());
    FUZZ_VERIFY(*again == session);
    FUZZ_VERIFY(sessionToJson(*again) == written);
    checkNothingIsLost(QJsonDocument::fromJson(read).object(),
                       QJsonDocument::fromJson(written).object());
}

// What was read can be shown, and stays a session that can be saved.
void checkShown(Session session)
{
    ZaItem::sharedMainPipeDiameter() = 300; // as in a new process
    ZaItem item;
    layOutItem(item, smallPicture);
    const int count = session.points.size();
    const int missed = applySession(session, item).size();
    settle(item);
    FUZZ_VERIFY(session.points.size() + missed <= count);
    FUZZ_VERIFY(sessionProblem(session).isEmpty());
}

} // namespace

int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // Kept until the process ends: some of Qt's own statics are gone before ours.
    static const auto *application = new QGuiApplication(*argc, *argv);
    Q_UNUSED(application)
    return 0;
}

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    FuzzInput input(data, size);
    const bool isWritten = input.isOneIn(ZALENTO_FUZZ_WRITES_ONE_IN);
    const bool isShown = input.isOneIn(ZALENTO_FUZZ_SHOWS_ONE_IN);
    const QByteArray json = takeJson(input);
    QString problem;
    const std::optional<Session> session = sessionFromJson(json, problem);
    FUZZ_VERIFY(session.has_value() == problem.isEmpty());
    if (!session) {
        return 0;
    }
    FUZZ_VERIFY(sessionProblem(*session).isEmpty());
    if (isWritten) {
        FUZZ_VERIFY(!isOfNewerMajor(QJsonDocument::fromJson(json).object()));
        checkWrittenAgain(*session, json);
    }
    if (isShown) {
        checkShown(*session);
    }
    return 0;
}
