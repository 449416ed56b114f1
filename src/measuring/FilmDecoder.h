#pragma once

#include "measuring/Result.h"

#include <QImage>
#include <QString>

#include <cstdint>
#include <deque>
#include <limits>
#include <memory>
#include <optional>
#include <unordered_set>
#include <vector>

struct AVCodecContext;
struct AVFormatContext;
struct AVFrame;
struct AVPacket;
struct AVStream;
struct SwsContext;

namespace Drevon::Zalento::Measuring {

/** The frames of a film, in the order in which they are shown. */
struct FrameList
{
    std::vector<std::int64_t> marks; ///< by which FilmDecoder tells them apart
    std::vector<std::int64_t> times; ///< when they are shown, in ticks of the film's clock
    std::vector<int> starts;         ///< the numbers of those from which decoding can begin
    double secondsPerTick = 0.0;     ///< of the film's clock
};

/**
 * Decodes a film's best picture stream one frame after the other, with FFmpeg's libraries. A frame
 * has a mark of its own: the time when it is shown; or, where the file does not tell that, the time
 * when it is decoded.
 */
class FilmDecoder
{
public:
    /** @return a problem that names the file */
    static Result<std::unique_ptr<FilmDecoder>> open(const QString &path);

    /**
     * Reads the whole file without decoding it; then nothing is left to decode.
     * @return nothing where the file does not tell every time
     */
    std::optional<FrameList> framesInFile();
    /** The same of what is decoded from here to the end. */
    std::optional<FrameList> decodedFrames();

    /** Goes to a start at or before the frame of this mark, which some formats find but roughly. */
    bool seek(std::int64_t mark);
    /** Decodes the next frame. False at the end. */
    bool next();
    /** Of the frame that was decoded last; nothing at the beginning, at the end and after a seek.
     */
    const std::optional<std::int64_t> &mark() const { return m_mark; }
    /** It, or one that it was made from, could not be decoded. */
    bool isDamaged() const;
    /** Its picture, upright and of square pixels; null for one of too many. */
    QImage image();

private:
    struct Closer
    {
        void operator()(AVFormatContext *format) const;
        void operator()(AVCodecContext *codec) const;
        void operator()(AVPacket *packet) const;
        void operator()(AVFrame *frame) const;
        void operator()(SwsContext *scaler) const;
    };

    struct GivenPacket
    {
        std::int64_t mark;
        bool isStart;
    };

    FilmDecoder();
    Outcome openFile(const QString &path);
    Outcome openCodec();
    bool readPacket();
    bool feed();
    void noteDamage(std::int64_t mark);
    void spreadDamage(const GivenPacket &packet);
    QSize squarePixelSize() const;
    void setColours() const;
    double rotationDEG() const;

    std::unique_ptr<AVFormatContext, Closer> m_format;
    std::unique_ptr<AVCodecContext, Closer> m_codec;
    std::unique_ptr<AVPacket, Closer> m_packet;
    std::unique_ptr<AVFrame, Closer> m_frame;
    std::unique_ptr<SwsContext, Closer> m_scaler;
    AVStream *m_stream = nullptr;     // of the format
    bool m_isInDecodingOrder = false; // all times of the file
    std::optional<std::int64_t> m_mark;
    std::deque<GivenPacket> m_given; // to the decoder lately
    bool m_isBroken = false;         // from some packet on until the next start
    std::int64_t m_soundFrom = std::numeric_limits<std::int64_t>::min();
    std::unordered_set<std::int64_t> m_damaged;
};

} // namespace Drevon::Zalento::Measuring
