#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

/// A new file that is either whole and under its name, or not there. The bytes go to a hidden temporary file
/// in the same folder and to the disk; only then is that given its name, and never in the place of another
/// file. A killed program leaves at most a temporary file. Any thread.
class SafeImageFile
{
    Q_DECLARE_TR_FUNCTIONS(SafeImageFile)

public:
    enum class Placed {
        Done,
        /// There is a file of that name; the temporary one is kept for another name.
        NameTaken,
        Failed,
    };

    /// A file for the folder of `path`, whose temporary name is made from its name.
    explicit SafeImageFile(const QString &path);
    /// Removes what has not been placed.
    ~SafeImageFile();
    SafeImageFile(const SafeImageFile &) = delete;
    SafeImageFile &operator=(const SafeImageFile &) = delete;

    enum class Flush {
        Now,
        /// By flushPlaced(), for what can be made anew and shall not keep anybody waiting.
        Later,
    };

    bool write(const QByteArray &bytes, Flush flush = Flush::Now);
    Placed placeAs(const QString &path);
    /// Brings the placed file to the disk.
    void flushPlaced();
    /// Why write() or placeAs() failed, for the user.
    QString reason() const
    {
        return m_reason;
    }

    /// Removes temporary files that killed programs left in a folder, older than an hour.
    static void removeLeftovers(const QString &folder);

private:
    QString m_temporary;
    QString m_placed;
    QString m_reason;
};
