#pragma once

#include "MeasurementEditor.h"

#include "measuring/OtherOverlays.h"

#include "measuring/Count.h"

#include <QAbstractListModel>
#include <QString>
#include <QVector>

#include <memory>

namespace Drevon::Zalento {

/** The measurements of the picture on view, one of which is being edited. Every change is a step.
 */
class MeasurementModel : public QAbstractListModel
{
    Q_OBJECT

    Q_PROPERTY(int count READ count NOTIFY countChanged)
    /** The row that is edited; -1 without a picture. */
    Q_PROPERTY(int chosen READ chosen NOTIFY chosenChanged)
    /** The overlay shows them all, each with its name, in exports, too. */
    Q_PROPERTY(bool isAllShown READ isAllShown WRITE setIsAllShown NOTIFY isAllShownChanged)

public:
    enum Role { NameRole = Qt::UserRole, ValueRole, IsChosenRole };

    MeasurementModel(DocumentList &documents, MeasurementEditor &editor);

    int count() const { return Measuring::countOf(m_rows); }
    int chosen() const { return m_chosen; }
    bool isAllShown() const { return m_isAllShown; }
    void setIsAllShown(bool shown);

    /** What is shown beside the one that is edited; null while that one is shown alone. */
    const Measuring::OtherOverlays *others() const { return m_others.get(); }

    /** Starts another one of the same kind. */
    Q_INVOKABLE void add();
    Q_INVOKABLE void choose(int row);
    /** The one behind the chosen one; the first behind the last. */
    Q_INVOKABLE void chooseNext();
    /** The chosen one's; empty where it has none yet. */
    Q_INVOKABLE QString chosenName() const;
    /** Names the chosen one. @return what is wrong with the name; empty when it was taken */
    Q_INVOKABLE QString rename(const QString &name);
    /** Removes the chosen one, but not the last that is left. */
    Q_INVOKABLE void remove();

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void countChanged();
    void chosenChanged();
    void isAllShownChanged();
    void othersChanged();

private:
    struct Row
    {
        QString name;
        QString value; ///< in short; empty without one
    };

    void follow();
    void setRows(const QVector<Row> &rows, int chosen);
    void showOthers();

    DocumentList &m_documents;
    MeasurementEditor &m_editor;
    QVector<Row> m_rows;
    int m_chosen = -1;
    bool m_isAllShown = false;
    std::unique_ptr<Measuring::OtherOverlays> m_others;
};

} // namespace Drevon::Zalento
