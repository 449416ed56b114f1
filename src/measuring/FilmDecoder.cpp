#include "measuring/FilmDecoder.h"

#include "measuring/Picture.h"
#include "measuring/Text.h"

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/display.h>
#include <libswscale/swscale.h>
}

#include <QFile>
#include <QTransform>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace Drevon::Zalento::Measuring {

namespace {

// Pictures with fewer lines are standard definition, with its colours, where a film says nothing.
constexpr int highDefinitionLines = 720;
// The scaler may write so far beyond the end of a line.
constexpr int scalerPaddingPX = 32;
// So many packets at most are given to a decoder before a frame comes back.
constexpr std::size_t largestDelay = 64;
constexpr qint64 pixelsPerMegapixel = 1000000;

Problem failure(int error)
{
    if (error == AVERROR_STREAM_NOT_FOUND) {
        return {{}, Text::tr("cannot be read as a film: it has no pictures")};
    }
    if (error == AVERROR_INVALIDDATA) {
        return {{},
                Text::tr("cannot be read as a film: it is damaged, incomplete or something else")};
    }
    std::array<char, AV_ERROR_MAX_STRING_SIZE> text{};
    av_strerror(error, text.data(), text.size());
    return {{}, Text::tr("cannot be read as a film: %1").arg(QString::fromUtf8(text.data()))};
}

// AVI has the order of decoding alone; of codecs that tell their frames' kinds FFmpeg finds the
// other.
bool isInDecodingOrder(const AVFormatContext &format, AVCodecID codec)
{
    return QByteArray(format.iformat->name) == "avi" &&
           (codec == AV_CODEC_ID_H264 || codec == AV_CODEC_ID_HEVC);
}

bool hasTooManyPixels(const QSize &size)
{
    return qint64(size.width()) * size.height() > largestPictureMegapixels * pixelsPerMegapixel;
}

bool areDistinct(const std::vector<std::int64_t> &ascending)
{
    return std::adjacent_find(ascending.begin(), ascending.end()) == ascending.end();
}

} // namespace

void FilmDecoder::Closer::operator()(AVFormatContext *format) const
{
    avformat_close_input(&format);
}

void FilmDecoder::Closer::operator()(AVCodecContext *codec) const
{
    avcodec_free_context(&codec);
}

void FilmDecoder::Closer::operator()(AVPacket *packet) const
{
    av_packet_free(&packet);
}

void FilmDecoder::Closer::operator()(AVFrame *frame) const
{
    av_frame_free(&frame);
}

void FilmDecoder::Closer::operator()(SwsContext *scaler) const
{
    sws_freeContext(scaler);
}

FilmDecoder::FilmDecoder()
    : m_packet(av_packet_alloc())
    , m_frame(av_frame_alloc())
{}

// Opening

Result<std::unique_ptr<FilmDecoder>> FilmDecoder::open(const QString &path)
{
    av_log_set_level(AV_LOG_QUIET); // what matters of it, results tell
    std::unique_ptr<FilmDecoder> decoder(new FilmDecoder);
    if (const Outcome problem = decoder->openFile(path)) {
        return problem->in(path);
    }
    if (const Outcome problem = decoder->openCodec()) {
        return problem->in(path);
    }
    return decoder;
}

// A list of films in a file may not lead anywhere else.
Outcome FilmDecoder::openFile(const QString &path)
{
    AVDictionary *options = nullptr;
    av_dict_set(&options, "protocol_whitelist", "file", 0);
    AVFormatContext *format = nullptr;
    const QByteArray url = "file:" + QFile::encodeName(path);
    int error = avformat_open_input(&format, url.constData(), nullptr, &options);
    av_dict_free(&options);
    if (error < 0) {
        return failure(error);
    }
    m_format.reset(format);
    format->flags |= AVFMT_FLAG_GENPTS;
    error = avformat_find_stream_info(format, nullptr);
    return error < 0 ? Outcome(failure(error)) : Outcome();
}

