#include "DocumentText.h"
#include "project/ProjectMapping.h"
#include "ProjectFakes.h"
#include "RandomProject.h"
#include "shared/MessageCentre.h"
#include "shared/WebcamGlobal.h"

#include <QMetaMethod>
#include <QMetaProperty>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::StringLiterals;

/// Notes the change signals of an object in the order in which they come.
class SignalLog : public QObject
{
    Q_OBJECT

public:
    explicit SignalLog(QObject &sender, QStringList &log) : m_log(log)
    {
        const QMetaMethod slot = metaObject()->method(metaObject()->indexOfSlot("note()"));
        const QMetaObject *meta = sender.metaObject();
        for (int i = QObject::staticMetaObject.propertyCount(); i < meta->propertyCount(); ++i) {
            if (meta->property(i).hasNotifySignal())
                connect(&sender, meta->property(i).notifySignal(), this, slot);
        }
    }

public slots:
    void note()
    {
        const QByteArray name = sender()->metaObject()->method(senderSignalIndex()).name();
        m_log.append(QString::fromLatin1(name.chopped(qsizetype(strlen("Changed")))));
    }

private:
    QStringList &m_log;
};

class TestProjectMapping : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<WebcamGlobal> m_global;
    std::unique_ptr<FakeNeighbours> m_neighbours;
    std::unique_ptr<MessageCentre> m_messages;
    std::unique_ptr<ProjectMapping> m_mapping;

    /// A document whose three expected groups are there and empty.
    static ProjectDocument plain()
    {
        ProjectDocument document;
        document.frameSettings.emplace();
        document.camera.emplace();
        document.render.emplace();
        return document;
    }
    static QString settingsLine(const ProjectDocument &document, const QString &element)
    {
        for (const QString &line : documentText(document).split(u'\n')) {
            if (line.contains(u'<' + element))
                return line;
        }
        return {};
    }

