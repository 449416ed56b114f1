#pragma once

#include <QImage>
#include <QQuickImageProvider>

namespace Drevon::Zalento {

/** Hands one picture at a time to the scene, as "image://<name>/<any id>". GUI thread only. */
class PictureProvider : public QQuickImageProvider
{
public:
    PictureProvider()
        : QQuickImageProvider(Image)
    {}

    void setPicture(const QImage &picture) { m_picture = picture; }

    QImage requestImage(const QString &, QSize *size, const QSize &) override
    {
        if (size) {
            *size = m_picture.size();
        }
        return m_picture;
    }

private:
    QImage m_picture;
};

} // namespace Drevon::Zalento