Outcome FilmDecoder::openCodec()
{
    const AVCodec *codec = nullptr;
    const int index = av_find_best_stream(m_format.get(), AVMEDIA_TYPE_VIDEO, -1, -1, &codec, 0);
    if (index < 0) {
        return failure(index);
    }
    for (unsigned i = 0; i < m_format->nb_streams; ++i) {
        m_format->streams[i]->discard = AVDISCARD_ALL;
    }
    m_stream = m_format->streams[index];
    m_stream->discard = AVDISCARD_DEFAULT;
    m_codec.reset(avcodec_alloc_context3(codec));
    avcodec_parameters_to_context(m_codec.get(), m_stream->codecpar);
    m_codec->pkt_timebase = m_stream->time_base;
    // A frame is decoded when its packet is given, and what is wrong with it told then.
    m_codec->thread_type = FF_THREAD_SLICE;
    m_codec->thread_count = 0; // as many as there are processors
    m_codec->err_recognition = AV_EF_EXPLODE;
    if (hasTooManyPixels({m_codec->width, m_codec->height})) {
        return Problem{{}, Text::tr("has more than %1 megapixels").arg(largestPictureMegapixels)};
    }
    m_isInDecodingOrder = isInDecodingOrder(*m_format, codec->id);
    const int error = avcodec_open2(m_codec.get(), codec, nullptr);
    return error < 0 ? Outcome(failure(error)) : Outcome();
}

// The list of frames

std::optional<FrameList> FilmDecoder::framesInFile()
{
    std::vector<std::pair<std::int64_t, bool>> found; // time, and whether it is a start
    while (!m_isInDecodingOrder && readPacket()) {
        if (m_packet->size > 0 && !(m_packet->flags & AV_PKT_FLAG_DISCARD)) {
            found.emplace_back(m_packet->pts, m_packet->flags & AV_PKT_FLAG_KEY);
        }
    }
    std::sort(found.begin(), found.end());
    FrameList frames;
    frames.secondsPerTick = av_q2d(m_stream->time_base);
    for (const auto &[time, isStart] : found) {
        if (isStart) {
            frames.starts.push_back(static_cast<int>(frames.times.size()));
        }
        frames.times.push_back(time);
    }
    frames.marks = frames.times;
    const bool areKnown = !found.empty() && found.front().first != AV_NOPTS_VALUE;
    return areKnown && areDistinct(frames.times) ? std::optional<FrameList>(frames) : std::nullopt;
}

std::optional<FrameList> FilmDecoder::decodedFrames()
{
    FrameList frames;
    frames.secondsPerTick = av_q2d(m_stream->time_base);
    while (next()) {
        if (m_frame->key_frame) {
            frames.starts.push_back(static_cast<int>(frames.marks.size()));
        }
        frames.marks.push_back(*m_mark);
    }
    frames.times = frames.marks;
    std::sort(frames.times.begin(), frames.times.end());
    return !frames.times.empty() && areDistinct(frames.times) ? std::optional<FrameList>(frames)
                                                              : std::nullopt;
}

// Decoding

bool FilmDecoder::seek(std::int64_t mark)
{
    m_mark.reset();
    m_given.clear();
    m_isBroken = false;
    m_soundFrom = std::numeric_limits<std::int64_t>::min();
    const int error = avformat_seek_file(m_format.get(), m_stream->index,
                                         std::numeric_limits<std::int64_t>::min(), mark, mark, 0);
    avcodec_flush_buffers(m_codec.get());
    return error >= 0;
}

// The next packet of the stream; false at the end of the file.
bool FilmDecoder::readPacket()
{
    do {
        av_packet_unref(m_packet.get());
        if (av_read_frame(m_format.get(), m_packet.get()) < 0) {
            return false;
        }
    } while (m_packet->stream_index != m_stream->index);
    return true;
}

// Gives the decoder more to decode; at the end, that nothing follows.
bool FilmDecoder::feed()
{
    if (!readPacket()) {
        return avcodec_send_packet(m_codec.get(), nullptr) >= 0;
    }
    if (m_isInDecodingOrder) {
        m_packet->pts = m_packet->dts; // comes back with the frame
    }
    const bool isStart = m_packet->flags & AV_PKT_FLAG_KEY;
    m_given.push_back({m_packet->pts, isStart});
    if (m_given.size() > largestDelay) {
        m_given.pop_front();
    }
    spreadDamage(m_given.back());
    const int error = avcodec_send_packet(m_codec.get(), m_packet.get());
    if (error < 0 || (m_packet->flags & AV_PKT_FLAG_CORRUPT)) {
        noteDamage(m_packet->pts);
    }
    return error >= 0 || error == AVERROR_INVALIDDATA;
}

// What was given to the decoder behind a damaged frame is made from it.
void FilmDecoder::noteDamage(std::int64_t mark)
{
    m_damaged.insert(mark);
    m_isBroken = true;
    auto packet = std::find_if(m_given.begin(), m_given.end(),
                               [mark](const GivenPacket &given) { return given.mark == mark; });
    while (packet != m_given.end() && ++packet != m_given.end()) {
        spreadDamage(*packet);
    }
}

