#include "shared/Zum.h"

#include <cmath>
#include <mutex>

namespace {
double s_dpiScale = 1.0;

struct SharedFolders
{
    std::mutex mutex;
    Zum::ProjectFolders folders;
};

SharedFolders &sharedFolders()
{
    static SharedFolders shared;
    return shared;
}
} // namespace

double Zum::dpiScale()
{
    return s_dpiScale;
}

void Zum::setDpiScale(double scale)
{
    s_dpiScale = scale;
}

Zum::ProjectFolders Zum::projectFolders()
{
    const std::lock_guard lock(sharedFolders().mutex);
    return sharedFolders().folders;
}

void Zum::setProjectFolders(const ProjectFolders &folders)
{
    const std::lock_guard lock(sharedFolders().mutex);
    sharedFolders().folders = folders;
}

double Zum::srgbToLinear(int channel)
{
    const double c = channel / 255.0;
    return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
}

int Zum::linearToSrgb(double light)
{
    const double encoded = light > 0.0031308 ? 1.055 * std::pow(light, 1.0 / 2.4) - 0.055 : 12.92 * light;
    return static_cast<int>(encoded * 255 + 0.5);
}

int Zum::luminance(int red, int green, int blue)
{
    return linearToSrgb(0.212655 * srgbToLinear(red) + 0.715158 * srgbToLinear(green)
                        + 0.072187 * srgbToLinear(blue));
}
