#include "project/FileCopy.h"

#include "project/PoolProgress.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QtDebug>

using namespace Qt::StringLiterals;

namespace {

bool isSamePlace(const QString &a, const QString &b)
{
    if (QDir::cleanPath(a) == QDir::cleanPath(b))
        return true;
    const QString canonical = QFileInfo(a).canonicalFilePath();
    return !canonical.isEmpty() && canonical == QFileInfo(b).canonicalFilePath();
}

bool haveSameContent(const QString &a, const QString &b)
{
    QFile first(a);
    QFile second(b);
    if (!first.open(QIODevice::ReadOnly) || !second.open(QIODevice::ReadOnly)
        || first.size() != second.size())
        return false;
    constexpr qint64 chunk = 1 << 18;
    while (!first.atEnd()) {
        const QByteArray bytes = first.read(chunk);
        if (bytes.isEmpty() || bytes != second.read(chunk))
            return false;
    }
    return true;
}

QString freeName(const QString &folder, const QString &name)
{
    const QFileInfo info(name);
    const QString suffix = info.suffix().isEmpty() ? QString() : u'.' + info.suffix();
    for (int number = 1;; ++number) {
        const QString candidate = u"%1_%2%3"_s.arg(info.completeBaseName()).arg(number).arg(suffix);
        if (!QFileInfo::exists(folder + candidate))
            return candidate;
    }
}

/// Copies the folders of one project; keeps away from the new project's own place, which may lie inside.
class FolderCopier
{
public:
    FolderCopier(PoolProgress &progress, const QString &label, const QString &newContentFolder)
        : m_progress(progress), m_label(label),
          m_newContentFolder(QFileInfo(newContentFolder).canonicalFilePath())
    {
    }

    int failures() const
    {
        return m_failures;
    }

    void copy(const QString &from, const QString &to)
    {
        if (from.isEmpty() || to.isEmpty() || isSamePlace(from, to))
            return;
        if (!QFileInfo(from).isDir()) {
            qDebug().noquote() << from << "dir does not exists or is not a dir";
            return;
        }
        makeFolder(to);
        const QDir folder(from);
        const QFileInfoList entries =
            folder.entryInfoList(QDir::Files | QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot);
        m_progress.begin(m_label.arg(folder.dirName()), int(entries.size()));
        for (const QFileInfo &entry : entries) {
            if (m_progress.isCancelled())
                return;
            copyEntry(entry, to);
            m_progress.step();
        }
    }

private:
    void makeFolder(const QString &path)
    {
        if (QFileInfo(path).isDir())
            qDebug().noquote() << "Dir exists:" << path;
        else if (QDir().mkdir(path))
            qDebug().noquote() << "Make dir:" << path;
        else
            ++m_failures;
    }

    void copyEntry(const QFileInfo &entry, const QString &to)
    {
        const QString target = QDir::cleanPath(to) + u'/' + entry.fileName();
        if (!entry.isDir()) {
            if (!FileCopy::replace(entry.filePath(), target))
                ++m_failures;
            return;
        }
        const bool isNewPlace = entry.canonicalFilePath() == m_newContentFolder;
        if (!entry.isSymLink() && !isNewPlace)
            copy(entry.filePath() + u'/', target + u'/');
    }

    PoolProgress &m_progress;
    QString m_label;
    QString m_newContentFolder;
    int m_failures = 0;
};

/// Copies the files of frames into one folder, each once however many frames name it.
class NamedFileCopier
{
public:
    NamedFileCopier(const QString &from, const QString &to) : m_from(from), m_to(to)
    {
    }

    /// The file's name in the new folder; empty when there was no such file.
    QString copy(const QString &name, int &failures)
    {
        if (name.isEmpty())
            return {};
        if (const auto known = m_names.constFind(name); known != m_names.constEnd())
            return *known;
        const QString newName = copyOnce(name, failures);
        m_names.insert(name, newName);
        return newName;
    }

private:
    QString copyOnce(const QString &name, int &failures)
    {
        const QString source = m_from + name;
        if (!QFileInfo(source).isFile()) {
            qDebug().noquote() << "File doesn't exist at" << source;
            ++failures;
            return {};
        }
        QString newName = name;
        if (QFileInfo::exists(m_to + name)) {
            if (haveSameContent(source, m_to + name))
                return name;
            newName = freeName(m_to, name);
        }
        qDebug().noquote() << "Copy" << source << "to :" << m_to + newName;
        if (!FileCopy::replace(source, m_to + newName))
            ++failures;
        return newName;
    }

    QString m_from;
    QString m_to;
    QHash<QString, QString> m_names;
};

} // namespace

bool FileCopy::replace(const QString &from, const QString &to)
{
    if (isSamePlace(from, to))
        return true;
    if (QFileInfo::exists(to) && !QFile::remove(to)) {
        qDebug("Error removing existing file '%s'", qUtf8Printable(to));
        return false;
    }
    if (QFile::copy(from, to))
        return true;
    qDebug("Error copyng to '%s'", qUtf8Printable(to));
    return false;
}

int FileCopy::projectFolders(PoolProgress &progress, const ProjectTree &from, const ProjectTree &to)
{
    FolderCopier copier(progress, tr("Save project as...") + " [%1]"_L1, to.projContntDirPath);
    copier.copy(from.capFullDirPath, to.capFullDirPath);
    copier.copy(from.refFullDirPath, to.refFullDirPath);
    copier.copy(from.videoDirPath, to.videoDirPath);
    copier.copy(from.tempDirPath, to.tempDirPath);
    copier.copy(from.backgroundDirPath, to.backgroundDirPath);
    return copier.failures();
}

FileCopy::FramesResult FileCopy::frames(PoolProgress &progress, const QList<ProjectFrame> &frames,
                                        const ProjectTree &from, const ProjectTree &to)
{
    NamedFileCopier capTumb(from.capTumbDirPath, to.capTumbDirPath);
    NamedFileCopier capFull(from.capFullDirPath, to.capFullDirPath);
    NamedFileCopier refTumb(from.refTumbDirPath, to.refTumbDirPath);
    NamedFileCopier refFull(from.refFullDirPath, to.refFullDirPath);
    FramesResult result;
    result.frames.reserve(frames.size());
    progress.begin({}, int(frames.size()));
    for (ProjectFrame frame : frames) {
        if (progress.isCancelled())
            break;
        frame.capTumb = capTumb.copy(frame.capTumb, result.failures);
        frame.capFull = capFull.copy(frame.capFull, result.failures);
        frame.refTumb = refTumb.copy(frame.refTumb, result.failures);
        frame.refFull = refFull.copy(frame.refFull, result.failures);
        result.frames.append(frame);
        progress.step();
    }
    return result;
}
