#include "DocumentText.h"
#include "project/ProjectReader.h"
#include "RandomProject.h"

#include <limits>
#include <QBuffer>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::StringLiterals;

class TestProjectWriter : public QObject
{
    Q_OBJECT

private:
    static ProjectDocument fullDocument();
    static QString line(const ProjectDocument &document, const QString &element)
    {
        for (const QString &line : documentText(document).split(u'\n')) {
            if (line.startsWith(u"    <"_s + element + u' ') || line == u"    <"_s + element + u"/>"_s)
                return line;
        }
        return {};
    }
    static ProjectReadResult readBack(const ProjectDocument &document)
    {
        QByteArray bytes = ProjectWriter::xml(document);
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::ReadOnly);
        return ProjectReader::read(buffer);
    }

private slots:
    void everyByteOfAFullProject()
    {
        QFile golden(QStringLiteral(MORVANE_SOURCE_DIR "/tests/project/data/golden.kzfx"));
        QVERIFY(golden.open(QIODevice::ReadOnly));
        QByteArray expected = golden.readAll();
        expected.replace("@BUILD@", QByteArray::number(MORVANE_VERSION_BUILD));
        const QByteArray written = ProjectWriter::xml(fullDocument());
        const QByteArrayList expectedLines = expected.split('\n');
        const QByteArrayList writtenLines = written.split('\n');
        for (qsizetype i = 0; i < qMin(expectedLines.size(), writtenLines.size()); ++i)
            QCOMPARE(writtenLines.at(i), expectedLines.at(i));
        QCOMPARE(written, expected);
    }

    void phaseIsWrittenOnlyAboveZero()
    {
        ProjectDocument document;
        document.frames = {ProjectFrame{}, ProjectFrame{}};
        document.frames.last().phase = 1;
        const QStringList lines = documentText(document).split(u'\n');
        QVERIFY(!lines.at(2).contains(u"phase"_s));
        QVERIFY(lines.at(3).endsWith(u"hidden=\"0\" phase=\"1\"/>"_s));
    }

    void frameOfEmptyNamesStillStands()
    {
        ProjectDocument document;
        document.frames = {ProjectFrame{}};
        document.frames.first().staticState = -1;
        QCOMPARE(
            line(document, u"Frame"_s),
            u"    <Frame capTumb=\"\" capFull=\"\" refTumb=\"\" refFull=\"\" mirrored=\"0\" static=\"-1\" hidden=\"0\"/>"_s);
        QCOMPARE(readBack(document).document.frames.size(), 1);
    }

    void bitrateAndOlderPathAreNeverWritten()
    {
        ProjectDocument document = fullDocument();
        document.render->bitrate = 800;
        document.path->pathData = u"0,1,2,3,4,5,6;"_s;
        const QString text = documentText(document);
        QVERIFY(!text.contains(u"bitrate"_s));
        QVERIFY(!text.contains(u"pathData"_s));
        QVERIFY(!line(document, u"Version"_s).contains(u"ver="_s));
    }

    void realsAsAttributesCarryThem_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<QString>("text");
        QTest::newRow("tenths") << 0.8 << u"0.8"_s;
        QTest::newRow("whole") << 25.0 << u"25"_s;
        QTest::newRow("zero") << 0.0 << u"0"_s;
        QTest::newRow("large") << 1000000.0 << u"1000000"_s;
        QTest::newRow("two decimals") << 23.97 << u"23.97"_s;
        QTest::newRow("sixteen digits are not enough") << 0.1 + 0.2 << u"0.30000000000000004"_s;
        QTest::newRow("third") << 1.0 / 3.0 << u"0.3333333333333333"_s;
    }
    void realsAsAttributesCarryThem()
    {
        QFETCH(double, value);
        QTEST(ProjectWriter::realText(value), "text");
        QCOMPARE(ProjectWriter::realText(value).toDouble(), value);
    }

    void realsThatAreNoNumbersAreLeftOut()
    {
        ProjectDocument document = fullDocument();
        document.render->fps = std::numeric_limits<double>::quiet_NaN();
        document.path->viewportWidth = std::numeric_limits<double>::infinity();
        QVERIFY(!line(document, u"RenderVideoSettings"_s).contains(u"fps"_s));
        QVERIFY(!line(document, u"Path"_s).contains(u"pathViewportX"_s));
        QCOMPARE(readBack(document).status, ProjectReadResult::Status::Ok);
    }

    void charactersThatXmlCannotCarryAreLeftOut()
    {
        ProjectDocument document;
        document.info.emplace().movieTitle =
            u"a\x01"_s + u"b"_s + QChar(0xd83c) + u"c"_s + QChar(0xfffe) + u"\U0001F3AC\td\n"_s;
        const ProjectReadResult result = readBack(document);
        QCOMPARE(result.status, ProjectReadResult::Status::Ok);
        QCOMPARE(*result.document.info->movieTitle, u"abc\U0001F3AC\td\n"_s);
    }

    void filterKeysThatAreNoNamesAreLeftOut()
    {
        ProjectDocument document;
        document.filters.emplace().enabled = 2;
        document.filters->values = {
            {u"enhance"_s, u"5;0.2"_s}, {u"two words"_s, u"1"_s}, {u"enabled"_s, u"7"_s}};
        QCOMPARE(line(document, u"Filters"_s), u"    <Filters enabled=\"2\" enhance=\"5;0.2\"/>"_s);
    }

    void missingGroupsAreNotWritten()
    {
        QCOMPARE(documentText(ProjectDocument()).count(u'\n'), 3);
    }

    void randomProjectsComeBackAsTheyWere()
    {
        const quint32 start = QRandomGenerator::global()->generate();
        qInfo("seed %u", start);
        for (quint32 seed = start; seed != start + 60; ++seed) {
            ProjectDocument document = randomProject(seed, 25);
            const ProjectReadResult result = readBack(document);
            QVERIFY2(result.status == ProjectReadResult::Status::Ok,
                     qPrintable(u"seed %1: %2"_s.arg(seed).arg(result.error)));
            QVERIFY2(result.refusals.isEmpty(),
                     qPrintable(u"seed %1: "_s.arg(seed) + result.refusals.value(0)));
            // These two are written and never read.
            document.camera->pictureStyle.reset();
            document.camera->wbTemp.reset();
            QVERIFY2(documentText(result.document) == documentText(document),
                     qPrintable(u"seed %1"_s.arg(seed)));
            QCOMPARE(result.document.frames, document.frames);
        }
    }

    void savedFileHoldsTheDocument()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath(u"a.kzfx"_s);
        QVERIFY(ProjectWriter::save(path, fullDocument()).ok);
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), ProjectWriter::xml(fullDocument()));
    }
};

