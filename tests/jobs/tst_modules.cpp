#include "project/ProjectTree.h"
#include "project/ProjectWriter.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

/// The program away from its build, with and without the modules that it loads.
class TestModules : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void startsWithoutTheLibrariesOfTheModules();
    void rendersUnderAnyPrefix();
    void aMissingModuleIsToldAndLeavesNothing();
    void aDamagedModuleIsTold();

private:
    struct Answer
    {
        int status = -1;
        QString output;
        QString errors;
    };
    Answer run(const QStringList &arguments, const QString &variable = {});
    Answer render();
    QString encoder() const
    {
        return prefix.filePath(MORVANE_MODULE_FOLDER "/encoder.so");
    }

    QTemporaryDir prefix;
};

void TestModules::initTestCase()
{
    QVERIFY(QDir().mkpath(prefix.filePath("bin")) && QDir().mkpath(QFileInfo(encoder()).path()));
    QVERIFY(QFile::copy(MORVANE_PROGRAM, prefix.filePath("bin/morvane")));
    const QString path = prefix.filePath("film.kzfx");
    const QString pictures = ProjectTree::of(path, {}).capFullDirPath;
    QImage picture(320, 280, QImage::Format_RGB32);
    picture.fill(Qt::darkCyan);
    QVERIFY(QDir().mkpath(pictures) && picture.save(pictures + "one.png"));
    ProjectDocument document;
    document.frameSettings.emplace();
    document.frameSettings->frameWidth = 320;
    document.frameSettings->frameHeight = 280;
    document.frames.append(ProjectFrame());
    document.frames.last().capFull = "one.png";
    QVERIFY(ProjectWriter::save(path, document).ok);
}

void TestModules::init()
{
    QFile::remove(encoder());
    QDir(prefix.filePath("out")).removeRecursively();
}

TestModules::Answer TestModules::run(const QStringList &arguments, const QString &variable)
{
    QProcess program;
    if (!variable.isEmpty())
        program.setEnvironment(QProcess::systemEnvironment() + QStringList{variable});
    program.start(prefix.filePath("bin/morvane"), arguments);
    if (!program.waitForFinished(60000) || program.exitStatus() != QProcess::NormalExit)
        return {};
    return {program.exitCode(), QString::fromUtf8(program.readAllStandardOutput()),
            QString::fromUtf8(program.readAllStandardError())};
}

TestModules::Answer TestModules::render()
{
    return run({"--render", "avi", "--output", prefix.filePath("out"), prefix.filePath("film.kzfx")});
}

void TestModules::startsWithoutTheLibrariesOfTheModules()
{
    QCOMPARE(run({"--version"}).status, 0);
    const QString libraries = run({}, "LD_TRACE_LOADED_OBJECTS=1").output;
    QVERIFY2(libraries.contains("libQt6Quick"), qPrintable(libraries));
    for (const char *library : {"libavcodec", "libavfilter", "libavformat", "libopencv_videoio"})
        QVERIFY2(!libraries.contains(library), library);
}

void TestModules::rendersUnderAnyPrefix()
{
    QVERIFY(QFile::copy(MORVANE_ENCODER, encoder()));
    const Answer answer = render();
    QVERIFY2(answer.status == 0, qPrintable(answer.errors));
    QVERIFY2(answer.output.trimmed().endsWith(".avi"), qPrintable(answer.output));
    QVERIFY(QFileInfo(answer.output.trimmed().section('\n', -1)).size() > 0);
}

void TestModules::aMissingModuleIsToldAndLeavesNothing()
{
    const Answer answer = render();
    QCOMPARE(answer.status, 1);
    QVERIFY2(answer.errors.contains("The part of the program that makes movies is missing or damaged. "
                                    "Install the program again."),
             qPrintable(answer.errors));
    QVERIFY2(answer.errors.contains(prefix.filePath(MORVANE_MODULE_FOLDER "/encoder")),
             qPrintable(answer.errors));
    QVERIFY(QDir(prefix.filePath("out")).isEmpty());
}

void TestModules::aDamagedModuleIsTold()
{
    QFile file(encoder());
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("no library") > 0);
    file.close();
    const Answer answer = render();
    QCOMPARE(answer.status, 1);
    QVERIFY2(answer.errors.contains("is missing or damaged"), qPrintable(answer.errors));
}

QTEST_GUILESS_MAIN(TestModules)
#include "tst_modules.moc"
