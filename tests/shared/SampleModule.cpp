#include <QtGlobal>

// Given from outside, so that it stands for a module of this program or of another version.
extern "C" Q_DECL_EXPORT int MORVANE_MODULE_ENTRY()
{
    return 42;
}
