#include "jobs/encoder/WebpOptions.h"

extern "C" {
#include <libavutil/opt.h>
}

#include <algorithm>
#include <QtDebug>

namespace {

int bounded(const QVariantMap &map, const char *key, int minimum, int maximum, int otherwise)
{
    bool ok = false;
    const int value = map.value(QLatin1String(key)).toInt(&ok);
    return ok ? std::clamp(value, minimum, maximum) : otherwise;
}

} // namespace

void applyWebpOptions(AVCodecContext &context, const QVariantMap &settings, const movie::Quality &quality)
{
    const int lossless = bounded(settings, "lossless", 0, 1, 1);
    const int percent = bounded(settings, "quality", 0, 100, 100);
    const int method = bounded(settings, "method", 0, 6, 6);
    const int snsStrength = bounded(settings, "snsstrength", 0, 100, 100);
    const int autoFilter = bounded(settings, "autofilter", 0, 1, 0);
    const int loopCount = bounded(settings, "loopcount", 0, 2000, 0);
    const int filterType = bounded(settings, "filtertype", 0, 1, 0);
    const int filterStrength = bounded(settings, "filterstrength", 0, 100, 70);
    const int filterSharpness = bounded(settings, "filtersharpness", 0, 7, 5);

    context.compression_level = quality.compressionLevel();
    const auto set = [&context](const char *name, int value) {
        av_opt_set_int(&context, name, value, AV_OPT_SEARCH_CHILDREN);
    };
    set("method", method);
    set("sns_strength", snsStrength);
    set("autofilter", autoFilter);
    set("low_memory", 1);
    set("use_sharp_yuv", 1);
    set("alpha_filtering", 2);
    set("loop_count", loopCount);
    set("filter_type", filterType);
    set("filter_strength", filterStrength);
    set("filter_sharpness", filterSharpness);
    set("lossless", lossless);
    set("quality", percent);
    qDebug().noquote() << QStringLiteral("1.WebP: quality=%1, lossless=%2, compression=%3")
                              .arg(percent)
                              .arg(lossless)
                              .arg(context.compression_level);
    qDebug().noquote() << QStringLiteral("2.WebP: method=%1, snsstrength=%2, autofilter=%3, loopcount=%4")
                              .arg(method)
                              .arg(snsStrength)
                              .arg(autoFilter)
                              .arg(loopCount);
    qDebug().noquote() << QStringLiteral("3.WebP: filter_type=%1, filter_strength=%2, filter_sharpness=%3")
                              .arg(filterType)
                              .arg(filterStrength)
                              .arg(filterSharpness);
}
