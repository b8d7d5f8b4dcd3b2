#include "DocumentText.h"
#include "project/ProjectReader.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::StringLiterals;
using Status = ProjectReadResult::Status;

/// What each attribute becomes. Damaged and hostile files have a test of their own.
class TestProjectReader : public QObject
{
    Q_OBJECT

private:
    static ProjectDocument::Frames settings(const QByteArray &attributes)
    {
        const ProjectReadResult result = readProjectWith("<FrameSettings " + attributes + "/>");
        return result.document.frameSettings.value_or(ProjectDocument::Frames{});
    }

private slots:
    void oneFrameGivesItsRow()
    {
        const ProjectReadResult result = readProjectWith(
            "<Frame capTumb=\"t.jpg\" capFull=\"f.jpg\" refTumb=\"rt.jpg\" refFull=\"r.jpg\" mirrored=\"1\" "
            "static=\"2\" hidden=\"1\" phase=\"7\"/>");
        QCOMPARE(result.status, Status::Ok);
        QCOMPARE(result.document.frames,
                 QList<ProjectFrame>({{u"t.jpg"_s, u"f.jpg"_s, u"rt.jpg"_s, u"r.jpg"_s, 2, 7, true, true}}));
    }

    void bareFrameHasDefaults()
    {
        const ProjectReadResult result =
            readProjectWith("<Frame/><Frame static=\"x\" phase=\"\" hidden=\"no\"/>");
        QCOMPARE(result.document.frames, QList<ProjectFrame>({ProjectFrame{}, ProjectFrame{}}));
    }

    void framesKeepTheirOrder()
    {
        const ProjectReadResult result =
            readProjectWith("<Frame capFull=\"b\"/><Filters/><Frame capFull=\"a\"/><Frame capFull=\"c\"/>");
        QStringList names;
        for (const ProjectFrame &frame : result.document.frames)
            names.append(frame.capFull);
        QCOMPARE(names, QStringList({u"b"_s, u"a"_s, u"c"_s}));
    }

    void groupsMayComeInAnyOrderAndTheFirstCounts()
    {
        const ProjectReadResult result = readProject(
            "<MorvaneProject><Frame/><ProjectInfo movieTitle=\"one\"/><ProjectInfo movieTitle=\"two\"/>"
            "<Version major=\"3\"/><Version major=\"1\"/></MorvaneProject>");
        QCOMPARE(result.status, Status::Ok);
        QCOMPARE(result.document.info->movieTitle, u"one"_s);
    }

    void elementsAreFoundAtAnyDepth()
    {
        const ProjectReadResult result =
            readProjectWith("<Extra><Frame capFull=\"a\"/><Filters enabled=\"2\"/></Extra>");
        QCOMPARE(result.document.frames.size(), 1);
        QCOMPARE(result.document.filters->enabled, 2);
    }

    void projectWithoutOptionalGroupsLoads()
    {
        const ProjectReadResult result =
            readProjectWith("<FrameSettings/><CanonCameraSettings/><RenderVideoSettings/>");
        QCOMPARE(result.status, Status::Ok);
        QCOMPARE(result.event(), Zum::FileIsOk);
        QVERIFY(!result.document.filters);
        QVERIFY(!result.document.path);
        QVERIFY(!result.document.info);
        QVERIFY(!result.document.background);
        QVERIFY(!result.document.animation);
        QVERIFY(result.document.frameSettings && result.document.camera && result.document.render);
    }

    void unknownAttributesAndElementsAreIgnored()
    {
        const ProjectReadResult result = readProjectWith(
            "<Unknown a=\"1\">text</Unknown><x:y z:w=\"1\"/><Frame capFull=\"a\" other=\"b\"/>");
        QCOMPARE(result.status, Status::Ok);
        QVERIFY(result.refusals.isEmpty());
        QCOMPARE(result.document.frames.size(), 1);
    }

    void absentOrUnreadableValuesAreLeftOpen()
    {
        const ProjectDocument::Frames read =
            settings("gridHStep=\"12.5\" gridVStep=\"ten\" gridOpacity=\"half\" cropAreaOn=\"true\"");
        QVERIFY(!read.gridHStep && !read.gridVStep && !read.gridOpacity && !read.cropAreaOn && !read.crossOn);
    }

    void integersAreDecimal()
    {
        QVERIFY(!settings("blend=\"0x1\"").blend);
        QCOMPARE(settings("blend=\"010\"").blend, 10);
        QCOMPARE(settings("previewImageShiftX=\"-12\"").previewImageShiftX, -12);
    }

