#include "shared/PathText.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

class TestPathText : public QObject
{
    Q_OBJECT

private slots:
    void ensureDirSeparator_data();
    void ensureDirSeparator();
    void withoutFilePrefix_data();
    void withoutFilePrefix();
    void filesAreFoundWithAndWithoutThePrefix();
    void foldersAreMadeWithTheirParents();
    void folderThatIsThereIsFine();
    void folderUnderAFileCannotBeMade();
    void nameThatIsFreeStays();
    void takenNameGetsTheTime();
    void takenNameWithoutASuffixGetsTheTime();

private:
    QString fileOf(const QString &name);

    QTemporaryDir m_folder;
};

QString TestPathText::fileOf(const QString &name)
{
    const QString path = m_folder.filePath(name);
    QFile file(path);
    return file.open(QIODevice::WriteOnly) ? path : QString();
}

void TestPathText::ensureDirSeparator_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("ended");
    QTest::newRow("empty") << ""
                           << "";
    QTest::newRow("ended") << "/a/b/"
                           << "/a/b/";
    QTest::newRow("open") << "/a/b"
                          << "/a/b/";
    QTest::newRow("backslash") << "C:\\a\\"
                               << "C:\\a/";
    QTest::newRow("only the last one") << "a\\\\"
                                       << "a\\/";
    QTest::newRow("root") << "/"
                          << "/";
}

void TestPathText::ensureDirSeparator()
{
    QFETCH(QString, path);
    QTEST(morvane::ensureDirSeparator(path), "ended");
}

void TestPathText::withoutFilePrefix_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("plain");
    QTest::newRow("plain") << "/a/b.png"
                           << "/a/b.png";
    QTest::newRow("prefix before a path") << "file:////a/b.png"
                                          << "/a/b.png";
    QTest::newRow("address of a file") << "file:///a/b.png"
                                       << "/a/b.png";
    QTest::newRow("not at the start") << "/a/file:///b"
                                      << "/a/file:///b";
    QTest::newRow("empty") << ""
                           << "";
}

void TestPathText::withoutFilePrefix()
{
    QFETCH(QString, path);
    QTEST(morvane::withoutFilePrefix(path), "plain");
}

void TestPathText::filesAreFoundWithAndWithoutThePrefix()
{
    const QString path = fileOf(QStringLiteral("there.png"));
    QVERIFY(morvane::fileExists(path));
    QVERIFY(morvane::fileExists(QStringLiteral("file:///") + path));
    QVERIFY(!morvane::fileExists(m_folder.filePath(QStringLiteral("missing.png"))));
    QVERIFY(!morvane::fileExists(QString()));
}

void TestPathText::foldersAreMadeWithTheirParents()
{
    const QString path = m_folder.filePath(QStringLiteral("a/b/c/"));
    QVERIFY(morvane::ensureFolder(path));
    QVERIFY(QDir(path).exists());
}

void TestPathText::folderThatIsThereIsFine()
{
    QVERIFY(morvane::ensureFolder(m_folder.path()));
}

void TestPathText::folderUnderAFileCannotBeMade()
{
    const QString file = fileOf(QStringLiteral("file"));
    QVERIFY(!morvane::ensureFolder(file + QStringLiteral("/below")));
}

void TestPathText::nameThatIsFreeStays()
{
    const QString path = m_folder.filePath(QStringLiteral("free.avi"));
    QCOMPARE(morvane::uniqueFilePath(path), path);
}

void TestPathText::takenNameGetsTheTime()
{
    const QString path = fileOf(QStringLiteral("movie.part.avi"));
    const QTime now(13, 5, 9);
    QCOMPARE(morvane::uniqueFilePath(path, now), m_folder.filePath(QStringLiteral("movie.part_"))
                                                     + now.toString(QStringLiteral("ddhhmmss"))
                                                     + QStringLiteral(".avi"));
    QVERIFY(morvane::uniqueFilePath(path, now).endsWith(QStringLiteral("130509.avi")));
}

void TestPathText::takenNameWithoutASuffixGetsTheTime()
{
    const QString path = fileOf(QStringLiteral("movie"));
    const QString unique = morvane::uniqueFilePath(path, QTime(1, 2, 3));
    QVERIFY(unique.startsWith(path + QLatin1Char('_')));
    QVERIFY(unique.endsWith(QStringLiteral("010203")));
}

QTEST_GUILESS_MAIN(TestPathText)

#include "tst_pathtext.moc"
