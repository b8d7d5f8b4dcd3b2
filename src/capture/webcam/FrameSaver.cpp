#include "capture/webcam/FrameSaver.h"

#include "capture/CaptureNaming.h"
#include "capture/SafeImageFile.h"
#include "shared/Zum.h"

#include <algorithm>
#include <array>
#include <QBuffer>
#include <QDir>
#include <QFileInfo>
#include <QImageWriter>
#include <QtDebug>
#include <QTransform>

namespace {

constexpr QSizeF thumbnailSize(90, 60);
constexpr int thumbnailQuality = 67;
/// Seconds that a name may be put off by.
constexpr int mostNamesTried = 600;

/// The step from linear light to the nearest of 256 grays without a power for each pixel: the light at which
/// each gray begins.
class GrayScaleTable
{
public:
    GrayScaleTable()
    {
        for (int channel = 0; channel < 256; ++channel)
            m_light[channel] = Zum::srgbToLinear(channel);
        for (int gray = 1; gray < 256; ++gray)
            m_begin[gray] = beginOf(gray);
        for (int cell = 0, gray = 0; cell < cells; ++cell) {
            while (gray < 255 && m_begin[gray + 1] <= double(cell) / cells)
                ++gray;
            m_atCell[cell] = uchar(gray);
        }
    }

    int grayOf(QRgb pixel) const
    {
        const double light = 0.212655 * m_light[qRed(pixel)] + 0.715158 * m_light[qGreen(pixel)]
                             + 0.072187 * m_light[qBlue(pixel)];
        int gray = m_atCell[std::clamp(int(light * cells), 0, cells - 1)];
        while (gray < 255 && light >= m_begin[gray + 1])
            ++gray;
        return gray;
    }

private:
    static constexpr int cells = 4096;

    // Found by halving, since what counts is where the encoding itself turns over to the next gray.
    static double beginOf(int gray)
    {
        double below = 0;
        double above = 1;
        for (int i = 0; i < 60; ++i) {
            const double middle = (below + above) / 2;
            (Zum::linearToSrgb(middle) >= gray ? above : below) = middle;
        }
        return above;
    }

    std::array<double, 256> m_light{};
    std::array<double, 256> m_begin{};
    std::array<uchar, cells> m_atCell{};
};

} // namespace

FrameSaver::Encoded FrameSaver::encoded(const QImage &image, const char *format, int quality)
{
    Encoded result{{}, QStringLiteral("")};
    QBuffer buffer(&result.bytes);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, format);
    writer.setQuality(quality);
    if (!writer.write(image)) {
        result.reason = writer.errorString();
        result.bytes.clear();
    }
    return result;
}

QImage FrameSaver::cropped(const QImage &picture, int width, int height)
{
    const int w = width < 1 || width > picture.width() ? picture.width() : width;
    const int h = height < 1 || height > picture.height() ? picture.height() : height;
    return picture.copy(int((picture.width() - w) * 0.5), int((picture.height() - h) * 0.5), w, h);
}

QImage FrameSaver::grayscale(const QImage &picture)
{
    static const GrayScaleTable table;
    QImage gray = picture.convertToFormat(QImage::Format_RGB32);
    for (int y = 0; y < gray.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(gray.scanLine(y));
        for (int x = 0; x < gray.width(); ++x) {
            const int value = table.grayOf(line[x]);
            line[x] = qRgb(value, value, value);
        }
    }
    return gray;
}

QImage FrameSaver::processed(const QImage &picture, const CaptureRequest &request)
{
    QImage image = picture;
    if (request.crop) {
        image = cropped(picture, request.frameWidth, request.frameHeight);
        m_observer.progressCurrent(40);
    }
    m_observer.progressCurrent(50);
    if (request.grayscale) {
        m_observer.progressAction(tr("Applying grayscale..."));
        image = grayscale(image);
    }
    m_observer.progressCurrent(60);
    return request.rotate ? image.transformed(QTransform().rotate(180), Qt::SmoothTransformation) : image;
}

void FrameSaver::save(const QImage &picture, const CaptureRequest &request)
{
    m_observer.progressTotal(100);
    m_observer.progressAction(tr("Transfer image..."));
    m_observer.progressCurrent(3);
    if (!picture.isNull()) {
        m_observer.progressCurrent(25);
        const QImage image = processed(picture, request);
        if (m_saveTiffToo)
            saveTiff(image, request.fullPath);
        m_observer.progressCurrent(70);
        saveFiles(image, request);
        m_observer.progressCurrent(80);
    }
    m_observer.progressCurrent(100);
    m_observer.progressAction(QString());
    m_observer.progressCurrent(0);
    m_observer.progressTotal(0);
}

