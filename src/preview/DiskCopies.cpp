#include "preview/DiskCopies.h"

#include <algorithm>
#include <atomic>
#include <cmath>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QImageWriter>
#include <QStorageInfo>

namespace {

constexpr int jpegQuality = 80;
const QString filesPattern = QStringLiteral("*_@*x*.jpg");
const QString sizeMark = QStringLiteral("_@");

/// The least value for a folder that is not there.
std::filesystem::file_time_type timeOf(const QString &folder)
{
    std::error_code error;
    const auto time = std::filesystem::last_write_time(QFile::encodeName(folder).toStdString(), error);
    return error ? std::filesystem::file_time_type::min() : time;
}

QString frameOf(const QString &fileName)
{
    return fileName.left(fileName.lastIndexOf(sizeMark));
}

QString sixDigits(int number)
{
    return QString::number(double(number), 'g', 6);
}

int sideOf(const QString &text, int loaded)
{
    constexpr double practicallyNothing = 1e-12;
    constexpr double largest = 1e9;
    bool isNumber = false;
    const double side = text.toDouble(&isNumber);
    return isNumber && std::abs(side) > practicallyNothing && std::abs(side) < largest ? int(side) : loaded;
}

/// A name of its own in the folder, which no listing takes for a copy.
QString temporaryName(const QString &path)
{
    static std::atomic<int> count = 0;
    return path + QStringLiteral(".%1.part").arg(++count);
}

bool writeImage(const QString &path, const QImage &image)
{
    const QString temporary = temporaryName(path);
    QFile file(temporary);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    QImageWriter writer(&file, "jpg");
    writer.setQuality(jpegQuality);
    // A full disk shows at the flush only.
    const bool written = writer.write(image) && file.flush();
    file.close();
    if (written) {
        // A rename does not replace a file on every system.
        QFile::remove(path);
        if (QFile::rename(temporary, path))
            return true;
    }
    QFile::remove(temporary);
    return false;
}

} // namespace

std::shared_ptr<DiskCopies> DiskCopies::ofProcess()
{
    static const auto instance = std::make_shared<DiskCopies>();
    return instance;
}

QString DiskCopies::fileName(const QString &name, QSize sourceSize)
{
    return name + sizeMark + sixDigits(sourceSize.width()) + u'x' + sixDigits(sourceSize.height())
           + QStringLiteral(".jpg");
}

QSize DiskCopies::sourceSize(const QString &fileName, QSize loaded)
{
    const qsizetype start = fileName.lastIndexOf(u'@') + 1;
    const QStringList sides = fileName.mid(start, fileName.lastIndexOf(u'.') - start).split(u'x');
    if (start == 0 || sides.size() != 2)
        return loaded;
    return {sideOf(sides.first(), loaded.width()), sideOf(sides.last(), loaded.height())};
}

/// In the place of all copies of that frame.
void DiskCopies::Listing::put(const QString &name, const Copy &copy)
{
    QList<Copy> &known = copies[name];
    for (const Copy &old : std::as_const(known))
        bytes -= old.bytes;
    known = {copy};
    bytes += copy.bytes;
}

/// To be called with the lock held.
DiskCopies::Listing &DiskCopies::listing(const QString &folder)
{
    Listing &listing = m_listings[folder];
    const auto changed = timeOf(folder);
    if (changed == listing.changed)
        return listing;
    listing.changed = changed;
    listing.copies.clear();
    listing.bytes = 0;
    QDirIterator files(folder, {filesPattern}, QDir::Files);
    while (files.hasNext()) {
        files.next();
        const Copy copy{files.fileName(), files.fileInfo().size()};
        listing.copies[frameOf(copy.fileName)].append(copy);
        listing.bytes += copy.bytes;
    }
    for (QList<Copy> &copies : listing.copies)
        std::sort(copies.begin(), copies.end(),
                  [](const Copy &a, const Copy &b) { return a.fileName < b.fileName; });
    return listing;
}

QString DiskCopies::find(const QString &folder, const QString &name)
{
    if (folder.isEmpty())
        return {};
    const std::lock_guard lock(m_mutex);
    const QList<Copy> copies = listing(folder).copies.value(name);
    return copies.isEmpty() ? QString() : folder + copies.first().fileName;
}

void DiskCopies::write(const QString &folder, const QString &name, QSize sourceSize, const QImage &image)
{
    const QString copy = fileName(name, sourceSize);
    if (folder.isEmpty() || !QDir(folder).exists())
        return;
    QList<Copy> others;
    {
        const std::lock_guard lock(m_mutex);
        others = listing(folder).copies.value(name);
    }
    // Encoding takes its time: other workers go on looking.
    const bool written = writeImage(folder + copy, image);
    const std::lock_guard lock(m_mutex);
    if (!written) {
        m_listings.remove(folder);
        return;
    }
    for (const Copy &other : std::as_const(others)) {
        if (other.fileName != copy)
            QFile::remove(folder + other.fileName);
    }
    Listing &known = m_listings[folder];
    known.put(name, {copy, QFileInfo(folder + copy).size()});
    known.changed = timeOf(folder);
}

double DiskCopies::usedPercent(const QString &folder)
{
    if (folder.isEmpty())
        return 0;
    const std::lock_guard lock(m_mutex);
    const qint64 used = listing(folder).bytes;
    const qint64 available = std::max(qint64(0), QStorageInfo(folder).bytesAvailable());
    return used + available > 0 ? 100.0 * double(used) / double(used + available) : 0;
}
