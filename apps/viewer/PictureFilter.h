#pragma once

#include <QSortFilterProxyModel>
#include <QString>

namespace Drevon::Zalento {

/** Those of the DocumentList's pictures that are looked for: by a part of the name, and by state.
 */
class PictureFilter : public QSortFilterProxyModel
{
    Q_OBJECT

    /** A part of the name, or a picture's number. */
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY changed)
    Q_PROPERTY(State state READ state WRITE setState NOTIFY changed)

public:
    enum State { All, Measured, NotMeasured, Unsaved, Trouble };
    Q_ENUM(State)

    explicit PictureFilter(QObject *parent = nullptr);

    QString text() const { return m_text; }
    void setText(const QString &text);
    State state() const { return m_state; }
    void setState(State state);

    /** The row of a picture of the list, -1 where it is left out. */
    Q_INVOKABLE int rowOf(int picture) const;
    /** The picture that the text is the number of, else the first that is left; -1 for none. */
    Q_INVOKABLE int firstPicture() const;

Q_SIGNALS:
    void changed();

protected:
    bool filterAcceptsRow(int row, const QModelIndex &parent) const override;

private:
    bool hasText(const QModelIndex &picture) const;
    bool hasState(const QModelIndex &picture) const;

    QString m_text;
    State m_state = All;
};

} // namespace Drevon::Zalento
