#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QFile>
#include <QString>

/// A new file that is either whole and under its name, or not there: write(), flush(), placeAs(). The bytes
/// go to a hidden temporary file in the same folder and to the disk; only then is that given its name, and
/// never in the place of another file. A killed program leaves at most a temporary file. Any thread.
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

    /// The disk begins to take the bytes, and goes on while the caller does something else.
    bool write(const QByteArray &bytes);
    /// Waits until the disk has them. What can be made anew may get its name before, to keep nobody waiting.
    bool flush();
    Placed placeAs(const QString &path);
    /// Why a step failed, for the user.
    QString reason() const
    {
        return m_reason;
    }

    /// Removes temporary files that killed programs left in a folder, older than an hour.
    static void removeLeftovers(const QString &folder);

private:
    void keepReason();

    QFile m_file;
    QString m_temporary;
    QString m_reason;
};
