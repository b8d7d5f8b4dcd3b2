#include "preview/SourcePicture.h"

#include "preview/FileEnd.h"

#include <array>
#include <QFileInfo>

namespace {

/// What the contents tell, for formats that can be told from them; the suffix for the rest. Raw photographs
/// would be taken for TIFF files.
QByteArray formatOf(QFile &file)
{
    static const QList<QByteArray> toldByContents{"jpg", "jpeg", "png", "webp", "bmp", "gif", "tif", "tiff"};
    const QByteArray suffix = QFileInfo(file.fileName()).suffix().toLower().toLatin1();
    const QByteArray contents =
        toldByContents.contains(suffix) ? QImageReader::imageFormat(&file) : QByteArray();
    return contents.isEmpty() ? suffix : contents;
}

/// The decoder's own sizes are so many eighths of the whole, rounded up. The ones between take longer than
/// the whole.
constexpr int decoderSteps = 8;
constexpr std::array fastEighths{1, 2, 4};

QSize reducedTo(QSize whole, int eighths)
{
    const auto part = [eighths](int side) {
        return int((qint64(side) * eighths + decoderSteps - 1) / decoderSteps);
    };
    return {part(whole.width()), part(whole.height())};
}

} // namespace

SourcePicture::SourcePicture(const QString &path) : m_file(path)
{
    if (!m_file.open(QIODevice::ReadOnly))
        return;
    m_reader.setDevice(&m_file);
    m_reader.setFormat(formatOf(m_file));
}

bool SourcePicture::isJpeg() const
{
    const QByteArray format = m_reader.format();
    return format == "jpg" || format == "jpeg";
}

QSize SourcePicture::size()
{
    if (!m_file.isOpen())
        return {};
    if (!m_whole.isNull())
        return m_whole.size();
    const QSize size = m_reader.size();
    if (size.isValid())
        return size;
    m_whole = m_reader.read();
    return m_whole.isNull() ? QSize() : m_whole.size();
}

QImage SourcePicture::read(QSize least)
{
    if (!m_file.isOpen() || !FileEnd::isThere(m_file))
        return {};
    if (!m_whole.isNull())
        return m_whole;
    const QSize whole = m_reader.size();
    if (isJpeg() && whole.isValid()) {
        for (const int eighths : fastEighths) {
            const QSize reduced = reducedTo(whole, eighths);
            if (reduced.width() < least.width() || reduced.height() < least.height())
                continue;
            m_reader.setScaledSize(reduced);
            break;
        }
    }
    return m_reader.read();
}
