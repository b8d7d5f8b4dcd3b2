#pragma once

#include "preview/DiskCopies.h"
#include "preview/MemoryCache.h"
#include "preview/PictureHandover.h"
#include "preview/PictureRequest.h"
#include "preview/ReadAheadPlan.h"

#include <atomic>
#include <deque>
#include <functional>
#include <memory>
#include <QBitArray>

class SourcePicture;
struct PictureGeometry;

/// Loads pictures, brings them to display size, and keeps them: in memory by bytes, and on disk as reduced
/// copies. Without an event loop; everything runs on the thread that calls, one at a time, but for what says
/// that any thread may call it.
///
/// There is no gradual eviction: a picture that does not fit any more clears the memory first. Reading ahead
/// never does that, it ends when the budget is full.
class PictureStore
{
public:
    /// How much memory it takes for pictures until it is told otherwise.
    static constexpr int standardCacheBytes = 155520000;

    /// Folders with a trailing "/"; without one for the copies there are none.
    struct Folders
    {
        QString captured;
        QString reference;
        QString backgrounds;
        QString copies;
    };

    /// What is around it.
    struct Surroundings
    {
        std::function<Folders()> folders;
        /// The filters, with a strength. Called on the store's thread only.
        std::function<QImage(const QImage &, const QVariantMap &, double)> filter;
        std::shared_ptr<DiskCopies> copies;
    };

    /// What the owner is told, from within the calls; each may be left out.
    struct Reports
    {
        std::function<void(bool)> caching;
        std::function<void(int, int)> imageSize;
        std::function<void(double)> proportion;
        std::function<void(double)> usedPercent;
        std::function<void(int)> maxBytes;
        /// The picture is there to be taken from the handover.
        std::function<void()> finished;
        /// The request has ended without a picture.
        std::function<void()> ended;
        /// Which pictures of the plan of that number lie in memory.
        std::function<void(int, const QBitArray &)> ready;
        std::function<void(double)> diskUsedPercent;
    };

    PictureStore(Surroundings surroundings, Reports reports);
    ~PictureStore();

    void request(const PictureRequest &request);
    /// Clears everything when the key is empty; otherwise what is filtered, and the picture of the key.
    void clear(const QString &key);
    void setMaxBytes(int bytes, bool report);

    void setReadAhead(const ReadAheadPlan &plan);
    /// Does one piece of work that can wait, at most one picture long; false when there was nothing to do.
    bool workWhileIdle();

    /// Frees every picture. What is called later writes a log line and does nothing.
    void release();

    /// Any thread.
    PictureHandover &handover()
    {
        return m_handover;
    }
    /// Any thread: loads end before their next step.
    void stop()
    {
        m_stopping = true;
    }
    /// Any thread, for the whole process: the next picture that is loaded comes from the frame's own file,
    /// and its disk copy is made anew.
    static void passDiskCopiesOnce();

private:
    enum class Purpose {
        Showing,
        ReadingAhead,
    };
    enum class Loaded {
        Stored,
        NoRoom,
        /// The cache does not take it.
        Refused,
        Failed,
    };
    struct PendingCopy
    {
        QString folder;
        QString name;
        QSize sourceSize;
        /// Of the copy.
        QSize size;
        QImage image;
    };

    static std::atomic<bool> &diskCopiesAllowed();
    static QImage shaped(const QImage &decoded, const PictureGeometry &geometry);

    bool prepare(const PictureRequest &request);
    QString folderOf(const PictureRequest &request) const;
    void takeSizesOf(const PictureRequest &request);
    Loaded load(const PictureRequest &request, const QString &path, Purpose purpose);
    std::unique_ptr<SourcePicture> openCopy(const PictureRequest &request) const;
    Loaded bring(SourcePicture &file, const PictureGeometry &geometry, const PictureRequest &request,
                 const QString &path, QSize source, Purpose purpose);
    Loaded finish(const QImage &decoded, const PictureGeometry &geometry, const PictureRequest &request,
                  const QString &path, QSize source);
    void deliver(const QString &key);
    void reportUsed(double percent) const;

    bool readAhead();
    bool writeCopy();
    bool measureDisk();
    void surveyReady();
    void markReady(const PictureRequest &request, const QString &path);
    void reportReady() const;
    void moveCursorTo(const PictureRequest &request);
    QString keyOf(const QString &name) const;

    Surroundings m_surroundings;
    Reports m_reports;
    PictureHandover m_handover;
    std::unique_ptr<MemoryCache> m_cache;
    std::deque<PendingCopy> m_pendingCopies;
    ReadAheadPlan m_plan;
    QHash<QString, int> m_planPositions;
    QBitArray m_ready;
    QBitArray m_unreadable;
    PictureRequest m_lastSizes;
    bool m_planExhausted = true;
    bool m_diskUseStale = true;
    std::atomic<bool> m_busy = false;
    std::atomic<bool> m_stopping = false;
};
