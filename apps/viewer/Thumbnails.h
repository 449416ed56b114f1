#pragma once

#include "measuring/Result.h"

#include <QCache>
#include <QDateTime>
#include <QImage>
#include <QMutex>
#include <QObject>
#include <QQuickImageProvider>
#include <QString>
#include <QThreadPool>

#include <atomic>
#include <memory>

namespace Drevon::Zalento {

/** Small images of pictures, made in the background when they are asked for, and kept. */
class Thumbnails : public QObject
{
    Q_OBJECT

public:
    /** Cleared when nobody waits for an image any more. */
    using Wanted = std::shared_ptr<std::atomic_bool>;

    Thumbnails();

    /** Under this name the scene gets them. */
    static QString sourceOf(const QString &picturePath);
    static QString pathOf(const QString &id);

    /** Where they are made, one after the other. */
    QThreadPool *pool() { return &m_pool; }
    /** From any thread; takes its time. Null for a picture that cannot be read. */
    QImage image(const QString &picturePath, const Wanted &wanted);

Q_SIGNALS:
    /** From any thread. */
    void failed(const QString &picturePath, const QString &problem);

private:
    struct Kept
    {
        QImage image;
        QDateTime stamp; ///< of the file that it was made of
    };

    QImage kept(const QString &picturePath, const QDateTime &stamp);

    QMutex m_mutex; ///< of the images
    QCache<QString, Kept> m_images;
    QThreadPool m_pool;
};

/** Hands them to the scene, as "image://thumbnail/<id>"; belongs to its engine. */
class ThumbnailProvider : public QQuickAsyncImageProvider
{
public:
    explicit ThumbnailProvider(Thumbnails &thumbnails)
        : m_thumbnails(thumbnails)
    {}

    QQuickImageResponse *requestImageResponse(const QString &id, const QSize &) override;

private:
    Thumbnails &m_thumbnails;
};

} // namespace Drevon::Zalento
