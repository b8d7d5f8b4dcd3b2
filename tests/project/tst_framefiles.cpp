#include "project/BackgroundImage.h"
#include "project/FrameFiles.h"
#include "shared/MessageCentre.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::StringLiterals;

class TestFrameFiles : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    ProjectTree m_tree;

    static void touch(const QString &path, const QByteArray &bytes = {})
    {
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    static QByteArray contents(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(unreadable)");
    }

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_tree = ProjectTree::of(m_folder->filePath(u"p.kzfx"_s), {});
    }

    void filesAreLookedForInTheirFolders()
    {
        touch(m_tree.capTumbDirPath + u"t"_s);
        touch(m_tree.capFullDirPath + u"f"_s);
        touch(m_tree.refTumbDirPath + u"rt"_s);
        touch(m_tree.refFullDirPath + u"r"_s);
        const ProjectFrame frame{u"t"_s, u"f"_s, u"rt"_s, u"r"_s, 1, 5, true, true};
        const CheckedFrame checked = FrameFiles::check(frame, m_tree);
        QCOMPARE(checked.frame, frame);
        QVERIFY(!checked.capFullMissing && !checked.refFullMissing);
        QVERIFY(checked.missingPaths.isEmpty());
    }

    void missingFilesAreEmptiedAndNoted()
    {
        touch(m_tree.capFullDirPath + u"f"_s);
        const CheckedFrame checked =
            FrameFiles::check({u"t"_s, u"f"_s, u"rt"_s, u"r"_s, -1, 5, true, false}, m_tree);
        QCOMPARE(checked.frame, (ProjectFrame{{}, u"f"_s, {}, {}, -1, 5, true, false}));
        QVERIFY(!checked.capFullMissing);
        QVERIFY(checked.refFullMissing);
        QCOMPARE(checked.missingPaths,
                 QStringList({m_tree.capTumbDirPath + u"t"_s, m_tree.refTumbDirPath + u"rt"_s,
                              m_tree.refFullDirPath + u"r"_s}));
    }

    void unnamedFilesCountAsMissingAndAreNotReported()
    {
        const CheckedFrame checked = FrameFiles::check({}, m_tree);
        QVERIFY(checked.capFullMissing && checked.refFullMissing);
        QVERIFY(checked.missingPaths.isEmpty());
    }

    void mapHoldsTheKeysOfTheModel()
    {
        CheckedFrame checked;
        checked.frame = {u"t"_s, u"f"_s, u"rt"_s, u"r"_s, 2, 5, true, false};
        checked.capFullMissing = false;
        const QVariantMap expected{{u"capTumb"_s, u"t"_s},  {u"capFull"_s, u"f"_s}, {u"refTumb"_s, u"rt"_s},
                                   {u"refFull"_s, u"r"_s},  {u"static"_s, 2},       {u"phase"_s, 5},
                                   {u"mirrored"_s, true},   {u"hidden"_s, false},   {u"capfullmiss"_s, false},
                                   {u"reffullmiss"_s, true}};
        QCOMPARE(checked.toMap(), expected);
    }

    void eachMissingFileIsLoggedAndReported()
    {
        MessageCentre messages;
        QSignalSpy spy(&messages, &MessageCentre::appendMessage);
        QTest::ignoreMessage(QtDebugMsg, "File doesn't exist at /a/b.jpg");
        QTest::ignoreMessage(QtDebugMsg, "File doesn't exist at /a/c.jpg");
        FrameFiles::report({u"/a/b.jpg"_s, u"/a/c.jpg"_s}, messages);
        QCOMPARE(spy.size(), 2);
        QCOMPARE(spy.at(0), QVariantList({int(Zum::FileMessage), int(Zum::Warning),
                                          u"Image file doesn't exist at /a/b.jpg"_s}));
        QCOMPARE(messages.robotErrorCount(), 0);
    }

    void pathWithoutAFolderIsTheWholePath()
    {
        QVERIFY(FrameFiles::pathIsThere(QString()));
        QVERIFY(FrameFiles::pathIsThere(m_folder->path()));
        QVERIFY(FrameFiles::pathIsThere(u"file:///"_s + m_folder->path()));
        QVERIFY(!FrameFiles::pathIsThere(m_folder->filePath(u"gone"_s)));
    }

    void chosenBackgroundIsCopiedOnce()
    {
        const QString source = m_folder->filePath(u"sky.png"_s);
        QDir().mkpath(m_tree.backgroundDirPath);
        touch(source, "one");
        QCOMPARE(morvane::adoptBackgroundImage(source, m_tree.backgroundDirPath), u"sky.png"_s);
        QCOMPARE(contents(m_tree.backgroundDirPath + u"sky.png"_s), QByteArray("one"));
        touch(source, "two");
        QCOMPARE(morvane::adoptBackgroundImage(source, m_tree.backgroundDirPath), u"sky.png"_s);
        QCOMPARE(contents(m_tree.backgroundDirPath + u"sky.png"_s), QByteArray("one"));
    }

    void bareBackgroundNameCopiesNothing()
    {
        QDir().mkpath(m_tree.backgroundDirPath);
        QCOMPARE(morvane::adoptBackgroundImage(u"sky.png"_s, m_tree.backgroundDirPath), u"sky.png"_s);
        QVERIFY(QDir(m_tree.backgroundDirPath).isEmpty());
        QCOMPARE(morvane::adoptBackgroundImage(QString(), m_tree.backgroundDirPath), QString());
    }

    void backgroundThatCannotBeCopiedIsLogged()
    {
        const QByteArray line = "Error copyng to " + (m_tree.backgroundDirPath + u"sky.png"_s).toUtf8();
        QTest::ignoreMessage(QtWarningMsg, line.constData());
        QCOMPARE(morvane::adoptBackgroundImage(m_folder->filePath(u"sky.png"_s), m_tree.backgroundDirPath),
                 u"sky.png"_s);
    }
};

QTEST_GUILESS_MAIN(TestFrameFiles)
#include "tst_framefiles.moc"
