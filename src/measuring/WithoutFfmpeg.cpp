// What a build without FFmpeg says where it would need it.
#include "measuring/Film.h"

#include "measuring/Text.h"

namespace Drevon::Zalento::Measuring {

class Film::Reader
{};

Film::Film(std::unique_ptr<Reader>) {}
Film::Film(Film &&) noexcept = default;
Film &Film::operator=(Film &&) noexcept = default;
Film::~Film() = default;

Result<Film> Film::open(const QString &path)
{
    return Problem{path, Text::tr("this build has no FFmpeg, which reads films")};
}

int Film::frameCount() const
{
    return 0;
}

double Film::secondsOf(int) const
{
    return 0.0;
}

int Film::frameAt(double) const
{
    return 0;
}

Result<QImage> Film::frame(int)
{
    return Problem();
}

} // namespace Drevon::Zalento::Measuring
