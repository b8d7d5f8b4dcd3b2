#include "jobs/render/FramePicture.h"

#include "shared/TimeText.h"

#include <cmath>
#include <QFontMetrics>
#include <QPainter>

namespace framepicture {

namespace {

QString words(const char *text)
{
    return QCoreApplication::translate("MorvaRobot", text);
}

} // namespace

QStringList addMargins(QImage &image, const QSize &size, int index)
{
    QImage whole(size, QImage::Format_ARGB32);
    if (whole.isNull())
        return {words(QT_TRANSLATE_NOOP("MorvaRobot", "Failed to create image of size %1x%2"))
                    .arg(size.width())
                    .arg(size.height())};
    QStringList reports;
    const int x = (size.width() - image.width()) / 2;
    const int y = (size.height() - image.height()) / 2;
    if (y > 0 || x > 0)
        reports.append(
            words(QT_TRANSLATE_NOOP("MorvaRobot", "Image #%1: Margins added (top: %2px, left: %3px)"))
                .arg(index)
                .arg(y)
                .arg(x));
    whole.fill(Qt::transparent);
    QPainter painter(&whole);
    painter.drawImage(x, y, image);
    painter.end();
    image = whole;
    return reports;
}

QString timecodeText(const QString &scene, const QString &layer, int handled, double fps)
{
    constexpr int shownCharacters = 5;
    const double seconds = qFuzzyIsNull(fps) ? 0 : handled / fps;
    const double whole = std::floor(seconds);
    const int remainder = static_cast<int>(handled - whole * fps);
    return QStringLiteral("%1, %2  |  %3  |  %4 :%5")
        .arg(words(QT_TRANSLATE_NOOP("MorvaRobot", "Scene: %1")).arg(scene.left(shownCharacters)),
             words(QT_TRANSLATE_NOOP("MorvaRobot", "Layer: %1")).arg(layer.left(shownCharacters)),
             QString::number(handled).rightJustified(7, QLatin1Char('0')),
             morvane::secondsToHHMMSS(static_cast<int>(seconds)),
             QString::number(remainder).rightJustified(2, QLatin1Char('0')));
}

} // namespace framepicture

namespace {

// What an opaque picture lacks of alpha, it has in its bytes already.
void bringToArgb(QImage &image)
{
    if (image.format() == QImage::Format_RGB32)
        image.reinterpretAsFormat(QImage::Format_ARGB32);
    else
        image.convertTo(QImage::Format_ARGB32);
}

} // namespace

FramePictureMaker::FramePictureMaker(const RenderInput &input, FrameFilter filter)
    : m_input(input), m_filter(std::move(filter))
{
}

FramePicture FramePictureMaker::make(int index, int handled) const
{
    const RenderFrame &frame = m_input.frames.at(index - m_input.rangeStart);
    FramePicture picture;
    if (!picture.image.load(frame.path)) {
        picture.outcome = FramePicture::Outcome::Skipped;
        picture.reports.append(tr("Cannot load %1. Skipping image").arg(frame.path));
        return picture;
    }
    bringToArgb(picture.image);
    runFilters(picture.image);
    fit(picture, index);
    if (picture.image.isNull()) {
        picture.outcome = FramePicture::Outcome::Lost;
        return picture;
    }
    picture.image = picture.image.mirrored(frame.mirrored, false);
    if (m_input.usesExportSize()) {
        picture.image = picture.image.scaledToWidth(m_input.exportSize.width(), Qt::SmoothTransformation);
        picture.reports += framepicture::addMargins(picture.image, m_input.exportSize, index);
    }
    if (m_input.timecode)
        drawTimecode(picture, handled);
    bringToArgb(picture.image);
    return picture;
}

void FramePictureMaker::runFilters(QImage &image) const
{
    if (m_input.postProcessing == Zum::NoProcessing || m_input.postProcessSettings.isEmpty() || !m_filter)
        return;
    const double strength = m_input.ramPreviewHeight < 1 ? 1.0 : image.height() / m_input.ramPreviewHeight;
    image = m_filter(image, m_input.postProcessSettings, strength);
}

void FramePictureMaker::fit(FramePicture &picture, int index) const
{
    QImage &image = picture.image;
    switch (m_input.policy) {
        case Zum::ExportPolicyFitByWidth:
            image = image.scaledToWidth(m_input.cropSize.width(), Qt::SmoothTransformation);
            break;
        case Zum::ExportPolicyFitByHeight:
            image = image.scaledToHeight(m_input.cropSize.height(), Qt::SmoothTransformation);
            break;
        default:
            break;
    }
    // A picture of another shape than the movie's fits in one direction only.
    if (!image.isNull() && image.size() != m_input.cropSize)
        picture.reports += framepicture::addMargins(image, m_input.cropSize, index);
}

void FramePictureMaker::drawTimecode(FramePicture &picture, int handled) const
{
    constexpr int fontPixels = 18;
    constexpr int bandBoxes = 3;
    QFont font;
    font.setPixelSize(fontPixels);
    const QFontMetrics metrics(font);
    const int boxWidth =
        metrics.horizontalAdvance(QStringLiteral("Scene: 00000, Layer: 00000    9999999    99:99:99:99"))
        + 16;
    const int boxHeight = metrics.height() + 8;
    const QSize size = picture.image.size();
    const QRect band(QPoint(0, size.height() - bandBoxes * boxHeight),
                     QPoint(size.width() - 1, size.height() - 1));
    if (band.bottom() < band.top() || band.right() < 0) {
        picture.reports.append(tr("Error drawing timecode"));
        return;
    }
    QPainter painter(&picture.image);
    painter.setFont(font);
    painter.fillRect(QRect((size.width() - boxWidth) / 2, band.top() + (band.height() - boxHeight) / 2,
                           boxWidth, boxHeight),
                     Qt::black);
    painter.setPen(Qt::white);
    painter.drawText(band, Qt::AlignCenter,
                     framepicture::timecodeText(m_input.scene, m_input.layer, handled, m_input.fps));
}
