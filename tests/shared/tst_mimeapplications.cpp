#include "shared/desktop/MimeApplications.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

using morvane::MimeApplications;

class TestMimeApplications : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void nothingIsKnownOnABareSystem();
    void usersDefaultIsTaken();
    void userComesBeforeTheSystem();
    void runningDesktopComesBeforeTheCommonList();
    void defaultThatIsNotInstalledIsPassedOver();
    void addedAssociationIsTakenWithoutADefault();
    void registeredApplicationIsTakenLast();
    void hiddenApplicationIsPassedOver();
    void applicationInASubfolderIsFound();
    void commandWithArgumentsOfItsOwnIsPassedOver_data();
    void commandWithArgumentsOfItsOwnIsPassedOver();
    void otherTypesAndGroupsAreNotTaken();
    void foldersOfThisUserFollowTheEnvironment();

private:
    void write(const QString &name, const QByteArray &content);
    /// Installs an application whose program is an executable file of the same name.
    QString install(const QString &name, const QByteArray &arguments = " %U");
    QString program() const;

    std::unique_ptr<QTemporaryDir> m_folder;
    MimeApplications::Folders m_folders;
};

void TestMimeApplications::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_folders.config = {m_folder->filePath(QStringLiteral("user")),
                        m_folder->filePath(QStringLiteral("etc"))};
    m_folders.data = {m_folder->filePath(QStringLiteral("home/")),
                      m_folder->filePath(QStringLiteral("share"))};
    m_folders.desktops = {QStringLiteral("gnome")};
}

void TestMimeApplications::write(const QString &name, const QByteArray &content)
{
    const QString path = m_folder->filePath(name);
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
}

QString TestMimeApplications::install(const QString &name, const QByteArray &arguments)
{
    const QString executable = QStringLiteral("bin/") + name;
    write(executable, "#!/bin/sh\n");
    const QString path = m_folder->filePath(executable);
    QFile::setPermissions(path, QFile::ReadOwner | QFile::ExeOwner);
    write(QStringLiteral("share/applications/%1.desktop").arg(name),
          "# an application\n[Desktop Entry]\nType=Application\nExec=" + path.toUtf8() + arguments
              + "\n\n[Desktop Action new]\nExec=/bin/false %U\n");
    return path;
}

QString TestMimeApplications::program() const
{
    return MimeApplications(m_folders).defaultProgram(QStringLiteral("image/png"));
}

void TestMimeApplications::nothingIsKnownOnABareSystem()
{
    QCOMPARE(program(), QString());
}

void TestMimeApplications::usersDefaultIsTaken()
{
    const QString draw = install(QStringLiteral("draw"));
    write(QStringLiteral("user/mimeapps.list"), "[Default Applications]\nimage/png=draw.desktop\n");
    QCOMPARE(program(), draw);
}

void TestMimeApplications::userComesBeforeTheSystem()
{
    const QString draw = install(QStringLiteral("draw"));
    install(QStringLiteral("paint"));
    write(QStringLiteral("user/mimeapps.list"), "[Default Applications]\nimage/png=draw.desktop;\n");
    write(QStringLiteral("etc/mimeapps.list"), "[Default Applications]\nimage/png=paint.desktop;\n");
    QCOMPARE(program(), draw);
}

void TestMimeApplications::runningDesktopComesBeforeTheCommonList()
{
    install(QStringLiteral("draw"));
    const QString paint = install(QStringLiteral("paint"));
    write(QStringLiteral("user/mimeapps.list"), "[Default Applications]\nimage/png=draw.desktop;\n");
    write(QStringLiteral("user/gnome-mimeapps.list"), "[Default Applications]\nimage/png=paint.desktop;\n");
    QCOMPARE(program(), paint);
}

void TestMimeApplications::defaultThatIsNotInstalledIsPassedOver()
{
    const QString draw = install(QStringLiteral("draw"));
    write(QStringLiteral("user/mimeapps.list"),
          "[Default Applications]\nimage/png=gone.desktop;draw.desktop\n");
    QCOMPARE(program(), draw);
}

void TestMimeApplications::addedAssociationIsTakenWithoutADefault()
{
    const QString draw = install(QStringLiteral("draw"));
    write(QStringLiteral("share/applications/mimeapps.list"),
          "[Added Associations]\nimage/png=draw.desktop;\n");
    QCOMPARE(program(), draw);
}

void TestMimeApplications::registeredApplicationIsTakenLast()
{
    const QString draw = install(QStringLiteral("draw"));
    write(QStringLiteral("share/applications/mimeinfo.cache"), "[MIME Cache]\nimage/png=draw.desktop;\n");
    QCOMPARE(program(), draw);
    const QString paint = install(QStringLiteral("paint"));
    write(QStringLiteral("user/mimeapps.list"), "[Added Associations]\nimage/png=paint.desktop;\n");
    QCOMPARE(program(), paint);
}

void TestMimeApplications::hiddenApplicationIsPassedOver()
{
    install(QStringLiteral("draw"));
    write(QStringLiteral("home/applications/draw.desktop"), "[Desktop Entry]\nHidden=true\n");
    write(QStringLiteral("user/mimeapps.list"), "[Default Applications]\nimage/png=draw.desktop;\n");
    QCOMPARE(program(), QString());
}

void TestMimeApplications::applicationInASubfolderIsFound()
{
    const QString draw = install(QStringLiteral("vendor/draw"));
    write(QStringLiteral("user/mimeapps.list"), "[Default Applications]\nimage/png=vendor-draw.desktop;\n");
    QCOMPARE(program(), draw);
}

void TestMimeApplications::commandWithArgumentsOfItsOwnIsPassedOver_data()
{
    QTest::addColumn<QByteArray>("arguments");
    QTest::addColumn<bool>("taken");
    QTest::newRow("no argument") << QByteArray() << true;
    QTest::newRow("file") << QByteArray(" %f") << true;
    QTest::newRow("icon and files") << QByteArray(" %i %F") << true;
    QTest::newRow("a sandbox's application") << QByteArray(" run org.example.Draw %U") << false;
    QTest::newRow("an option") << QByteArray(" --edit %f") << false;
}

void TestMimeApplications::commandWithArgumentsOfItsOwnIsPassedOver()
{
    QFETCH(QByteArray, arguments);
    QFETCH(bool, taken);
    const QString draw = install(QStringLiteral("draw"), arguments);
    write(QStringLiteral("user/mimeapps.list"), "[Default Applications]\nimage/png=draw.desktop;\n");
    QCOMPARE(program(), taken ? draw : QString());
}

void TestMimeApplications::otherTypesAndGroupsAreNotTaken()
{
    install(QStringLiteral("draw"));
    write(
        QStringLiteral("user/mimeapps.list"),
        "image/png=draw.desktop\n[Removed Associations]\nimage/png=draw.desktop\n"
        "[Default Applications]\nimage/jpeg=draw.desktop\n#image/png=draw.desktop\n=draw.desktop\nrubbish\n");
    QCOMPARE(program(), QString());
}

void TestMimeApplications::foldersOfThisUserFollowTheEnvironment()
{
    qputenv("XDG_CURRENT_DESKTOP", "ubuntu:GNOME");
    const auto folders = MimeApplications::Folders::ofThisUser();
    QCOMPARE(folders.desktops, (QStringList{QStringLiteral("ubuntu"), QStringLiteral("gnome")}));
    QVERIFY(!folders.config.isEmpty());
    QVERIFY(!folders.data.isEmpty());
}

QTEST_GUILESS_MAIN(TestMimeApplications)

#include "tst_mimeapplications.moc"
