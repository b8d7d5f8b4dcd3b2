#include "capture/source/ImageSequenceSource.h"

#include <algorithm>
#include <opencv2/imgproc.hpp>
#include <opencv2/videoio.hpp>
#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <QRegularExpression>
#include <utility>

ImageSequenceSource::ImageSequenceSource(QString path, std::shared_ptr<CaptureClock> clock)
    : m_path(std::move(path)), m_pacer(std::move(clock))
{
}

QStringList ImageSequenceSource::imagesLike(const QString &path)
{
    const QFileInfo info(path);
    static const QRegularExpression numbered(QStringLiteral("^(.*?)(\\d+)(\\D*)$"));
    const QRegularExpressionMatch match = numbered.match(info.fileName());
    if (!match.hasMatch())
        return info.isFile() ? QStringList{path} : QStringList();
    const QString before = match.captured(1);
    const QString after = match.captured(3);
    QList<std::pair<qulonglong, QString>> found;
    const QStringList names = info.dir().entryList(QDir::Files, QDir::Name);
    for (const QString &name : names) {
        const QString middle = name.mid(before.size(), name.size() - before.size() - after.size());
        bool isNumber = false;
        const qulonglong number = middle.toULongLong(&isNumber);
        if (isNumber && name == before + middle + after)
            found.append({number, info.dir().filePath(name)});
    }
    std::sort(found.begin(), found.end());
    QStringList paths;
    for (const auto &image : std::as_const(found))
        paths.append(image.second);
    return paths;
}

bool ImageSequenceSource::readOne(const QString &path, cv::Mat &picture)
{
    QImageReader reader(path);
    reader.setAutoTransform(true);
    const QImage image = reader.read().convertToFormat(QImage::Format_RGB888);
    if (image.isNull())
        return false;
    const cv::Mat view(image.height(), image.width(), CV_8UC3, const_cast<uchar *>(image.constBits()),
                       size_t(image.bytesPerLine()));
    cv::cvtColor(view, picture, cv::COLOR_RGB2BGR);
    m_size = picture.size();
    return true;
}

bool ImageSequenceSource::open()
{
    m_images = imagesLike(m_path);
    m_next = 0;
    m_pacer.start(framesPerSecond);
    return isOpened();
}

bool ImageSequenceSource::isOpened() const
{
    return !m_images.isEmpty();
}

bool ImageSequenceSource::read(cv::Mat &picture)
{
    picture.release();
    if (!isOpened())
        return false;
    m_pacer.waitForNext();
    for (qsizetype tries = 0; tries < m_images.size(); ++tries) {
        const QString path = m_images.at(m_next);
        m_next = (m_next + 1) % m_images.size();
        if (readOne(path, picture))
            return true;
    }
    return false;
}

bool ImageSequenceSource::set(int, double)
{
    return false;
}

double ImageSequenceSource::get(int property)
{
    if (property == cv::CAP_PROP_FRAME_WIDTH)
        return m_size.width;
    return property == cv::CAP_PROP_FRAME_HEIGHT ? m_size.height : -1;
}

void ImageSequenceSource::close()
{
    m_images.clear();
}
