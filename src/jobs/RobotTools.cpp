#include "jobs/RobotTools.h"

#include "jobs/MorvaRobot.h"
#include "preview/ImLightEq.h"
#include "shared/Names.h"

#include <QThread>

namespace {

/// Stands in for an encoder that cannot be loaded: every file fails, and the reason tells why.
class MissingEncoder : public EncoderBase
{
public:
    explicit MissingEncoder(QString error) : m_error(std::move(error))
    {
    }
    QVariantMap createFile(const QString &, int, int, int, double, const QString &, bool, const QString &,
                           int, bool) override
    {
        const QString reason = MorvaRobot::tr(
            "The part of the program that makes movies is missing or "
            "damaged. Install the program again. %1");
        return {{QStringLiteral("ok"), false}, {QStringLiteral("reason"), reason.arg(m_error)}};
    }
    QString closeFile() override
    {
        return {};
    }
    int encodeImage(const QImage &) override
    {
        return -1;
    }
    bool isOk() const override
    {
        return false;
    }
    void setWebpSettings(const QVariantMap &) override
    {
    }
    QString writeError() const override
    {
        return {};
    }

private:
    QString m_error;
};

std::unique_ptr<EncoderBase> loadEncoder(const QString &moduleFolder)
{
    const ProgramModule module(QStringLiteral("encoder"), moduleFolder);
    if (const auto make = module.entry<EncoderBase *()>())
        return std::unique_ptr<EncoderBase>(make());
    return std::make_unique<MissingEncoder>(module.errorString());
}

} // namespace

RobotTools RobotTools::standard(const QString &moduleFolder)
{
    RobotTools tools;
    tools.makeEncoder = [moduleFolder](const QString &formatName) -> std::unique_ptr<EncoderBase> {
        if (formatName == morvane::formatWebp)
            return nullptr;
        return loadEncoder(moduleFolder);
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