private slots:
    void init()
    {
        m_global = std::make_unique<WebcamGlobal>();
        m_neighbours = std::make_unique<FakeNeighbours>();
        m_messages = std::make_unique<MessageCentre>();
        m_mapping = std::make_unique<ProjectMapping>(*m_global, m_neighbours->references(), *m_messages);
    }

    void whatIsAppliedIsCollectedAgain()
    {
        const quint32 start = QRandomGenerator::global()->generate();
        qInfo("seed %u", start);
        for (quint32 seed = start; seed != start + 20; ++seed) {
            init();
            ProjectDocument document = randomProject(seed, 3);
            // Values that have a rule of their own on the way, and a test of their own below.
            document.frameSettings->frameNamePrefix = u"shot"_s;
            document.frameSettings->pathColor = u"#123456"_s;
            document.frameSettings->lightboxColor = u"#abcdef"_s;
            document.frameSettings->timelineH = 200;
            document.render->exportVideoFileName = u"movie"_s;
            document.videoEffectsString = u"cas=strength=5"_s;
            document.render->exportPath = QDir::tempPath();
            document.render->crop = document.frameSettings->crop;
            document.path->data = u"AAEC"_s;
            document.filters->values = {{u"contrast"_s, u"4.5"_s}, {u"chromakey"_s, u"a;b"_s}};
            document.camera->pictureStyle = QString();
            document.camera->wbTemp = 2800;
            m_neighbours->rows = document.frames;
            m_mapping->apply(document);
            QCOMPARE(documentText(m_mapping->collect()), documentText(document));
        }
    }

    void newProjectHasNoFrames()
    {
        m_neighbours->rows = {ProjectFrame{}, ProjectFrame{}};
        QCOMPARE(m_mapping->collect(ProjectMapping::Rows::LeaveOut).frames.size(), 0);
        QCOMPARE(m_mapping->collect().frames.size(), 2);
    }

    void emptyDocumentChangesNothingButLogsWhatIsExpected()
    {
        const QString before = documentText(m_mapping->collect());
        QSignalSpy changed(m_global.get(), &WebcamGlobal::changed);
        QTest::ignoreMessage(QtDebugMsg, "Cannot find FrameSettings in project file");
        QTest::ignoreMessage(QtDebugMsg, "Cannot find CanonCameraSettings in project file");
        QTest::ignoreMessage(QtDebugMsg, "Cannot find RenderVideoSettings in project file");
        m_mapping->apply(ProjectDocument());
        QCOMPARE(documentText(m_mapping->collect()), before);
        QCOMPARE(changed.size(), 0);
        QVERIFY(m_neighbours->calls.isEmpty());
    }

    void groupsAndValuesAreAppliedInOrder()
    {
        QStringList log;
        const SignalLog listener(*m_global, log);
        ProjectDocument document = plain();
        document.background = {2.0, false, u"sky.png"_s};
        document.animation = {{u"quality"_s, 50}};
        document.videoEffectsString = u"cas=strength=5"_s;
        ProjectDocument::Frames &settings = *document.frameSettings;
        settings.videoExportPolicy = 2;
        settings.applyDigitalExposure = true;
        settings.applyCameraWB = true;
        settings.preserveHighlights = true;
        settings.preserveHighlightsValue = 5;
        settings.frameWidth = 640;
        settings.frameHeight = 480;
        settings.exportSizeW = 640;
        settings.sequenceExportSizeW = 640;
        settings.cropAreaOn = true;
        settings.gridOn = true;
        settings.gridOpacity = 0.5;
        settings.crop = true;
        settings.cropRAW = false;
        settings.refImageScale = 50.0;
        settings.stackDepth = 4;
        settings.pathColor = u"#ff0000"_s;
        document.render->timecode = true;
        document.info.emplace().movieTitle = u"Film"_s;
        document.filters.emplace().enabled = 2;
        m_mapping->apply(document);
        log.removeAll(u"changed"_s);
        // These follow their widths and the effect's text.
        for (const QString &name :
             {u"exportSize"_s, u"exportSizeH"_s, u"sequenceExportSize"_s, u"sequenceExportSizeH"_s,
              u"videoEffectsStringParsed"_s, u"applyPostProcessEffects"_s})
            log.removeAll(name);
        QCOMPARE(log, QStringList({u"backgroundPreviewScale"_s,
                                   u"backgroundOn"_s,
                                   u"backgroundImage"_s,
                                   u"webpSettings"_s,
                                   u"videoEffectsString"_s,
                                   u"videoExportPolicy"_s,
                                   u"applyDigitalExposure"_s,
                                   u"applyCameraWB"_s,
                                   u"preserveHighlights"_s,
                                   u"preserveHighlightsValue"_s,
                                   u"cropAreaW"_s,
                                   u"cropAreaH"_s,
                                   u"exportSizeW"_s,
                                   u"sequenceExportSizeW"_s,
                                   u"cropAreaOn"_s,
                                   u"gridOn"_s,
                                   u"gridOpacity"_s,
                                   u"crop"_s,
                                   u"cropRAWtoCoordSystem"_s,
                                   u"referenceImageScale"_s,
                                   u"stackDepth"_s,
                                   u"pathColor"_s,
                                   u"renderTimecode"_s,
                                   u"movieTitle"_s,
                                   u"postProcessing"_s}));
    }

    void frameSizeFallsBackToTheCameras()
    {
        m_global->setFrameWidth(1920);
        m_global->setFrameHeight(1080);
        ProjectDocument document = plain();
        document.frameSettings->frameWidth = 1280;
        m_mapping->apply(document);
        QCOMPARE(m_global->cropAreaW(), 1280);
        QCOMPARE(m_global->cropAreaH(), 1080);
    }

    void cropOfTheRenderSettingsWins()
    {
        ProjectDocument document = plain();
        document.frameSettings->crop = true;
        document.render->crop = false;
        m_mapping->apply(document);
        QCOMPARE(m_global->crop(), false);
    }

    void emptyColorsHaveTheirDefaults()
    {
        m_global->setPathColor(Qt::red);
        ProjectDocument document = plain();
        document.frameSettings->pathColor = QString();
        m_mapping->apply(document);
        QCOMPARE(m_global->pathColor().name(), u"#3396ff"_s);
        QCOMPARE(m_neighbours->color.name(), u"#ffffff"_s);
    }

    void unknownColorIsReported()
    {
        QSignalSpy spy(m_messages.get(), &MessageCentre::appendMessage);
        ProjectDocument document = plain();
        document.frameSettings->lightboxColor = u"nonsense"_s;
        m_mapping->apply(document);
        QCOMPARE(m_neighbours->color.name(), u"#ffffff"_s);
        QCOMPARE(spy.size(), 1);
        QCOMPARE(spy.first().at(2).toString(),
                 u"The value \"nonsense\" in the project file is not a colour"_s);
    }

    void sameColorsAreNotSetAgain()
    {
        m_neighbours->mode = 1;
        ProjectDocument document = plain();
        document.frameSettings->lightboxMode = 1;
        document.frameSettings->lightboxColor = m_neighbours->color.name();
        m_mapping->apply(document);
        QVERIFY(!m_neighbours->calls.contains(u"lightboxMode"_s));
        QVERIFY(!m_neighbours->calls.contains(u"lightboxColor"_s));
        document.frameSettings->lightboxMode = 0;
        document.frameSettings->lightboxColor = u"#010203"_s;
        m_mapping->apply(document);
        QCOMPARE(m_neighbours->calls.mid(m_neighbours->calls.size() - 2),
                 QStringList({u"lightboxMode"_s, u"lightboxColor"_s}));
    }

    void frameNameMaskIsCleanedBothWays()
    {
        m_global->setFrameNameMask(u" my-shot: 1/2 "_s);
        QCOMPARE(m_mapping->collect().frameSettings->frameNamePrefix, u"my_shot_12"_s);
        QCOMPARE(m_global->frameNameMask(), u" my-shot: 1/2 "_s);
        ProjectDocument document = plain();
        document.frameSettings->frameNamePrefix = u"../a b*"_s;
        m_mapping->apply(document);
        QCOMPARE(m_global->frameNameMask(), u"..a_b"_s);
    }

    void timelineHeightIsLimitedOnWriting()
    {
        m_neighbours->timelineHeight = 9999;
        QCOMPARE(m_mapping->collect().frameSettings->timelineH, 234);
        ProjectDocument document = plain();
        document.frameSettings->timelineH = 5;
        m_mapping->apply(document);
        QCOMPARE(m_neighbours->timelineHeight, 5);
    }

    void backgroundIsWrittenAsABareName()
    {
        m_global->setBackgroundImage(u"/x/sky.png"_s);
        QCOMPARE(m_mapping->collect().background->backgroundImage, u"sky.png"_s);
    }

    void smoothingComesFirstAndHasADefault()
    {
        ProjectDocument document = plain();
        document.path.emplace();
        document.path->data = u"AAEC"_s;
        document.path->viewportWidth = 100.0;
        document.path->viewportHeight = 50.0;
        m_mapping->apply(document);
        QCOMPARE(m_neighbours->smooth, 300);
        QCOMPARE(m_neighbours->calls,
                 QStringList({u"lightboxColor"_s, u"smooth"_s, u"viewport"_s, u"pathBytes"_s}));
        QCOMPARE(m_neighbours->bytes, QByteArray("\0\1\2", 3));
        QCOMPARE(m_neighbours->viewport, QSizeF(100, 50));
    }

    void halfAViewportIsNotApplied()
    {
        ProjectDocument document = plain();
        document.path.emplace().viewportWidth = 100.0;
        m_mapping->apply(document);
        document.path->viewportHeight = 0.0;
        m_mapping->apply(document);
        QVERIFY(!m_neighbours->calls.contains(u"viewport"_s));
    }

    void olderPathIsReadOnlyWithoutTheCurrentOne()
    {
        ProjectDocument document = plain();
        document.path.emplace().pathData = u"0,1,2,0,0,0,0;"_s;
        document.path->data = u"AAEC"_s;
        m_mapping->apply(document);
        QVERIFY(m_neighbours->olderText.isEmpty());
        document.path->data = QString();
        m_mapping->apply(document);
        QCOMPARE(m_neighbours->olderText, u"0,1,2,0,0,0,0;"_s);
    }

    void cameraSettingsAreTexts()
    {
        m_neighbours->camera = {
            {u"Av"_s, u"003.5.6"_s}, {u"PictureStyle"_s, u"Neutral"_s}, {u"WBtemp"_s, 5200}};
        QCOMPARE(settingsLine(m_mapping->collect(), u"CanonCameraSettings"_s),
                 u"    <CanonCameraSettings Av=\"003.5.6\" Tv=\"\" WB=\"\" ISO=\"\" ICCpath=\"\" "
                 "PictureStyle=\"Neutral\" ExpoComp=\"\" WBtemp=\"5200\"/>"_s);
        m_neighbours->camera[u"WBtemp"_s] = u"warm"_s;
        QVERIFY(!m_mapping->collect().camera->wbTemp);
        m_neighbours->camera.remove(u"WBtemp"_s);
        QCOMPARE(m_mapping->collect().camera->wbTemp, 2800);
    }

    void pictureStyleIsNotReadBack()
    {
        m_neighbours->camera = {{u"PictureStyle"_s, u"Neutral"_s}, {u"Av"_s, u"4"_s}};
        const ProjectDocument saved = m_mapping->collect();
        m_neighbours->camera.clear();
        m_mapping->apply(saved);
        QCOMPARE(m_neighbours->camera.value(u"Av"_s).toString(), u"4"_s);
        QVERIFY(!m_neighbours->camera.contains(u"PictureStyle"_s));
    }

    void movieNameIsSimplifiedAndNeverEmpty()
    {
        ProjectDocument document = plain();
        document.render->exportVideoFileName = u"  my   movie "_s;
        m_mapping->apply(document);
        QCOMPARE(m_global->renderFileName(), u"my movie"_s);
        document.render->exportVideoFileName = u"   "_s;
        m_mapping->apply(document);
        QCOMPARE(m_global->renderFileName(), u"videotest"_s);
    }

    void exportFolderThatIsGoneIsReportedAndCleared()
    {
        QTemporaryDir folder;
        ProjectDocument document = plain();
        document.render->exportPath = folder.path();
        m_mapping->apply(document);
        QCOMPARE(m_global->exportPath(), folder.path());
        QSignalSpy spy(m_messages.get(), &MessageCentre::appendMessage);
        QTest::ignoreMessage(QtDebugMsg, "File doesn't exist at /gone/away/");
        document.render->exportPath = u"/gone/away/"_s;
        m_mapping->apply(document);
        QCOMPARE(m_global->exportPath(), QString());
        QCOMPARE(spy.size(), 1);
        QCOMPARE(spy.first().at(2).toString(), u"Image file doesn't exist at /gone/away/"_s);
    }

    void speedGoesToTheTimelineAndTheSharedState()
    {
        ProjectDocument document = plain();
        document.render->fps = 12.5;
        m_mapping->apply(document);
        QCOMPARE(m_neighbours->fps, 12.5);
        QCOMPARE(m_global->timelineFps(), 12.5);
    }

    void filterValuesAreNumbersAndText()
    {
        ProjectDocument document = plain();
        document.filters.emplace().values = {{u"contrast"_s, u"4.5"_s}, {u"chromakey"_s, u"0.3;0.1;red"_s}};
        m_mapping->apply(document);
        QCOMPARE(m_global->postProcessSettings(),
                 QVariantMap({{u"contrast"_s, 4.5}, {u"chromakey"_s, u"0.3;0.1;red"_s}}));
    }

    void everyFilterKeyIsWritten()
    {
        m_global->setPostProcessSettings(
            {{u"contrast"_s, 0.1}, {u"saturation"_s, 60}, {u"enhance"_s, u"5;0.2"_s}});
        QCOMPARE(settingsLine(m_mapping->collect(), u"Filters"_s),
                 u"    <Filters enabled=\"0\" contrast=\"0.1\" enhance=\"5;0.2\" saturation=\"60\"/>"_s);
    }

    void animationSettingsNotChosenAreWrittenAsDefaults()
    {
        m_global->setWebpSettings({{u"quality"_s, 70}, {u"other"_s, 1}});
        QCOMPARE(settingsLine(m_mapping->collect(), u"AnimationSettings"_s),
                 u"    <AnimationSettings filtersharpness=\"5\" filterstrength=\"100\" filtertype=\"0\" "
                 "loopcount=\"0\" lossless=\"1\" method=\"6\" quality=\"70\" snsstrength=\"100\"/>"_s);
    }
};

QTEST_GUILESS_MAIN(TestProjectMapping)
#include "tst_projectmapping.moc"
