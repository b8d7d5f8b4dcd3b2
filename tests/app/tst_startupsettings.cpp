#include "app/StartupSettings.h"
#include "shared/Settings.h"
#include "shared/WebcamGlobal.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

class TestStartupSettings : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void firstRunHasTheDefaults();
    void storedChoicesAreTaken();
    void choicesOfTheRender_data();
    void choicesOfTheRender();
    void inactivityStaysInItsLimits_data();
    void inactivityStaysInItsLimits();
    void timelineScale_data();
    void timelineScale();
    void soundStoreHasNoComplaint();
    void damagedStoreIsToldWithItsCopy();

private:
    QString path() const
    {
        return folder.filePath("settings.ini");
    }

    QTemporaryDir folder;
    std::unique_ptr<Settings> settings;
};

void TestStartupSettings::init()
{
    settings.reset();
    QFile::remove(path());
    settings = std::make_unique<Settings>(path());
}

void TestStartupSettings::firstRunHasTheDefaults()
{
    WebcamGlobal global;
    startup::readInto(global, *settings);
    QVERIFY(!global.soundsOn());
    QVERIFY(!global.beepWhenCaptured());
    QVERIFY(global.showToolTips());
    QVERIFY(!global.inactivityWatchOn());
    QVERIFY(global.jumpToLastFrame());
    QCOMPARE(global.inactivityMaximum(), 90);
    const startup::WindowFlags flags = startup::windowFlags(*settings);
    QVERIFY(!flags.preview && !flags.lightbox && !flags.oscilloscope && !flags.village);
}

void TestStartupSettings::storedChoicesAreTaken()
{
    for (const char *key : {"soundsOn", "beepWhenCaptured", "inactivityWatcher", "previewWindowVisible",
                            "lightboxWindowVisible", "oscilloscopyWindowVisible", "villageWindowVisible"})
        settings->setValue(key, true);
    settings->setValue("showToolTips", false);
    settings->setValue("jumpToLastFrame", false);
    settings->setValue("inactivityMax", 30);
    WebcamGlobal global;
    startup::readInto(global, *settings);
    QVERIFY(global.soundsOn());
    QVERIFY(global.beepWhenCaptured());
    QVERIFY(!global.showToolTips());
    QVERIFY(global.inactivityWatchOn());
    QVERIFY(!global.jumpToLastFrame());
    QCOMPARE(global.inactivityMaximum(), 30);
    const startup::WindowFlags flags = startup::windowFlags(*settings);
    QVERIFY(flags.preview && flags.lightbox && flags.oscilloscope && flags.village);
}

void TestStartupSettings::choicesOfTheRender_data()
{
    QTest::addColumn<QVariant>("format");
    QTest::addColumn<QVariant>("quality");
    QTest::addColumn<QVariant>("policy");
    QTest::addColumn<QString>("takenFormat");
    QTest::addColumn<int>("takenQuality");
    QTest::addColumn<int>("takenPolicy");
    QTest::newRow("none") << QVariant() << QVariant() << QVariant() << "avi" << 2 << 0;
    QTest::newRow("lowest") << QVariant("ogv") << QVariant(0) << QVariant(0) << "ogv" << 0 << 0;
    QTest::newRow("highest") << QVariant("raw") << QVariant(3) << QVariant(3) << "raw" << 3 << 3;
    QTest::newRow("below") << QVariant("") << QVariant(-1) << QVariant(-1) << "avi" << 2 << 0;
    QTest::newRow("above") << QVariant("mjpg") << QVariant(4) << QVariant(4) << "avi" << 2 << 0;
    QTest::newRow("nonsense") << QVariant(7) << QVariant("fine") << QVariant("crop") << "avi" << 2 << 0;
}

void TestStartupSettings::choicesOfTheRender()
{
    QFETCH(QVariant, format);
    QFETCH(QVariant, quality);
    QFETCH(QVariant, policy);
    const auto store = [this](const QString &key, const QVariant &value) {
        if (value.isValid())
            settings->setValue(key, value);
    };
    store("renderVideoFormat", format);
    store("renderQmax", quality);
    store("videoExportPolicy", policy);
    WebcamGlobal global;
    startup::readInto(global, *settings);
    QTEST(global.renderFormatNameStr(), "takenFormat");
    QTEST(global.renderQmax(), "takenQuality");
    QTEST(global.videoExportPolicy(), "takenPolicy");
}

void TestStartupSettings::inactivityStaysInItsLimits_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<int>("minutes");
    QTest::newRow("below") << QVariant(1) << 5;
    QTest::newRow("above") << QVariant(1000) << 180;
    QTest::newRow("no number") << QVariant("soon") << 90;
}

void TestStartupSettings::inactivityStaysInItsLimits()
{
    QFETCH(QVariant, stored);
    QFETCH(int, minutes);
    settings->setValue("inactivityMax", stored);
    WebcamGlobal global;
    startup::readInto(global, *settings);
    QCOMPARE(global.inactivityMaximum(), minutes);
}

void TestStartupSettings::timelineScale_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<int>("scale");
    QTest::newRow("nothing") << QVariant() << 100;
    QTest::newRow("half") << QVariant(50) << 50;
    QTest::newRow("above a hundred") << QVariant(140) << 100;
    QTest::newRow("no number") << QVariant("wide") << 100;
}

void TestStartupSettings::timelineScale()
{
    QFETCH(QVariant, stored);
    QFETCH(int, scale);
    if (stored.isValid())
        settings->setValue("timelinescale", stored);
    QCOMPARE(startup::timelineScale(*settings), scale);
}

void TestStartupSettings::soundStoreHasNoComplaint()
{
    QCOMPARE(startup::complaint(*settings), QString());
}

void TestStartupSettings::damagedStoreIsToldWithItsCopy()
{
    settings.reset();
    QFile file(path());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("[half a group\n\x01\x02=broken line without an end [[[\nno equals sign here\n");
    file.close();
    Settings damaged(path());
    QCOMPARE(damaged.health(), Settings::Health::Damaged);
    const QString text = startup::complaint(damaged);
    QVERIFY2(text.contains(damaged.damagedCopyPath()), qPrintable(text));
    QVERIFY(QFile::exists(damaged.damagedCopyPath()));
    WebcamGlobal global;
    startup::readInto(global, damaged);
    QVERIFY(global.showToolTips());
}

QTEST_MAIN(TestStartupSettings)
#include "tst_startupsettings.moc"
