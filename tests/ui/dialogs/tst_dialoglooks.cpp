#include "ui/dialogs/DialogHost.h"

#include <QDir>
#include <QImage>
#include <QtTest>

/// How the dialogs look: every text whole and inside its box, at every font size, in small and large windows
/// and in a language of long words. With MORVANE_TEST_PICTURES naming a folder, the pictures are kept there.
class TestDialogLooks : public QObject
{
    Q_OBJECT

private slots:
    void showsEveryTextWhole_data();
    void showsEveryTextWhole();
    void fillsNothingButItsBox();
};

namespace {

constexpr QSize smallest(1024, 600);
constexpr QSize large(1920, 1080);

void makeRecentProject(DialogHost &d, const QString &name, int age, bool available)
{
    const QString path = d.filePath(name + ".kzfx");
    if (available) {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    QImage picture(90, 60, QImage::Format_RGB32);
    picture.fill(QColor::fromHsv(age * 40 % 360, 120, 160));
    const QString thumbnail = d.filePath(name + ".jpg");
    picture.save(thumbnail);
    d.window.settings().setGroupValue("lastprojects", name,
                                      QVariantMap{{"sortkey", 20251120101500.0 - age},
                                                  {"lastModifiedTime", "10:15:00"},
                                                  {"lastModifiedDate", "20 November, Thursday 2025"},
                                                  {"name", name},
                                                  {"frames", 120.0 + age},
                                                  {"path", path},
                                                  {"framesize", "1920 x 1080"},
                                                  {"tmb", "file:///" + thumbnail},
                                                  {"suffix", ""}});
}

void fill(DialogHost &d)
{
    d.window.setProjectPresets(FakeWindow::allPresets());
    d.window.setAppInfo({{"buildDate", "12.06.2022"},
                         {"vendorName", "Morvane"},
                         {"appName", "Morvane"},
                         {"appType", "Capture"},
                         {"vendorWebsite", "https://morvane.example/"},
                         {"appWebsite", "https://morvane.example/capture"},
                         {"appVersion", "3.9.7.1"},
                         {"qtVersion", "6.4.2"},
                         {"openCV", "4.6.0"},
                         {"runningOS", "Debian GNU/Linux 12 (bookworm)"}});
    d.host.global().setCameraName("EOS 1300D #0");
    makeRecentProject(d, "The Snow Fox", 0, true);
    makeRecentProject(d, "Harbour at night, second take", 1, true);
    makeRecentProject(d, "Lost", 2, false);
    d.window.setProjPath(d.filePath("The Snow Fox.kzfx"));
}

void bringTo(DialogHost &d, const QString &state)
{
    if (state == "running") {
        d.window.setProgressAction("Encoding [ The Snow Fox ]");
        d.window.setProgressTotal(240);
        d.window.setProgressCurrent(60);
    } else if (state == "failed") {
        d.window.setCurrentRobotJob(Zum::RenderVideo);
        d.window.setCurrentRobotJob(Zum::NoJob);
        d.host.global().setLastRenderedPath("/home/me/films/fox_files/video/fox.avi");
        d.window.messages().reportError("Cannot write frame 17: no space left on device");
        d.window.messages().reportError("Export path is empty");
        d.window.setProgressTotal(0);
    } else if (state == "changed") {
        d.host.global().setInactivityWatchOn(true);
        d.host.global().setFontSize(3);
        d.window.setLocaleName("ru_RU");
    }
}

void keepPicture(DialogHost &d, const QString &fileName)
{
    const QString folder = qEnvironmentVariable("MORVANE_TEST_PICTURES");
    if (folder.isEmpty())
        return;
    QTest::qWait(50);
    d.host.window().grabWindow().save(QDir(folder).filePath(fileName));
}

} // namespace

void TestDialogLooks::showsEveryTextWhole_data()
{
    QTest::addColumn<int>("fontRow");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("longTexts");

    const auto add = [](int row, QSize size, bool longTexts) {
        QTest::addRow("font %d, %d wide%s", row, size.width(), longTexts ? ", long texts" : "")
            << row << size << longTexts;
    };
    for (int row = 0; row <= 8; ++row)
        add(row, smallest, true);
    for (const int row : {1, 5, 8}) {
        add(row, smallest, false);
        add(row, large, row == 5);
    }
}

void TestDialogLooks::showsEveryTextWhole()
{
    QFETCH(int, fontRow);
    QFETCH(QSize, size);
    QFETCH(bool, longTexts);

    const LongTexts translator(longTexts);
    DialogHost d(fontRow, size);
    fill(d);
    const QList<QPair<QString, QString>> dialogs{
        {"PropertiesDialog", ""},
        {"PropertiesDialog", "changed"},
        {"LastProjects", ""},
        {"LoadDialog", "running"},
        {"LoadDialog", "failed"},
        {"SaveConfirmDialog", ""},
        {"CamReconnectConfirmDialog", ""},
        {"CamDisconnectConfirmDialog", ""},
        {"CamReloadDeviceConfirmDialog", ""},
        {"FiltersDialog", ""},
        {"ProjectPresets", ""},
        {"About", ""},
    };
    QStringList problems;
    for (const auto &[name, state] : dialogs) {
        QVERIFY2(d.open(name + ".qml"), qPrintable(name));
        if (name == "LastProjects")
            QTRY_VERIFY(d.part("card"));
        bringTo(d, state);
        QCoreApplication::processEvents();
        keepPicture(d, QString("%1-%2-f%3-%4%5.png")
                           .arg(name, state)
                           .arg(fontRow)
                           .arg(size.width())
                           .arg(longTexts ? "-long" : ""));
        QStringList bad;
        // The layout takes a few frames.
        const auto allWhole = [&] {
            bad = cutTexts(d.dialog()) + d.textsOutside();
            return bad.isEmpty();
        };
        if (!QTest::qWaitFor(allWhole, 500))
            problems.append(name + ": " + bad.join(" | "));
        d.close();
    }
    QCOMPARE(problems.join(", "), QString());
    QCOMPARE(d.host.warnings(), QStringList());
}

void TestDialogLooks::fillsNothingButItsBox()
{
    DialogHost d;
    QVERIFY(d.open("Empty.qml"));
    QCOMPARE(d.texts(), QStringList());
    QVERIFY(d.dialog()->width() < d.host.root()->width() / 2);
    QCOMPARE(d.host.warnings(), QStringList());
}

QTEST_MAIN(TestDialogLooks)

#include "tst_dialoglooks.moc"
