// The text of a session file.
#include "FuzzInput.h"

#include "measuring/Count.h"
#include "measuring/Editing.h"
#include "measuring/Measurement.h"
#include "measuring/Replay.h"
#include "measuring/SessionJson.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>

using namespace Drevon::Zalento;
using namespace Drevon::Zalento::Measuring;

namespace {

const QSize smallPicture(48, 48);

// Every field of the file is one that the program writes, or is kept as it is. What says nothing is
// left out: no laser spots, no name, no further measurement, the first one chosen.
void checkNothingIsLost(const QJsonObject &read, const QJsonObject &written)
{
    static const QJsonObject known = QJsonDocument::fromJson(sessionToJson(Session())).object();
    static const QStringList optional{QStringLiteral("mmPerPixel"), QStringLiteral("film"),
                                      QStringLiteral("counterM")};
    static const QStringList leftOut{QStringLiteral("laserSpots"), QStringLiteral("name"),
                                     QStringLiteral("measurements"), QStringLiteral("chosen")};
    for (auto field = read.begin(); field != read.end(); ++field) {
        const bool isOwn = known.contains(field.key()) || optional.contains(field.key());
        FUZZ_VERIFY(
            leftOut.contains(field.key()) ||
            (isOwn ? written.contains(field.key()) : written.value(field.key()) == field.value()));
    }
}

void checkWrittenAgain(const Session &session, const QByteArray &read)
{
    const QByteArray written = sessionToJson(session);
    const Result<Session> again = sessionFromJson(written);
    FUZZ_VERIFY(again && *again == session);
    FUZZ_VERIFY(sessionToJson(*again) == written);
    checkNothingIsLost(QJsonDocument::fromJson(read).object(),
                       QJsonDocument::fromJson(written).object());
}

// What was read can be measured and shown, and stays a session that can be saved.
void checkMeasured(Session session)
{
    session.picture.size = smallPicture;
    const int count = countOf(session.points);
    const int missed = countOf(placePoints(session));
    FUZZ_VERIFY(session.points.size() + missed <= count);
    const Measurement measurement = measure(session);
    FUZZ_VERIFY(measurement.values.isEmpty() != (measurement.state == MeasureState::Measured));
    for (const Value &value : measurement.values) {
        FUZZ_VERIFY(!std::isnan(value.number) && !value.text.isEmpty());
    }
    ZaItem::sharedMainPipeDiameter() = 300; // as in a new process
    ZaItem item;
    showSession(session, item);
    FUZZ_VERIFY(!checkSession(session));
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    FuzzInput input(data, size);
    const QByteArray json = QByteArray::fromStdString(input.takeRest());
    const Result<Session> session = sessionFromJson(json);
    if (!session) {
        FUZZ_VERIFY(!session.problem().text().isEmpty());
        return 0;
    }
    FUZZ_VERIFY(!checkSession(*session));
    checkWrittenAgain(*session, json);
    checkMeasured(*session);
    return 0;
}
