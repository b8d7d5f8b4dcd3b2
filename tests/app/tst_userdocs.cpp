#include "app/UserDocs.h"

#include <sys/resource.h>
#include <QFile>
#include <QLoggingCategory>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

using Page = QVariantMap;

class TestUserDocs : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void namesTheFileByTypeAndLocale();
    void looksBesideTheProgramThenInTheInstallationThenInside();
    void readsPagesWithTheirPhrases();
    void readsNothingBeforeThePagesAreAskedFor();
    void keepsLinesAndDropsIndents();
    void anotherLanguageFallsBackToEnglish();
    void ownLanguageInALaterFolderYieldsToTheFirstFolderWithADocument();
    void missingFileIsLogged();
    void aFolderOfThatNameIsNoFile();
    void unreadableFileIsLogged();
    void damagedFileIsLoggedAndKeepsThePages();
    void damagedFileIsLoggedAndKeepsThePages_data();
    void documentTypeIsRefused();
    void hugeFileIsRefused();
    void tooManyPagesAreRefused();
    void tooManyPhrasesAreRefused();
    void emptyElementIsLogged();
    void absentElementIsLogged();
    void absentElementIsNotLoggedUnlessAskedFor();
    void unknownElementsAreSkipped();
    void picturesComeFromTheDocumentsFolderOnly();
    void picturesComeFromTheDocumentsFolderOnly_data();
    void linksLeadToTheWebOnly();
    void readingAgainTellsOfOtherPagesOnly();
    void theProgramsOwnDocumentsAreSound();
    void theProgramsOwnDocumentsAreSound_data();
    void everyLanguageHasTheSamePages();

private:
    QString write(const QString &name, const QByteArray &content) const;
    QString writeDocs(const QByteArray &content) const;
    UserDocs docsIn(const QStringList &folders, const QString &locale = QStringLiteral("en_US")) const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

namespace {

const QByteArray smallDocs = "<docs><page><title>One</title><text/></page></docs>";

QVariantMap firstPhrase(UserDocs &docs)
{
    return docs.docs().value(0).toMap().value("text").toList().value(0).toMap();
}

QByteArray phraseWith(const QByteArray &content)
{
    return "<docs><page><title>t</title><text><phrase>" + content + "</phrase></text></page></docs>";
}

} // namespace

void TestUserDocs::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
    QTest::failOnWarning(QRegularExpression("."));
}

void TestUserDocs::cleanup()
{
    QLoggingCategory::setFilterRules(QString());
}

