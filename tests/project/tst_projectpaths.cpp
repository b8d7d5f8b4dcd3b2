#include "project/ProjectPaths.h"
#include "shared/Names.h"
#include "shared/Settings.h"
#include "shared/Zum.h"

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>
#include <QUrl>

using namespace Qt::StringLiterals;

class TestProjectPaths : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<Settings> m_settings;
    std::unique_ptr<ProjectPaths> m_paths;
    QStringList m_events;
    QVariantMap m_frameFolders;

    QString at(const QString &name) const
    {
        return m_folder->path() + u'/' + name;
    }
    void note(const QString &event)
    {
        m_events.append(event);
    }
    void open(const QString &path)
    {
        m_paths->setProjPath(path);
        emit m_paths->projPathChanged(true);
    }
    static void touch(const QString &path)
    {
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
    }

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_settings = std::make_unique<Settings>(at(u"settings.ini"_s));
        m_events.clear();
        m_frameFolders.clear();
        ProjectPaths::Hooks hooks;
        hooks.closeSessionLog = [this] {
            note(u"closeLog"_s);
        };
        hooks.openSessionLog = [this](const QString &path) {
            note(u"openLog "_s + path);
        };
        hooks.setFrameFolders = [this](const QVariantMap &folders) {
            m_frameFolders = folders;
            note(u"frameFolders"_s);
        };
        hooks.resetTitle = [this] {
            note(u"title"_s);
        };
        m_paths = std::make_unique<ProjectPaths>(*m_settings, hooks, at(u"home"_s));
        const auto record = [this](void (ProjectPaths::*changed)(), const QString &name) {
            connect(m_paths.get(), changed, this, [this, name] { note(name); });
        };
        record(&ProjectPaths::projNameChanged, u"projName"_s);
        record(&ProjectPaths::projDirPathChanged, u"projDirPath"_s);
        record(&ProjectPaths::projContntDirPathChanged, u"projContntDirPath"_s);
        record(&ProjectPaths::capFullDirPathChanged, u"capFullDirPath"_s);
        record(&ProjectPaths::capTumbDirPathChanged, u"capTumbDirPath"_s);
        record(&ProjectPaths::refFullDirPathChanged, u"refFullDirPath"_s);
        record(&ProjectPaths::refTumbDirPathChanged, u"refTumbDirPath"_s);
        record(&ProjectPaths::videoDirPathChanged, u"videoDirPath"_s);
        record(&ProjectPaths::extractedDirPathChanged, u"extractedDirPath"_s);
    }

    void everyPathFollowsFromTheProjectFile()
    {
        open(at(u"film.kzfx"_s));
        const ProjectTree &tree = m_paths->tree();
        const QString files = at(u"film_files/"_s);
        QCOMPARE(m_paths->projPath(), at(u"film.kzfx"_s));
        QCOMPARE(m_paths->projName(), u"film"_s);
        QCOMPARE(m_paths->projDirPath(), m_folder->path() + u'/');
        QCOMPARE(m_paths->projContntDirPath(), files);
        QCOMPARE(m_paths->capFullDirPath(), files + u"cap/"_s);
        QCOMPARE(tree.capTiffDirPath, files + u"cap/tiff/"_s);
        QCOMPARE(tree.capRawDirPath, files + u"cap/raw/"_s);
        QCOMPARE(tree.metaDirPath, files + u"cap/meta/"_s);
        QCOMPARE(m_paths->capTumbDirPath(), files + u"cap/tmb/"_s);
        QCOMPARE(tree.recycleBinDirPath, files + u"cap/tmb//recyclebin/"_s);
        QCOMPARE(m_paths->refFullDirPath(), files + u"ref/"_s);
        QCOMPARE(m_paths->refTumbDirPath(), files + u"ref/tmb/"_s);
        QCOMPARE(tree.backgroundDirPath, files + u"bg/"_s);
        QCOMPARE(m_paths->videoDirPath(), files + u"video/"_s);
        QCOMPARE(tree.tempDirPath, files + u"tmp/"_s);
        QCOMPARE(tree.sessionLogPath, files + u"tmp/session.log"_s);
        QCOMPARE(tree.cacheDirPath, files + u"tmp/cache/"_s);
        QCOMPARE(m_paths->extractedDirPath(), files + u"tmp/extracted/"_s);
        QCOMPARE(m_paths->camPresetsFullDirPath(), files + u"presets/"_s);
    }

    void foldersAreMadeExceptThoseOfOthers()
    {
        open(at(u"film.kzfx"_s));
        const ProjectTree &tree = m_paths->tree();
        for (const QString &folder :
             {tree.capTumbDirPath, tree.refTumbDirPath, tree.metaDirPath, tree.backgroundDirPath,
              tree.videoDirPath, tree.cacheDirPath, tree.extractedDirPath})
            QVERIFY2(QFileInfo(folder).isDir(), qPrintable(folder));
        for (const QString &folder : {tree.capTiffDirPath, tree.capRawDirPath, tree.recycleBinDirPath,
                                      tree.camPresetsFullDirPath, tree.projPath})
            QVERIFY2(!QFileInfo::exists(folder), qPrintable(folder));
    }

    void signalsComeInOrder()
    {
        open(at(u"film.kzfx"_s));
        QCOMPARE(m_events,
                 QStringList({u"closeLog"_s, u"projName"_s, u"projDirPath"_s, u"capFullDirPath"_s,
                              u"capTumbDirPath"_s, u"refFullDirPath"_s, u"refTumbDirPath"_s,
                              u"videoDirPath"_s, u"openLog "_s + at(u"film_files/tmp/session.log"_s),
                              u"extractedDirPath"_s, u"frameFolders"_s, u"projContntDirPath"_s, u"title"_s}));
    }

    void withoutUpdateSignalTheFolderSignalsStayOut()
    {
        m_paths->setProjPath(at(u"film.kzfx"_s));
        QVERIFY(m_paths->setProjectDirPath(false));
        QCOMPARE(m_events, QStringList({u"closeLog"_s, u"projName"_s, u"projDirPath"_s,
                                        u"openLog "_s + at(u"film_files/tmp/session.log"_s),
                                        u"extractedDirPath"_s, u"frameFolders"_s, u"title"_s}));
        QCOMPARE(m_paths->capFullDirPath(), at(u"film_files/cap/"_s));
    }

    void projPathChangedHandsItsArgumentOn()
    {
        m_paths->setProjPath(at(u"film.kzfx"_s));
        QVERIFY(m_events.isEmpty());
        emit m_paths->projPathChanged(false);
        QVERIFY(!m_events.contains(u"capFullDirPath"_s));
        QCOMPARE(m_paths->projName(), u"film"_s);
    }

    void projectFolderIsRemembered()
    {
        open(at(u"film.kzfx"_s));
        QCOMPARE(m_settings->value(u"lastprojdirpath"_s).toString(), m_folder->path() + u'/');
    }

    void projectFolderIsCleaned()
    {
        QDir().mkpath(at(u"a/b"_s));
        open(at(u"a/./b/..//film.kzfx"_s));
        QCOMPARE(m_paths->projDirPath(), at(u"a/"_s));
    }

    void withoutAProjectTheHomeFolderStandsIn()
    {
        QCOMPARE(m_paths->projDirPath(), at(u"home/"_s));
        QVERIFY(!QFileInfo::exists(at(u"home"_s)));
        QVERIFY(m_paths->setProjectDirPath());
        QCOMPARE(m_paths->projDirPath(), at(u"home/"_s));
        QCOMPARE(m_paths->projContntDirPath(), at(u"home/_files/"_s));
        QVERIFY(!m_events.contains(u"projName"_s));
        QVERIFY(!m_settings->contains(u"lastprojdirpath"_s));
    }

    void twoProjectsThatDifferAfterTheFirstDotShareAFolder()
    {
        open(at(u"a.b.kzfx"_s));
        QCOMPARE(m_paths->projectBaseName(), u"a"_s);
        QCOMPARE(m_paths->projectName(true), u"a"_s);
        QCOMPARE(m_paths->projectName(), u"a.b.kzfx"_s);
        const QString first = m_paths->projContntDirPath();
        open(at(u"a.c.kzfx"_s));
        QCOMPARE(m_paths->projContntDirPath(), first);
        QCOMPARE(first, at(u"a_files/"_s));
    }

    void secondProjectChangesEverythingAtOnce()
    {
        open(at(u"one.kzfx"_s));
        bool arrived = false;
        connect(m_paths.get(), &ProjectPaths::projContntDirPathChanged, this, [&] {
            arrived = true;
            const QString files = at(u"two_files/"_s);
            for (const QVariant &folder : std::as_const(m_frameFolders))
                QVERIFY2(folder.toString().startsWith(files), qPrintable(folder.toString()));
            const Zum::ProjectFolders folders = Zum::projectFolders();
            QCOMPARE(folders.projContntDirPath, files);
            QCOMPARE(folders.capFullDirPath, files + u"cap/"_s);
            QCOMPARE(folders.refFullDirPath, files + u"ref/"_s);
            QCOMPARE(folders.backgroundDirPath, files + u"bg/"_s);
            QCOMPARE(folders.extractedDirPath, files + u"tmp/extracted/"_s);
        });
        open(at(u"two.kzfx"_s));
        QVERIFY(arrived);
        QCOMPARE(m_frameFolders.keys(),
                 QStringList({u"23"_s, u"capFull"_s, u"capTumb"_s, u"refFull"_s, u"refTumb"_s}));
    }

    void clearForgetsFolders()
    {
        open(at(u"film.kzfx"_s));
        m_events.clear();
        m_paths->clear(false);
        QCOMPARE(m_paths->projPath(), at(u"film.kzfx"_s));
        QVERIFY(m_paths->videoDirPath().isEmpty());
        QVERIFY(Zum::projectFolders().capFullDirPath.isEmpty());
        QCOMPARE(m_events, QStringList({u"frameFolders"_s, u"title"_s}));
        m_paths->clear(true);
        QVERIFY(m_paths->projPath().isEmpty());
        QCOMPARE(m_paths->projDirPath(), at(u"home/"_s));
    }

    void temporaryFolderThatCannotBeMadeIsLogged()
    {
        touch(at(u"film_files/tmp"_s));
        QTest::ignoreMessage(QtDebugMsg, "Error: Cannot create tmp dir");
        const QByteArray line =
            "Error. Cannot create project contents folder: " + at(u"film_files/"_s).toUtf8();
        QTest::ignoreMessage(QtDebugMsg, line.constData());
        m_paths->setProjPath(at(u"film.kzfx"_s));
        QVERIFY(!m_paths->setProjectDirPath());
        QVERIFY(m_paths->tree().tempDirPath.isEmpty());
        QVERIFY(m_paths->tree().sessionLogPath.isEmpty());
        QVERIFY(m_paths->extractedDirPath().isEmpty());
        QCOMPARE(m_paths->capFullDirPath(), at(u"film_files/cap/"_s));
        QVERIFY(!m_events.contains(u"projContntDirPath"_s));
        QCOMPARE(m_events.last(), u"title"_s);
    }

    void cacheAndExtractedFoldersThatCannotBeMadeDoNotStop()
    {
        touch(at(u"film_files/tmp/cache"_s));
        touch(at(u"film_files/tmp/extracted"_s));
        QTest::ignoreMessage(QtDebugMsg, "Failed to create cache dir");
        QTest::ignoreMessage(QtDebugMsg, "Failed to create import dir");
        m_paths->setProjPath(at(u"film.kzfx"_s));
        QVERIFY(m_paths->setProjectDirPath());
        QVERIFY(m_events.contains(u"projContntDirPath"_s));
    }

    void missingVideoFolderFailsButGoesOn()
    {
        touch(at(u"film_files/video"_s));
        const QByteArray line =
            "Error. Cannot create project contents folder: " + at(u"film_files/"_s).toUtf8();
        QTest::ignoreMessage(QtDebugMsg, line.constData());
        m_paths->setProjPath(at(u"film.kzfx"_s));
        QVERIFY(!m_paths->setProjectDirPath());
        QVERIFY(QFileInfo(m_paths->capTumbDirPath()).isDir());
        QCOMPARE(m_frameFolders.value(u"capFull"_s).toString(), at(u"film_files/cap/"_s));
    }

    void imagePathOfEachRole_data()
    {
        QTest::addColumn<int>("role");
        QTest::addColumn<QString>("folder");
        QTest::newRow("captured") << int(Zum::CapFull) << u"cap/"_s;
        QTest::newRow("captured thumbnail") << int(Zum::CapTumb) << u"cap/tmb/"_s;
        QTest::newRow("reference") << int(Zum::RefFull) << u"ref/"_s;
        QTest::newRow("reference thumbnail") << int(Zum::RefTumb) << u"ref/tmb/"_s;
        QTest::newRow("background") << int(Zum::BackgroundFull) << u"bg/"_s;
    }
    void imagePathOfEachRole()
    {
        QFETCH(int, role);
        QFETCH(QString, folder);
        open(at(u"film.kzfx"_s));
        const QString path = at(u"film_files/"_s) + folder + u"a.png"_s;
        QCOMPARE(m_paths->buildImagePath(role, u"a.png"_s), morvane::emptyFrameImage);
        touch(path);
        QCOMPARE(m_paths->buildImagePath(role, u"a.png"_s), u"file:///"_s + path);
        QCOMPARE(m_paths->buildImagePath(role, u"a.png"_s, true), path);
        QVERIFY(QFileInfo::exists(QUrl(m_paths->buildImagePath(role, u"a.png"_s)).toLocalFile()));
    }

    void emptyNameIsTheEmptyImageEvenWithoutPrefix()
    {
        open(at(u"film.kzfx"_s));
        QCOMPARE(m_paths->buildImagePath(Zum::CapFull, QString()), u"images/empty_96.png"_s);
        QCOMPARE(m_paths->buildImagePath(Zum::CapFull, QString(), true), u"images/empty_96.png"_s);
        QCOMPARE(m_paths->buildImagePath(Zum::CapTIFF, QString()), u"images/empty_96.png"_s);
    }

    void urlsAreLeftAsTheyAre()
    {
        for (const QString &url : {u"file:///x/y.png"_s, u"image://systemicons/z"_s})
            QCOMPARE(m_paths->buildImagePath(Zum::CapFull, url), url);
    }

    void unknownRoleLooksAtThePathItself()
    {
        touch(at(u"loose.png"_s));
        QCOMPARE(m_paths->buildImagePath(Zum::Hidden, at(u"loose.png"_s)),
                 u"file:///"_s + at(u"loose.png"_s));
    }

    void tiffVersionHasNoPrefix()
    {
        open(at(u"film.kzfx"_s));
        QCOMPARE(m_paths->buildImagePath(Zum::CapTIFF, u"a.jpg"_s), QString());
        touch(at(u"film_files/cap/tiff/a.tiff"_s));
        QCOMPARE(m_paths->buildImagePath(Zum::CapTIFF, u"a.jpg"_s), at(u"film_files/cap/tiff/a.tiff"_s));
    }

    void rawVersionIsLookedForBySuffixInOrder()
    {
        open(at(u"film.kzfx"_s));
        QCOMPARE(m_paths->buildImagePath(Zum::CapRAW, u"a.jpg"_s), QString());
        for (const QString &suffix : {u"cr2"_s, u"raw"_s, u"crw"_s}) {
            const QString path = at(u"film_files/cap/raw/a."_s) + suffix;
            touch(path);
            QCOMPARE(m_paths->buildImagePath(Zum::CapRAW, u"a.jpg"_s), path);
        }
    }

    void mediaPathHasAPrefix()
    {
        QCOMPARE(m_paths->buildMediaPath(QString()), QString());
        QCOMPARE(m_paths->buildMediaPath(u"//srv/x/a.avi"_s), u"file://srv/x/a.avi"_s);
        QCOMPARE(m_paths->buildMediaPath(u"/x/a.avi"_s), u"file:////x/a.avi"_s);
    }

    void networkPathKeepsItsTwoSlashes()
    {
        const ProjectTree tree = ProjectTree::of(u"//srv/x/p.kzfx"_s, u"/home/me"_s);
        QCOMPARE(tree.projDirPath, u"//srv/x/"_s);
        QCOMPARE(tree.capFullDirPath, u"//srv/x/p_files/cap/"_s);
        QCOMPARE(ProjectTree::of(u"//srv/x/../y//p.kzfx"_s, {}).projDirPath, u"//srv/y/"_s);
    }

    void networkProjectGivesNetworkUrls()
    {
        // On this system the two slashes lead to the same file, so that the rule can be seen at work.
        open(u'/' + at(u"film.kzfx"_s));
        QVERIFY(m_paths->capFullDirPath().startsWith(u"//"_s));
        touch(m_paths->capFullDirPath() + u"a.png"_s);
        QCOMPARE(m_paths->buildImagePath(Zum::CapFull, u"a.png"_s),
                 u"file:/"_s + at(u"film_files/cap/a.png"_s));
    }

    void relativeProjectPathBecomesAbsolute()
    {
        QCOMPARE(ProjectTree::of(u"p.kzfx"_s, {}).projDirPath, QDir::currentPath() + u'/');
    }

    void projectInRootFolder()
    {
        QCOMPARE(ProjectTree::of(u"/p.kzfx"_s, {}).capFullDirPath, u"/p_files/cap/"_s);
    }

    void directoryFactsOfTheOpenAndOfAnotherProject()
    {
        open(at(u"film.kzfx"_s));
        touch(at(u"other_files/cap/a.jpg"_s));
        QCOMPARE(m_paths->projectDirInfo().value(u"projectname"_s).toString(), u"film"_s);
        QCOMPARE(m_paths->projectDirInfo().value(u"capCount"_s).toInt(), 0);
        const QVariantMap other = m_paths->projectDirInfo(at(u"other.kzfx"_s));
        QCOMPARE(other.value(u"projectname"_s).toString(), u"other"_s);
        QCOMPARE(other.value(u"capCount"_s).toInt(), 1);
        QVERIFY(!QFileInfo::exists(at(u"other_files/cap/tmb"_s)));
    }
};

QTEST_GUILESS_MAIN(TestProjectPaths)
#include "tst_projectpaths.moc"
