#include "shared/ExternalEditor.h"
#include "shared/FileSelection.h"
#include "shared/MessageCentre.h"
#include "shared/Settings.h"
#include "shared/WebcamGlobal.h"
#include "support/FakeDesktopServices.h"
#include "support/FakeDialogs.h"
#include "support/OrdinaryUser.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

class TestExternalEditor : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void startsWithoutAnEditor();
    void storedPathIsTakenOver();
    void chosenProgramIsStored();
    void choosingAsksForAProgram();
    void givingUpKeepsTheEditor();
    void sameProgramSignalsNothing();
    void removingClearsTheKey();
    void defaultEditorIsTheDesktops();
    void desktopWithoutAnEditorIsToldAndChangesNothing();
    void startsTheEditorOnTheFile_data();
    void startsTheEditorOnTheFile();
    void missingEditorIsReported_data();
    void missingEditorIsReported();
    void missingFileIsReported_data();
    void missingFileIsReported();
    void unreadableFileIsReported();
    void editorThatDoesNotStartIsReported();

private:
    QString fileOf(const QString &name);
    ExternalEditor &editorOn(const QString &program);
    void compareOnlyError(const QString &text);

    const QString m_key = QStringLiteral("exteditorpath");
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<Settings> m_settings;
    FakeDialogs m_dialogs;
    FakeDesktopServices m_desktop;
    MessageCentre m_messages;
    WebcamGlobal m_global;
    std::unique_ptr<FileSelection> m_files;
    std::unique_ptr<ExternalEditor> m_editor;
    QSignalSpy m_sent{&m_messages, &MessageCentre::appendMessage};
    QList<QStringList> m_started;
    bool m_starts = true;
};

void TestExternalEditor::init()
{
    m_editor.reset();
    m_files.reset();
    m_settings.reset();
    m_folder = std::make_unique<QTemporaryDir>();
    m_settings = std::make_unique<Settings>(m_folder->filePath(QStringLiteral("settings.ini")));
    m_files = std::make_unique<FileSelection>(m_dialogs, *m_settings, m_global,
                                              [] { return QStringLiteral("/p/"); });
    m_dialogs.asked.clear();
    m_dialogs.pathAnswers.clear();
    m_desktop.imageEditor.clear();
    m_sent.clear();
    m_started.clear();
    m_starts = true;
    editorOn(QString());
}

QString TestExternalEditor::fileOf(const QString &name)
{
    const QString path = m_folder->filePath(name);
    QFile file(path);
    return file.open(QIODevice::WriteOnly) ? path : QString();
}

ExternalEditor &TestExternalEditor::editorOn(const QString &program)
{
    if (!program.isEmpty())
        m_settings->setValue(m_key, program);
    m_editor = std::make_unique<ExternalEditor>(*m_files, *m_settings, m_desktop, m_messages,
                                                [this](const QString &name, const QStringList &arguments) {
                                                    m_started.append(QStringList{name} + arguments);
                                                    return m_starts;
                                                });
    return *m_editor;
}

void TestExternalEditor::compareOnlyError(const QString &text)
{
    QCOMPARE(m_sent.count(), 1);
    QCOMPARE(m_sent.first(),
             (QVariantList{static_cast<int>(Zum::FileMessage), static_cast<int>(Zum::Error), text}));
}

void TestExternalEditor::startsWithoutAnEditor()
{
    QCOMPARE(m_editor->externalEditor(), QString());
    QCOMPARE(m_editor->externalEditorName(), QString());
}

void TestExternalEditor::storedPathIsTakenOver()
{
    editorOn(QStringLiteral("/usr/bin/paint.exe"));
    QCOMPARE(m_editor->externalEditor(), QStringLiteral("/usr/bin/paint.exe"));
    QCOMPARE(m_editor->externalEditorName(), QStringLiteral("paint"));
}

void TestExternalEditor::chosenProgramIsStored()
{
    QSignalSpy path(m_editor.get(), &ExternalEditor::externalEditorChanged);
    QSignalSpy name(m_editor.get(), &ExternalEditor::externalEditorNameChanged);
    m_dialogs.pathAnswers = {QStringLiteral("/opt/draw")};
    m_editor->setExternalEditor();
    QCOMPARE(m_editor->externalEditor(), QStringLiteral("/opt/draw"));
    QCOMPARE(m_settings->value(m_key).toString(), QStringLiteral("/opt/draw"));
    QCOMPARE(path.count(), 1);
    QCOMPARE(name.count(), 1);
}

void TestExternalEditor::choosingAsksForAProgram()
{
    m_editor->setExternalEditor();
    QCOMPARE(m_dialogs.asked.size(), 1);
    QCOMPARE(m_dialogs.asked.first().caption, QStringLiteral("Choose an external editor..."));
    QCOMPARE(m_dialogs.asked.first().start, QString());
    QCOMPARE(m_dialogs.asked.first().filter, QString());
}

