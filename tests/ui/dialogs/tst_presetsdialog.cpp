#include "ui/dialogs/DialogHost.h"

#include <memory>
#include <QtTest>

/// The presets of new projects, and the box that says who the program is.
class TestPresetsDialog : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void hasAColumnForEachProportion();
    void clickSetsTheFrameAndTheRate();
    void keyboardChoosesAPreset();
    void reachesTheLastPreset();
    void columnsMayBeOfDifferentLength();
    void noPresetsAreNoError();
    void aboutNamesTheProgram();
    void aboutOpensTheWebsites();

private:
    std::unique_ptr<DialogHost> d;
};

void TestPresetsDialog::init()
{
    d = std::make_unique<DialogHost>();
    d->window.setProjectPresets(FakeWindow::allPresets());
    d->window.setAppInfo({{"buildDate", "12.06.2022"},
                          {"vendorName", "Vendor"},
                          {"appName", "Morvane"},
                          {"appType", "Capture"},
                          {"vendorWebsite", "https://vendor.example/"},
                          {"appWebsite", "https://app.example/"},
                          {"appVersion", "3.9.7.1"},
                          {"qtVersion", "6.4.2"},
                          {"openCV", "4.6.0"},
                          {"runningOS", "Debian"}});
}

void TestPresetsDialog::cleanup()
{
    const QStringList warnings = d->host.warnings();
    d.reset();
    QCOMPARE(warnings, QStringList());
}

void TestPresetsDialog::hasAColumnForEachProportion()
{
    QVERIFY(d->open("ProjectPresets.qml"));
    QCOMPARE(d->texts().mid(0, 5), QStringList({"Project Presets", "16:9", "16:10", "14:9", "4:3"}));
    const auto x = [this](const QString &text) {
        return d->textItem(text)->mapToScene({0, 0}).x();
    };
    const qreal first = x("7680x4320");
    QVERIFY(first < x("7680x4800"));
    QVERIFY(x("7680x4800") < x("7680x4944"));
    QVERIFY(x("7680x4944") < x("7680x5760"));
    QCOMPARE(x("7296x4104"), first);
    QCOMPARE(d->part("presets")->property("count").toInt(), 4 * 2 * 27);
}

void TestPresetsDialog::clickSetsTheFrameAndTheRate()
{
    d->host.global().setCropAreaProportion(1.5);
    QVERIFY(d->open("ProjectPresets.qml"));
    d->clickText("7296x4560");
    QCOMPARE(d->host.global().cropAreaProportion(), 0.0);
    QCOMPARE(d->host.global().cropAreaW(), 7296);
    QCOMPARE(d->host.global().cropAreaH(), 4560);
    QCOMPARE(d->frames.timelineFps(), 24.0);
    QVERIFY(!d->isOpen());
}

void TestPresetsDialog::keyboardChoosesAPreset()
{
    QVERIFY(d->open("ProjectPresets.qml"));
    d->host.key(Qt::Key_Right);
    d->host.key(Qt::Key_Right);
    d->host.key(Qt::Key_Right);
    d->host.key(Qt::Key_Down);
    d->host.key(Qt::Key_Return);
    QCOMPARE(d->host.global().cropAreaW(), 7296);
    QCOMPARE(d->host.global().cropAreaH(), 5472);
    QVERIFY(!d->isOpen());
}

void TestPresetsDialog::reachesTheLastPreset()
{
    QVERIFY(d->open("ProjectPresets.qml"));
    for (int i = 0; i < 60; ++i)
        d->host.key(Qt::Key_Down);
    d->host.key(Qt::Key_Space);
    QCOMPARE(d->host.global().cropAreaW(), 768);
    QCOMPARE(d->host.global().cropAreaH(), 432);
    QCOMPARE(d->frames.timelineFps(), 12.0);
}

void TestPresetsDialog::columnsMayBeOfDifferentLength()
{
    QVariantList some = FakeWindow::allPresets().mid(0, 2);
    some.append(FakeWindow::allPresets().mid(54, 1));
    d->window.setProjectPresets(some);
    QVERIFY(d->open("ProjectPresets.qml"));
    QVERIFY(d->textItem("7296x4104"));
    // The fourth cell has no preset: Return only closes, as anywhere in a dialog.
    const int width = d->host.global().cropAreaW();
    d->host.key(Qt::Key_Right);
    d->host.key(Qt::Key_Down);
    d->host.key(Qt::Key_Return);
    QCOMPARE(d->host.global().cropAreaW(), width);
}

void TestPresetsDialog::noPresetsAreNoError()
{
    d->window.setProjectPresets({});
    QVERIFY(d->open("ProjectPresets.qml"));
    QCOMPARE(d->texts(), QStringList("Project Presets"));
    d->host.key(Qt::Key_Return);
    QVERIFY(!d->isOpen());
}

void TestPresetsDialog::aboutNamesTheProgram()
{
    QVERIFY(d->open("About.qml"));
    const QStringList texts = d->texts();
    const QStringList wanted{"Morvane Capture", "3.9.7.1", "12.06.2022", "Vendor",
                             "6.4.2",           "4.6.0",   "Debian"};
    for (const QString &text : wanted)
        QVERIFY2(texts.contains(text), qPrintable(text));
    d->clickText("Close");
    QVERIFY(!d->isOpen());
}

void TestPresetsDialog::aboutOpensTheWebsites()
{
    QVERIFY(d->open("About.qml"));
    d->clickText("https://app.example/");
    d->clickText("https://vendor.example/");
    QCOMPARE(d->window.calls, QStringList({"openUrlExternally https://app.example/",
                                           "openUrlExternally https://vendor.example/"}));
}

QTEST_MAIN(TestPresetsDialog)

#include "tst_presetsdialog.moc"
