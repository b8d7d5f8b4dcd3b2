#include "project/FileFacts.h"

#include "shared/Names.h"
#include "shared/PathText.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QLocale>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace morvane {

namespace {

QStringList patternsOf(const QString &filters)
{
    return filters.split(u' ', Qt::SkipEmptyParts);
}

QString filtersOfType(int type)
{
    switch (type) {
        case ListImageFiles:
            return importImageFilters;
        case ListMetasFiles:
            return metaFilter;
        default:
            return videoFilters;
    }
}

QString dateText(const QDateTime &time)
{
    return QLocale().toString(time.date(), QLocale::ShortFormat);
}

QString timeText(const QDateTime &time)
{
    return QLocale().toString(time.time(), QLocale::ShortFormat);
}

void addFolder(QVariantMap &facts, const QString &key, const QString &folder, const QString &filters)
{
    const QDir dir(folder);
    const qsizetype count =
        dir.exists() ? dir.entryList(patternsOf(filters), QDir::Files, QDir::Unsorted).size() : 0;
    facts.insert(key, folder);
    facts.insert(key + "On"_L1, count > 0);
    facts.insert(key + "Count"_L1, static_cast<int>(count));
}

} // namespace

QVariantMap fileInfo(const QString &path, bool isImage)
{
    const QFileInfo info(withoutFilePrefix(path));
    QVariantMap facts{
        {u"exists"_s, info.exists()},       {u"path"_s, info.filePath()},
        {u"fileName"_s, info.fileName()},   {u"baseName"_s, info.baseName()},
        {u"suffix"_s, info.suffix()},       {u"size"_s, info.size()},
        {u"lastModifiedDate"_s, QString()}, {u"lastModifiedTime"_s, QString()},
        {u"created"_s, QString()},          {u"sizeText"_s, QLocale().formattedDataSize(info.size())},
    };
    if (info.exists()) {
        // Not every file system knows when a file was born.
        const QDateTime born = info.birthTime().isValid() ? info.birthTime() : info.metadataChangeTime();
        facts[u"lastModifiedDate"_s] = dateText(info.lastModified());
        facts[u"lastModifiedTime"_s] = timeText(info.lastModified());
        facts[u"created"_s] = QString(dateText(born) + u' ' + timeText(born));
    }
    if (isImage) {
        const QSize size = QImageReader(info.filePath()).size();
        facts[u"width"_s] = size.isValid() ? size.width() : 0;
        facts[u"height"_s] = size.isValid() ? size.height() : 0;
    }
    return facts;
}

QVariantMap urlInfo(const QString &url, bool isImage)
{
    return fileInfo(QUrl(url).toLocalFile(), isImage);
}

QVariantList listDir(const QString &path, int ftype)
{
    QVariantList files;
    const QDir dir(withoutFilePrefix(path));
    // An empty path would list the folder that the program was started in.
    if (path.isEmpty() || !dir.exists())
        return files;
    const QStringList names = dir.entryList(patternsOf(filtersOfType(ftype)), QDir::Files, QDir::Name);
    for (const QString &name : names)
        files.append(fileInfo(dir.filePath(name)));
    return files;
}

bool deleteFile(const QString &path)
{
    return QFile::remove(withoutFilePrefix(path));
}

QVariantMap projectDirInfo(const ProjectTree &tree)
{
    const QDir root(tree.projContntDirPath);
    const bool rootOn = root.exists() && !root.isEmpty();
    QVariantMap facts{
        {u"projectname"_s, tree.projName},
        {u"root"_s, tree.projContntDirPath},
        {u"rootOn"_s, rootOn},
        {u"capThumbs"_s, tree.capTumbDirPath},
    };
    addFolder(facts, u"cap"_s, tree.capFullDirPath, importImageFilters);
    addFolder(facts, u"tif"_s, tree.capTiffDirPath, u"*.tif *.tiff"_s);
    addFolder(facts, u"raw"_s, tree.capRawDirPath, u"*.crw *.raw *.cr2"_s);
    addFolder(facts, u"ref"_s, tree.refFullDirPath, importImageFilters);
    addFolder(facts, u"vid"_s, tree.videoDirPath, videoFilters + " *.webp"_L1);
    addFolder(facts, u"bg"_s, tree.backgroundDirPath, importImageFilters);
    return facts;
}

} // namespace morvane
