#include "shared/FileSelection.h"
#include "shared/Settings.h"
#include "shared/WebcamGlobal.h"
#include "support/FakeDialogs.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

class TestFileSelection : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void captionAndFilterOfEachKind_data();
    void captionAndFilterOfEachKind();
    void withoutAnArgumentProjectsAreAsked();
    void projectsBeginInTheProjectFolder_data();
    void projectsBeginInTheProjectFolder();
    void chosenFileIsTheNextStart_data();
    void chosenFileIsTheNextStart();
    void projectsAndProgramsAreNotRemembered_data();
    void projectsAndProgramsAreNotRemembered();
    void givingUpClearsThePendingAction_data();
    void givingUpClearsThePendingAction();
    void choosingKeepsThePendingAction();
    void filtersOfOtherDialogs();
    void folderDialogAsksForAFolder();

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<Settings> m_settings;
    std::unique_ptr<FakeDialogs> m_dialogs;
    std::unique_ptr<WebcamGlobal> m_global;
    std::unique_ptr<FileSelection> m_files;
    QString m_projectFolder;
};

void TestFileSelection::init()
{
    m_projectFolder.clear();
    m_folder = std::make_unique<QTemporaryDir>();
    m_settings = std::make_unique<Settings>(m_folder->filePath(QStringLiteral("settings.ini")));
    m_dialogs = std::make_unique<FakeDialogs>();
    m_global = std::make_unique<WebcamGlobal>();
    m_files = std::make_unique<FileSelection>(*m_dialogs, *m_settings, *m_global,
                                              [this] { return m_projectFolder; });
}

void TestFileSelection::cleanup()
{
    m_files.reset();
    m_settings.reset();
}

void TestFileSelection::captionAndFilterOfEachKind_data()
{
    const QString allProjects = QStringLiteral("Morvane project files (*.kzfx *.kzf);;All Files (*)");
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QString>("filter");
    QTest::newRow("project") << static_cast<int>(Zum::ProjectFilesFilter) << "Open Project..." << allProjects;
    QTest::newRow("new project") << static_cast<int>(Zum::NewProjectFilesFilter) << "Open Project..."
                                 << "Morvane project files (*.kzfx);;";
    QTest::newRow("video") << static_cast<int>(Zum::VideoFilesFilter) << "Open Video..."
                           << "Video files ( *.avi *.ogg *.ogv *.webm *.mp4 *.mpeg *.mov *.wmv *.mp4 *.mkv);;"
                              "Audio files (*.mp3);;";
    QTest::newRow("background") << static_cast<int>(Zum::ExpoImagesFilter) << "Open file..."
                                << "Images (*.png *.jpg *.webp *.tiff);;";
    QTest::newRow("colour profile") << static_cast<int>(Zum::IccProfilesFilter) << "Open ICC Profile..."
                                    << "ICC profiles (*.icc *.icm);;";
    QTest::newRow("program") << static_cast<int>(Zum::ExecudablesFilter) << "Choose an external editor..."
                             << "";
    QTest::newRow("images open projects")
        << static_cast<int>(Zum::ImageFilesFilter) << "Open Project..." << allProjects;
    QTest::newRow("unknown kinds open projects") << 99 << "Open Project..." << allProjects;
}

void TestFileSelection::captionAndFilterOfEachKind()
{
    QFETCH(int, kind);
    m_files->openFileDialog(kind);
    QCOMPARE(m_dialogs->asked.size(), 1);
    QCOMPARE(m_dialogs->asked.first().kind, QStringLiteral("open"));
    QTEST(m_dialogs->asked.first().caption, "caption");
    QTEST(m_dialogs->asked.first().filter, "filter");
}

void TestFileSelection::withoutAnArgumentProjectsAreAsked()
{
    m_files->openFileDialog();
    QCOMPARE(m_dialogs->asked.first().filter, FileSelection::requestFor(Zum::ProjectFilesFilter).filter);
}

void TestFileSelection::projectsBeginInTheProjectFolder_data()
{
    QTest::addColumn<int>("kind");
    QTest::newRow("project") << static_cast<int>(Zum::ProjectFilesFilter);
    QTest::newRow("new project") << static_cast<int>(Zum::NewProjectFilesFilter);
    QTest::newRow("images") << static_cast<int>(Zum::ImageFilesFilter);
}

