#pragma once

#include "jobs/EncoderBase.h"
#include "jobs/render/FramePicture.h"
#include "shared/ProgramModule.h"

#include <functional>
#include <memory>

/// What a job works with. Each function is called on the job's thread.
struct RobotTools
{
    /// The encoder of a render format, null when there is none.
    std::function<std::unique_ptr<EncoderBase>(const QString &formatName)> makeEncoder;
    /// A chain of picture filters for one thread; the folder is that of background pictures. May be empty:
    /// then pictures stay as they are.
    std::function<FrameFilter(const QString &backgroundFolder)> makeFilter;
    /// Pictures that may be in the making at once.
    int lookAhead = 1;

    /// What the program itself works with: as many pictures at once as there are processors, and the encoder
    /// from its module, which the first job loads.
    static RobotTools standard(const QString &moduleFolder = ProgramModule::standardFolder());
};
