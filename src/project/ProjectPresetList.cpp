#include "project/ProjectPresetList.h"

#include "shared/NumberText.h"

#include <cmath>
#include <QVariantMap>

using namespace Qt::StringLiterals;

namespace morvane {

namespace {

/// Frame widths are listed in units of so many pixels.
constexpr int widthUnit = 8;

QVariantMap preset(const QRectF &proportion, int fps, int width)
{
    const int frameWidth = widthUnit * width;
    const int frameHeight = roundUp(int(std::lround(frameWidth / (proportion.x() / proportion.y()))));
    return {
        {u"name"_s, u"%1x%2"_s.arg(frameWidth).arg(frameHeight)},
        {u"proportion"_s, u"%1:%2"_s.arg(proportion.x()).arg(proportion.y())},
        {u"fps"_s, fps},
        {u"framewidth"_s, frameWidth},
        {u"frameheight"_s, frameHeight},
    };
}

QVariantList buildPresets()
{
    QVariantList presets;
    for (const QRectF &proportion : proportions()) {
        for (const int fps : {24, 12}) {
            for (const int width : presetsWidths())
                presets.append(preset(proportion, fps, width));
        }
    }
    return presets;
}

} // namespace

const QList<QRectF> &proportions()
{
    static const QList<QRectF> list{{16, 9, 0, 0}, {16, 10, 0, 0}, {14, 9, 0, 0}, {4, 3, 0, 0}};
    return list;
}

const QList<int> &presetsWidths()
{
    static const QList<int> list{960, 912, 896, 832, 768, 750, 720, 704, 702, 640, 620, 600, 594, 562,
                                 560, 520, 512, 486, 480, 450, 374, 320, 300, 240, 160, 128, 96};
    return list;
}

const QVariantList &projectPresets()
{
    static const QVariantList list = buildPresets();
    return list;
}

} // namespace morvane