    void booleansAreTrueUnlessZero()
    {
        QCOMPARE(settings("crop=\"0\"").crop, false);
        QCOMPARE(settings("crop=\"1\"").crop, true);
        QCOMPARE(settings("crop=\"-5\"").crop, true);
        QVERIFY(!settings("crop=\"\"").crop);
    }

    void negativeRealIsTreatedAsAbsent()
    {
        const ProjectReadResult result =
            readProjectWith("<FrameSettings gridOpacity=\"-0.5\" refImageScale=\"-1\"/>");
        QVERIFY(!result.document.frameSettings->gridOpacity);
        QVERIFY(!result.document.frameSettings->refImageScale);
        QVERIFY(result.refusals.isEmpty());
    }

    void flipFlopDurationOutsideItsBoundsIsOneSecond()
    {
        QCOMPARE(settings("flipFlopDuration=\"499\"").flipFlopDuration, 1000);
        QCOMPARE(settings("flipFlopDuration=\"500\"").flipFlopDuration, 500);
        QCOMPARE(settings("flipFlopDuration=\"5000\"").flipFlopDuration, 5000);
        QCOMPARE(settings("flipFlopDuration=\"5001\"").flipFlopDuration, 1000);
        QVERIFY(!settings("flipFlopDuration=\"x\"").flipFlopDuration);
    }

    void referenceScaleIsLimited()
    {
        QCOMPARE(settings("refImageScale=\"300.5\"").refImageScale, 300.0);
        QCOMPARE(settings("refImageScale=\"9.99\"").refImageScale, 10.0);
        QCOMPARE(settings("refImageScale=\"0\"").refImageScale, 10.0);
        QCOMPARE(settings("refImageScale=\"150.5\"").refImageScale, 150.5);
    }

    void stackDepthIsRounded()
    {
        QCOMPARE(settings("stackDepth=\"2.6\"").stackDepth, 3);
        QCOMPARE(settings("stackDepth=\"2.4\"").stackDepth, 2);
        QVERIFY(!settings("stackDepth=\"-1\"").stackDepth);
    }

