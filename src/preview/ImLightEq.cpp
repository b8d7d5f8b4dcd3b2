#include "preview/ImLightEq.h"

#include "preview/MatConversion.h"

#include <algorithm>
#include <array>
#include <exception>
#include <opencv2/imgproc.hpp>
#include <opencv2/photo.hpp>
#include <optional>
#include <QStringList>
#include <QtDebug>

using namespace Qt::StringLiterals;

namespace {

/// Runs a step; what OpenCV throws ends here. Where it gave nothing the picture stays as it was.
template <typename Step>
QImage guarded(const char *name, const QImage &image, Step step)
{
    try {
        const QImage result = step();
        return result.isNull() ? image : result;
    } catch (const std::exception &failure) {
        qWarning("%s: %s", name, failure.what());
        return image;
    }
}

QImage inArgb32(QImage image)
{
    return std::move(image).convertToFormat(QImage::Format_ARGB32);
}

/// A number above 0, if that is what the value holds.
std::optional<double> positiveNumber(const QVariant &value)
{
    bool converted = false;
    const double number = value.toDouble(&converted);
    return converted && number > 0 ? std::optional(number) : std::nullopt;
}

/// Saturation is the second of the three bytes of a pixel.
void mapSaturation(cv::Mat &hsv, const std::array<uchar, 256> &table)
{
    for (int y = 0; y < hsv.rows; ++y) {
        uchar *row = hsv.ptr(y);
        for (int x = 0; x < hsv.cols; ++x)
            row[3 * x + 1] = table[row[3 * x + 1]];
    }
}

/// The way back from three planes of another colour space.
QImage coloursBack(const cv::Mat &mat, int code)
{
    QImage result(mat.cols, mat.rows, QImage::Format_ARGB32);
    cv::Mat pixels = morvane::pixelsOf(result);
    cv::cvtColor(mat, pixels, code, pixels.channels());
    return result;
}

} // namespace

ImLightEq::ImLightEq(QString backgroundFolder, QObject *parent)
    : QObject(parent), m_backgroundFolder(std::move(backgroundFolder))
{
    setKeyRange(0, 0);
}

void ImLightEq::setBackgroundFolder(const QString &folder)
{
    m_backgroundFolder = folder;
}

void ImLightEq::setColor(QColor color)
{
    if (color == this->color())
        return;
    color.getRgb(&m_red, &m_green, &m_blue, &m_alpha);
    m_keyCb = static_cast<qint16>(chroma::blueChroma(m_red, m_green, m_blue));
    m_keyCr = static_cast<qint16>(chroma::redChroma(m_red, m_green, m_blue));
}

void ImLightEq::setKeyRange(double similarity, double smoothness)
{
    similarity = std::clamp(similarity, 0.0, 1.0);
    smoothness = std::clamp(smoothness, 0.0, 1.0);
    if (m_alphaTable && similarity == m_similarity && smoothness == m_smoothness)
        return;
    m_similarity = similarity;
    m_smoothness = smoothness;
    m_alphaTable = std::make_unique<chroma::AlphaTable>(similarity, smoothness);
}

QImage ImLightEq::process(QImage image, const QVariantMap &settings, double strength)
{
    if (image.width() < 1 || image.height() < 1 || settings.isEmpty())
        return image;
    image = filtered(inArgb32(std::move(image)), settings, strength);
    const auto key = settings.constFind(u"chromakey"_s);
    const bool hasKey = key != settings.cend();
    if (!hasKey && !settings.contains(u"drawpoints"_s))
        return image;
    if (hasKey)
        image = keyed(std::move(image), key->toString());
    if (const auto background = settings.constFind(u"background"_s); background != settings.cend())
        image = overBackground(std::move(image), background->toString());
    return image;
}

QImage ImLightEq::filtered(QImage image, const QVariantMap &settings, double strength) const
{
    if (const auto contrast = positiveNumber(settings.value(u"contrast"_s)))
        image = changeContrast(image, *contrast / 10);
    if (const auto value = settings.constFind(u"saturation"_s); value != settings.cend()) {
        const int saturation = value->toInt();
        if (saturation != neutralSaturation)
            image = saturate(image, saturation);
    }
    if (const auto noise = positiveNumber(settings.value(u"denoise"_s)); noise && *noise * strength > 0)
        image = denoise(image, *noise * strength);
    const QStringList detail = settings.value(u"enhance"_s).toString().split(u';', Qt::SkipEmptyParts);
    if (detail.size() > 1) {
        bool converted = false;
        const double sigmaR = detail.at(1).toDouble(&converted);
        if (converted)
            image = enhance(image, detail.at(0).toInt() * strength, sigmaR * strength);
    }
    return image;
}

