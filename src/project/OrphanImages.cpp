#include "project/OrphanImages.h"

#include "shared/Names.h"
#include "shared/PathText.h"

#include <algorithm>
#include <QDir>
#include <QFile>
#include <QImageReader>
#include <QRegularExpression>
#include <QSet>
#include <tuple>

using namespace Qt::StringLiterals;

namespace {

constexpr int thumbnailQuality = 67;

/// What the name of a captured picture tells: "<prefix>NNNNNN_TTTTTTTTTTTT.<suffix>".
struct NameParts
{
    /// Neither number nor time stamp: sorts behind all that have them.
    bool unknown = true;
    qlonglong number = 0;
    QString timeStamp;
};

NameParts partsOf(const QString &name)
{
    static const QRegularExpression form(u"(\\d{6,})_(\\d{12})\\.[^.]*$"_s);
    const QRegularExpressionMatch match = form.match(name);
    if (!match.hasMatch())
        return {};
    return {false, match.captured(1).toLongLong(), match.captured(2)};
}

bool comesBefore(const QString &a, const QString &b)
{
    const NameParts first = partsOf(a);
    const NameParts second = partsOf(b);
    return std::tie(first.unknown, first.number, first.timeStamp, a)
           < std::tie(second.unknown, second.number, second.timeStamp, b);
}

QString listPath(const ProjectTree &tree)
{
    return tree.tempDirPath.isEmpty() ? QString() : tree.tempDirPath + "leftpictures.txt"_L1;
}

QSet<QString> leftNames(const ProjectTree &tree)
{
    QFile list(listPath(tree));
    if (list.fileName().isEmpty() || !list.open(QIODevice::ReadOnly))
        return {};
    const QStringList names = QString::fromUtf8(list.readAll()).split(u'\n', Qt::SkipEmptyParts);
    return {names.cbegin(), names.cend()};
}

/// The thumbnail that was taken together with a picture: the same number and time stamp behind another label.
class Thumbnails
{
public:
    explicit Thumbnails(const QString &folder) : m_names(QDir(folder).entryList(QDir::Files, QDir::Name))
    {
        for (const QString &name : std::as_const(m_names)) {
            const QString key = keyOf(name);
            if (!key.isEmpty())
                m_byKey.insert(key, name);
        }
    }

    QString of(const QString &picture) const
    {
        const QString key = keyOf(picture);
        return key.isEmpty() ? QString() : m_byKey.value(key);
    }

private:
    static QString keyOf(const QString &name)
    {
        const NameParts parts = partsOf(name);
        return parts.unknown ? QString() : u"%1_%2"_s.arg(parts.number).arg(parts.timeStamp);
    }

    QStringList m_names;
    QHash<QString, QString> m_byKey;
};

QString thumbnailName(const QString &picture)
{
    const QString mini = u"_mini_"_s;
    QString base = QFileInfo(picture).completeBaseName();
    if (base.contains("_norm_"_L1))
        base.replace("_norm_"_L1, mini);
    else
        base += u"_mini"_s;
    return base + ".jpg"_L1;
}

QString makeThumbnail(const QString &picture, const ProjectTree &tree, const QSize &bounds)
{
    QImageReader reader(tree.capFullDirPath + picture);
    const QSize size = reader.size();
    if (size.isValid())
        reader.setScaledSize(size.scaled(bounds, Qt::KeepAspectRatio).expandedTo({1, 1}));
    const QImage image = reader.read();
    const QString path = morvane::uniqueFilePath(tree.capTumbDirPath + thumbnailName(picture));
    if (image.isNull() || !image.save(path, "jpg", thumbnailQuality))
        return {};
    return QFileInfo(path).fileName();
}

bool moveAside(const QString &path, const QString &folder)
{
    return QFile::rename(path, morvane::uniqueFilePath(folder + QFileInfo(path).fileName()));
}

} // namespace

QStringList OrphanImages::find(const ProjectTree &tree, const QList<ProjectFrame> &frames)
{
    if (tree.capFullDirPath.isEmpty())
        return {};
    QSet<QString> known = leftNames(tree);
    for (const ProjectFrame &frame : frames)
        known.insert(frame.capFull);
    QStringList orphans;
    const QStringList patterns = morvane::importImageFilters.split(u' ', Qt::SkipEmptyParts);
    const QStringList names = QDir(tree.capFullDirPath).entryList(patterns, QDir::Files | QDir::NoSymLinks);
    for (const QString &name : names) {
        if (!known.contains(name))
            orphans.append(name);
    }
    std::sort(orphans.begin(), orphans.end(), comesBefore);
    return orphans;
}

QList<ProjectFrame> OrphanImages::asFrames(const QStringList &names, const ProjectTree &tree,
                                           const QSize &thumbnailBounds)
{
    const Thumbnails thumbnails(tree.capTumbDirPath);
    QList<ProjectFrame> frames;
    for (const QString &name : names) {
        ProjectFrame frame;
        frame.capFull = name;
        frame.capTumb = thumbnails.of(name);
        if (frame.capTumb.isEmpty())
            frame.capTumb = makeThumbnail(name, tree, thumbnailBounds);
        frames.append(frame);
    }
    return frames;
}

int OrphanImages::moveToRecycleFolder(const QStringList &names, const ProjectTree &tree)
{
    if (!morvane::ensureFolder(tree.recycleBinDirPath))
        return int(names.size());
    const Thumbnails thumbnails(tree.capTumbDirPath);
    int failures = 0;
    for (const QString &name : names) {
        if (!moveAside(tree.capFullDirPath + name, tree.recycleBinDirPath)) {
            ++failures;
            continue;
        }
        const QString thumbnail = thumbnails.of(name);
        if (!thumbnail.isEmpty())
            moveAside(tree.capTumbDirPath + thumbnail, tree.recycleBinDirPath);
    }
    return failures;
}

bool OrphanImages::leave(const QStringList &names, const ProjectTree &tree)
{
    QFile list(listPath(tree));
    if (list.fileName().isEmpty() || !list.open(QIODevice::WriteOnly | QIODevice::Append))
        return false;
    const QByteArray lines = names.join(u'\n').toUtf8() + '\n';
    return list.write(lines) == lines.size() && list.flush();
}
