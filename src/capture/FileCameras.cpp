#include "capture/FileCameras.h"

#include "capture/source/ImageSequenceSource.h"
#include "capture/source/VideoFileSource.h"
#include "shared/Names.h"
#include "shared/Settings.h"

#include <QFileInfo>

namespace {

const QString settingsKey = QStringLiteral("fileCameras");
const QString imageFilters = QStringLiteral("*.png *.jpg *.jpeg *.bmp *.webp *.tif *.tiff");

bool isImage(const QString &path)
{
    return morvane::suffixInFilters(QFileInfo(path).suffix().toLower(), imageFilters);
}

bool isMovie(const QString &path)
{
    return morvane::suffixInFilters(QFileInfo(path).suffix().toLower(), morvane::videoFilters);
}

} // namespace

FileCameras::FileCameras(Settings &settings, QObject *parent)
    : QObject(parent), m_settings(settings), m_paths(settings.value(settingsKey).toStringList().mid(0, most))
{
}

QList<FileCameras::Camera> FileCameras::cameras() const
{
    QList<Camera> list;
    for (int place = 0; place < m_paths.size(); ++place) {
        const QString &path = m_paths.at(place);
        if (!path.isEmpty())
            list.append({firstIndex + place, path, QFileInfo(path).fileName()});
    }
    return list;
}

QString FileCameras::path(int index) const
{
    return m_paths.value(index - firstIndex);
}

int FileCameras::add(const QString &path)
{
    return insert(path, true);
}

int FileCameras::addForThisRun(const QString &path)
{
    return insert(path, false);
}

int FileCameras::insert(const QString &path, bool keep)
{
    m_error.clear();
    const QFileInfo info(path);
    if (!info.isFile())
        m_error = tr("The file %1 does not exist. Choose it again in the list of devices").arg(path);
    else if (!isImage(path) && !isMovie(path))
        m_error =
            tr("The file %1 is neither a movie nor an image. Choose a movie, or one picture of a numbered "
               "sequence")
                .arg(info.fileName());
    if (!m_error.isEmpty())
        return -1;
    const QString absolute = info.absoluteFilePath();
    if (keep)
        m_passing.removeAll(absolute);
    qsizetype place = m_paths.indexOf(absolute);
    if (place < 0) {
        place = m_paths.indexOf(QString());
        if (place < 0 && m_paths.size() >= most) {
            m_error = tr("There are too many files in the list of cameras. Remove one of them first");
            return -1;
        }
        if (place < 0) {
            place = m_paths.size();
            m_paths.append(QString());
        }
        m_paths[place] = absolute;
        if (!keep)
            m_passing.append(absolute);
    }
    store();
    emit changed();
    return firstIndex + int(place);
}

void FileCameras::remove(int index)
{
    const int place = index - firstIndex;
    if (path(index).isEmpty())
        return;
    m_passing.removeAll(m_paths.at(place));
    m_paths[place].clear();
    store();
    emit changed();
}

void FileCameras::store()
{
    QStringList kept = m_paths;
    for (QString &path : kept) {
        if (m_passing.contains(path))
            path.clear();
    }
    while (!kept.isEmpty() && kept.last().isEmpty())
        kept.removeLast();
    if (kept.isEmpty())
        m_settings.remove(settingsKey);
    else
        m_settings.setValue(settingsKey, kept);
}

QString FileCameras::dialogCaption()
{
    return tr("Add file as camera...");
}

QString FileCameras::dialogFilter()
{
    return tr("Movies and numbered images") + QStringLiteral(" (") + morvane::videoFilters.trimmed()
           + QLatin1Char(' ') + imageFilters + QStringLiteral(");;");
}

std::unique_ptr<VideoSource> FileCameras::makeSource(const QString &path, std::shared_ptr<CaptureClock> clock)
{
    if (isImage(path))
        return std::make_unique<ImageSequenceSource>(path, std::move(clock));
    return std::make_unique<VideoFileSource>(path, std::move(clock));
}
