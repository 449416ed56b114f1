#pragma once

#include "measuring/Export.h"

#include <QByteArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>
#include <QVector>

namespace Drevon::Zalento::Measuring {

/**
 * A JSON object that keeps its members in the order in which they were added, one a line.
 * QJsonObject sorts them. Numbers are written so that they read back bit for bit, but for the sign
 * of zero.
 */
class ZALENTO_MEASURING_EXPORT OrderedJson
{
public:
    /** Adds a member after those that are there. */
    void add(const QString &name, const QJsonValue &value);
    void add(const QString &name, const QByteArray &json); ///< a value that is text already
    /** Adds all members of an object, by name. */
    void addAll(const QJsonObject &members);

    QByteArray toLine() const;                          ///< without line breaks
    QByteArray toLines(const QByteArray &indent) const; ///< the closing brace gets @p indent

private:
    struct Member
    {
        QByteArray name;
        QByteArray value;
    };
    QByteArray joined(const QByteArray &before, const QByteArray &after) const;

    QVector<Member> m_members;
};

/** The text of one value, without line breaks. */
ZALENTO_MEASURING_EXPORT QByteArray jsonText(const QJsonValue &value);

/** An array of values that are text already: one a line between brackets. */
ZALENTO_MEASURING_EXPORT QByteArray jsonLines(const QVector<QByteArray> &values,
                                              const QByteArray &indent);

} // namespace Drevon::Zalento::Measuring
