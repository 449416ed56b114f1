#include "FieldModel.h"

#include "measuring/Count.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace Drevon::Zalento {

using Measuring::Session;

namespace {

// Of a step: a multiple that was not met exactly.
constexpr double stepSlack = 1e-6;

MeasurementEditor::Moves movesOf(const Field &field)
{
    return field.movesModel ? MeasurementEditor::Moves::Model : MeasurementEditor::Moves::Nothing;
}

} // namespace

FieldModel::FieldModel(MeasurementEditor &editor, Names names)
    : m_editor(editor)
    , m_names(std::move(names))
{
    connect(&editor, &MeasurementEditor::sessionChanged, this, &FieldModel::refresh);
}

QVector<FieldModel::Row> FieldModel::rowsNow() const
{
    QVector<Row> rows;
    if (const Session *session = m_editor.session()) {
        for (const QString &name : m_names(*session)) {
            const Field field = fieldNamed(name, *session);
            rows.append(
                {name, field.unit, fieldText(field, *session), field.get(*session).value_or(0.0)});
        }
    }
    return rows;
}

// Rows that stay keep their delegates: a slider is not made anew under the finger.
void FieldModel::refresh()
{
    const QVector<Row> now = rowsNow();
    const bool areSame =
        std::equal(now.begin(), now.end(), m_rows.begin(), m_rows.end(),
                   [](const Row &a, const Row &b) { return a.name == b.name && a.unit == b.unit; });
    if (!areSame) {
        beginResetModel();
        m_rows = now;
        endResetModel();
        return;
    }
    for (int row = 0; row < now.size(); ++row) {
        const bool isOther =
            now.at(row).text != m_rows.at(row).text || now.at(row).value != m_rows.at(row).value;
        m_rows[row] = now.at(row);
        if (isOther) {
            Q_EMIT dataChanged(index(row), index(row), {TextRole, ValueRole});
        }
    }
}

bool FieldModel::isRow(int row) const
{
    return m_editor.isReady() && row >= 0 && row < m_rows.size();
}

Field FieldModel::fieldAt(int row) const
{
    return fieldNamed(m_rows.at(row).name, *m_editor.session());
}

QString FieldModel::commit(int row, const QString &text)
{
    if (!isRow(row)) {
        return {};
    }
    const Field field = fieldAt(row);
    const auto value = readField(field, text);
    if (!value) {
        return value.problem().text();
    }
    Session session = *m_editor.session();
    field.set(session, *value);
    m_editor.change(field.label, session, movesOf(field));
    return {};
}

// A step from between two multiples of the step leads to the next multiple.
void FieldModel::stepBy(int row, int count)
{
    if (!isRow(row)) {
        return;
    }
    const Field field = fieldAt(row);
    Session session = *m_editor.session();
    const double steps = field.get(session).value_or(0.0) / field.step;
    const double multiple =
        count < 0 ? std::ceil(steps - stepSlack) : std::floor(steps + stepSlack);
    field.set(session, std::clamp((multiple + count) * field.step, field.smallest, field.largest));
    m_editor.change(field.label, session, movesOf(field));
}

void FieldModel::drag(int row, double value)
{
    if (!isRow(row)) {
        return;
    }
    const Field field = fieldAt(row);
    Session session = *m_editor.session();
    field.set(session, std::clamp(value, field.smallest, field.largest));
    m_editor.preview(session, movesOf(field));
}

void FieldModel::endDrag()
{
    m_editor.finishGesture(tr("Slider"));
}

void FieldModel::retranslate()
{
    beginResetModel();
    endResetModel();
}

int FieldModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : Measuring::countOf(m_rows);
}

QVariant FieldModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid) || !m_editor.session()) {
        return {};
    }
    const Row &row = m_rows.at(index.row());
    switch (role) {
    case NameRole:
        return row.name;
    case UnitRole:
        return row.unit;
    case TextRole:
        return row.text;
    case ValueRole:
        return row.value;
    default:
        break;
    }
    const Field field = fieldAt(index.row());
    switch (role) {
    case LabelRole:
        return field.label;
    case SmallestRole:
        return field.smallest;
    case LargestRole:
        return field.largest;
    case StepRole:
        return field.step;
    case HasSliderRole:
        return field.hasSlider;
    case IsSettingRole:
        return field.isSetting;
    default:
        return {};
    }
}

QHash<int, QByteArray> FieldModel::roleNames() const
{
    return {{NameRole, "name"},           {LabelRole, "label"},         {UnitRole, "unit"},
            {SmallestRole, "smallest"},   {LargestRole, "largest"},     {StepRole, "step"},
            {HasSliderRole, "hasSlider"}, {IsSettingRole, "isSetting"}, {TextRole, "text"},
            {ValueRole, "value"}};
}

} // namespace Drevon::Zalento
