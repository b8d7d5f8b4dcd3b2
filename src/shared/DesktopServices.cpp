#include "shared/DesktopServices.h"

#if defined(Q_OS_WIN)
#include "shared/desktop/WindowsDesktopServices.h"
#else
#include "shared/desktop/FreeDesktopServices.h"
#endif

namespace morvane {

std::unique_ptr<DesktopServices> makeDesktopServices()
{
#if defined(Q_OS_WIN)
    return std::make_unique<WindowsDesktopServices>();
#else
    return std::make_unique<FreeDesktopServices>();
#endif
}

} // namespace morvane
