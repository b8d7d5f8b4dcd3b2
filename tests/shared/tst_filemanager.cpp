#include "shared/desktop/FreeDesktopServices.h"
#include "UrlCatcher.h"

#include <QDBusConnection>
#include <QDBusContext>
#include <QDesktopServices>
#include <QProcess>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTest>

/// Imitates a desktop's file manager on the bus.
class FakeFileManager : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.FileManager1")

public:
    bool fails = false;

public slots:
    void ShowItems(const QStringList &uris, const QString &startupId)
    {
        emit asked(uris, startupId);
        if (fails)
            sendErrorReply(QDBusError::Failed, QStringLiteral("no window"));
    }

signals:
    void asked(const QStringList &uris, const QString &startupId);
};

/// Showing a file on a desktop with a bus. The bus is one of the test's own.
class TestFileManager : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void withoutAFileManagerTheFolderIsOpened();
    void fileManagerIsAskedToSelectTheFile_data();
    void fileManagerIsAskedToSelectTheFile();
    void fileManagerThatFailsIsReplacedByTheFolder();

private:
    QProcess m_bus;
    FakeFileManager m_manager;
    UrlCatcher m_catcher;
};

void TestFileManager::initTestCase()
{
    const QString daemon = QStandardPaths::findExecutable(QStringLiteral("dbus-daemon"));
    QVERIFY2(!daemon.isEmpty(), "there is no dbus-daemon to make a bus with");
    m_bus.start(daemon,
                {QStringLiteral("--session"), QStringLiteral("--nofork"), QStringLiteral("--print-address")});
    QVERIFY(m_bus.waitForReadyRead(5000));
    qputenv("DBUS_SESSION_BUS_ADDRESS", m_bus.readAllStandardOutput().trimmed());
    QVERIFY(QDBusConnection::sessionBus().isConnected());
    QDesktopServices::setUrlHandler(QStringLiteral("file"), &m_catcher, "open");
}

void TestFileManager::cleanupTestCase()
{
    QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
    QDBusConnection::disconnectFromBus(QDBusConnection::sessionBus().name());
    m_bus.terminate();
    m_bus.waitForFinished(5000);
}

void TestFileManager::init()
{
    m_catcher.urls.clear();
}

void TestFileManager::withoutAFileManagerTheFolderIsOpened()
{
    morvane::FreeDesktopServices().showInGraphicalShell(QStringLiteral("/films/a.jpg"));
    QTRY_COMPARE(m_catcher.urls, QList<QUrl>{QUrl::fromLocalFile(QStringLiteral("/films"))});

    QDBusConnection bus = QDBusConnection::sessionBus();
    QVERIFY(bus.registerObject(QStringLiteral("/org/freedesktop/FileManager1"), &m_manager,
                               QDBusConnection::ExportAllSlots));
    QVERIFY(bus.registerService(QStringLiteral("org.freedesktop.FileManager1")));
}

void TestFileManager::fileManagerIsAskedToSelectTheFile_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("path") << "/films/a b#1.jpg";
    QTest::newRow("address") << "file:////films/a b#1.jpg";
}

void TestFileManager::fileManagerIsAskedToSelectTheFile()
{
    QFETCH(QString, path);
    QSignalSpy asked(&m_manager, &FakeFileManager::asked);
    morvane::FreeDesktopServices().showInGraphicalShell(path);
    QTRY_COMPARE(asked.count(), 1);
    QCOMPARE(asked.first().at(0).toStringList(), QStringList{QStringLiteral("file:///films/a%20b%231.jpg")});
    QCOMPARE(asked.first().at(1).toString(), QString());
    QCoreApplication::processEvents();
    QCOMPARE(m_catcher.urls, QList<QUrl>());
}

void TestFileManager::fileManagerThatFailsIsReplacedByTheFolder()
{
    m_manager.fails = true;
    morvane::FreeDesktopServices().showInGraphicalShell(QStringLiteral("/films/a.jpg"));
    QTRY_COMPARE(m_catcher.urls, QList<QUrl>{QUrl::fromLocalFile(QStringLiteral("/films"))});
}

QTEST_MAIN(TestFileManager)

#include "tst_filemanager.moc"
