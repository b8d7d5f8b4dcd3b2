#pragma once

#include <filesystem>
#include <memory>
#include <mutex>
#include <QHash>
#include <QImage>
#include <QSize>
#include <QString>

/// The reduced copies that lie in the cache folders of projects: "<frame's name>_@<width>x<height>.jpg" with
/// the size of the frame's own picture, each number with six significant digits.
///
/// Any thread. All workers of the process share one, so that what one has written the others find; what
/// others have put there or taken away is seen by the folder's time. A folder is listed again only then.
class DiskCopies
{
public:
    static std::shared_ptr<DiskCopies> ofProcess();

    static QString fileName(const QString &name, QSize sourceSize);
    /// The size in a copy's file name; a side that cannot be read, or is practically 0, comes from `loaded`.
    static QSize sourceSize(const QString &fileName, QSize loaded);

    /// Path of the first copy of that frame by name, empty for none.
    QString find(const QString &folder, const QString &name);
    /// Writes the copy and takes away others of the same frame. A copy that cannot be written is not noticed:
    /// the frame's own file is read again the next time.
    void write(const QString &folder, const QString &name, QSize sourceSize, const QImage &image);
    /// What the copies take of the space that they and the free space of their disk make together, in per
    /// cent.
    double usedPercent(const QString &folder);

private:
    struct Copy
    {
        QString fileName;
        qint64 bytes = 0;
    };
    struct Listing
    {
        std::filesystem::file_time_type changed;
        /// By frame, in the order of their names.
        QHash<QString, QList<Copy>> copies;
        qint64 bytes = 0;

        void put(const QString &name, const Copy &copy);
    };

    Listing &listing(const QString &folder);

    std::mutex m_mutex;
    QHash<QString, Listing> m_listings;
};
