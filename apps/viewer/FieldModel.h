#pragma once

#include "FieldCatalogue.h"
#include "MeasurementEditor.h"

#include <QAbstractListModel>
#include <QStringList>
#include <QVector>

#include <functional>

namespace Drevon::Zalento {

/** Numbers of the measurement that the operator types, steps or slides; a row each. */
class FieldModel : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role {
        NameRole = Qt::UserRole,
        LabelRole,
        UnitRole,
        SmallestRole,
        LargestRole,
        StepRole,
        HasSliderRole,
        IsSettingRole,
        TextRole,
        ValueRole,
    };

    /** Which fields a session has, by the names of the catalogue. */
    using Names = std::function<QStringList(const Measuring::Session &)>;

    FieldModel(MeasurementEditor &editor, Names names);

    /** @return what is wrong with the text; empty when it was taken */
    Q_INVOKABLE QString commit(int row, const QString &text);
    Q_INVOKABLE void stepBy(int row, int count);
    /** A slider under way; endDrag() makes it one step. */
    Q_INVOKABLE void drag(int row, double value);
    Q_INVOKABLE void endDrag();

    /** To be called when the language has changed. */
    void retranslate();

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

private:
    struct Row
    {
        QString name;
        QString unit;
        QString text;
        double value = 0.0;
    };

    void refresh();
    QVector<Row> rowsNow() const;
    Field fieldAt(int row) const;
    bool isRow(int row) const;

    MeasurementEditor &m_editor;
    Names m_names;
    QVector<Row> m_rows;
};

} // namespace Drevon::Zalento