QImage ImLightEq::keyed(QImage image, const QString &text)
{
    const QStringList parts = text.split(u';', Qt::SkipEmptyParts);
    if (parts.size() != 3)
        return image;
    const auto similarity = positiveNumber(parts.at(0));
    const auto smoothness = positiveNumber(parts.at(1));
    const QColor key = QColor::fromString(parts.at(2));
    if (!similarity || !smoothness || !key.isValid())
        return image;
    setKeyRange(*similarity / 2500, *smoothness / 10000);
    setColor(key);
    return chromakey(std::move(image));
}

QImage ImLightEq::overBackground(QImage image, const QString &text)
{
    const QStringList parts = text.split(u';');
    if (parts.size() != 4 || parts.at(0) != "true"_L1 || parts.at(2).isEmpty())
        return image;
    bool converted = false;
    const double scale = parts.at(1).toDouble(&converted);
    const QString path = m_backgroundFolder + parts.at(2);
    const BackgroundLayer::Result background = m_background.read(path, image.size(), converted ? scale : 1.0);
    if (!background.readable) {
        qDebug().noquote().nospace() << "Failed top load background image \"" << path << '"';
        return image;
    }
    return BackgroundLayer::compose(background.image, image);
}

QImage ImLightEq::changeContrast(const QImage &image, double clip) const
{
    if (image.isNull()) {
        qDebug("\"changeContrast: input image is NULL\"");
        return {};
    }
    return guarded("changeContrast", image, [&] {
        const QImage source = inArgb32(image);
        cv::Mat lab;
        cv::cvtColor(morvane::pixelsOf(source), lab, cv::COLOR_BGR2Lab);
        cv::Mat lightness;
        cv::extractChannel(lab, lightness, 0);
        cv::Mat evened;
        cv::createCLAHE(std::clamp(clip, 0.001, 4.0))->apply(lightness, evened);
        cv::insertChannel(evened, lab, 0);
        return coloursBack(lab, cv::COLOR_Lab2BGR);
    });
}

QImage ImLightEq::saturate(const QImage &image, int value) const
{
    if (image.isNull()) {
        qDebug("saturate: input image is NULL");
        return {};
    }
    return guarded("saturate", image, [&] {
        const double share = std::clamp(value, 0, 100) / 100.0;
        std::array<uchar, 256> table;
        for (size_t i = 0; i < table.size(); ++i)
            table[i] = static_cast<uchar>(std::clamp(static_cast<int>(double(i) * (share + share)), 0, 255));
        const QImage source = inArgb32(image);
        cv::Mat hsv;
        cv::cvtColor(morvane::pixelsOf(source), hsv, cv::COLOR_RGB2HSV);
        mapSaturation(hsv, table);
        return coloursBack(hsv, cv::COLOR_HSV2RGB);
    });
}

QImage ImLightEq::denoise(const QImage &image, double sigma) const
{
    if (image.isNull())
        return {};
    return guarded("denoise", image, [&] {
        const double bounded = std::clamp(sigma, 10.0, 100.0);
        cv::Mat smooth;
        cv::bilateralFilter(morvane::bgrFrom(image), smooth, 10, bounded, bounded);
        return morvane::imageFrom(smooth);
    });
}

QImage ImLightEq::enhance(const QImage &image, double sigmaS, double sigmaR) const
{
    if (image.isNull())
        return {};
    return guarded("enhance", image, [&] {
        cv::Mat detailed;
        cv::detailEnhance(morvane::bgrFrom(image), detailed,
                          static_cast<float>(std::clamp(sigmaS, 0.0, 200.0)),
                          static_cast<float>(std::max(0.0, sigmaR)));
        return morvane::imageFrom(detailed);
    });
}

QImage ImLightEq::chromakey(QImage image) const
{
    if (image.isNull())
        return {};
    image = inArgb32(std::move(image));
    chroma::writeAlpha(image, m_keyCb, m_keyCr, *m_alphaTable);
    return image;
}
