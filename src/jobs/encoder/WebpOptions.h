#pragma once

#include "jobs/encoder/Ffmpeg.h"
#include "jobs/encoder/MovieTables.h"

#include <QVariantMap>

/// The settings of animated WebP on a codec context, each brought into its limits.
void applyWebpOptions(AVCodecContext &context, const QVariantMap &settings, const movie::Quality &quality);
