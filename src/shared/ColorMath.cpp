#include "shared/ColorMath.h"

#include <algorithm>
#include <QRegularExpression>

namespace morvane {

namespace {

struct Hsl
{
    float hue = 0;
    float saturation = 0;
    float lightness = 0;
};

Hsl hslOf(const QColor &color)
{
    Hsl hsl;
    color.getHslF(&hsl.hue, &hsl.saturation, &hsl.lightness);
    return hsl;
}

float shifted(float part, qreal value)
{
    return static_cast<float>(std::clamp(part + value, 0.0, 1.0));
}

int channel(qreal value)
{
    return std::clamp(static_cast<int>(value), 0, 255);
}

} // namespace

QColor hueShift(const QColor &color, qreal value)
{
    const Hsl hsl = hslOf(color);
    return QColor::fromHslF(shifted(hsl.hue, value), hsl.saturation, hsl.lightness, 1.0F);
}

QColor saturationShift(const QColor &color, qreal value)
{
    const Hsl hsl = hslOf(color);
    return QColor::fromHslF(hsl.hue, shifted(hsl.saturation, value), hsl.lightness, 1.0F);
}

QVariantMap hsla(const QColor &color)
{
    int hue = 0;
    int saturation = 0;
    int lightness = 0;
    color.getHsl(&hue, &saturation, &lightness);
    return {{QStringLiteral("hue"), hue},
            {QStringLiteral("saturation"), saturation},
            {QStringLiteral("lightness"), lightness}};
}

QVariantMap colorToRgb(const QColor &color)
{
    return {{QStringLiteral("r"), color.red()},
            {QStringLiteral("g"), color.green()},
            {QStringLiteral("b"), color.blue()}};
}

QColor lighterColor(const QColor &color, qreal factor)
{
    return color.lighter(qRound(factor * 100));
}

QColor yCbCrToRgb(qreal y, qreal cb, qreal cr)
{
    return QColor(channel(y + 1.402 * (cr - 128)), channel(y - 0.34414 * (cb - 128) - 0.71414 * (cr - 128)),
                  channel(y + 1.772 * (cb - 128)));
}

int colorNameToHue(const QString &name)
{
    static const QRegularExpression bareHex(QStringLiteral("^([0-9a-fA-F]{6}|[0-9a-fA-F]{3})$"));
    QString wanted = name;
    if (wanted.size() == 8 && wanted.startsWith(QLatin1String("0x")))
        wanted = QLatin1Char('#') + wanted.right(6);
    else if (bareHex.match(wanted).hasMatch())
        wanted = QLatin1Char('#') + wanted;
    QColor color = QColor::fromString(wanted);
    if (!color.isValid())
        color = QColor(Qt::blue);
    const int hue = color.hslHue();
    return hue == -1 ? color.lightness() : hue;
}

} // namespace morvane
