#pragma once

class QIODevice;

/// Whether picture files are there to their end. Some decoders fill up what is missing of a file that was cut
/// off (a copy that broke off, a card pulled out, a photograph still being written) and report success.
namespace FileEnd {

/// False only when it is certain that something is missing: looks at the files of those decoders (JPEG, BMP,
/// GIF), and holds every other kind for whole. The device must be random access; its position is kept.
bool isThere(QIODevice &file);

} // namespace FileEnd
