#include "project/AtomicFile.h"
#include "support/FullDisk.h"
#include "support/OrdinaryUser.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

using namespace Qt::StringLiterals;

namespace {

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(unreadable)");
}

} // namespace

class TestAtomicFile : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;

    QString path() const
    {
        return m_folder->filePath(u"film.kzfx"_s);
    }

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
    }

    void writesANewFileAndReplacesAnOldOne()
    {
        QVERIFY(AtomicFile::write(path(), "one").ok);
        QCOMPARE(contents(path()), QByteArray("one"));
        const AtomicFile::Result result = AtomicFile::write(path(), "two");
        QVERIFY(result.ok);
        QVERIFY(result.reason.isEmpty());
        QCOMPARE(contents(path()), QByteArray("two"));
        QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files), QStringList(u"film.kzfx"_s));
    }

    void emptyPathFails()
    {
        const AtomicFile::Result result = AtomicFile::write(QString(), "one");
        QVERIFY(!result.ok);
        QVERIFY(!result.reason.isEmpty());
    }

    void missingFolderFails()
    {
        const AtomicFile::Result result = AtomicFile::write(m_folder->filePath(u"gone/film.kzfx"_s), "one");
        QVERIFY(!result.ok);
        QVERIFY(!result.reason.isEmpty());
        QVERIFY(!QFileInfo::exists(m_folder->filePath(u"gone"_s)));
    }

    void folderInTheWayFails()
    {
        QDir().mkpath(path());
        QVERIFY(!AtomicFile::write(path(), "one").ok);
        QVERIFY(QFileInfo(path()).isDir());
    }

#ifdef Q_OS_UNIX
    void linkedFileIsWrittenAndTheLinkStays()
    {
        const QString real = m_folder->filePath(u"real.kzfx"_s);
        QVERIFY(AtomicFile::write(real, "one").ok);
        QVERIFY(QFile::link(real, path()));
        QVERIFY(AtomicFile::write(path(), "two").ok);
        QVERIFY(QFileInfo(path()).isSymLink());
        QCOMPARE(contents(real), QByteArray("two"));
    }

    void fullDiskLeavesTheOldFile()
    {
        const QByteArray old(1000, 'a');
        QVERIFY(AtomicFile::write(path(), old).ok);
        {
            const FullDisk disk(100 * 1024);
            const AtomicFile::Result result = AtomicFile::write(path(), QByteArray(1024 * 1024, 'b'));
            QVERIFY(!result.ok);
            QVERIFY(!result.reason.isEmpty());
        }
        QCOMPARE(contents(path()), old);
        QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files), QStringList(u"film.kzfx"_s));
    }

    void diskThatFillsWithTheLastBytesLeavesTheOldFile()
    {
        QVERIFY(AtomicFile::write(path(), "one").ok);
        {
            // Small enough to wait in a buffer: only the flush meets the limit.
            const FullDisk disk(10);
            const AtomicFile::Result result = AtomicFile::write(path(), QByteArray(100, 'b'));
            QVERIFY(!result.ok);
            QVERIFY(!result.reason.isEmpty());
        }
        QCOMPARE(contents(path()), QByteArray("one"));
        QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files), QStringList(u"film.kzfx"_s));
    }

    void readOnlyFolderLeavesTheOldFile()
    {
        QVERIFY(AtomicFile::write(path(), "one").ok);
        // The file itself may be written by anyone; writing into it in place would spoil it half-way.
        QCOMPARE(chmod(path().toLocal8Bit().constData(), 0666), 0);
        const QByteArray folder = m_folder->path().toLocal8Bit();
        QCOMPARE(chmod(folder.constData(), 0555), 0);
        {
            const OrdinaryUser user(m_folder->path());
            const AtomicFile::Result result = AtomicFile::write(path(), "two");
            QVERIFY(!result.ok);
            QVERIFY(!result.reason.isEmpty());
        }
        QCOMPARE(chmod(folder.constData(), 0755), 0);
        QCOMPARE(contents(path()), QByteArray("one"));
    }
#endif
};

QTEST_GUILESS_MAIN(TestAtomicFile)
#include "tst_atomicfile.moc"
