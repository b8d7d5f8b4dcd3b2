#include "project/FrameFiles.h"

#include "shared/MessageCentre.h"
#include "shared/PathText.h"

#include <QFile>
#include <QtDebug>

using namespace Qt::StringLiterals;

namespace {

/// True when the name is given and the file there. A name without its file is emptied and its path noted.
bool findFile(QString &name, const QString &folder, QStringList &missingPaths)
{
    if (name.isEmpty())
        return false;
    const QString path = folder + name;
    if (QFile::exists(path))
        return true;
    missingPaths.append(path);
    name.clear();
    return false;
}

} // namespace

CheckedFrame FrameFiles::check(const ProjectFrame &frame, const ProjectTree &tree)
{
    CheckedFrame checked;
    checked.frame = frame;
    findFile(checked.frame.capTumb, tree.capTumbDirPath, checked.missingPaths);
    checked.capFullMissing = !findFile(checked.frame.capFull, tree.capFullDirPath, checked.missingPaths);
    findFile(checked.frame.refTumb, tree.refTumbDirPath, checked.missingPaths);
    checked.refFullMissing = !findFile(checked.frame.refFull, tree.refFullDirPath, checked.missingPaths);
    return checked;
}

QVariantMap CheckedFrame::toMap() const
{
    return {
        {u"capTumb"_s, frame.capTumb},      {u"capFull"_s, frame.capFull},
        {u"refTumb"_s, frame.refTumb},      {u"refFull"_s, frame.refFull},
        {u"capfullmiss"_s, capFullMissing}, {u"reffullmiss"_s, refFullMissing},
        {u"mirrored"_s, frame.mirrored},    {u"phase"_s, frame.phase},
        {u"static"_s, frame.staticState},   {u"hidden"_s, frame.hidden},
    };
}

bool FrameFiles::pathIsThere(const QString &path)
{
    return path.isEmpty() || morvane::fileExists(path);
}

QString FrameFiles::adviceForMissing()
{
    return tr(
        "Put the missing pictures back into the project's folder and open the project again, or capture "
        "their "
        "frames anew");
}

void FrameFiles::report(const QStringList &missingPaths, MessageCentre &messages)
{
    for (const QString &path : missingPaths) {
        qDebug().noquote() << "File doesn't exist at" << path;
        messages.post(Zum::FileMessage, Zum::Warning, tr("Image file doesn't exist at %1").arg(path));
    }
}
