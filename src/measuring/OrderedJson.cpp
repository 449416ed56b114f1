#include "measuring/OrderedJson.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace Drevon::Zalento::Measuring {

namespace {

const char *const indentStep = "  ";

} // namespace

// QJsonDocument writes objects and arrays only: the value goes in as an array of one.
QByteArray jsonText(const QJsonValue &value)
{
    const QByteArray array = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return array.mid(1, array.size() - 2);
}

QByteArray jsonLines(const QVector<QByteArray> &values, const QByteArray &indent)
{
    if (values.isEmpty()) {
        return "[]";
    }
    QByteArray text = "[\n";
    for (int i = 0; i < values.size(); ++i) {
        text += indent + indentStep + values[i] + (i + 1 < values.size() ? ",\n" : "\n");
    }
    return text + indent + "]";
}

void OrderedJson::add(const QString &name, const QJsonValue &value)
{
    add(name, jsonText(value));
}

void OrderedJson::add(const QString &name, const QByteArray &json)
{
    m_members.append({jsonText(name), json});
}

void OrderedJson::addAll(const QJsonObject &members)
{
    for (auto member = members.begin(); member != members.end(); ++member) {
        add(member.key(), member.value());
    }
}

QByteArray OrderedJson::toLine() const
{
    return "{" + joined("", ", ") + "}";
}

QByteArray OrderedJson::toLines(const QByteArray &indent) const
{
    return "{\n" + joined(indent + indentStep, ",\n") + "\n" + indent + "}";
}

QByteArray OrderedJson::joined(const QByteArray &before, const QByteArray &after) const
{
    QByteArray text;
    for (int i = 0; i < m_members.size(); ++i) {
        text += before + m_members[i].name + ": " + m_members[i].value;
        if (i + 1 < m_members.size()) {
            text += after;
        }
    }
    return text;
}

} // namespace Drevon::Zalento::Measuring
