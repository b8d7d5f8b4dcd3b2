#include "capture/CameraList.h"
#include "capture/DeviceSelection.h"
#include "capture/OsSpecific.h"
#include "capture/system/UdevMonitor.h"
#include "capture/system/V4l2Nodes.h"
#include "shared/Settings.h"
#include "shared/WebcamGlobal.h"
#include "shared/Zum.h"
#include "support/FakeCapture.h"

#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

/// The cameras that there are, how the scene hears of them, and which one is chosen.
class TestCameraList : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void nodesComeInTheOrderOfTheirIndexesWithTheirNames();
    void nodesWithoutPicturesAreLeftOut();
    void aNodeThatCannotBeAskedCountsIfItIsTheFirstOfItsCamera();
    void aMachineWithoutNodesHasNone();
    void theMonitorOfTheSystemCanBeMade();

    void theListHasTheMachinesThenTheBuiltInThenFiles();
    void askingAlwaysAnswers();
    void comingAndGoingIsToldAtOnce();
    void withoutEnvironmentTheListIsEmpty();
    void theDemoWebcamCanBeLeftOut();
    void whatStandsBehindAnIndex();

    void filesStayOverARestartWithTheirIndex();
    void aFileOfThisRunDoesNotStay();
    void aFileThatStandsThereKeepsItsIndex();
    void filesThatCannotBeUsedAreRefused();
    void thereIsAnEndToFiles();
    void theFileDialog();

    void rowsHaveLabelIndexAndNoBattery();
    void theLastMatchingRowWins();
    void theBuiltInCameraStandsInForNone();
    void theBuiltInCameraStandsBackForOnesOfTheMachine();
    void anotherKindIsNotFilled();
    void aPickedCameraStaysPicked();
    void aPickedCameraIsFoundAtItsNewIndex();
    void aPickedCameraOfAnotherKindDoesNotCount();
    void theIndexIsStored();
    void firewireDeviceForThreeHundredWithAnEmptyList();
    void deviceAndItsNumberBeyondTheList();
    void canonFallsBackToTheFirst();
    void namesAreLeftAloneWhileConnected();
    void aLostCameraIsWaitedFor();
    void aLostCameraComesBackAtAnotherIndex();

private:
    static QVariantMap device(const QString &name, int index)
    {
        return {{"name", name}, {"index", index}};
    }
    void writeNode(const QString &node, const QByteArray &name, const QByteArray &index)
    {
        QVERIFY(QDir(folder->path()).mkpath(node));
        for (const auto &[file, text] : {std::pair("name", name), std::pair("index", index)}) {
            QFile out(folder->filePath(node + '/' + file));
            QVERIFY(out.open(QIODevice::WriteOnly));
            out.write(text + '\n');
        }
    }
    QStringList names() const
    {
        QStringList list;
        for (const QVariant &entry : os->usbCapturingDevicesList())
            list.append(entry.toMap().value("name").toString());
        return list;
    }
    void restart();

    std::unique_ptr<QTemporaryDir> folder;
    std::unique_ptr<Settings> settings;
    std::unique_ptr<FakeMachine> machine;
    std::unique_ptr<CaptureEnvironment> environment;
    std::unique_ptr<OsSpecific> os;
    std::unique_ptr<WebcamGlobal> global;
    std::unique_ptr<DeviceSelection> devices;
    std::unique_ptr<CameraList> list;
};

void TestCameraList::init()
{
    folder = std::make_unique<QTemporaryDir>();
    restart();
}

void TestCameraList::cleanup()
{
    list.reset();
    os.reset();
    environment.reset();
}

void TestCameraList::restart()
{
    cleanup();
    settings = std::make_unique<Settings>(folder->filePath("settings.ini"));
    machine = std::make_unique<FakeMachine>();
    environment = std::make_unique<CaptureEnvironment>(machine->parts(), *settings);
    os = std::make_unique<OsSpecific>();
    os->setEnvironment(environment.get());
    global = std::make_unique<WebcamGlobal>();
    devices = std::make_unique<DeviceSelection>(*global);
    devices->setCurrentCapturingDevice(Zum::CapturingDeviceWebcam);
    list = std::make_unique<CameraList>(*global, *devices, *settings);
}

