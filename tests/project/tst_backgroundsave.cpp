#include "project/BackgroundSave.h"
#include "project/ProjectReader.h"

#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

class TestBackgroundSave : public QObject
{
    Q_OBJECT

private slots:
    void writesTheFileAndTells();
    void ofManySavesTheLastIsWritten();
    void finishTellsBeforeItReturns();
    void aSaveForAnotherFileDropsNone();
    void aFailureIsToldAndTheNextSaveComes();
    void destroyingWritesWhatWaits();

private:
    QString path(const QString &name = QStringLiteral("p.kzfx")) const
    {
        return m_folder.filePath(name);
    }
    static ProjectDocument film(int frames)
    {
        ProjectDocument document;
        for (int i = 0; i < frames; ++i) {
            ProjectFrame frame;
            frame.capFull = QStringLiteral("frame_%1.jpg").arg(i);
            document.frames.append(frame);
        }
        return document;
    }
    static int framesIn(const QString &path)
    {
        return int(ProjectReader::readFile(path).document.frames.size());
    }

    QTemporaryDir m_folder;
};

void TestBackgroundSave::writesTheFileAndTells()
{
    BackgroundSave saves;
    QSignalSpy saved(&saves, &BackgroundSave::saved);
    saves.save(path(), film(3));
    QVERIFY(saves.isBusy());
    QTRY_COMPARE(saved.count(), 1);
    QCOMPARE(saved.constFirst().at(0).toString(), path());
    QVERIFY(saved.constFirst().at(1).value<AtomicFile::Result>().ok);
    QVERIFY(!saves.isBusy());
    QCOMPARE(framesIn(path()), 3);
}

void TestBackgroundSave::ofManySavesTheLastIsWritten()
{
    BackgroundSave saves;
    QSignalSpy saved(&saves, &BackgroundSave::saved);
    for (int frames = 1; frames <= 200; ++frames)
        saves.save(path(), film(frames));
    QTRY_VERIFY(!saves.isBusy());
    QCOMPARE(framesIn(path()), 200);
    // The first, and the last of those that waited.
    QCOMPARE(saved.count(), 2);
}

void TestBackgroundSave::finishTellsBeforeItReturns()
{
    BackgroundSave saves;
    QSignalSpy saved(&saves, &BackgroundSave::saved);
    saves.save(path(), film(5));
    saves.save(path(), film(6));
    saves.finish();
    QCOMPARE(saved.count(), 2);
    QCOMPARE(framesIn(path()), 6);
    saves.finish();
    QCoreApplication::processEvents();
    QCOMPARE(saved.count(), 2);
}

void TestBackgroundSave::aSaveForAnotherFileDropsNone()
{
    BackgroundSave saves;
    saves.save(path("a.kzfx"), film(1));
    saves.save(path("a.kzfx"), film(2));
    saves.save(path("b.kzfx"), film(3));
    saves.finish();
    QCOMPARE(framesIn(path("a.kzfx")), 2);
    QCOMPARE(framesIn(path("b.kzfx")), 3);
}

void TestBackgroundSave::aFailureIsToldAndTheNextSaveComes()
{
    BackgroundSave saves;
    QVERIFY(QDir().mkpath(path("folder.kzfx/x")));
    QSignalSpy saved(&saves, &BackgroundSave::saved);
    saves.save(path("folder.kzfx"), film(1));
    saves.save(path(), film(4));
    saves.finish();
    QCOMPARE(saved.count(), 2);
    QVERIFY(!saved.at(0).at(1).value<AtomicFile::Result>().ok);
    QVERIFY(!saved.at(0).at(1).value<AtomicFile::Result>().reason.isEmpty());
    QVERIFY(saved.at(1).at(1).value<AtomicFile::Result>().ok);
    QCOMPARE(framesIn(path()), 4);
}

void TestBackgroundSave::destroyingWritesWhatWaits()
{
    {
        BackgroundSave saves;
        saves.save(path(), film(7));
        saves.save(path(), film(8));
    }
    QCOMPARE(framesIn(path()), 8);
}

QTEST_GUILESS_MAIN(TestBackgroundSave)
#include "tst_backgroundsave.moc"
