#include "measure/LibraryMessages.h"

namespace Drevon::Zalento::Apps {

namespace {

thread_local LibraryMessages *keeper = nullptr;

} // namespace

LibraryMessages::LibraryMessages()
{
    keeper = this;
}

LibraryMessages::~LibraryMessages()
{
    keeper = nullptr;
}

QStringList LibraryMessages::messages() const
{
    return QString::fromUtf8(m_text).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

bool LibraryMessages::keep(const QByteArray &text)
{
    if (keeper) {
        keeper->m_text += text;
    }
    return keeper != nullptr;
}

} // namespace Drevon::Zalento::Apps
