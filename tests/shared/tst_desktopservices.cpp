#include "shared/desktop/FreeDesktopServices.h"
#include "shared/desktop/WindowsDesktopServices.h"
#include "UrlCatcher.h"

#include <QDBusConnection>
#include <QDesktopServices>
#include <QTemporaryDir>
#include <QTest>

class TestDesktopServices : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void systemHasADesktop();
    void addressesGoToTheirProgram();
    void withoutAFileManagerTheFolderIsOpened_data();
    void withoutAFileManagerTheFolderIsOpened();
    void windowsShowsTheFileInItsExplorer();
    void windowsPaintIsFoundByTheSystemRoot_data();
    void windowsPaintIsFoundByTheSystemRoot();

private:
    UrlCatcher m_catcher;
};

void TestDesktopServices::initTestCase()
{
    // No bus of the person who runs the tests: their file manager must not open.
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent/bus");
    for (const char *scheme : {"file", "https"})
        QDesktopServices::setUrlHandler(QString::fromLatin1(scheme), &m_catcher, "open");
}

void TestDesktopServices::cleanupTestCase()
{
    for (const char *scheme : {"file", "https"})
        QDesktopServices::unsetUrlHandler(QString::fromLatin1(scheme));
}

void TestDesktopServices::init()
{
    m_catcher.urls.clear();
}

void TestDesktopServices::systemHasADesktop()
{
    QVERIFY(morvane::makeDesktopServices() != nullptr);
}

void TestDesktopServices::addressesGoToTheirProgram()
{
    const QUrl url(QStringLiteral("https://example.org/help"));
    QVERIFY(morvane::makeDesktopServices()->openUrl(url));
    QCOMPARE(m_catcher.urls, QList<QUrl>{url});
}

void TestDesktopServices::withoutAFileManagerTheFolderIsOpened_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("path") << "/films/cap/a b.jpg";
    QTest::newRow("address") << "file:////films/cap/a b.jpg";
}

void TestDesktopServices::withoutAFileManagerTheFolderIsOpened()
{
    QFETCH(QString, path);
    QVERIFY(!QDBusConnection::sessionBus().isConnected());
    morvane::FreeDesktopServices().showInGraphicalShell(path);
    QCOMPARE(m_catcher.urls, QList<QUrl>{QUrl::fromLocalFile(QStringLiteral("/films/cap"))});
}

void TestDesktopServices::windowsShowsTheFileInItsExplorer()
{
    QStringList started;
    morvane::WindowsDesktopServices services(
        [&started](const QString &program, const QStringList &arguments) {
            started = QStringList{program} + arguments;
            return true;
        },
        {});
    services.showInGraphicalShell(QStringLiteral("/films/a.jpg"));
    QCOMPARE(started, (QStringList{QStringLiteral("explorer"), QStringLiteral("/select,"),
                                   QDir::toNativeSeparators(QStringLiteral("/films/a.jpg"))}));
}

void TestDesktopServices::windowsPaintIsFoundByTheSystemRoot_data()
{
    QTest::addColumn<QStringList>("environment");
    QTest::addColumn<QString>("editor");
    QTest::newRow("plain") << QStringList{QStringLiteral("A=1"), QStringLiteral("WINDIR=/win")}
                           << "/win/System32/mspaint.exe";
    QTest::newRow("as that system spells it")
        << QStringList{QStringLiteral("windir=/win/")} << "/win/System32/mspaint.exe";
    QTest::newRow("another variable") << QStringList{QStringLiteral("MYWINDIR=/win")} << "";
    QTest::newRow("none") << QStringList{} << "";
}

void TestDesktopServices::windowsPaintIsFoundByTheSystemRoot()
{
    QFETCH(QStringList, environment);
    const morvane::WindowsDesktopServices services([](const QString &, const QStringList &) { return true; },
                                                   environment);
    QTEST(services.defaultImageEditor(), "editor");
}

QTEST_MAIN(TestDesktopServices)

#include "tst_desktopservices.moc"