QString TestUserDocs::write(const QString &name, const QByteArray &content) const
{
    QFile file(m_folder->filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("The test cannot write its file");
    return file.fileName();
}

QString TestUserDocs::writeDocs(const QByteArray &content) const
{
    return write("userdocs_capture_en_US.xml", content);
}

UserDocs TestUserDocs::docsIn(const QStringList &folders, const QString &locale) const
{
    return UserDocs("Capture", locale, folders);
}

void TestUserDocs::namesTheFileByTypeAndLocale()
{
    const UserDocs docs("Capture", "ru_RU", {"/somewhere/userdocs"});
    QCOMPARE(docs.docsFile(), QString("userdocs_capture_ru_RU.xml"));
    QCOMPARE(docs.docsDir(), QString("/somewhere/userdocs"));
}

void TestUserDocs::looksBesideTheProgramThenInTheInstallationThenInside()
{
    QCOMPARE(UserDocs::standardFolders("/opt/bin"),
             QStringList({"/opt/bin/userdocs", "/opt/bin/../share/morvane-capture/userdocs", ":/userdocs"}));
}

void TestUserDocs::readsPagesWithTheirPhrases()
{
    write("cover.svg", "<svg/>");
    write("a.png", "png");
    writeDocs(
        "<?xml version='1.0' encoding='UTF-8'?><docs><page><title>First &amp; last</title>"
        "<image>cover.svg</image><text><phrase><title>Head</title><image>a.png</image><text>Body</text>"
        "<weblink>https://example.org/x</weblink><emailbox>a@example.org</emailbox></phrase>"
        "<phrase><title>Next</title></phrase></text></page><page><title>Second</title></page></docs>");
    UserDocs docs = docsIn({m_folder->path()});
    const QVariantList pages = docs.docs();
    QCOMPARE(pages.size(), 2);
    const Page page = pages.at(0).toMap();
    QCOMPARE(page.keys(), QStringList({"image", "text", "title", "zastavka"}));
    const QString cover = QUrl::fromLocalFile(m_folder->filePath("cover.svg")).toString();
    QCOMPARE(page.value("title").toString(), QString("First & last"));
    QCOMPARE(page.value("image").toString(), cover);
    QCOMPARE(page.value("zastavka").toString(), cover);
    QCOMPARE(page.value("text").toList().size(), 2);
    const QVariantMap expected{{"title", "Head"},
                               {"image", QUrl::fromLocalFile(m_folder->filePath("a.png")).toString()},
                               {"text", "Body"},
                               {"weblink", "https://example.org/x"},
                               {"emailbox", "a@example.org"}};
    QCOMPARE(page.value("text").toList().at(0).toMap(), expected);
    const QVariantMap bare{{"title", "Next"}, {"image", ""}, {"text", ""}, {"weblink", ""}, {"emailbox", ""}};
    QCOMPARE(page.value("text").toList().at(1).toMap(), bare);
    QCOMPARE(pages.at(1).toMap().value("text").toList(), QVariantList());
}

void TestUserDocs::readsNothingBeforeThePagesAreAskedFor()
{
    UserDocs docs = docsIn({m_folder->path()});
    writeDocs(smallDocs);
    QCOMPARE(docs.docs().size(), 1);
    QVERIFY(QFile::remove(m_folder->filePath(docs.docsFile())));
    QCOMPARE(docs.docs().size(), 1);
}

void TestUserDocs::keepsLinesAndDropsIndents()
{
    writeDocs(phraseWith("<text>\n    One  line\n\n    Another\t line\n  </text>"));
    UserDocs docs = docsIn({m_folder->path()});
    QCOMPARE(firstPhrase(docs).value("text").toString(), QString("One line\n\nAnother line"));
}

void TestUserDocs::anotherLanguageFallsBackToEnglish()
{
    writeDocs(smallDocs);
    UserDocs docs = docsIn({m_folder->path()}, "de_DE");
    QCOMPARE(docs.docs().size(), 1);
    QCOMPARE(docs.docsFile(), QString("userdocs_capture_en_US.xml"));
}

void TestUserDocs::ownLanguageInALaterFolderYieldsToTheFirstFolderWithADocument()
{
    QVERIFY(QDir(m_folder->path()).mkdir("later"));
    writeDocs(smallDocs);
    write("later/userdocs_capture_ru_RU.xml", "<docs/>");
    const QString later = m_folder->filePath("later");
    UserDocs english = docsIn({m_folder->path(), later}, "ru_RU");
    QCOMPARE(english.docs().size(), 1);
    UserDocs russian = docsIn({m_folder->filePath("nowhere"), later}, "ru_RU");
    QCOMPARE(russian.docs().size(), 0);
    QCOMPARE(russian.docsDir(), later);
    QCOMPARE(russian.docsFile(), QString("userdocs_capture_ru_RU.xml"));
}

void TestUserDocs::missingFileIsLogged()
{
    UserDocs docs = docsIn({m_folder->path(), m_folder->filePath("other")});
    const QString path = m_folder->filePath("userdocs_capture_en_US.xml");
    QTest::ignoreMessage(QtWarningMsg, qPrintable("File " + path + " not found or not a file"));
    QCOMPARE(docs.docs(), QVariantList());
}

void TestUserDocs::aFolderOfThatNameIsNoFile()
{
    QVERIFY(QDir(m_folder->path()).mkdir("userdocs_capture_en_US.xml"));
    UserDocs docs = docsIn({m_folder->path()});
    const QString path = m_folder->filePath("userdocs_capture_en_US.xml");
    QTest::ignoreMessage(QtWarningMsg, qPrintable("File " + path + " not found or not a file"));
    QCOMPARE(docs.docs(), QVariantList());
}

void TestUserDocs::unreadableFileIsLogged()
{
    const QString path = writeDocs(smallDocs);
    UserDocs docs = docsIn({m_folder->path()});
    QTest::ignoreMessage(QtWarningMsg, qPrintable("loadDocs: Failed to open " + path));
    // File modes do not stop every user; a limit of no open files does.
    rlimit former{};
    QCOMPARE(getrlimit(RLIMIT_NOFILE, &former), 0);
    const rlimit none{0, former.rlim_max};
    QCOMPARE(setrlimit(RLIMIT_NOFILE, &none), 0);
    const QVariantList pages = docs.docs();
    QCOMPARE(setrlimit(RLIMIT_NOFILE, &former), 0);
    QCOMPARE(pages, QVariantList());
}

void TestUserDocs::damagedFileIsLoggedAndKeepsThePages_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("cut off") << QByteArray("<docs>\n<page><title>One</title>");
    QTest::newRow("wrong end") << QByteArray("<docs><page></docs></page>");
    QTest::newRow("no XML") << QByteArray("\x89PNG\r\n\x1a\n\0\0\0", 11);
    QTest::newRow("two roots") << smallDocs + smallDocs;
    QTest::newRow("wrong encoding") << QByteArray("<docs><page><title>\xff\xfe</title></page></docs>");
    QTest::newRow("unknown entity") << QByteArray("<docs><page><title>&nbsp;</title></page></docs>");
}

