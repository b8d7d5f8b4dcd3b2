#include "DocumentText.h"
#include "project/ProjectReader.h"
#include "RandomProject.h"

#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

#ifdef Q_OS_UNIX
#include <sys/resource.h>
#include <sys/stat.h>
#endif

using namespace Qt::StringLiterals;
using Status = ProjectReadResult::Status;

namespace {

constexpr qint64 megabyte = 1024 * 1024;

/// A file of any length that lies on no disk: a beginning, then one piece again and again.
class EndlessFile : public QIODevice
{
public:
    EndlessFile(QByteArray beginning, QByteArray piece, qint64 size)
        : m_pending(std::move(beginning)), m_piece(std::move(piece)), m_left(size)
    {
        open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }
    bool isSequential() const override
    {
        return true;
    }
    qint64 bytesGiven() const
    {
        return m_given;
    }

protected:
    qint64 readData(char *data, qint64 maxSize) override
    {
        while (m_pending.size() < maxSize)
            m_pending += m_piece;
        const qint64 size = qMin(maxSize, m_left);
        memcpy(data, m_pending.constData(), static_cast<std::size_t>(size));
        m_pending.remove(0, size);
        m_left -= size;
        m_given += size;
        return size;
    }
    qint64 writeData(const char *, qint64) override
    {
        return -1;
    }

private:
    QByteArray m_pending;
    QByteArray m_piece;
    qint64 m_left;
    qint64 m_given = 0;
};

qint64 peakMemoryKilobytes()
{
#ifdef Q_OS_LINUX
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
#else
    return 0;
#endif
}

} // namespace

/// Files that are damaged, cut off, or made to do harm.
class TestProjectReaderLimits : public QObject
{
    Q_OBJECT

private:
    static QByteArray begin()
    {
        return "<MorvaneProject><Version major=\"3\"/>";
    }

private slots:
    void emptyFileIsNotParsable()
    {
        const ProjectReadResult result = readProject({});
        QCOMPARE(result.status, Status::NotParsable);
        QCOMPARE(result.event(), Zum::FileXMLunparseble);
        QVERIFY2(result.error.contains(u" at line 1, column 0"_s), qPrintable(result.error));
    }

    void fileCutOffAnywhereIsNotParsable()
    {
        const QByteArray whole = ProjectWriter::xml(randomProject(3, 5));
        for (qsizetype size = 0; size < whole.size() - 1; size += 7)
            QCOMPARE(readProject(whole.left(size)).status, Status::NotParsable);
        // Only the line break behind the last tag is missing here.
        QCOMPARE(readProject(whole.chopped(1)).status, Status::Ok);
    }

    void parserErrorNamesItsPlace()
    {
        const ProjectReadResult result =
            readProject("<MorvaneProject>\n  <Version major=3/>\n</MorvaneProject>");
        QCOMPARE(result.status, Status::NotParsable);
        QVERIFY2(QRegularExpression(u"^.+ at line 2, column \\d+$"_s).match(result.error).hasMatch(),
                 qPrintable(result.error));
    }

    void garbageBehindTheDocumentIsNotParsable()
    {
        QCOMPARE(readProject(projectFileWith("") + "garbage").status, Status::NotParsable);
        QCOMPARE(readProject(projectFileWith("") + "<!-- a comment -->").status, Status::Ok);
    }

    void frameNamesThatLeaveTheFolderAreRefused_data()
    {
        QTest::addColumn<QByteArray>("name");
        for (const char *name : {"../a.jpg", "sub/a.jpg", "/etc/passwd", "..", ".", "..\\a.jpg", "\\\\srv\\a",
                                 "C:a.jpg", "file:///etc/passwd", "a&#10;b.jpg", "($ProjectDir)/a.jpg", "a/"})
            QTest::newRow(name) << QByteArray(name);
        QTest::newRow("too long") << QByteArray(256, 'a');
        QTest::newRow("too long in bytes") << QByteArray("\xd0\x96").repeated(128);
    }
    void frameNamesThatLeaveTheFolderAreRefused()
    {
        QFETCH(QByteArray, name);
        ProjectFrame onlyPhase;
        onlyPhase.phase = 3;
        for (const char *attribute : {"capTumb", "capFull", "refTumb", "refFull"}) {
            const ProjectReadResult result =
                readProjectWith(QByteArray("<Frame phase=\"3\" ") + attribute + "=\"" + name + "\"/>");
            QCOMPARE(result.status, Status::Ok);
            QCOMPARE(result.document.frames, QList<ProjectFrame>({onlyPhase}));
            QCOMPARE(result.refusals.size(), 1);
            QVERIFY2(result.refusals.first().startsWith(u"Frame 1: the file name "_s),
                     qPrintable(result.refusals.first()));
        }
    }