void TestCameraList::nodesComeInTheOrderOfTheirIndexesWithTheirNames()
{
    writeNode("video10", "Capture HDMI", "0");
    writeNode("video2", "HD Webcam: HD Webcam", "0");
    writeNode("video0", "", "0");
    writeNode("radio0", "Radio", "0");
    QStringList asked;
    V4l2Nodes nodes(folder->path(), "/dev", [&](const QString &path) {
        asked.append(path);
        return V4l2Nodes::Delivers::Pictures;
    });
    QCOMPARE(nodes.list(),
             (QList<VideoNode>{{"video0", 0}, {"HD Webcam: HD Webcam", 2}, {"Capture HDMI", 10}}));
    QVERIFY(asked.contains("/dev/video10"));
}

void TestCameraList::nodesWithoutPicturesAreLeftOut()
{
    writeNode("video0", "Webcam", "0");
    writeNode("video1", "Webcam", "1");
    V4l2Nodes nodes(folder->path(), "/dev", [](const QString &path) {
        return path == "/dev/video1" ? V4l2Nodes::Delivers::Nothing : V4l2Nodes::Delivers::Pictures;
    });
    QCOMPARE(nodes.list(), (QList<VideoNode>{{"Webcam", 0}}));
}

void TestCameraList::aNodeThatCannotBeAskedCountsIfItIsTheFirstOfItsCamera()
{
    writeNode("video0", "Webcam", "0");
    writeNode("video1", "Webcam", "1");
    V4l2Nodes nodes(folder->path(), folder->path(), &V4l2Nodes::probeDriver);
    QCOMPARE(nodes.list(), (QList<VideoNode>{{"Webcam", 0}}));
}

void TestCameraList::aMachineWithoutNodesHasNone()
{
    V4l2Nodes nodes(folder->filePath("none"), "/dev", &V4l2Nodes::probeDriver);
    QVERIFY(nodes.list().isEmpty());
    QVERIFY(VideoNodes::ofSystem());
}

void TestCameraList::theMonitorOfTheSystemCanBeMade()
{
    const auto monitor = DeviceMonitor::ofSystem();
    QSignalSpy changes(monitor.get(), &DeviceMonitor::changed);
    QCoreApplication::processEvents();
    QVERIFY(changes.isEmpty());
    QVERIFY(qobject_cast<UdevMonitor *>(monitor.get()));
}

void TestCameraList::theListHasTheMachinesThenTheBuiltInThenFiles()
{
    *machine->nodes = {{"HD Webcam", 0}, {"Capture HDMI", 2}};
    QFile movie(folder->filePath("walk.mp4"));
    QVERIFY(movie.open(QIODevice::WriteOnly));
    QCOMPARE(environment->files().add(movie.fileName()), 302);
    os->getDevices();
    QCOMPARE(os->usbCapturingDevicesList(),
             (QVariantList{device("HD Webcam", 0), device("Capture HDMI", 2), device("Demo Webcam", 301),
                           device("walk.mp4", 302)}));
}

void TestCameraList::askingAlwaysAnswers()
{
    QSignalSpy answers(os.get(), &OsSpecific::usbCapturingDevicesListChanged);
    os->getDevices();
    os->getDevices();
    QCOMPARE(answers.size(), 2);
}

void TestCameraList::comingAndGoingIsToldAtOnce()
{
    QSignalSpy changes(os.get(), &OsSpecific::deviceChanged);
    *machine->nodes = {{"HD Webcam", 0}};
    emit machine->monitor->changed();
    QCOMPARE(changes.size(), 1);
    QVERIFY(names().isEmpty());
    os->getDevices();
    QCOMPARE(names(), (QStringList{"HD Webcam", "Demo Webcam"}));
    environment->demo().setPresent(false);
    QCOMPARE(changes.size(), 2);
    os->getDevices();
    QCOMPARE(names(), (QStringList{"HD Webcam"}));
    environment->demo().setPresent(true);
    environment->demo().setPresent(true);
    QCOMPARE(changes.size(), 3);
}

