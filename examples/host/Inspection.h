#pragma once

#include <measuring/Picture.h>
#include <zalento/item/ZaItem.h>

#include <QObject>
#include <QSize>
#include <QString>
#include <QUrl>

/** The picture that is inspected, and what this host stores of it. */
class Inspection : public QObject
{
    Q_OBJECT

    Q_PROPERTY(QUrl picture READ picture CONSTANT)
    Q_PROPERTY(QSize pictureSize READ pictureSize CONSTANT)
    /** What became of the last thing that was asked for. */
    Q_PROPERTY(QString message READ message NOTIFY messageChanged)

public:
    explicit Inspection(const Drevon::Zalento::Measuring::PictureIdentity &picture);

    /** Makes the pipe's nominal size known to all items. */
    static void setNominalSize(int sizeMM);

    QUrl picture() const;
    QSize pictureSize() const { return m_picture.size; }
    QString message() const { return m_message; }

    /** Puts stored colours and units on the item. */
    Q_INVOKABLE void decorate(Drevon::Zalento::ZaItem *item) const;

    /**
     * Saves what is measured on the item as a session beside the picture, which the viewer opens;
     * one that is there stays.
     */
    Q_INVOKABLE void save(Drevon::Zalento::ZaItem *item);

Q_SIGNALS:
    void messageChanged();

private:
    QString saved(Drevon::Zalento::ZaItem &item) const;

    Drevon::Zalento::Measuring::PictureIdentity m_picture;
    QString m_message;
};
