#pragma once

#include <QByteArray>
#include <QStringList>

namespace Drevon::Zalento::Apps {

/**
 * What Qt and the readers of pictures say in this thread, as long as this lives; so that it is told
 * with the picture that it is about. One a thread at a time.
 */
class LibraryMessages
{
public:
    LibraryMessages();
    ~LibraryMessages();
    LibraryMessages(const LibraryMessages &) = delete;
    LibraryMessages &operator=(const LibraryMessages &) = delete;

    /** One a line. */
    QStringList messages() const;

    /** @param text lines, or parts of them. @return false when nobody in this thread keeps it */
    static bool keep(const QByteArray &text);

private:
    QByteArray m_text;
};

} // namespace Drevon::Zalento::Apps
