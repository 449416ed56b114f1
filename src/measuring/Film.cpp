#include "measuring/Film.h"

#include "measuring/FilmDecoder.h"
#include "measuring/Text.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <unordered_map>
#include <utility>

namespace Drevon::Zalento::Measuring {

namespace {

enum class Reached {
    Frame,
    Later,  ///< decoding began behind it
    Nowhere ///< it was passed
};

// Of ascending numbers the place of the last one that is not above @p limit, or of the first.
template <typename Number>
std::size_t placeOf(const std::vector<Number> &ascending, Number limit)
{
    const auto above = std::upper_bound(ascending.begin(), ascending.end(), limit);
    const auto count = static_cast<std::size_t>(std::distance(ascending.begin(), above));
    return count > 0 ? count - 1 : 0;
}

Result<FrameList> framesOf(const QString &path)
{
    for (const auto list : {&FilmDecoder::framesInFile, &FilmDecoder::decodedFrames}) {
        const auto decoder = FilmDecoder::open(path);
        if (!decoder) {
            return decoder.problem();
        }
        if (const std::optional<FrameList> frames = ((**decoder).*list)()) {
            return *frames;
        }
    }
    return Problem{path, Text::tr("does not tell when its frames are shown")};
}

} // namespace

/** The frames by their numbers: finds where to begin to decode. */
class Film::Reader
{
public:
    Reader(QString path, FrameList frames)
        : m_path(std::move(path))
        , m_frames(std::move(frames))
    {
        for (std::size_t i = 0; i < m_frames.marks.size(); ++i) {
            m_numbers.emplace(m_frames.marks[i], static_cast<int>(i));
        }
        if (m_frames.starts.empty()) {
            m_frames.starts = {0}; // decoders find one for themselves
        }
    }

    const FrameList &frames() const { return m_frames; }

    Result<QImage> frame(int number)
    {
        if (!m_decoder && !reopen()) {
            return Problem{m_path, Text::tr("can no longer be read")};
        }
        const int before = shownNumber();
        Reached reached = Reached::Frame;
        if (before != number) {
            const bool isNext = before >= 0 && before < number && startBefore(number, 0) <= before;
            reached = isNext ? decodeTo(number, Reached::Nowhere) : goTo(number);
        }
        if (reached != Reached::Frame || m_decoder->isDamaged()) {
            return Problem{m_path, Text::tr("frame %1 is damaged").arg(number + 1)};
        }
        const QImage image = m_decoder->image();
        return image.isNull() ? Result<QImage>(Problem{
                                    m_path, Text::tr("frame %1 is too large").arg(number + 1)})
                              : Result<QImage>(image);
    }

private:
    // Of the frame that was decoded last; -1 for none, or for one that is not in the list.
    int shownNumber() const
    {
        const auto &mark = m_decoder->mark();
        const auto found = mark ? m_numbers.find(*mark) : m_numbers.end();
        return found == m_numbers.end() ? -1 : found->second;
    }

    // The number of a start at or before the frame, so many starts farther back.
    int startBefore(int number, std::size_t farther) const
    {
        const std::size_t place = placeOf(m_frames.starts, number);
        return m_frames.starts[place - std::min(place, farther)];
    }

    // Where a format finds its places but roughly, from farther and farther back, at last from the
    // beginning.
    Reached goTo(int number)
    {
        const std::size_t starts = placeOf(m_frames.starts, number) + 1;
        Reached reached = Reached::Later;
        for (std::size_t farther = 0; farther < starts && reached == Reached::Later;
             farther = 2 * farther + 1) {
            const auto start = static_cast<std::size_t>(startBefore(number, farther));
            if (m_decoder->seek(m_frames.marks[start])) {
                reached = decodeTo(number, Reached::Later);
            }
        }
        return reached == Reached::Later && reopen() ? decodeTo(number, Reached::Later) : reached;
    }

    bool reopen()
    {
        auto again = FilmDecoder::open(m_path);
        if (again) {
            m_decoder = std::move(*again);
        }
        return bool(again);
    }

    // @param ifLater what it is when already the first frame lies behind it
    Reached decodeTo(int number, Reached ifLater)
    {
        Reached ifPassed = ifLater;
        while (m_decoder->next()) {
            const int shown = shownNumber();
            if (shown >= number) {
                return shown == number ? Reached::Frame : ifPassed;
            }
            ifPassed = Reached::Nowhere;
        }
        return ifPassed;
    }

    QString m_path;
    FrameList m_frames;
    std::unordered_map<std::int64_t, int> m_numbers; // by their marks
    std::unique_ptr<FilmDecoder> m_decoder;
};

Film::Film(std::unique_ptr<Reader> reader)
    : m_reader(std::move(reader))
{}

Film::Film(Film &&) noexcept = default;
Film &Film::operator=(Film &&) noexcept = default;
Film::~Film() = default;

Result<Film> Film::open(const QString &path)
{
    const Result<FrameList> frames = framesOf(path);
    return frames ? Result<Film>(Film(std::make_unique<Reader>(path, *frames)))
                  : Result<Film>(frames.problem());
}

int Film::frameCount() const
{
    return static_cast<int>(m_reader->frames().times.size());
}

double Film::secondsOf(int number) const
{
    const FrameList &frames = m_reader->frames();
    const std::int64_t time = frames.times[static_cast<std::size_t>(number)];
    return static_cast<double>(time - frames.times.front()) * frames.secondsPerTick;
}

int Film::frameAt(double seconds) const
{
    const FrameList &frames = m_reader->frames();
    const auto ticks = static_cast<std::int64_t>(std::floor(seconds / frames.secondsPerTick));
    return static_cast<int>(placeOf(frames.times, frames.times.front() + ticks));
}

Result<QImage> Film::frame(int number)
{
    return m_reader->frame(number);
}

} // namespace Drevon::Zalento::Measuring