void TestCameraList::withoutEnvironmentTheListIsEmpty()
{
    OsSpecific alone;
    alone.componentComplete();
    alone.getDevices();
    QVERIFY(alone.usbCapturingDevicesList().isEmpty());
}

void TestCameraList::theDemoWebcamCanBeLeftOut()
{
    CaptureEnvironment::Parts parts = machine->parts();
    parts.demo = false;
    CaptureEnvironment bare(std::move(parts), *settings);
    QVERIFY(bare.devices().isEmpty());
}

void TestCameraList::whatStandsBehindAnIndex()
{
    QFile image(folder->filePath("walk_1.png"));
    QVERIFY(image.open(QIODevice::WriteOnly));
    const int index = environment->files().add(image.fileName());
    QVERIFY(dynamic_cast<DemoWebcam *>(environment->makeSource(301).get()));
    QVERIFY(dynamic_cast<ScriptedSource *>(environment->makeSource(0).get()));
    QVERIFY(dynamic_cast<ScriptedSource *>(environment->makeSource(300).get()));
    QVERIFY(!dynamic_cast<ScriptedSource *>(environment->makeSource(index).get()));
}

void TestCameraList::filesStayOverARestartWithTheirIndex()
{
    for (const QString name : {"a.mp4", "b.png", "c.mkv"}) {
        QFile file(folder->filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        environment->files().add(file.fileName());
    }
    environment->files().remove(303);
    environment->files().remove(303);
    restart();
    FileCameras &files = environment->files();
    QCOMPARE(files.cameras().size(), 2);
    QCOMPARE(files.path(304), folder->filePath("c.mkv"));
    QCOMPARE(files.path(303), QString());
    // A free place is taken again.
    QCOMPARE(files.add(folder->filePath("b.png")), 303);
    files.remove(302);
    files.remove(303);
    files.remove(304);
    restart();
    QVERIFY(environment->files().cameras().isEmpty());
}

void TestCameraList::aFileOfThisRunDoesNotStay()
{
    QFile file(folder->filePath("a.mp4"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(environment->files().addForThisRun(file.fileName()), 302);
    QCOMPARE(environment->files().cameras().size(), 1);
    restart();
    QVERIFY(environment->files().cameras().isEmpty());
    environment->files().addForThisRun(file.fileName());
    environment->files().add(file.fileName());
    restart();
    QCOMPARE(environment->files().cameras().size(), 1);
}

void TestCameraList::aFileThatStandsThereKeepsItsIndex()
{
    QFile file(folder->filePath("a.mp4"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    const int index = environment->files().add(file.fileName());
    QCOMPARE(environment->files().add(folder->path() + "/./a.mp4"), index);
    QCOMPARE(environment->files().cameras().size(), 1);
}

void TestCameraList::filesThatCannotBeUsedAreRefused()
{
    FileCameras &files = environment->files();
    QCOMPARE(files.add(folder->filePath("none.mp4")), -1);
    QCOMPARE(files.errorString(),
             QString("The file %1 does not exist. Choose it again in the list of devices")
                 .arg(folder->filePath("none.mp4")));
    QFile text(folder->filePath("a.txt"));
    QVERIFY(text.open(QIODevice::WriteOnly));
    QCOMPARE(files.add(text.fileName()), -1);
    QCOMPARE(files.errorString(),
             QString("The file a.txt is neither a movie nor an image. Choose a movie, or one picture of a "
                     "numbered sequence"));
    QVERIFY(files.cameras().isEmpty());
}

void TestCameraList::thereIsAnEndToFiles()
{
    for (int i = 0; i <= FileCameras::most; ++i) {
        QFile file(folder->filePath(QString("a%1.mp4").arg(i)));
        QVERIFY(file.open(QIODevice::WriteOnly));
        const int index = environment->files().add(file.fileName());
        QCOMPARE(index, i < FileCameras::most ? 302 + i : -1);
    }
    QCOMPARE(environment->files().errorString(),
             QString("There are too many files in the list of cameras. Remove one of them first"));
}

void TestCameraList::theFileDialog()
{
    QCOMPARE(FileCameras::dialogCaption(), QString("Add file as camera..."));
    QVERIFY(FileCameras::dialogFilter().contains("*.mp4") && FileCameras::dialogFilter().contains("*.png"));
}

void TestCameraList::rowsHaveLabelIndexAndNoBattery()
{
    QSignalSpy told(global.get(), &WebcamGlobal::capturingDevicesListChanged);
    list->fill({device("HD Webcam", 2)});
    QCOMPARE(list->rows().size(), 1);
    const QVariantMap row = list->rows().first().toMap();
    QCOMPARE(row.value("name").toString(), QString("HD Webcam #2"));
    QCOMPARE(row.value("value").toInt(), 2);
    QCOMPARE(row.value("battery").toInt(), -1);
    QVERIFY(row.contains("image") && row.contains("isize"));
    QCOMPARE(told.size(), 1);
}

void TestCameraList::theLastMatchingRowWins()
{
    const QVariantList found{device("HD Webcam", 0), device("Logi C920", 1), device("Hyper Grabber 4K", 2)};
    list->fill(found);
    QCOMPARE(global->camindex(), 1);
    devices->setCurrentCapturingDevice(Zum::CapturingDeviceHDMITethering);
    list->fill(found);
    QCOMPARE(global->camindex(), 2);
}

void TestCameraList::theBuiltInCameraStandsInForNone()
{
    list->fill({device("Demo Webcam", 301)});
    QCOMPARE(global->camindex(), 301);
    devices->setCurrentCapturingDevice(Zum::CapturingDeviceHDMITethering);
    global->setCamindex(5);
    list->fill({device("Demo Webcam", 301)});
    QCOMPARE(global->camindex(), 301);
}

void TestCameraList::theBuiltInCameraStandsBackForOnesOfTheMachine()
{
    list->fill({device("HD Webcam", 0), device("Demo Webcam", 301), device("webcam.mp4", 302)});
    QCOMPARE(global->camindex(), 0);
    // Not of the kind, but there: the index stays.
    devices->setCurrentCapturingDevice(Zum::CapturingDeviceHDMITethering);
    global->setCamindex(7);
    list->fill({device("HD Webcam", 0), device("Demo Webcam", 301)});
    QCOMPARE(global->camindex(), 7);
}

void TestCameraList::anotherKindIsNotFilled()
{
    devices->setCurrentCapturingDevice(Zum::CapturingDeviceCanonEOS);
    QSignalSpy told(global.get(), &WebcamGlobal::capturingDevicesListChanged);
    list->fill({device("HD Webcam", 3)});
    QVERIFY(list->rows().isEmpty() && told.isEmpty());
    QCOMPARE(global->camindex(), 0);
}

void TestCameraList::aPickedCameraStaysPicked()
{
    const QVariantList found{device("HD Webcam", 0), device("Logi C920", 1), device("Demo Webcam", 301)};
    list->fill(found);
    list->choose(0);
    QCOMPARE(global->cameraName(), QString("HD Webcam #0"));
    list->fill(found);
    QCOMPARE(global->camindex(), 0);
    restart();
    list->fill(found);
    QCOMPARE(global->camindex(), 0);
    list->choose(301);
    list->fill(found);
    QCOMPARE(global->camindex(), 301);
    // Gone, the others are there.
    list->fill({device("HD Webcam", 0), device("Logi C920", 1)});
    QCOMPARE(global->camindex(), 1);
}

void TestCameraList::aPickedCameraIsFoundAtItsNewIndex()
{
    list->fill({device("HD Webcam", 0), device("Logi C920", 1)});
    list->choose(0);
    list->fill({device("Logi C920", 1), device("HD Webcam", 4)});
    QCOMPARE(global->camindex(), 4);
    // Of two with one name the one with its index.
    list->choose(4);
    list->fill({device("HD Webcam", 0), device("HD Webcam", 4), device("HD Webcam", 6)});
    QCOMPARE(global->camindex(), 4);
}

void TestCameraList::aPickedCameraOfAnotherKindDoesNotCount()
{
    const QVariantList found{device("HD Webcam", 0), device("Hyper Grabber 4K", 2)};
    list->fill(found);
    list->choose(0);
    devices->setCurrentCapturingDevice(Zum::CapturingDeviceHDMITethering);
    list->fill(found);
    QCOMPARE(global->camindex(), 2);
}

void TestCameraList::theIndexIsStored()
{
    global->setCamindex(4);
    QCOMPARE(settings->value("lastWebcamIndex").toInt(), 4);
    restart();
    list->refreshCamName();
    QCOMPARE(global->camindex(), 4);
}

void TestCameraList::firewireDeviceForThreeHundredWithAnEmptyList()
{
    settings->setValue("lastWebcamIndex", 300);
    list->refreshCamName();
    QCOMPARE(global->camindex(), 300);
    QCOMPARE(global->cameraName(), QString("FireWire Device"));
}

void TestCameraList::deviceAndItsNumberBeyondTheList()
{
    list->fill({device("HD Webcam", 0)});
    list->choose(17);
    QCOMPARE(global->camindex(), 17);
    QCOMPARE(global->cameraName(), QString("Device #17"));
    list->refreshCamName();
    QCOMPARE(global->cameraName(), QString("Device #17"));
    global->setCamindex(0);
    list->refreshCamName();
    QCOMPARE(global->cameraName(), QString("HD Webcam #0"));
}

void TestCameraList::canonFallsBackToTheFirst()
{
    devices->setCurrentCapturingDevice(Zum::CapturingDeviceCanonEOS);
    settings->setValue("lastWebcamIndex", 3);
    list->setRows({QVariantMap{{"name", "Canon EOS 550D #0"}, {"value", 0}}});
    list->refreshCamName();
    QCOMPARE(global->camindex(), 0);
    QCOMPARE(global->cameraName(), QString("Canon EOS 550D #0"));
}

void TestCameraList::namesAreLeftAloneWhileConnected()
{
    global->setCameraName("mine");
    global->setConnected(true);
    list->refreshCamName();
    QCOMPARE(global->cameraName(), QString("mine"));
    list->fill({device("HD Webcam", 3)});
    QCOMPARE(global->camindex(), 0);
}

void TestCameraList::aLostCameraIsWaitedFor()
{
    const QVariantList both{device("HD Webcam", 0), device("Logi C920", 1)};
    list->fill(both);
    list->choose(0);
    global->setConnected(true);
    global->setConnectedCamIndex(0);
    list->cameraLost();
    global->setConnected(false);
    QSignalSpy returned(list.get(), &CameraList::lostCameraReturned);
    list->fill({device("Logi C920", 1)});
    QCOMPARE(global->camindex(), 0);
    QCOMPARE(returned.size(), 0);
    list->fill(both);
    QCOMPARE(returned.size(), 1);
    QCOMPARE(returned.first().first().toInt(), 0);
    list->fill(both);
    QCOMPARE(returned.size(), 1);
}

void TestCameraList::aLostCameraComesBackAtAnotherIndex()
{
    list->fill({device("HD Webcam", 0), device("Logi C920", 1)});
    global->setConnectedCamIndex(0);
    list->cameraLost();
    list->fill({device("Logi C920", 1), device("HD Webcam", 2)});
    QCOMPARE(global->camindex(), 2);
    // Picking another one ends the waiting, and so does a connection.
    list->cameraLost();
    list->choose(1);
    list->fill({device("Logi C920", 1)});
    QCOMPARE(global->camindex(), 1);
    list->cameraLost();
    global->setConnected(true);
    global->setConnected(false);
    QSignalSpy returned(list.get(), &CameraList::lostCameraReturned);
    list->fill({device("Logi C920", 1), device("HD Webcam", 0)});
    QCOMPARE(returned.size(), 0);
}

QTEST_GUILESS_MAIN(TestCameraList)
#include "tst_cameralist.moc"
