#include "shared/WebcamGlobal.h"

#include "shared/ColorMath.h"
#include "shared/Names.h"
#include "shared/NumberText.h"
#include "shared/PathText.h"
#include "shared/TimeText.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <QMetaProperty>
#include <QtDebug>

using namespace std::chrono_literals;

namespace {

struct BlendMode
{
    const char *text;
    const char *icon;
};

// In the order of Zum::BlendType.
constexpr std::array<BlendMode, 14> blendTable{{
    {QT_TRANSLATE_NOOP("WebcamGlobal", "No Blend"), "svgicons/blend-none.svg"},
    {QT_TRANSLATE_NOOP("WebcamGlobal", "Darken"), "svgicons/blend-darken.svg"},
    {QT_TRANSLATE_NOOP("WebcamGlobal", "Multiply"), "svgicons/blend-darken.svg"},
    {QT_TRANSLATE_NOOP("WebcamGlobal", "Color Burn"), "svgicons/blend-darken.svg"},
    {QT_TRANSLATE_NOOP("WebcamGlobal", "Lighten"), "svgicons/blend-lighten.svg"},
    {QT_TRANSLATE_NOOP("WebcamGlobal", "Screen"), "svgicons/blend-lighten.svg"},
    {QT_TRANSLATE_NOOP("WebcamGlobal", "Color Dodge"), "svgicons/blend-lighten.svg"},
    {QT_TRANSLATE_NOOP("WebcamGlobal", "Overlay"), "svgicons/blend-light.svg"},
    {QT_TRANSLATE_NOOP("WebcamGlobal", "Soft Light"), "svgicons/blend-light.svg"},
    {QT_TRANSLATE_NOOP("WebcamGlobal", "Hard Light"), "svgicons/blend-light.svg"},
    {QT_TRANSLATE_NOOP("WebcamGlobal", "Difference"), "svgicons/blend-difference.svg"},
    {QT_TRANSLATE_NOOP("WebcamGlobal", "Exclusion"), "svgicons/blend-difference.svg"},
    {QT_TRANSLATE_NOOP("WebcamGlobal", "Plus"), "svgicons/blend-plus.svg"},
    {QT_TRANSLATE_NOOP("WebcamGlobal", "Xor"), "svgicons/blend-xor.svg"},
}};

constexpr std::array<const char *, 8> chromakeyColorNames{"#7b53fe", "#00afff", "#00d87f", "#00ff01",
                                                          "#7bab00", "#fe4f00", "#fe2280", "#ff00fd"};

QVariantMap chromakeyEntry(const char *name)
{
    const QString text = QString::fromLatin1(name);
    QVariantMap entry = morvane::hsla(QColor(text));
    entry.insert(QStringLiteral("kill"), 0);
    entry.insert(QStringLiteral("feather"), 0);
    entry.insert(QStringLiteral("shift"), 0);
    entry.insert(QStringLiteral("name"), text);
    return entry;
}

struct ExportSize
{
    int width;
    int height;
};

ExportSize exportSizeFor(int wantedWidth, qreal heightPerWidth)
{
    const int width = morvane::roundUp(
        std::max(std::min(wantedWidth, morvane::maxFrameWidth), morvane::exportVideoMinFrameWidth));
    const qreal height = std::min<qreal>(width * heightPerWidth, morvane::maxFrameHeight);
    return {width, morvane::roundUp(static_cast<int>(height))};
}

} // namespace

