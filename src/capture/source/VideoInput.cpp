#include "capture/source/VideoInput.h"

#include "shared/ProgramModule.h"

std::unique_ptr<VideoInput> VideoInput::load(const QString &moduleFolder, QString &error)
{
    const ProgramModule module(QStringLiteral("videoinput"), moduleFolder);
    error = module.errorString();
    const auto make = module.entry<Make>();
    return std::unique_ptr<VideoInput>(make ? make() : nullptr);
}