void TestUserDocs::damagedFileIsLoggedAndKeepsThePages()
{
    QFETCH(QByteArray, content);
    writeDocs(smallDocs);
    UserDocs docs = docsIn({m_folder->path()});
    const QVariantList before = docs.docs();
    QCOMPARE(before.size(), 1);
    const QString path = writeDocs(content);
    const QRegularExpression line("^Failed to read " + QRegularExpression::escape(path)
                                  + " \\(str: .+, err: [1-9], line: [0-9]+\\)$");
    QTest::ignoreMessage(QtWarningMsg, line);
    docs.loadDocs();
    QCOMPARE(docs.docs(), before);
}

void TestUserDocs::documentTypeIsRefused()
{
    const QString path =
        writeDocs("<!DOCTYPE docs [<!ENTITY a 'aaaa'>]>\n<docs><page><title>&a;</title></page></docs>");
    UserDocs docs = docsIn({m_folder->path()});
    QTest::ignoreMessage(
        QtWarningMsg,
        qPrintable("Failed to read " + path + " (str: A document type is not allowed, err: 2, line: 1)"));
    QCOMPARE(docs.docs(), QVariantList());
}

void TestUserDocs::hugeFileIsRefused()
{
    const QString path = writeDocs("<docs>" + QByteArray(UserDocs::largestFileBytes, ' ') + "</docs>");
    UserDocs docs = docsIn({m_folder->path()});
    QTest::ignoreMessage(QtWarningMsg, qPrintable("Failed to read " + path
                                                  + " (str: The file is too large, err: 2, line: 0)"));
    QCOMPARE(docs.docs(), QVariantList());
}

void TestUserDocs::tooManyPagesAreRefused()
{
    const QByteArray page = "<page><title>t</title></page>";
    writeDocs("<docs>" + page.repeated(UserDocs::mostPages) + "</docs>");
    UserDocs docs = docsIn({m_folder->path()});
    QCOMPARE(docs.docs().size(), UserDocs::mostPages);
    const QString path = writeDocs("<docs>" + page.repeated(UserDocs::mostPages + 1) + "</docs>");
    QTest::ignoreMessage(QtWarningMsg,
                         qPrintable("Failed to read " + path + " (str: Too many pages, err: 2, line: 1)"));
    docs.loadDocs();
}

void TestUserDocs::tooManyPhrasesAreRefused()
{
    const QByteArray phrase = "<phrase><text>t</text></phrase>";
    const QString path =
        writeDocs("<docs><page><title>t</title><text>" + phrase.repeated(UserDocs::mostPhrasesInPage + 1)
                  + "</text></page></docs>");
    UserDocs docs = docsIn({m_folder->path()});
    QTest::ignoreMessage(QtWarningMsg, qPrintable("Failed to read " + path
                                                  + " (str: Too many phrases in a page, err: 2, line: 1)"));
    QCOMPARE(docs.docs(), QVariantList());
}

void TestUserDocs::emptyElementIsLogged()
{
    writeDocs(phraseWith("<title>  </title><text>Body</text><weblink/>"));
    UserDocs docs = docsIn({m_folder->path()});
    QTest::ignoreMessage(QtWarningMsg, "Empty node 'title'");
    QTest::ignoreMessage(QtWarningMsg, "Empty node 'weblink'");
    QCOMPARE(firstPhrase(docs).value("text").toString(), QString("Body"));
}

void TestUserDocs::absentElementIsLogged()
{
    QLoggingCategory::setFilterRules("morvane.docs.debug=true");
    write("c.svg", "<svg/>");
    writeDocs("<docs><page><image>c.svg</image></page></docs>");
    UserDocs docs = docsIn({m_folder->path()});
    QTest::ignoreMessage(QtDebugMsg, "Doc object is null");
    QCOMPARE(docs.docs().size(), 1);
}

void TestUserDocs::absentElementIsNotLoggedUnlessAskedFor()
{
    writeDocs(smallDocs);
    UserDocs docs = docsIn({m_folder->path()});
    static int lines = 0;
    lines = 0;
    const QtMessageHandler former =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) { ++lines; });
    const qsizetype pages = docs.docs().size();
    qInstallMessageHandler(former);
    QCOMPARE(pages, 1);
    QCOMPARE(lines, 0);
}

