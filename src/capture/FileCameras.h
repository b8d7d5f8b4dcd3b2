#pragma once

#include "capture/CaptureClock.h"

#include <memory>
#include <QObject>
#include <QStringList>

class Settings;
class VideoSource;

/// Video files and numbered images that stand in the list of cameras because the user put them there. A file
/// keeps its index for as long as it stands in the list, over restarts too. Main thread, but for
/// makeSource().
class FileCameras : public QObject
{
    Q_OBJECT

public:
    /// Above every index that can be typed in, and above the built-in camera's.
    static constexpr int firstIndex = 302;
    static constexpr int most = 32;

    struct Camera
    {
        int index;
        QString path;
        /// What the list shows: the file's name.
        QString name;
    };

    explicit FileCameras(Settings &settings, QObject *parent = nullptr);

    QList<Camera> cameras() const;
    /// The path behind an index; empty when there is none.
    QString path(int index) const;

    /// Puts a file into the list and gives its index; of one that is there already, the index that it has. -1
    /// when the file does not exist, is neither movie nor image, or the list is full; errorString() tells
    /// which.
    int add(const QString &path);
    /// The same for this run of the program alone.
    int addForThisRun(const QString &path);
    void remove(int index);
    QString errorString() const
    {
        return m_error;
    }

    /// The caption of the file dialog, and its filter.
    static QString dialogCaption();
    static QString dialogFilter();

    /// Any thread.
    static std::unique_ptr<VideoSource> makeSource(const QString &path, std::shared_ptr<CaptureClock> clock);

signals:
    void changed();

private:
    int insert(const QString &path, bool keep);
    void store();

    Settings &m_settings;
    /// By index; an empty path is a free place.
    QStringList m_paths;
    /// Those of this run alone.
    QStringList m_passing;
    QString m_error;
};