WebcamGlobal::WebcamGlobal(QObject *parent) : CommandBus(parent)
{
    m_scaleTimer.setSingleShot(true);
    m_scaleTimer.setInterval(1000ms);
    connect(&m_scaleTimer, &QTimer::timeout, this, &WebcamGlobal::_calculateDisplayAndCoordSystemScale);
    connect(this, &WebcamGlobal::connectedCamIndexChanged, this, &WebcamGlobal::updateCoordSystemSize);
    const auto followExportSize = [this] {
        setExportSize(QSize(exportSizeW(), exportSizeH()));
    };
    connect(this, &WebcamGlobal::exportSizeWChanged, this, followExportSize);
    connect(this, &WebcamGlobal::exportSizeHChanged, this, followExportSize);
    const auto followSequenceSize = [this] {
        setSequenceExportSize(QSize(sequenceExportSizeW(), sequenceExportSizeH()));
    };
    connect(this, &WebcamGlobal::sequenceExportSizeWChanged, this, followSequenceSize);
    connect(this, &WebcamGlobal::sequenceExportSizeHChanged, this, followSequenceSize);
    connect(this, &WebcamGlobal::projectChangedChanged, this, [this] {
        if (!projectChanged())
            emit saved();
    });
}

QVariantList WebcamGlobal::chromakeyColors() const
{
    QVariantList list;
    for (const char *name : chromakeyColorNames)
        list.append(chromakeyEntry(name));
    return list;
}

QVariantList WebcamGlobal::blendModes() const
{
    QVariantList list;
    for (const BlendMode &mode : blendTable)
        list.append(QVariantMap{{QStringLiteral("icon"), QString::fromLatin1(mode.icon)},
                                {QStringLiteral("text"), tr(mode.text)}});
    return list;
}

void WebcamGlobal::copyProjectPropertiesFrom(const WebcamGlobal &other)
{
    const QMetaObject *meta = metaObject();
    for (int i = QObject::staticMetaObject.propertyCount(); i < meta->propertyCount(); ++i) {
        const QMetaProperty property = meta->property(i);
        if (property.isWritable() && property.isStored())
            property.write(this, property.read(&other));
    }
}

void WebcamGlobal::setScaleDelay(std::chrono::milliseconds delay)
{
    m_scaleTimer.setInterval(delay);
}

void WebcamGlobal::calculateDisplayAndCoordSystemScale(int availW, int availH)
{
    if (paused())
        return;
    m_availableWidth = availW;
    m_availableHeight = availH;
    if (!m_scaleTimer.isActive())
        m_scaleTimer.start();
}

void WebcamGlobal::_calculateDisplayAndCoordSystemScale()
{
    if (!paused())
        computeScales();
}

void WebcamGlobal::updateCoordSystemSize()
{
    if (connected())
        return;
    setCoordSystemWidth(100.0);
    setCoordSystemHeight(100.0);
    if (!paused())
        computeScales();
}

void WebcamGlobal::computeScales()
{
    const qreal byWidth = width() < 1 ? 1.0 : static_cast<qreal>(m_availableWidth) / width();
    const qreal byHeight = height() < 1 ? 1.0 : static_cast<qreal>(m_availableHeight) / height();
    qreal fit = std::min(byWidth, byHeight);
    if (!resize())
        fit = std::min(fit, 1.0);
    if (fit > 0)
        setDisplayScale(fit);
    qreal scale = fit;
    // Without a picture there is no ratio to its width, and a scale of zero would hide everything drawn.
    if (coordSystemWidth() > 0 && width() > 0) {
        const qreal sourcePerUnit = width() / coordSystemWidth();
        if (sourcePerUnit < 1.0)
            scale = sourcePerUnit * fit;
    }
    setCoordSystemScale(static_cast<float>(std::round(scale * 10000)) / 10000.0F);
}

void WebcamGlobal::updateCropAreaScale(qreal w, qreal h)
{
    if (w <= 0 || h <= 0)
        return;
    setCamScaledCropAreaW(static_cast<float>(cropAreaW() / w));
    setCamScaledCropAreaH(static_cast<float>(cropAreaH() / h));
}