    void usualFrameNamesPass_data()
    {
        QTest::addColumn<QString>("name");
        for (const QString &name : {u"a.jpg"_s, u"..a"_s, u"a..b.jpg"_s, u".hidden"_s, u"кадр 1.jpg"_s,
                                    u"a:b.jpg"_s, u"($ProjectDir)"_s, QString(255, u'a')})
            QTest::newRow(qPrintable(name.left(40))) << name;
    }
    void usualFrameNamesPass()
    {
        QFETCH(QString, name);
        const ProjectReadResult result = readProjectWith("<Frame capFull=\"" + name.toUtf8() + "\"/>");
        const bool drive = name == u"a:b.jpg"_s;
        QCOMPARE(result.document.frames.first().capFull, drive ? QString() : name);
        QCOMPARE(result.refusals.size(), drive ? 1 : 0);
    }

    void otherNamesThatLeaveTheFolderAreRefused()
    {
        const ProjectReadResult result = readProjectWith(
            "<BackgroundSettings backgroundImage=\"/etc/passwd\"/>"
            "<RenderVideoSettings exportVideoFileName=\"../../movie\"/>"
            "<CanonCameraSettings ICCpath=\"/etc/passwd\"/>");
        QVERIFY(!result.document.background->backgroundImage);
        QVERIFY(!result.document.render->exportVideoFileName);
        QVERIFY(!result.document.camera->iccPath);
        QCOMPARE(
            result.refusals,
            QStringList(
                {u"The value \"/etc/passwd\" of \"backgroundImage\" in the project file is refused"_s,
                 u"The value \"../../movie\" of \"exportVideoFileName\" in the project file is refused"_s,
                 u"The value \"/etc/passwd\" of \"ICCpath\" in the project file is refused"_s}));
        QCOMPARE(readProjectWith("<CanonCameraSettings ICCpath=\"/usr/a.ICC\"/>").document.camera->iccPath,
                 u"/usr/a.ICC"_s);
    }

    void absurdNumbersAreRefused_data()
    {
        QTest::addColumn<QByteArray>("attribute");
        for (const char *attribute :
             {"frameWidth=\"2000000000\"", "frameHeight=\"-1\"", "gridHStep=\"0\"", "blend=\"14\"",
              "videoExportPolicy=\"-1\"", "lightboxMode=\"2\"", "gridOpacity=\"1e300\"",
              "gridOpacity=\"inf\"", "gridOpacity=\"nan\"", "refImageScale=\"inf\"",
              "exportSizeW=\"99999999999999999999\"", "startIndex=\"4294967296\"", "stackDepth=\"1e30\"",
              "timelineRangeEnd=\"2147483647\"", "ramPreviewWidth=\"1000000\""})
            QTest::newRow(attribute) << QByteArray(attribute);
    }
    void absurdNumbersAreRefused()
    {
        QFETCH(QByteArray, attribute);
        const ProjectReadResult result = readProjectWith("<FrameSettings " + attribute + "/>");
        QCOMPARE(result.status, Status::Ok);
        QCOMPARE(result.refusals.size(), 1);
        const QByteArray name = attribute.left(attribute.indexOf('='));
        ProjectDocument only;
        only.frameSettings = result.document.frameSettings;
        QVERIFY(!documentText(only).contains(QString::fromLatin1(name)));
    }

    void absurdFrameNumbersAreRefused()
    {
        const ProjectReadResult result = readProjectWith("<Frame/><Frame static=\"9\" phase=\"99999999\"/>");
        QCOMPARE(result.document.frames.at(1), ProjectFrame{});
        QCOMPARE(result.refusals,
                 QStringList({u"Frame 2: the value \"9\" of \"static\" is refused"_s,
                              u"Frame 2: the value \"99999999\" of \"phase\" is refused"_s}));
    }

    void speedOfNoFramesIsRefused()
    {
        QVERIFY(!readProjectWith("<RenderVideoSettings fps=\"0\"/>").document.render->fps);
        QVERIFY(!readProjectWith("<RenderVideoSettings fps=\"100000\"/>").document.render->fps);
    }

    void absurdTextIsRefused()
    {
        const ProjectReadResult result =
            readProjectWith("<ProjectInfo movieTitle=\"" + QByteArray(70000, 'a') + "\" movieScene=\"b\"/>");
        QVERIFY(!result.document.info->movieTitle);
        QCOMPARE(result.document.info->movieScene, u"b"_s);
        QCOMPARE(result.refusals.size(), 1);
        QVERIFY(result.refusals.first().size() < 200);
    }

    void quotesInsideATextAreNoAttributes()
    {
        const QByteArray title = QByteArray("it's 'so' > ").repeated(400);
        const ProjectReadResult result = readProjectWith("<ProjectInfo movieTitle=\"" + title + "\"/>");
        QCOMPARE(result.status, Status::Ok);
        QCOMPARE(result.document.info->movieTitle, QString::fromLatin1(title));
    }

    void refusalsAreCountedPastAHundred()
    {
        const ProjectReadResult result = readProjectWith(QByteArray("<Frame capFull=\"/a\"/>").repeated(150));
        QCOMPARE(result.refusals.size(), 101);
        QCOMPARE(result.refusals.last(), u"50 further values of the project file were refused"_s);
        QCOMPARE(result.document.frames.size(), 150);
    }

