#include "project/LegacyProject.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::StringLiterals;

class TestLegacyProject : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;

    QString content() const
    {
        return m_folder->path() + u'/';
    }
    void touch(const QString &name) const
    {
        QDir().mkpath(QFileInfo(content() + name).path());
        QFile file(content() + name);
        QVERIFY(file.open(QIODevice::WriteOnly));
    }

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
    }

    void picturesOfTheCameraFolderAreListedByName()
    {
        for (const QString &name : {u"camera/b.jpg"_s, u"camera/a.PNG"_s, u"camera/c.cr2"_s,
                                    u"camera/d.txt"_s, u"camera/sub/e.jpg"_s, u"web/f.jpg"_s})
            touch(name);
        QCOMPARE(morvane::legacyProjectImages(u"/x/p.kzf"_s, content()),
                 QStringList({content() + u"camera/a.PNG"_s, content() + u"camera/b.jpg"_s,
                              content() + u"camera/c.cr2"_s}));
    }

    void withoutACameraFolderThatOfTheWebcamIsTaken()
    {
        touch(u"web/f.jpg"_s);
        touch(u"camera"_s);
        QCOMPARE(morvane::legacyProjectImages(u"/x/p.kzf"_s, content()),
                 QStringList(content() + u"web/f.jpg"_s));
    }

    void emptyFolderGivesAnEmptyList()
    {
        QDir().mkpath(content() + u"camera"_s);
        QCOMPARE(morvane::legacyProjectImages(u"/x/p.kzf"_s, content()), QStringList());
    }

    void neitherFolderIsLogged()
    {
        const QByteArray line = "Convert legacy project file: Cannot find 'camera' or 'web' dirs at '"
                                + content().toUtf8() + '\'';
        QTest::ignoreMessage(QtDebugMsg, line.constData());
        QVERIFY(!morvane::legacyProjectImages(u"/x/p.kzf"_s, content()));
    }

    void emptyPathsAreLogged()
    {
        QTest::ignoreMessage(QtDebugMsg, "Project path or project content path is empty: '' - '/x/'");
        QVERIFY(!morvane::legacyProjectImages(QString(), u"/x/"_s));
        QTest::ignoreMessage(QtDebugMsg, "Project path or project content path is empty: '/x/p.kzf' - ''");
        QVERIFY(!morvane::legacyProjectImages(u"/x/p.kzf"_s, QString()));
    }
};

QTEST_GUILESS_MAIN(TestLegacyProject)
#include "tst_legacyproject.moc"
