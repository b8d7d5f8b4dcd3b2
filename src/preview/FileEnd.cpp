#include "preview/FileEnd.h"

#include <algorithm>
#include <cstdlib>
#include <QByteArray>
#include <QIODevice>
#include <QtEndian>

namespace {

constexpr qint64 tailBytes = 65536;

QByteArray bytesAt(QIODevice &file, qint64 position, qint64 count)
{
    return file.seek(std::max(qint64(0), position)) ? file.read(count) : QByteArray();
}

/// Where the compressed data of a JPEG begin: behind the header segments, one of which may hold a small JPEG
/// with an end mark of its own. -1 when the file ends before.
qint64 startOfScan(QIODevice &file)
{
    constexpr int headBytes = 4;
    constexpr uchar markerStart = 0xff;
    constexpr uchar scanMarker = 0xda;
    for (qint64 position = 2;;) {
        const QByteArray head = bytesAt(file, position, headBytes);
        if (head.size() < headBytes || uchar(head[0]) != markerStart)
            return -1;
        const uchar marker = uchar(head[1]);
        if (marker == scanMarker)
            return position;
        // Markers may be preceded by any number of fill bytes.
        position += marker == markerStart ? 1 : 2 + qFromBigEndian<quint16>(head.constData() + 2);
    }
}

/// Inside the compressed data the two bytes of the end mark never stand next to each other.
bool jpegEnds(QIODevice &file)
{
    const QByteArray endMark = QByteArrayLiteral("\xff\xd9");
    const qint64 start = startOfScan(file);
    if (start < 0)
        return false;
    for (qint64 end = file.size(); end > start;) {
        const qint64 from = std::max(start, end - tailBytes);
        if (bytesAt(file, from, end - from).contains(endMark))
            return true;
        // One byte of overlap, for a mark that lies across.
        end = from > start ? from + 1 : start;
    }
    return false;
}

bool bmpEnds(QIODevice &file)
{
    constexpr int headBytes = 34;
    constexpr quint32 newHeaderBytes = 40;
    constexpr quint32 runLength8 = 1;
    constexpr quint32 runLength4 = 2;
    const QByteArray head = bytesAt(file, 0, headBytes);
    if (head.size() < headBytes)
        return false;
    const auto number = [&head](int offset) {
        return qFromLittleEndian<quint32>(head.constData() + offset);
    };
    const quint32 compression = number(30);
    if (number(14) < newHeaderBytes || compression == runLength8 || compression == runLength4)
        return true;
    const qint64 bitsPerPixel = qFromLittleEndian<quint16>(head.constData() + 28);
    const qint64 width = qint32(number(18));
    const qint64 height = std::abs(qint64(qint32(number(22))));
    const qint64 rowBytes = (width * bitsPerPixel + 31) / 32 * 4;
    // A width or height that makes no sense is for the decoder to refuse.
    return width <= 0 || file.size() >= qint64(number(10)) + rowBytes * height;
}

bool gifEnds(QIODevice &file)
{
    constexpr char trailer = 0x3b;
    QByteArray tail = bytesAt(file, file.size() - tailBytes, tailBytes);
    // Some writers pad the file with zeros.
    while (tail.endsWith('\0'))
        tail.chop(1);
    return tail.endsWith(trailer);
}

} // namespace

bool FileEnd::isThere(QIODevice &file)
{
    const qint64 position = file.pos();
    const QByteArray magic = bytesAt(file, 0, 3);
    bool there = true;
    if (magic.startsWith(QByteArrayLiteral("\xff\xd8")))
        there = jpegEnds(file);
    else if (magic.startsWith("BM"))
        there = bmpEnds(file);
    else if (magic == "GIF")
        there = gifEnds(file);
    file.seek(position);
    return there;
}