void TestFileSelection::projectsBeginInTheProjectFolder()
{
    QFETCH(int, kind);
    m_files->openFileDialog(kind);
    QCOMPARE(m_dialogs->asked.last().start, QDir::homePath() + QLatin1Char('/'));
    m_settings->setValue(QStringLiteral("lastprojdirpath"), QStringLiteral("/last/"));
    m_files->openFileDialog(kind);
    QCOMPARE(m_dialogs->asked.last().start, QStringLiteral("/last/"));
    m_projectFolder = QStringLiteral("/open/");
    m_files->openFileDialog(kind);
    QCOMPARE(m_dialogs->asked.last().start, QStringLiteral("/open/"));
}

void TestFileSelection::chosenFileIsTheNextStart_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("key");
    QTest::newRow("video") << static_cast<int>(Zum::VideoFilesFilter) << "lastvideodir";
    QTest::newRow("background") << static_cast<int>(Zum::ExpoImagesFilter) << "lastbackgrounddir";
    QTest::newRow("colour profile") << static_cast<int>(Zum::IccProfilesFilter) << "lasticcpath";
}

void TestFileSelection::chosenFileIsTheNextStart()
{
    QFETCH(int, kind);
    QFETCH(QString, key);
    m_projectFolder = QStringLiteral("/open/");
    const QString chosen = QStringLiteral("/media/some file.x");
    m_dialogs->pathAnswers = {chosen, QString()};

    QCOMPARE(m_files->openFileDialog(kind), chosen);
    QCOMPARE(m_dialogs->asked.last().start, QString());
    QCOMPARE(m_settings->value(key).toString(), chosen);

    QCOMPARE(m_files->openFileDialog(kind), QString());
    QCOMPARE(m_dialogs->asked.last().start, chosen);
    QCOMPARE(m_settings->value(key).toString(), chosen);
}

void TestFileSelection::projectsAndProgramsAreNotRemembered_data()
{
    QTest::addColumn<int>("kind");
    QTest::newRow("project") << static_cast<int>(Zum::ProjectFilesFilter);
    QTest::newRow("program") << static_cast<int>(Zum::ExecudablesFilter);
}

void TestFileSelection::projectsAndProgramsAreNotRemembered()
{
    QFETCH(int, kind);
    m_dialogs->pathAnswers = {QStringLiteral("/a/b")};
    QCOMPARE(m_files->openFileDialog(kind), QStringLiteral("/a/b"));
    for (const char *key : {"lastvideodir", "lastbackgrounddir", "lasticcpath", "lastprojdirpath", ""})
        QVERIFY(!m_settings->contains(QString::fromLatin1(key)));
}

void TestFileSelection::givingUpClearsThePendingAction_data()
{
    QTest::addColumn<int>("kind");
    for (int kind = Zum::ProjectFilesFilter; kind <= Zum::ExpoImagesFilter; ++kind)
        QTest::addRow("kind %d", kind) << kind;
}

void TestFileSelection::givingUpClearsThePendingAction()
{
    QFETCH(int, kind);
    m_global->setAfterConfirmAction(Zum::OpenProjectAfterConfirm);
    QCOMPARE(m_files->openFileDialog(kind), QString());
    QCOMPARE(m_global->afterConfirmAction(), static_cast<int>(Zum::NoAfterConfirmAction));
}

void TestFileSelection::choosingKeepsThePendingAction()
{
    m_global->setAfterConfirmAction(Zum::OpenProjectAfterConfirm);
    m_dialogs->pathAnswers = {QStringLiteral("/a.kzfx")};
    m_files->openFileDialog(Zum::ProjectFilesFilter);
    QCOMPARE(m_global->afterConfirmAction(), static_cast<int>(Zum::OpenProjectAfterConfirm));
}

void TestFileSelection::filtersOfOtherDialogs()
{
    QCOMPARE(FileSelection::imageImportFilter(),
             QStringLiteral("Images ( *.png *.jpg *.jpeg *.webp *.crw *.cr2 *.jfif);;"));
    QCOMPARE(FileSelection::pdfFilter(), QStringLiteral("PDF files (*.pdf);;"));
    QCOMPARE(FileSelection::htmlFilter(), QStringLiteral("HTML files (*.HTML);;"));
}

void TestFileSelection::folderDialogAsksForAFolder()
{
    m_dialogs->pathAnswers = {QStringLiteral("/chosen")};
    QCOMPARE(m_files->selectFolderDialog(QStringLiteral("/start")), QStringLiteral("/chosen"));
    QCOMPARE(m_dialogs->asked.first().kind, QStringLiteral("folder"));
    QCOMPARE(m_dialogs->asked.first().start, QStringLiteral("/start"));
}

QTEST_GUILESS_MAIN(TestFileSelection)

#include "tst_fileselection.moc"
