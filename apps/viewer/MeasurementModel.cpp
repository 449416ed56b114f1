#include "MeasurementModel.h"

#include "measuring/Measurands.h"
#include "measuring/UncertaintyText.h"

namespace Drevon::Zalento {

using Measuring::Session;

namespace {

// A single one that was not named yet stands there as its kind.
QString nameOf(const Session &session)
{
    return session.name.isEmpty() ? Measuring::translated(infoOf(session.kind).title)
                                  : session.name;
}

} // namespace

MeasurementModel::MeasurementModel(DocumentList &documents, MeasurementEditor &editor)
    : m_documents(documents)
    , m_editor(editor)
{
    // A picture that cannot be read has no session.
    connect(&documents, &DocumentList::currentChanged, this, &MeasurementModel::follow);
    connect(&editor, &MeasurementEditor::sessionChanged, this, &MeasurementModel::follow);
}

void MeasurementModel::setIsAllShown(bool shown)
{
    if (shown != m_isAllShown) {
        m_isAllShown = shown;
        Q_EMIT isAllShownChanged();
        showOthers();
    }
}

// Following the session

void MeasurementModel::follow()
{
    QVector<Row> rows;
    int chosen = -1;
    if (m_editor.session()) {
        Session session = *m_editor.session();
        chosen = Measuring::measurandAtHand(session);
        Measuring::forEachMeasurand(session, [&rows](const Session &measured) {
            const auto values = Measuring::measure(measured).values;
            const QString value =
                values.isEmpty() ? QString() : Measuring::inTableUnit(values.first()).text;
            rows.append({nameOf(measured), value});
        });
    }
    setRows(rows, chosen);
    showOthers();
}

void MeasurementModel::setRows(const QVector<Row> &rows, int chosen)
{
    const bool isResized = rows.size() != m_rows.size();
    const bool isChosen = chosen != m_chosen;
    if (isResized) {
        beginResetModel();
    }
    m_rows = rows;
    m_chosen = chosen;
    if (isResized) {
        endResetModel();
        Q_EMIT countChanged();
    } else if (!rows.isEmpty()) {
        Q_EMIT dataChanged(index(0), index(count() - 1));
    }
    if (isChosen) {
        Q_EMIT chosenChanged();
    }
}

void MeasurementModel::showOthers()
{
    const bool hadOthers = m_others != nullptr;
    m_others.reset();
    if (m_isAllShown && count() > 1 && m_editor.isReady()) {
        m_others = std::make_unique<Measuring::OtherOverlays>(
            *m_editor.session(), m_documents.overlayScale(), m_editor.item()->settings());
    }
    if (hadOthers || m_others) {
        Q_EMIT othersChanged();
    }
}

// Changing

void MeasurementModel::add()
{
    if (m_editor.isReady()) {
        Session session = *m_editor.session();
        Measuring::addMeasurand(session, session.kind);
        m_editor.changeMeasurement(tr("Another measurement"), session);
    }
}

void MeasurementModel::choose(int row)
{
    if (m_editor.isReady() && row >= 0 && row < count() && row != m_chosen) {
        m_editor.changeMeasurement(tr("Choose measurement"),
                                   Measuring::withMeasurand(*m_editor.session(), row));
    }
}

void MeasurementModel::chooseNext()
{
    if (count() > 0) {
        choose((m_chosen + 1) % count());
    }
}

QString MeasurementModel::chosenName() const
{
    return m_editor.session() ? m_editor.session()->name : QString();
}

QString MeasurementModel::rename(const QString &name)
{
    if (!m_editor.isReady() || name.trimmed() == chosenName()) {
        return {};
    }
    Session session = *m_editor.session();
    const auto problem = Measuring::renameMeasurand(session, m_chosen, name.trimmed());
    if (problem) {
        return problem->text();
    }
    m_editor.changeMeasurement(tr("Name"), session);
    return {};
}

void MeasurementModel::remove()
{
    if (m_editor.isReady() && count() > 1) {
        Session session = *m_editor.session();
        Measuring::removeMeasurand(session, m_chosen);
        m_editor.changeMeasurement(tr("Remove measurement"), session);
    }
}

// The list

int MeasurementModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : count();
}

QVariant MeasurementModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const Row &row = m_rows.at(index.row());
    switch (role) {
    case NameRole:
        return row.name;
    case ValueRole:
        return row.value;
    case IsChosenRole:
        return index.row() == m_chosen;
    default:
        return {};
    }
}

QHash<int, QByteArray> MeasurementModel::roleNames() const
{
    return {{NameRole, "name"}, {ValueRole, "value"}, {IsChosenRole, "isChosen"}};
}

} // namespace Drevon::Zalento