void TestUserDocs::unknownElementsAreSkipped()
{
    writeDocs(
        "<docs><chapter><page/></chapter><page><title>One<b>bold</b></title><extra/><text><note/>"
        "<phrase><text>Body</text><extra>x</extra></phrase></text></page></docs>");
    UserDocs docs = docsIn({m_folder->path()});
    QCOMPARE(docs.docs().size(), 1);
    QCOMPARE(docs.docs().at(0).toMap().value("title").toString(), QString("One"));
    QCOMPARE(firstPhrase(docs).value("text").toString(), QString("Body"));
}

void TestUserDocs::picturesComeFromTheDocumentsFolderOnly_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("above") << "../a.png";
    QTest::newRow("absolute") << "/usr/a.png";
    QTest::newRow("address") << "http://example.org/a.png";
    QTest::newRow("resource") << "qrc:/a.png";
    QTest::newRow("hidden way up") << "images/../../a.png";
    QTest::newRow("not there") << "b.png";
    QTest::newRow("no picture") << "a.txt";
}

void TestUserDocs::picturesComeFromTheDocumentsFolderOnly()
{
    QFETCH(QString, name);
    QVERIFY(QDir(m_folder->path()).mkpath("docs/images"));
    write("a.png", "png");
    write("docs/a.txt", "text");
    write("docs/userdocs_capture_en_US.xml", phraseWith("<image>" + name.toUtf8() + "</image>"));
    UserDocs docs = docsIn({m_folder->filePath("docs")});
    QTest::ignoreMessage(QtWarningMsg, qPrintable("loadDocs: No picture '" + name + "'"));
    QCOMPARE(firstPhrase(docs).value("image").toString(), QString());
}

void TestUserDocs::linksLeadToTheWebOnly()
{
    UserDocs docs = docsIn({m_folder->path()});
    for (const QByteArray address : {"file:///etc/passwd", "javascript:x", "https://", "somewhere"}) {
        writeDocs(phraseWith("<weblink>" + address + "</weblink>"));
        QTest::ignoreMessage(QtWarningMsg, ("loadDocs: Not a web address '" + address + "'").constData());
        docs.loadDocs();
        QCOMPARE(firstPhrase(docs).value("weblink").toString(), QString());
    }
}

void TestUserDocs::readingAgainTellsOfOtherPagesOnly()
{
    writeDocs(smallDocs);
    UserDocs docs = docsIn({m_folder->path()});
    const QSignalSpy changed(&docs, &UserDocs::docsChanged);
    docs.docs();
    docs.loadDocs();
    QCOMPARE(changed.count(), 0);
    writeDocs("<docs/>");
    docs.loadDocs();
    QCOMPARE(changed.count(), 1);
    QCOMPARE(docs.docs(), QVariantList());
}

void TestUserDocs::theProgramsOwnDocumentsAreSound_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("locale");
    for (const char *locale : {"en_US", "ru_RU"}) {
        QTest::addRow("%s in the sources", locale) << MORVANE_SOURCE_DIR "/docs/userdocs" << locale;
        QTest::addRow("%s in the program", locale) << ":/userdocs" << locale;
    }
}

void TestUserDocs::theProgramsOwnDocumentsAreSound()
{
    QFETCH(QString, folder);
    QFETCH(QString, locale);
    UserDocs docs = docsIn({folder}, locale);
    const QVariantList pages = docs.docs();
    QVERIFY(pages.size() >= 8);
    QCOMPARE(docs.docsFile(), "userdocs_capture_" + locale + ".xml");
    for (const QVariant &entry : pages) {
        const Page page = entry.toMap();
        QVERIFY(!page.value("title").toString().isEmpty());
        QVERIFY(!page.value("zastavka").toString().isEmpty());
        const QVariantList phrases = page.value("text").toList();
        QVERIFY(!phrases.isEmpty());
        for (const QVariant &phrase : phrases)
            QVERIFY(!phrase.toMap().value("text").toString().isEmpty());
    }
}

void TestUserDocs::everyLanguageHasTheSamePages()
{
    const QString folder = MORVANE_SOURCE_DIR "/docs/userdocs";
    UserDocs english = docsIn({folder});
    UserDocs russian = docsIn({folder}, "ru_RU");
    const QVariantList a = english.docs();
    const QVariantList b = russian.docs();
    QCOMPARE(b.size(), a.size());
    for (qsizetype i = 0; i < a.size(); ++i) {
        const Page one = a.at(i).toMap();
        const Page other = b.at(i).toMap();
        QCOMPARE(other.value("zastavka"), one.value("zastavka"));
        QCOMPARE(other.value("text").toList().size(), one.value("text").toList().size());
    }
}

QTEST_GUILESS_MAIN(TestUserDocs)

#include "tst_userdocs.moc"
