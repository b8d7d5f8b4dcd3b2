#include "jobs/QVideoEncoder.h"

extern "C" Q_DECL_EXPORT EncoderBase *MORVANE_MODULE_ENTRY()
{
    return new QVideoEncoder;
}
