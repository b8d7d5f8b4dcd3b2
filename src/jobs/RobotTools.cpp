#include "jobs/RobotTools.h"

#include "jobs/QVideoEncoder.h"
#include "preview/ImLightEq.h"
#include "shared/Names.h"

#include <QThread>

RobotTools RobotTools::standard()
{
    RobotTools tools;
    tools.makeEncoder = [](const QString &formatName) -> std::unique_ptr<EncoderBase> {
        if (formatName == morvane::formatWebp)
            return nullptr;
        return std::make_unique<QVideoEncoder>();
    };
    tools.makeFilter = [](const QString &backgroundFolder) -> FrameFilter {
        auto chain = std::make_shared<ImLightEq>(backgroundFolder);
        return [chain](const QImage &image, const QVariantMap &settings, double strength) {
            return chain->process(image, settings, strength);
        };
    };
    tools.lookAhead = qMax(1, QThread::idealThreadCount());
    return tools;
}