void TestExternalEditor::givingUpKeepsTheEditor()
{
    editorOn(QStringLiteral("/opt/draw"));
    m_editor->setExternalEditor();
    QCOMPARE(m_editor->externalEditor(), QStringLiteral("/opt/draw"));
    QCOMPARE(m_settings->value(m_key).toString(), QStringLiteral("/opt/draw"));
}

void TestExternalEditor::sameProgramSignalsNothing()
{
    editorOn(QStringLiteral("/opt/draw"));
    QSignalSpy path(m_editor.get(), &ExternalEditor::externalEditorChanged);
    m_dialogs.pathAnswers = {QStringLiteral("/opt/draw")};
    m_editor->setExternalEditor();
    QCOMPARE(path.count(), 0);
}

void TestExternalEditor::removingClearsTheKey()
{
    editorOn(QStringLiteral("/opt/draw"));
    QSignalSpy path(m_editor.get(), &ExternalEditor::externalEditorChanged);
    m_editor->removeExternalEditor();
    QCOMPARE(m_editor->externalEditor(), QString());
    QVERIFY(!m_settings->contains(m_key));
    QCOMPARE(path.count(), 1);
    m_editor->removeExternalEditor();
    QCOMPARE(path.count(), 1);
}

void TestExternalEditor::defaultEditorIsTheDesktops()
{
    m_desktop.imageEditor = QStringLiteral("/usr/bin/paint");
    m_editor->setDefExternalEditor();
    QCOMPARE(m_editor->externalEditor(), QStringLiteral("/usr/bin/paint"));
    QCOMPARE(m_settings->value(m_key).toString(), QStringLiteral("/usr/bin/paint"));
    QCOMPARE(m_sent.count(), 0);
}

void TestExternalEditor::desktopWithoutAnEditorIsToldAndChangesNothing()
{
    editorOn(QStringLiteral("/opt/draw"));
    m_editor->setDefExternalEditor();
    QCOMPARE(m_editor->externalEditor(), QStringLiteral("/opt/draw"));
    QCOMPARE(m_sent.count(), 1);
    QCOMPARE(m_sent.first().at(1).toInt(), static_cast<int>(Zum::Warning));
}

void TestExternalEditor::startsTheEditorOnTheFile_data()
{
    QTest::addColumn<QString>("prefix");
    QTest::newRow("path") << "";
    QTest::newRow("address") << "file:///";
}

void TestExternalEditor::startsTheEditorOnTheFile()
{
    QFETCH(QString, prefix);
    const QString program = fileOf(QStringLiteral("editor"));
    const QString picture = fileOf(QStringLiteral("picture.png"));
    editorOn(program);
    m_editor->startWithExternalEditor(prefix + picture);
    QCOMPARE(m_started, (QList<QStringList>{{program, picture}}));
    QCOMPARE(m_sent.count(), 0);
}

void TestExternalEditor::missingEditorIsReported_data()
{
    QTest::addColumn<QString>("program");
    QTest::newRow("none chosen") << "";
    QTest::newRow("gone") << "/no/such/editor";
}

void TestExternalEditor::missingEditorIsReported()
{
    QFETCH(QString, program);
    editorOn(program);
    m_editor->startWithExternalEditor(fileOf(QStringLiteral("picture.png")));
    compareOnlyError(QStringLiteral("External programm not found %1").arg(program));
    QVERIFY(m_started.isEmpty());
}

void TestExternalEditor::missingFileIsReported_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("no such file") << "missing.png";
    QTest::newRow("a folder") << "";
}

void TestExternalEditor::missingFileIsReported()
{
    QFETCH(QString, name);
    editorOn(fileOf(QStringLiteral("editor")));
    const QString picture = m_folder->filePath(name);
    m_editor->startWithExternalEditor(picture);
    compareOnlyError(QStringLiteral("Cannot find file to open %1").arg(picture));
    QVERIFY(m_started.isEmpty());
}

void TestExternalEditor::unreadableFileIsReported()
{
    editorOn(fileOf(QStringLiteral("editor")));
    const QString picture = fileOf(QStringLiteral("picture.png"));
    QVERIFY(QFile::setPermissions(picture, {}));
    {
        const OrdinaryUser user(m_folder->path());
        m_editor->startWithExternalEditor(picture);
    }
    compareOnlyError(QStringLiteral("File is not readable %1").arg(picture));
    QVERIFY(m_started.isEmpty());
}

void TestExternalEditor::editorThatDoesNotStartIsReported()
{
    m_starts = false;
    const QString program = fileOf(QStringLiteral("editor"));
    editorOn(program);
    m_editor->startWithExternalEditor(fileOf(QStringLiteral("picture.png")));
    compareOnlyError(QStringLiteral("Unable to start %1").arg(program));
    QCOMPARE(m_started.size(), 1);
}

QTEST_GUILESS_MAIN(TestExternalEditor)

#include "tst_externaleditor.moc"
