#include "Thumbnails.h"

#include "DocumentList.h"

#include "measuring/Picture.h"

#include <QFutureWatcher>
#include <QMutexLocker>
#include <QtConcurrentRun>

#include <algorithm>

namespace Drevon::Zalento {

namespace {

// Sharp enough on a screen of twice the usual density.
constexpr QSize boundsPX(192, 144);

// More than 500 of them.
constexpr int keptBytes = 64 * 1024 * 1024;

const QLatin1String scheme("image://thumbnail/");

class ThumbnailResponse : public QQuickImageResponse
{
public:
    ThumbnailResponse(Thumbnails &thumbnails, const QString &path)
    {
        connect(&m_watcher, &QFutureWatcherBase::finished, this, &QQuickImageResponse::finished);
        m_watcher.setFuture(
            QtConcurrent::run(thumbnails.pool(), [&thumbnails, path, wanted = m_wanted] {
                return thumbnails.image(path, wanted);
            }));
    }

    QQuickTextureFactory *textureFactory() const override
    {
        return QQuickTextureFactory::textureFactoryForImage(shown(m_watcher.result()));
    }
    void cancel() override { *m_wanted = false; }

private:
    // The list tells why there is none; the scene's own warning would tell nobody.
    static QImage shown(const QImage &made)
    {
        if (!made.isNull()) {
            return made;
        }
        QImage nothing(1, 1, QImage::Format_ARGB32_Premultiplied);
        nothing.fill(Qt::transparent);
        return nothing;
    }

    Thumbnails::Wanted m_wanted = std::make_shared<std::atomic_bool>(true);
    QFutureWatcher<QImage> m_watcher;
};

} // namespace

// One processor is left to the operator.
Thumbnails::Thumbnails()
    : m_images(keptBytes)
{
    m_pool.setMaxThreadCount(std::max(1, QThread::idealThreadCount() - 1));
}

// Nothing in a path has a meaning of its own in hexadecimal digits.
QString Thumbnails::sourceOf(const QString &picturePath)
{
    return scheme + QString::fromLatin1(picturePath.toUtf8().toHex());
}

QString Thumbnails::pathOf(const QString &id)
{
    return QString::fromUtf8(QByteArray::fromHex(id.toLatin1()));
}

QImage Thumbnails::image(const QString &picturePath, const Wanted &wanted)
{
    const QDateTime stamp = stampOf(picturePath);
    const QImage before = kept(picturePath, stamp);
    if (!before.isNull() || !*wanted) {
        return before;
    }
    const Measuring::Result<QImage> made = Measuring::loadThumbnail(picturePath, boundsPX);
    if (!made) {
        Q_EMIT failed(picturePath, made.problem().textAfter(picturePath));
        return {};
    }
    const QMutexLocker lock(&m_mutex);
    m_images.insert(picturePath, new Kept{*made, stamp}, static_cast<int>(made->sizeInBytes()));
    return *made;
}

QImage Thumbnails::kept(const QString &picturePath, const QDateTime &stamp)
{
    const QMutexLocker lock(&m_mutex);
    const Kept *found = m_images.object(picturePath);
    return found && found->stamp == stamp ? found->image : QImage();
}

QQuickImageResponse *ThumbnailProvider::requestImageResponse(const QString &id, const QSize &)
{
    return new ThumbnailResponse(m_thumbnails, Thumbnails::pathOf(id));
}

} // namespace Drevon::Zalento
