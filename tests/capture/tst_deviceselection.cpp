#include "capture/DeviceSelection.h"
#include "shared/Settings.h"
#include "shared/WebcamGlobal.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>

namespace {

/// Imitates a language whose words for "device" and "camera" are given.
class WordTranslator : public QTranslator
{
public:
    WordTranslator(const QString &device, const QString &camera) : m_device(device), m_camera(camera)
    {
    }

    QString translate(const char *, const char *source, const char *, int) const override
    {
        if (qstrcmp(source, "device") == 0)
            return m_device;
        return qstrcmp(source, "camera") == 0 ? m_camera : QString();
    }
    bool isEmpty() const override
    {
        return false;
    }

private:
    QString m_device;
    QString m_camera;
};

} // namespace

class TestDeviceSelection : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void canonKindOverrulesEveryName();
    void kindByName_data();
    void kindByName();
    void emptyNameStandsForTheCurrentDevice();
    void translatedWordsMakeItAWebcam();
    void translationsWithCapitalsNeverMatch();
    void iconsByKind();
    void choosingSignalsTheKindAndTheIcon();
    void deducedTypeSignalsEveryTime();
    void wordsForTheTitle();
    void connectedCameraIsRemembered();

private:
    std::unique_ptr<WebcamGlobal> global;
    std::unique_ptr<DeviceSelection> devices;
};

void TestDeviceSelection::init()
{
    global = std::make_unique<WebcamGlobal>();
    devices = std::make_unique<DeviceSelection>(*global);
}

void TestDeviceSelection::canonKindOverrulesEveryName()
{
    QCOMPARE(devices->currentCapturingDevice(), int(Zum::CapturingDeviceCanonEOS));
    QCOMPARE(devices->getDeviceTypeByName("USB webcam"), int(Zum::CapturingDeviceCanonEOS));
}

void TestDeviceSelection::kindByName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("kind");
    const int webcam = Zum::CapturingDeviceWebcam;
    for (const char *word : {"web", "usb", "logi", "microsoft", "razer", "mevo", "defe", "sven", "trust",
                             "tec", "gopro", "creat", "b2", "rosewill", "intel", "front", "rear", "device"})
        QTest::newRow(word) << QString("The %1 thing #0").arg(QString(word).toUpper()) << webcam;
    QTest::newRow("genius") << "Genius Eye" << webcam;
    QTest::newRow("camera in English") << "Some camera" << webcam;
    QTest::newRow("none of the words") << "Hyper Grabber 4K" << int(Zum::CapturingDeviceHDMITethering);
    QTest::newRow("the same with genius") << "Hyper genius Grabber 4K" << webcam;
}

void TestDeviceSelection::kindByName()
{
    QFETCH(QString, name);
    QFETCH(int, kind);
    devices->setCurrentCapturingDevice(Zum::CapturingDeviceWebcam);
    QCOMPARE(devices->getDeviceTypeByName(name), kind);
}

void TestDeviceSelection::emptyNameStandsForTheCurrentDevice()
{
    devices->setCurrentCapturingDevice(Zum::CapturingDeviceWebcam);
    global->setCameraName("Hyper Grabber");
    QCOMPARE(devices->getDeviceTypeByName(""), int(Zum::CapturingDeviceHDMITethering));
    global->setCameraName("Logi C920");
    QCOMPARE(devices->getDeviceTypeByName(""), int(Zum::CapturingDeviceWebcam));
}

void TestDeviceSelection::translatedWordsMakeItAWebcam()
{
    WordTranslator translator("устройство", "камера");
    QVERIFY(QCoreApplication::installTranslator(&translator));
    devices->setCurrentCapturingDevice(Zum::CapturingDeviceWebcam);
    QCOMPARE(devices->getDeviceTypeByName("Моя КАМЕРА"), int(Zum::CapturingDeviceWebcam));
    QCOMPARE(devices->getDeviceTypeByName("Hyper Grabber"), int(Zum::CapturingDeviceHDMITethering));
    QCoreApplication::removeTranslator(&translator);
}

void TestDeviceSelection::translationsWithCapitalsNeverMatch()
{
    WordTranslator translator("Ding", "Kamera");
    QVERIFY(QCoreApplication::installTranslator(&translator));
    devices->setCurrentCapturingDevice(Zum::CapturingDeviceWebcam);
    QCOMPARE(devices->getDeviceTypeByName("Kamera"), int(Zum::CapturingDeviceHDMITethering));
    QCoreApplication::removeTranslator(&translator);
}

void TestDeviceSelection::iconsByKind()
{
    QCOMPARE(devices->currentCapturingDeviceIcon(), QString("images/photocam.svg"));
    QCOMPARE(devices->getIconByDeviceName("Logi"), QString("images/photocam.svg"));
    devices->setCurrentCapturingDevice(Zum::CapturingDeviceWebcam);
    QCOMPARE(devices->getIconByDeviceName("Logi"), QString("images/webcam.svg"));
    QCOMPARE(devices->getIconByDeviceName("Hyper Grabber"), QString("images/dongle.svg"));
}

void TestDeviceSelection::choosingSignalsTheKindAndTheIcon()
{
    QSignalSpy kind(devices.get(), &DeviceSelection::currentCapturingDeviceChanged);
    QSignalSpy icon(devices.get(), &DeviceSelection::currentCapturingDeviceIconChanged);
    devices->setCurrentCapturingDevice(Zum::CapturingDeviceWebcam);
    QCOMPARE(kind.size(), 1);
    QCOMPARE(icon.size(), 1);
    QCOMPARE(devices->currentCapturingDeviceIcon(), QString("images/dongle.svg"));
    devices->setCurrentCapturingDevice(Zum::CapturingDeviceWebcam);
    QCOMPARE(kind.size(), 1);
}

void TestDeviceSelection::deducedTypeSignalsEveryTime()
{
    QSignalSpy told(devices.get(), &DeviceSelection::currentDeviceTypeChanged);
    devices->updateCurrentDeviceType();
    devices->updateCurrentDeviceType();
    QCOMPARE(told.size(), 2);
    QCOMPARE(devices->currentDeviceType(), int(Zum::CapturingDeviceCanonEOS));
}

void TestDeviceSelection::wordsForTheTitle()
{
    QCOMPARE(devices->currentCapturingDeviceType(), QString("DSLR"));
    devices->setCurrentCapturingDevice(Zum::CapturingDeviceWebcam);
    QCOMPARE(devices->currentCapturingDeviceType(), QString("Webcam"));
    devices->setCurrentCapturingDevice(Zum::CapturingDeviceHDMITethering);
    QCOMPARE(devices->currentCapturingDeviceType(), QString("Video Capture Device"));
    devices->setCurrentCapturingDevice(Zum::CapturingDeviceSony);
    QCOMPARE(devices->currentCapturingDeviceType(), QString());
}

void TestDeviceSelection::connectedCameraIsRemembered()
{
    QTemporaryDir folder;
    Settings settings(folder.filePath("settings.ini"));
    global->setCameraName("Canon EOS 550D #0");
    devices->rememberConnectedCamera(settings);
    QVERIFY(settings.groupValues("Device").isEmpty());
    global->setConnected(true);
    QTest::ignoreMessage(QtDebugMsg, "My new camera: Canon EOS 550D");
    devices->rememberConnectedCamera(settings);
    QCOMPARE(settings.groupValues("Device").value("camera").toString(), QString("Canon EOS 550D"));
    QTest::failOnWarning(QRegularExpression("My new camera"));
    devices->rememberConnectedCamera(settings);
}

QTEST_GUILESS_MAIN(TestDeviceSelection)
#include "tst_deviceselection.moc"
