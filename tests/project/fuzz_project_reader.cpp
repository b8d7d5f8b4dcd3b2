#include "project/ProjectReader.h"
#include "project/ProjectWriter.h"
#include "project/SafeName.h"

#include <cstdlib>
#include <QBuffer>

// Whatever the bytes are, reading them ends, and what it lets through is harmless and can be written and read
// again.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    const ProjectReadResult result = ProjectReader::read(buffer);
    if (result.status != ProjectReadResult::Status::Ok)
        return 0;
    for (const ProjectFrame &frame : result.document.frames) {
        for (const QString &name : {frame.capTumb, frame.capFull, frame.refTumb, frame.refFull}) {
            if (!name.isEmpty() && !morvane::isBareFileName(name))
                std::abort();
        }
    }
    QByteArray written = ProjectWriter::xml(result.document);
    QBuffer again(&written);
    again.open(QIODevice::ReadOnly);
    const ProjectReadResult second = ProjectReader::read(again);
    if (second.status != ProjectReadResult::Status::Ok || second.document.frames != result.document.frames)
        std::abort();
    return 0;
}
