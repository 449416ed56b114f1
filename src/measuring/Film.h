#pragma once

#include "measuring/Export.h"
#include "measuring/Result.h"

#include <QImage>
#include <QSize>
#include <QString>
#include <QStringList>

#include <memory>

namespace Drevon::Zalento::Measuring {

/**
 * A film, frame by frame: frames are numbered from 0 in the order in which they are shown. The same
 * number gives the same picture, bit for bit, in whatever order they are asked for.
 */
class ZALENTO_MEASURING_EXPORT Film
{
public:
    /** Reads the list of the frames, for which the whole file is read. A problem names the file. */
    static Result<Film> open(const QString &path);

    /** Moves it; the other one may then only be destroyed or assigned to. */
    ///@{
    Film(Film &&) noexcept;
    Film &operator=(Film &&) noexcept;
    ///@}
    ~Film();

    /** At least one. */
    int frameCount() const;

    /** When the frame is shown, in seconds after the first one. */
    double secondsOf(int number) const;

    /** The number of the frame that is shown at that time; the first or the last one beyond. */
    int frameAt(double seconds) const;

    /**
     * The picture of a frame, upright and of square pixels. A damaged one has none: what a decoder
     * would make up for it is not to be measured.
     */
    Result<QImage> frame(int number);

private:
    class Reader;
    explicit Film(std::unique_ptr<Reader> reader);

    std::unique_ptr<Reader> m_reader;
};

/** Names of films: "*.mpg", ... ; also where films cannot be read. */
ZALENTO_MEASURING_EXPORT QStringList filmNamePatterns();

/** True for a file with such a name. */
ZALENTO_MEASURING_EXPORT bool isFilm(const QString &path);

/** The file of a frame's picture: "<film file name>.0-02-05.480.png", by its time, beside the film.
 */
ZALENTO_MEASURING_EXPORT QString framePathOf(const QString &filmPath, double seconds);

} // namespace Drevon::Zalento::Measuring