    void entitiesAreRefused_data()
    {
        QTest::addColumn<QByteArray>("declaration");
        QTest::newRow("entity") << QByteArray("<!DOCTYPE a [<!ENTITY b \"c\">]>");
        QTest::newRow("growing entities") << QByteArray(
            "<!DOCTYPE a [<!ENTITY b \"bbbbbbbb\"><!ENTITY c \"&b;&b;&b;&b;\"><!ENTITY d "
            "\"&c;&c;&c;&c;\">]>");
        QTest::newRow("file") << QByteArray("<!DOCTYPE a [<!ENTITY b SYSTEM \"file:///etc/passwd\">]>");
        QTest::newRow("outside") << QByteArray("<!DOCTYPE a SYSTEM \"file:///etc/passwd\">");
        QTest::newRow("public") << QByteArray("<!DOCTYPE a PUBLIC \"b\" \"http://example.org/c\">");
    }
    void entitiesAreRefused()
    {
        QFETCH(QByteArray, declaration);
        const ProjectReadResult result =
            readProject(declaration + projectFileWith("<ProjectInfo movieTitle=\"&b;\"/>"));
        QCOMPARE(result.status, Status::NotParsable);
        QVERIFY2(result.error.startsWith(
                     u"A document type declaration has no place in a project file at line 1"_s),
                 qPrintable(result.error));
    }

    void bareDoctypeIsIgnoredAndReported()
    {
        const ProjectReadResult result = readProject("<!DOCTYPE project>\n" + projectFileWith("<Frame/>"));
        QCOMPARE(result.status, Status::Ok);
        QCOMPARE(result.refusals,
                 QStringList(u"The document type declaration of the project file is ignored"_s));
    }

    void undeclaredEntityIsNotParsable()
    {
        QCOMPARE(readProjectWith("<ProjectInfo movieTitle=\"&who;\"/>").status, Status::NotParsable);
    }

    void twoHundredMegabytesOfGarbageEndSoonInLittleMemory_data()
    {
        QTest::addColumn<QByteArray>("beginning");
        QTest::addColumn<QByteArray>("piece");
        QTest::addColumn<QString>("error");
        QTest::newRow("letters") << QByteArray() << QByteArray("garbage") << QString();
        QTest::newRow("zeros") << QByteArray() << QByteArray(64, '\0') << QString();
        QTest::newRow("elements without an end")
            << begin() << QByteArray("<a>") << u"The elements are nested too deep"_s;
        QTest::newRow("text without an end")
            << begin() << QByteArray("text ") << u"A single piece of the file is too long"_s;
        QTest::newRow("comment without an end")
            << (begin() + "<!--") << QByteArray("text ") << u"A single piece of the file is too long"_s;
        QTest::newRow("attribute without an end")
            << (begin() + "<a b=\"") << QByteArray("text ") << u"A single piece of the file is too long"_s;
        QTest::newRow("attributes without an end")
            << (begin() + "<a ") << QByteArray("a=\"\" ") << u"An element has too many attributes"_s;
        QTest::newRow("frames without an end")
            << begin() << QByteArray("<Frame capFull='a'/>") << u"The project has too many frames"_s;
        QTest::newRow("unknown elements") << begin() << QByteArray("<unknown a='1' b='2'>text</unknown>\n")
                                          << u"Premature end of document."_s;
    }
    void twoHundredMegabytesOfGarbageEndSoonInLittleMemory()
    {
        QFETCH(QByteArray, beginning);
        QFETCH(QByteArray, piece);
        QFETCH(QString, error);
        const qint64 before = peakMemoryKilobytes();
        // Nothing ends these early; less of them shows the same.
        const bool isReadThrough = piece.startsWith("<unknown");
        EndlessFile file(beginning, piece, (isReadThrough ? 10 : 200) * megabyte);
        const ProjectReadResult result = ProjectReader::read(file);
        QCOMPARE(result.status, Status::NotParsable);
        QVERIFY2(result.error.startsWith(error) && result.error.contains(u" at line "_s),
                 qPrintable(result.error));
        const qint64 grown = peakMemoryKilobytes() - before;
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
        Q_UNUSED(grown) // most of it is the sanitizer's own
#else
        QVERIFY2(grown < 400 * 1024, qPrintable(u"%1 kB"_s.arg(grown)));
#endif
    }

    void readingStopsWhenCancelled()
    {
        const std::atomic<bool> cancelled = true;
        EndlessFile file(begin(), "<Frame/>", 200 * megabyte);
        const ProjectReadResult result = ProjectReader::read(file, &cancelled);
        QCOMPARE(result.status, Status::Cancelled);
        QCOMPARE(result.event(), Zum::FileSelectionCanceled);
        QVERIFY(result.document.frames.isEmpty());
        QCOMPARE(file.bytesGiven(), 0);
    }

#ifdef Q_OS_UNIX
    void pipeIsNotOpened()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath(u"pipe.kzfx"_s);
        QCOMPARE(mkfifo(path.toLocal8Bit().constData(), 0600), 0);
        QCOMPARE(ProjectReader::readFile(path).status, Status::CannotOpen);
    }
#endif
};

QTEST_GUILESS_MAIN(TestProjectReaderLimits)
#include "tst_projectreaderlimits.moc"