void FrameSaver::saveTiff(const QImage &image, const QString &fullPath)
{
    m_observer.progressAction(tr("Saving TIFF file..."));
    const QFileInfo info(fullPath);
    const QString folder = info.path() + QStringLiteral("/tiff/");
    if (!QDir().mkpath(folder)) {
        m_observer.progressAction(tr("Error: Failed to make dir to save TIFF image"));
        return;
    }
    const QByteArray bytes = encoded(image, "TIFF", 100).bytes;
    const QString path = folder + info.baseName() + QStringLiteral(".tiff");
    SafeImageFile file(path);
    if (bytes.isEmpty() || !file.write(bytes) || !file.flush()
        || file.placeAs(path) != SafeImageFile::Placed::Done)
        m_observer.progressAction(tr("Error: Failed to save TIFF image"));
}

QSize FrameSaver::thumbnailBounds() const
{
    return (thumbnailSize * m_thumbnailScale).toSize();
}

void FrameSaver::saveFiles(const QImage &image, const CaptureRequest &request)
{
    const QFileInfo info(request.fullPath);
    m_observer.progressAction(tr("Saving %1 file...").arg(info.suffix().toUpper()));
    const QString suffix = info.suffix().toLower();
    const bool isJpeg = suffix == QLatin1String("jpg") || suffix == QLatin1String("jpeg");
    const QString failed = tr("Error: Failed to save processed image");
    if (!isJpeg && suffix != QLatin1String("png")) {
        qDebug("Something went wrong");
        m_observer.progressAction(tr("Error saving file..."));
        m_observer.progressAction(failed);
        return;
    }
    if (info.path() != m_tidiedFolder) {
        m_tidiedFolder = info.path();
        SafeImageFile::removeLeftovers(m_tidiedFolder);
    }
    Paths paths{request.fullPath, request.tumbPath};
    Encoded thumbnail;
    const QString reason = saveImage(image, isJpeg, paths, thumbnail);
    if (!reason.isNull()) {
        m_observer.progressAction(failed);
        m_observer.imageFailed(reason);
        return;
    }
    saveThumbnail(thumbnail, paths);
}

QString FrameSaver::saveImage(const QImage &image, bool isJpeg, Paths &paths, Encoded &thumbnail) const
{
    const Encoded whole = encoded(image, isJpeg ? "JPEG" : "PNG", isJpeg ? 100 : -1);
    if (whole.bytes.isEmpty())
        return whole.reason;
    SafeImageFile file(paths.full);
    if (!file.write(whole.bytes))
        return file.reason();
    // While the disk takes the image.
    thumbnail = encoded(image.scaled(thumbnailBounds(), Qt::KeepAspectRatio, Qt::FastTransformation), "jpg",
                        thumbnailQuality);
    if (!file.flush())
        return file.reason();
    for (int tried = 0; tried < mostNamesTried; ++tried) {
        // The thumbnail bears the same number and time, so both names have to be free.
        if (!QFileInfo::exists(paths.thumb)) {
            const SafeImageFile::Placed placed = file.placeAs(paths.full);
            if (placed == SafeImageFile::Placed::Done)
                return QString();
            if (placed == SafeImageFile::Placed::Failed)
                return file.reason();
        }
        paths.full = capturenaming::nextSecond(paths.full);
        paths.thumb = capturenaming::nextSecond(paths.thumb);
    }
    return tr("There is a file of this name");
}

void FrameSaver::saveThumbnail(const Encoded &thumbnail, const Paths &paths)
{
    SafeImageFile file(paths.thumb);
    const bool written = !thumbnail.bytes.isEmpty() && file.write(thumbnail.bytes)
                         && file.placeAs(paths.thumb) == SafeImageFile::Placed::Done;
    if (written) {
        m_observer.frameSaved(paths.full, paths.thumb);
        file.flush();
        return;
    }
    m_observer.thumbnailFailed(thumbnail.bytes.isEmpty() ? thumbnail.reason : file.reason());
    m_observer.progressAction(tr("Error: Failed to save thumb"));
}
