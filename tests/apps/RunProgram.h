#pragma once

#include "measure/Run.h"

#include <QBuffer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

namespace Drevon::Zalento::Test {

/** What a run of zalento-measure gave. */
struct Run
{
    int code = -1;
    QByteArray output;
    QByteArray messages;
};

/** Runs the program in this process; @p list is on its standard input. */
inline Run runProgram(const QStringList &arguments, const QByteArray &list = {})
{
    QBuffer streams[3];
    streams[0].setData(list);
    for (QBuffer &stream : streams) {
        stream.open(QIODevice::ReadWrite);
    }
    const int code = Apps::run(arguments, streams[0], streams[1], streams[2]);
    return {code, streams[1].data(), streams[2].data()};
}

/** Words separated by blanks. */
inline QStringList words(const char *line)
{
    return QProcess::splitCommand(QString::fromUtf8(line));
}

/** The values of a result in JSON. */
inline QJsonArray valuesOf(const QByteArray &json)
{
    return QJsonDocument::fromJson(json).object()["values"].toArray();
}

} // namespace Drevon::Zalento::Test
