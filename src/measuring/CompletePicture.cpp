#include "measuring/CompletePicture.h"

#include <QtEndian>

namespace Drevon::Zalento::Measuring {

namespace {

// Second bytes of JPEG markers (ITU-T T.81, table B.1); the first one is 0xff.
constexpr int markerStart = 0xff;
constexpr int stuffedByte = 0x00;
constexpr int firstRestart = 0xd0;
constexpr int endOfImage = 0xd9;
constexpr int temporary = 0x01;

constexpr int lengthBytes = 2;

int byteAt(const QByteArray &content, int position)
{
    return static_cast<unsigned char>(content[position]);
}

// Inside compressed data 0xff is followed by 0; such pairs and fill bytes are no markers.
int nextMarker(const QByteArray &content, int position)
{
    for (; position + 1 < content.size(); ++position) {
        const int second = byteAt(content, position + 1);
        if (byteAt(content, position) == markerStart && second != stuffedByte &&
            second != markerStart) {
            return position;
        }
    }
    return -1;
}

bool hasLength(int marker)
{
    return marker != temporary && (marker < firstRestart || marker > endOfImage);
}

// Markers inside a segment, such as those of an embedded thumbnail, are skipped with it.
bool isCompleteJpeg(const QByteArray &content)
{
    int position = nextMarker(content, 0);
    while (position >= 0) {
        const int marker = byteAt(content, position + 1);
        if (marker == endOfImage) {
            return true;
        }
        position += 2;
        if (hasLength(marker)) {
            if (position + lengthBytes > content.size()) {
                return false;
            }
            position += qFromBigEndian<quint16>(content.constData() + position);
        }
        position = nextMarker(content, position);
    }
    return false;
}

// Fields of the BMP file header, little-endian.
constexpr int bmpFileSizeAt = 2;
constexpr int bmpHeaderBytes = 14;

bool isCompleteBmp(const QByteArray &content)
{
    if (content.size() < bmpHeaderBytes) {
        return false;
    }
    const auto promised = qFromLittleEndian<quint32>(content.constData() + bmpFileSizeAt);
    return static_cast<quint32>(content.size()) >= promised;
}

// Blocks of a GIF file (GIF89a, sections 18 to 25). A table of colours has 3 * 2^(n+1) bytes where
// the low bits of a byte of flags say n.
constexpr int gifScreenFlagsAt = 10;
constexpr int gifScreenBytes = 13;
constexpr int gifImageFlagsAt = 9;
constexpr int gifImageBytes = 11; // with the byte on code sizes that begins the data
constexpr int gifExtensionBytes = 2;
constexpr int gifExtension = 0x21;
constexpr int gifImage = 0x2c;

int gifColourBytes(int flags)
{
    constexpr int hasTable = 0x80;
    constexpr int sizeBits = 0x07;
    return (flags & hasTable) != 0 ? 3 * (2 << (flags & sizeBits)) : 0;
}

// A chain of data is pieces with their lengths, up to one of length 0. -1 where it is cut off.
int endOfGifData(const QByteArray &content, int position)
{
    while (position < content.size()) {
        const int length = byteAt(content, position);
        position += 1 + length;
        if (length == 0) {
            return position;
        }
    }
    return -1;
}

// As far as the first frame goes.
bool isCompleteGif(const QByteArray &content)
{
    if (content.size() < gifScreenBytes) {
        return false;
    }
    int position = gifScreenBytes + gifColourBytes(byteAt(content, gifScreenFlagsAt));
    while (position >= 0 && position < content.size()) {
        const int block = byteAt(content, position);
        if (block == gifImage) {
            return position + gifImageBytes <= content.size() &&
                   endOfGifData(content, position + gifImageBytes +
                                             gifColourBytes(
                                                 byteAt(content, position + gifImageFlagsAt))) > 0;
        }
        if (block != gifExtension) {
            return false;
        }
        position = endOfGifData(content, position + gifExtensionBytes);
    }
    return false;
}

} // namespace

bool isCompletePicture(const QByteArray &content, const QByteArray &format)
{
    if (format == "jpeg" || format == "jpg") {
        return isCompleteJpeg(content);
    }
    if (format == "gif") {
        return isCompleteGif(content);
    }
    return format != "bmp" || isCompleteBmp(content);
}

} // namespace Drevon::Zalento::Measuring