    void backgroundScaleIsLimited_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<double>("scale");
        QTest::newRow("above") << QByteArray("3.5") << 3.0;
        QTest::newRow("at the top") << QByteArray("3.0") << 3.0;
        QTest::newRow("below") << QByteArray("0.05") << 0.1;
        QTest::newRow("between") << QByteArray("1.25") << 1.25;
    }
    void backgroundScaleIsLimited()
    {
        QFETCH(QByteArray, text);
        const ProjectReadResult result = readProjectWith("<BackgroundSettings backgroundPreviewScale=\""
                                                         + text + "\" backgroundOn=\"0\"/>");
        QTEST(*result.document.background->backgroundPreviewScale, "scale");
        QCOMPARE(result.document.background->backgroundOn, false);
    }

    void animationSettingsHaveDefaults()
    {
        const ProjectReadResult result = readProjectWith("<AnimationSettings quality=\"70\" method=\"x\"/>");
        const QMap<QString, int> expected{{u"filtersharpness"_s, 5}, {u"filterstrength"_s, 100},
                                          {u"filtertype"_s, 0},      {u"loopcount"_s, 0},
                                          {u"lossless"_s, 1},        {u"method"_s, 6},
                                          {u"quality"_s, 70},        {u"snsstrength"_s, 100}};
        QCOMPARE(*result.document.animation, expected);
    }

    void pictureStyleAndWhiteBalanceTemperatureAreNotRead()
    {
        const ProjectReadResult result = readProjectWith(
            "<CanonCameraSettings Av=\"a\" Tv=\"t\" WB=\"w\" ISO=\"i\" ICCpath=\"\" PictureStyle=\"p\" "
            "ExpoComp=\"e\" WBtemp=\"5000\"/>");
        const ProjectDocument::Camera &camera = *result.document.camera;
        QCOMPARE(camera.av, u"a"_s);
        QCOMPARE(camera.tv, u"t"_s);
        QCOMPARE(camera.wb, u"w"_s);
        QCOMPARE(camera.iso, u"i"_s);
        QCOMPARE(camera.iccPath, QString());
        QCOMPARE(camera.expoComp, u"e"_s);
        QVERIFY(!camera.pictureStyle);
        QVERIFY(!camera.wbTemp);
    }

    void olderPathAndBitrateAreRead()
    {
        const ProjectReadResult result = readProjectWith(
            "<Path pathData=\"0,1,2,0,0,0,0;\" smooth=\"20\"/><RenderVideoSettings bitrate=\"800\" "
            "fps=\"12.5\"/>");
        QCOMPARE(result.document.path->pathData, u"0,1,2,0,0,0,0;"_s);
        QVERIFY(!result.document.path->data);
        QCOMPARE(result.document.path->smooth, 20);
        QCOMPARE(result.document.render->bitrate, 800);
        QCOMPARE(result.document.render->fps, 12.5);
    }

    void filtersTakeExactlyTheFourKnownKeys()
    {
        const ProjectReadResult result = readProjectWith(
            "<Filters enabled=\"2\" contrast=\"4.5\" denoise=\"-1\" saturation=\"x\" "
            "chromakey=\"0.3;0.1;red\" "
            "enhance=\"1;2\" drawpoints=\"1\" background=\"true;1;../x;false\"/>");
        QCOMPARE(result.document.filters->enabled, 2);
        const QMap<QString, QString> expected{{u"contrast"_s, u"4.5"_s},
                                              {u"denoise"_s, u"0"_s},
                                              {u"saturation"_s, u"50"_s},
                                              {u"chromakey"_s, u"0.3;0.1;red"_s}};
        QCOMPARE(result.document.filters->values, expected);
        QVERIFY(readProjectWith("<Filters enabled=\"0\"/>").document.filters->values.isEmpty());
    }

    void versionIsChecked()
    {
        const ProjectReadResult two = readProject("<MorvaneProject><Version major=\"2\"/></MorvaneProject>");
        QCOMPARE(two.status, Status::NotAProject);
        QCOMPARE(two.event(), Zum::NotMorvaneFile);
        QCOMPARE(two.logLine, u"Version 2"_s);
        QVERIFY(two.hasVersion);
        const ProjectReadResult none = readProject("<MorvaneProject><Frame/></MorvaneProject>");
        QCOMPARE(none.error, u"No 'Version' node"_s);
        QVERIFY(!none.hasVersion);
        QVERIFY(none.document.frames.isEmpty());
        QCOMPARE(readProject("<Project><Version ver=\"3.0\"/></Project>").error,
                 u"Unrecognized project version (3)"_s);
    }

    void legacyProjectIsRecognised()
    {
        const ProjectReadResult result =
            readProject("<Project><Version ver=\"2.5\"/><Frame capFull=\"a\"/></Project>");
        QCOMPARE(result.status, Status::Legacy);
        QCOMPARE(result.event(), Zum::LegacyFile);
        QCOMPARE(result.error, u"Legacy version (2.5). Converting..."_s);
        QVERIFY(result.document.frames.isEmpty());
    }

    void versionMustStandBelowTheRoot()
    {
        QCOMPARE(readProject("<Version major=\"3\"/>").error, u"No 'Version' node"_s);
    }

    void otherEncodingsAreRead()
    {
        const QString text =
            u"<MorvaneProject><Version major=\"3\"/><ProjectInfo movieTitle=\"Жук\"/></MorvaneProject>"_s;
        QStringEncoder utf16(QStringConverter::Utf16, QStringConverter::Flag::WriteBom);
        const ProjectReadResult wide = readProject(utf16(text));
        QCOMPARE(wide.document.info.value_or(ProjectDocument::Info{}).movieTitle, u"Жук"_s);
        const ProjectReadResult declared =
            readProject("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n" + text.toUtf8());
        QCOMPARE(declared.document.info.value_or(ProjectDocument::Info{}).movieTitle, u"Жук"_s);
        const ProjectReadResult marked = readProject("\xef\xbb\xbf" + text.toUtf8());
        QCOMPARE(marked.status, Status::Ok);
    }

    void readsFromAPath()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath(u"a.kzfx"_s);
        QCOMPARE(ProjectReader::readFile(path).status, Status::CannotOpen);
        QCOMPARE(ProjectReader::readFile(path).event(), Zum::FileXMLunparseble);
        QVERIFY(ProjectWriter::save(path, ProjectDocument()).ok);
        QCOMPARE(ProjectReader::readFile(path).status, Status::Ok);
        QCOMPARE(ProjectReader::readFile(folder.path()).status, Status::CannotOpen);
    }
};

QTEST_GUILESS_MAIN(TestProjectReader)
#include "tst_projectreader.moc"
