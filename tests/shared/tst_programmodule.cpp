#include "shared/ProgramModule.h"

#include <array>
#include <atomic>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <thread>

using Answer = int();

class TestProgramModule : public QObject
{
    Q_OBJECT

private slots:
    void itsFunctionCanBeCalled();
    void manyThreadsMayLoadItAtOnce();
    void aMissingOneSaysWhichFile();
    void aDamagedOneIsRefused();
    void oneOfAnotherVersionIsRefused();
    void oneThatComesLaterIsFound();
    void theFolderLiesBesideTheProgramOrAbove();
};

void TestProgramModule::itsFunctionCanBeCalled()
{
    const ProgramModule module("sample", SAMPLE_MODULES);
    QVERIFY2(module.entry<Answer>(), qPrintable(module.errorString()));
    QCOMPARE(module.entry<Answer>()(), 42);
    QCOMPARE(module.errorString(), QString());
}

void TestProgramModule::manyThreadsMayLoadItAtOnce()
{
    std::atomic<int> sum = 0;
    std::array<std::thread, 8> threads;
    for (std::thread &thread : threads)
        thread = std::thread([&sum] { sum += ProgramModule("sample", SAMPLE_MODULES).entry<Answer>()(); });
    for (std::thread &thread : threads)
        thread.join();
    QCOMPARE(sum.load(), 8 * 42);
}

void TestProgramModule::aMissingOneSaysWhichFile()
{
    const QTemporaryDir folder;
    const ProgramModule module("sample", folder.path());
    QVERIFY(!module.entry<Answer>());
    QVERIFY2(module.errorString().contains(folder.filePath("sample")), qPrintable(module.errorString()));
}

void TestProgramModule::aDamagedOneIsRefused()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath("sample.so"));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("no library") > 0);
    file.close();
    const ProgramModule module("sample", folder.path());
    QVERIFY(!module.entry<Answer>());
    QVERIFY(!module.errorString().isEmpty());
}

void TestProgramModule::oneOfAnotherVersionIsRefused()
{
    const ProgramModule module("earlier", SAMPLE_MODULES);
    QVERIFY(!module.entry<Answer>());
    QVERIFY2(module.errorString().contains("earlier"), qPrintable(module.errorString()));
}

void TestProgramModule::oneThatComesLaterIsFound()
{
    const QTemporaryDir folder;
    QVERIFY(!ProgramModule("sample", folder.path()).entry<Answer>());
    QVERIFY(QFile::copy(SAMPLE_MODULES "/sample.so", folder.filePath("sample.so")));
    QVERIFY(ProgramModule("sample", folder.path()).entry<Answer>());
}

void TestProgramModule::theFolderLiesBesideTheProgramOrAbove()
{
    const QString folder = ProgramModule::standardFolder();
    QVERIFY2(folder.endsWith("/morvane"), qPrintable(folder));
    QVERIFY(QDir::isAbsolutePath(folder));
    QCOMPARE(QDir::cleanPath(folder), folder);
}

QTEST_GUILESS_MAIN(TestProgramModule)
#include "tst_programmodule.moc"