// Up to the next start; and behind that what is shown before it.
void FilmDecoder::spreadDamage(const GivenPacket &packet)
{
    if (m_isBroken && packet.isStart) {
        m_isBroken = false;
        m_soundFrom = packet.mark;
    }
    if (m_isBroken || packet.mark < m_soundFrom) {
        m_damaged.insert(packet.mark);
    }
}

bool FilmDecoder::next()
{
    m_mark.reset();
    int result = avcodec_receive_frame(m_codec.get(), m_frame.get());
    while ((result == AVERROR(EAGAIN) && feed()) || result == AVERROR_INVALIDDATA) {
        if (result == AVERROR_INVALIDDATA) {
            noteDamage(m_packet->pts);
        }
        result = avcodec_receive_frame(m_codec.get(), m_frame.get());
    }
    if (result < 0) {
        return false;
    }
    m_mark = m_isInDecodingOrder ? m_frame->pts : m_frame->best_effort_timestamp;
    if (m_frame->decode_error_flags != 0 || (m_frame->flags & AV_FRAME_FLAG_CORRUPT)) {
        noteDamage(*m_mark);
    }
    return true;
}

bool FilmDecoder::isDamaged() const
{
    return m_mark && m_damaged.count(*m_mark) > 0;
}

// The picture

// None of the picture's lines or columns is lost: the other side grows.
QSize FilmDecoder::squarePixelSize() const
{
    const AVRational ratio = av_guess_sample_aspect_ratio(m_format.get(), m_stream, m_frame.get());
    QSize size(m_frame->width, m_frame->height);
    if (ratio.num > ratio.den && ratio.den > 0) {
        size.setWidth(static_cast<int>(std::lround(size.width() * av_q2d(ratio))));
    } else if (ratio.num > 0 && ratio.num < ratio.den) {
        size.setHeight(static_cast<int>(std::lround(size.height() / av_q2d(ratio))));
    }
    return size;
}

void FilmDecoder::setColours() const
{
    const bool isUnspecified = m_frame->colorspace == AVCOL_SPC_UNSPECIFIED;
    const int guessed = m_frame->height < highDefinitionLines ? SWS_CS_ITU601 : SWS_CS_ITU709;
    const int *matrix = sws_getCoefficients(isUnspecified ? guessed : m_frame->colorspace);
    const bool isFullRange = m_frame->color_range == AVCOL_RANGE_JPEG;
    constexpr int one = 1 << 16; // of the scaler's fixed point
    sws_setColorspaceDetails(m_scaler.get(), matrix, isFullRange ? 1 : 0,
                             sws_getCoefficients(SWS_CS_DEFAULT), 1, 0, one, one);
}

double FilmDecoder::rotationDEG() const
{
    const std::uint8_t *matrix =
        av_stream_get_side_data(m_stream, AV_PKT_DATA_DISPLAYMATRIX, nullptr);
    const double angle =
        matrix ? av_display_rotation_get(reinterpret_cast<const std::int32_t *>(matrix)) : 0.0;
    return std::isfinite(angle) ? -angle : 0.0;
}

QImage FilmDecoder::image()
{
    const QSize size = squarePixelSize();
    if (hasTooManyPixels(size)) {
        return {};
    }
    m_scaler.reset(sws_getCachedContext(
        m_scaler.release(), m_frame->width, m_frame->height,
        static_cast<AVPixelFormat>(m_frame->format), size.width(), size.height(), AV_PIX_FMT_RGB32,
        SWS_BICUBIC | SWS_ACCURATE_RND | SWS_FULL_CHR_H_INT, nullptr, nullptr, nullptr));
    QImage image(size + QSize(scalerPaddingPX, 1), QImage::Format_RGB32);
    if (!m_scaler || image.isNull()) {
        return {};
    }
    setColours();
    std::uint8_t *const lines[] = {image.bits()};
    const int strides[] = {static_cast<int>(image.bytesPerLine())};
    sws_scale(m_scaler.get(), m_frame->data, m_frame->linesize, 0, m_frame->height, lines, strides);
    image = image.copy(QRect(QPoint(), size));
    const double rotation = rotationDEG();
    return rotation == 0.0 ? image : image.transformed(QTransform().rotate(rotation));
}

} // namespace Drevon::Zalento::Measuring