ProjectDocument TestProjectWriter::fullDocument()
{
    ProjectDocument document = randomProject(0, 0);
    document.background = {1.5, true, u"sky.png"_s};
    document.videoEffectsString = u"cas=strength=5"_s;
    document.animation = {{u"quality"_s, 90}, {u"lossless"_s, 0}};
    ProjectDocument::Frames &settings = *document.frameSettings;
    settings = {};
    settings.frameWidth = 1280;
    settings.frameHeight = 720;
    settings.cropAreaOn = true;
    settings.techInfoOn = true;
    settings.gridOn = false;
    settings.gridOpacity = 0.8;
    settings.ruleOfThirdsGridOn = false;
    settings.crossOn = true;
    settings.wideCross = false;
    settings.safeAreaOn = false;
    settings.marginsOn = false;
    settings.guidesOn = false;
    settings.guidesOpacity = 0.75;
    settings.pathColor = u"#3396ff"_s;
    settings.sightOpacity = 0.8;
    settings.safeAreaOpacity = 0.8;
    settings.frameBorderOpacity = 1.0;
    settings.gridHStep = 100;
    settings.gridVStep = 50;
    settings.crop = false;
    settings.cropRAW = true;
    settings.refImageScale = 100.0;
    settings.grayscale = false;
    settings.videoExportPolicy = 3;
    settings.rotate = false;
    settings.exportSizeW = 1920;
    settings.sequenceExportSizeW = 1280;
    settings.smoothRender = false;
    settings.marginsOpacity = 0.1;
    settings.thirdsGridOpacity = 0.2;
    settings.previewImageMirror = false;
    settings.previewImageShiftX = -12;
    settings.previewImageShiftY = 7;
    settings.scalePreviewImage = true;
    settings.stackDepth = 3;
    settings.ramPreviewWidth = 540;
    settings.ramPreviewHeight = 360;
    settings.blend = 13;
    settings.resize = true;
    settings.useFrameNameMask = false;
    settings.frameNamePrefix = u"shot"_s;
    settings.timelineH = 200;
    settings.digitalExposure = 10;
    settings.applyDigitalExposure = false;
    settings.applyCameraWB = true;
    settings.preserveHighlights = false;
    settings.preserveHighlightsValue = 4;
    settings.startIndex = 1;
    settings.flipFlopDuration = 700;
    settings.timelineRangeStart = 0;
    settings.timelineRangeEnd = 1;
    settings.ramPreviewLoop = true;
    settings.pendulumOn = false;
    settings.lightboxMode = 1;
    settings.lightboxColor = u"#00ff00"_s;
    document.camera = {u"003.5.6"_s, u"1/60"_s, u"Auto"_s, u"100"_s, QString(), u"Standard"_s, u"0"_s, 2800};
    document.path = {u"AAEC"_s, {}, 1920.0, 1080.0, 300};
    document.render = {false, true, 12.5, 0, 0, true, 1, u"videotest"_s, u"/tmp/"_s, false, {}};
    document.info = {u"Ada"_s, u"L & \"M\""_s, QString(), u"Жук"_s, u"a\nb"_s, u"<1>"_s, u"2"_s};
    document.filters = ProjectDocument::Filters{2, {{u"saturation"_s, u"60"_s}, {u"contrast"_s, u"4.5"_s}}};
    document.frames = {
        {u"frame_mini_000000_260101101500.jpg"_s,
         u"frame_norm_000000_260101101500.jpg"_s,
         {},
         {},
         -1,
         0,
         false,
         false},
        {u"t.jpg"_s, u"f.jpg"_s, u"rt.png"_s, u"r.png"_s, 2, 17, true, true},
    };
    return document;
}

QTEST_GUILESS_MAIN(TestProjectWriter)
#include "tst_projectwriter.moc"