void WebcamGlobal::updateExportSizes()
{
    const qreal heightPerWidth = cropAreaW() < 1 ? 1.0 : static_cast<qreal>(cropAreaH()) / cropAreaW();
    const ExportSize video = exportSizeFor(exportSizeW(), heightPerWidth);
    setExportSizeH(video.height);
    setExportSizeW(video.width);
    const ExportSize sequence = exportSizeFor(sequenceExportSizeW(), heightPerWidth);
    setSequenceExportSizeH(sequence.height);
    setSequenceExportSizeW(sequence.width);
}

void WebcamGlobal::setPostProcessSetting(const QString &key, const QVariant &value)
{
    QVariantMap settings = postProcessSettings();
    settings.insert(key, value);
    setPostProcessSettings(settings);
}

void WebcamGlobal::removePostProcessSetting(const QString &key)
{
    QVariantMap settings = postProcessSettings();
    settings.remove(key);
    setPostProcessSettings(settings);
}

QVariant WebcamGlobal::getPostProcessSetting(const QString &key, const QVariant &defaultVal) const
{
    return postProcessSettings().value(key, defaultVal);
}

void WebcamGlobal::checkUserInactivity()
{
    const bool watching = currentActiveTab() == Zum::CaptureTab && connected();
    if (inactivityElapsed() < inactivityMaximum()) {
        setUserIsInactive(false);
        setInactivityElapsed(inactivityElapsed() + 1);
        if (watching && paused())
            setPaused(false);
        return;
    }
    setUserIsInactive(true);
    qDebug("User is sleeping...");
    if (watching && !paused())
        setPaused(true);
}

QString WebcamGlobal::ensureDirSeparator(const QString &path) const
{
    return morvane::ensureDirSeparator(path);
}

QString WebcamGlobal::timeStamp() const
{
    return morvane::timeStamp();
}

QString WebcamGlobal::millisecondsToHHMMSS(int milliseconds) const
{
    return morvane::millisecondsToHHMMSS(milliseconds);
}

int WebcamGlobal::roundUp(int value) const
{
    return morvane::roundUp(value);
}

QString WebcamGlobal::stringIconName(int messageType) const
{
    const bool warns = messageType >= Zum::FatalError && messageType <= Zum::Warning;
    return warns ? QStringLiteral("warn") : QStringLiteral("info");
}

QString WebcamGlobal::getBlendName(int blend) const
{
    const bool known = blend >= 0 && blend < static_cast<int>(blendTable.size());
    return tr(blendTable[known ? blend : 0].text);
}

QString WebcamGlobal::videoExportPolicyIcon(int policy) const
{
    switch (policy) {
        case Zum::ExportPolicyCropped:
            return QStringLiteral("svgicons/cutframe.svg");
        case Zum::ExportPolicyFitByWidth:
            return QStringLiteral("svgicons/width.svg");
        case Zum::ExportPolicyCroppedAndResized:
            return QStringLiteral("svgicons/cut-n-scale.svg");
        default:
            return QStringLiteral("svgicons/height.svg");
    }
}

QColor WebcamGlobal::hueShift(const QColor &color, qreal value) const
{
    return morvane::hueShift(color, value);
}

QColor WebcamGlobal::saturationShift(const QColor &color, qreal value) const
{
    return morvane::saturationShift(color, value);
}

QVariantMap WebcamGlobal::hsla(const QColor &color) const
{
    return morvane::hsla(color);
}

QVariantMap WebcamGlobal::colorToRgb(const QColor &color) const
{
    return morvane::colorToRgb(color);
}

QColor WebcamGlobal::lighterColor(const QColor &color, qreal factor) const
{
    return morvane::lighterColor(color, factor);
}

QColor WebcamGlobal::yCbCrToRgb(qreal y, qreal cb, qreal cr, qreal) const
{
    return morvane::yCbCrToRgb(y, cb, cr);
}

QColor WebcamGlobal::yCbCrToRgb(qreal y, qreal cb, qreal cr) const
{
    return morvane::yCbCrToRgb(y, cb, cr);
}

int WebcamGlobal::colorNameToHue(const QString &name) const
{
    return morvane::colorNameToHue(name);
}
