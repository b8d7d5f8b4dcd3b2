#include "ui/dialogs/DialogHost.h"

#include <memory>
#include <QtTest>

/// The settings screen: each control is clicked, and what it stores and changes is looked at.
class TestPropertiesDialog : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void hasItsControlsInOrder();
    void storesTheDeviceKindAndReloads_data();
    void storesTheDeviceKindAndReloads();
    void choosingAnotherKindWhileConnectedChangesTheSettingOnly();
    void showsTheStoredDeviceKind();
    void storesTheLanguage();
    void automaticLanguageForgetsTheStoredOne();
    void tellsThatTheLanguageWaitsForTheNextStart();
    void clearsTheSettings();
    void warnsBeforeClearingTheSettings();
    void switchesAndStores_data();
    void switchesAndStores();
    void leadsAnewThroughTheFirstSteps();
    void storesTheMinutesOfInactivity();
    void limitsTheMinutesOfInactivity();
    void storesTheAutosaveInterval();
    void limitsTheAutosaveInterval();
    void restsTheMinutesOfWhatIsOff();
    void storesTheFontSize();
    void automaticFontSizeIsStoredToo();
    void choosesWhatTheLightboxShows();
    void choosesTheLightboxColor();
    void choosesTheExternalEditor();
    void clearsTheExternalEditor();
    void takesTheDefaultExternalEditor();
    void saveAndCloseCloses();
    void returnCloses();
    void countsWhatIsTypedWhenClosing();
    void tabGoesRoundItsControls();
    void scrollsInASmallWindow();

private:
    Settings &settings()
    {
        return d->window.settings();
    }
    void chooseIn(const QString &row, const QString &text);
    void type(const QString &field, const QString &number);

    std::unique_ptr<DialogHost> d;
};

void TestPropertiesDialog::init()
{
    d = std::make_unique<DialogHost>();
    QVERIFY(d->open("PropertiesDialog.qml"));
}

void TestPropertiesDialog::cleanup()
{
    const QStringList warnings = d->host.warnings();
    d.reset();
    QCOMPARE(warnings, QStringList());
}

void TestPropertiesDialog::chooseIn(const QString &row, const QString &text)
{
    d->click(d->textItem(text, row));
}

void TestPropertiesDialog::type(const QString &field, const QString &number)
{
    d->click(d->editor(field));
    d->host.key(Qt::Key_A, Qt::ControlModifier);
    d->host.type(number);
    d->host.key(Qt::Key_Return);
}

void TestPropertiesDialog::hasItsControlsInOrder()
{
    const QStringList expected{"Application Settings",
                               "Device Type",
                               "DSLR Cameras",
                               "Web Cameras",
                               "Video Capture",
                               "Language",
                               "Russian",
                               "English",
                               "Auto",
                               "Clear Settings",
                               "Pause live view after",
                               "min.",
                               "Auto jump to last frame",
                               "Autosave",
                               "Interval",
                               "min.",
                               "Sounds",
                               "Beep on capture",
                               "Tooltips",
                               "Hints at first steps",
                               "Font Size",
                               "Auto",
                               "0",
                               "8",
                               "Lightbox Shows",
                               "Reference",
                               "Color",
                               "External Editor",
                               "Set default external editor",
                               "Save and Close"};
    QStringList left = expected;
    const QStringList shown = d->texts();
    for (const QString &text : shown) {
        if (!left.isEmpty() && text == left.constFirst())
            left.removeFirst();
    }
    QVERIFY2(left.isEmpty(), qPrintable("Missing from: " + left.join(", ") + "\n" + shown.join(" | ")));
}

void TestPropertiesDialog::storesTheDeviceKindAndReloads_data()
{
    QTest::addColumn<int>("before");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("kind");
    QTest::newRow("DSLR") << int(Zum::CapturingDeviceWebcam) << "DSLR Cameras"
                          << int(Zum::CapturingDeviceCanonEOS);
    QTest::newRow("web") << int(Zum::CapturingDeviceCanonEOS) << "Web Cameras"
                         << int(Zum::CapturingDeviceWebcam);
    QTest::newRow("video") << int(Zum::CapturingDeviceCanonEOS) << "Video Capture"
                           << int(Zum::CapturingDeviceHDMITethering);
}

void TestPropertiesDialog::storesTheDeviceKindAndReloads()
{
    QFETCH(int, before);
    QFETCH(QString, text);
    QFETCH(int, kind);
    d->close();
    settings().setValue("currentCapturingDevice", before);
    QVERIFY(d->open("PropertiesDialog.qml"));
    QSignalSpy dismissed(&d->host.global(), &WebcamGlobal::globalDismiss);

    chooseIn("deviceType", text);
    QCOMPARE(settings().integer("currentCapturingDevice", -1), kind);
    QCOMPARE(dismissed.count(), 1);
    QCOMPARE(d->window.calls, QStringList({"addSetting currentCapturingDevice", "updateCurrentDeviceType",
                                           "reloadCapturingDevice"}));
    QVERIFY(d->isOpen());
}

void TestPropertiesDialog::choosingAnotherKindWhileConnectedChangesTheSettingOnly()
{
    d->host.global().setConnected(true);
    d->window.calls.clear();
    chooseIn("deviceType", "Web Cameras");
    QCOMPARE(settings().integer("currentCapturingDevice", -1), int(Zum::CapturingDeviceWebcam));
    QCOMPARE(d->window.calls, QStringList("addSetting currentCapturingDevice"));
    QCOMPARE(d->part("deviceType")->property("currentIndex").toInt(), 1);
}

void TestPropertiesDialog::showsTheStoredDeviceKind()
{
    QCOMPARE(d->part("deviceType")->property("currentIndex").toInt(), 0);
    d->close();
    settings().setValue("currentCapturingDevice", "4");
    QVERIFY(d->open("PropertiesDialog.qml"));
    QCOMPARE(d->part("deviceType")->property("currentIndex").toInt(), 2);
}

void TestPropertiesDialog::storesTheLanguage()
{
    QCOMPARE(d->part("language")->property("currentIndex").toInt(), 2);
    chooseIn("language", "Russian");
    QCOMPARE(settings().value("localename").toString(), "ru_RU");
    QCOMPARE(d->window.localeName(), "ru_RU");
    chooseIn("language", "English");
    QCOMPARE(settings().value("localename").toString(), "en_US");
    QCOMPARE(d->part("language")->property("currentIndex").toInt(), 1);
    d->close();
    QVERIFY(d->open("PropertiesDialog.qml"));
    QCOMPARE(d->part("language")->property("currentIndex").toInt(), 1);
}

void TestPropertiesDialog::automaticLanguageForgetsTheStoredOne()
{
    chooseIn("language", "Russian");
    chooseIn("language", "Auto");
    QVERIFY(!settings().contains("localename"));
    QCOMPARE(d->window.localeName(), "en_GB");
    QCOMPARE(d->part("language")->property("currentIndex").toInt(), 2);
}

void TestPropertiesDialog::tellsThatTheLanguageWaitsForTheNextStart()
{
    QVERIFY(!d->part("languageNote"));
    chooseIn("language", "Russian");
    QVERIFY(d->part("languageNote"));
    chooseIn("language", "Auto");
    QVERIFY(!d->part("languageNote"));
}

void TestPropertiesDialog::clearsTheSettings()
{
    settings().setValue("fontsize", 4);
    settings().setGroupValue("lastprojects", "Fox", QVariantMap{{"name", "Fox"}});
    QVERIFY(!d->part("clearNote"));
    d->click("clearSettings");
    QVERIFY(!settings().contains("fontsize"));
    QVERIFY(settings().groupValues("lastprojects").isEmpty());
    QVERIFY(d->part("clearNote"));
    QCOMPARE(d->host.global().fontSize(), 1);
}

void TestPropertiesDialog::warnsBeforeClearingTheSettings()
{
    QCOMPARE(d->part("clearSettings")->property("toolTip").toString(),
             "Warning. Will remove all settings, including recent projects list");
}

void TestPropertiesDialog::switchesAndStores_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<bool>("ofWindow");
    QTest::addColumn<QString>("key");
    QTest::newRow("inactivity") << "Pause live view after" << QByteArray("inactivityWatchOn") << false
                                << "inactivityWatcher";
    QTest::newRow("jump") << "Auto jump to last frame" << QByteArray("jumpToLastFrame") << false
                          << "jumpToLastFrame";
    QTest::newRow("autosave") << "Autosave" << QByteArray("performAutosave") << true << "performAutosave";
    QTest::newRow("sounds") << "Sounds" << QByteArray("soundsOn") << false << "soundsOn";
    QTest::newRow("beep") << "Beep on capture" << QByteArray("beepWhenCaptured") << false
                          << "beepWhenCaptured";
    QTest::newRow("tool tips") << "Tooltips" << QByteArray("showToolTips") << false << "showToolTips";
}

void TestPropertiesDialog::switchesAndStores()
{
    QFETCH(QString, text);
    QFETCH(QByteArray, property);
    QFETCH(bool, ofWindow);
    QFETCH(QString, key);
    QObject *owner = ofWindow ? static_cast<QObject *>(&d->window) : &d->host.global();
    const bool before = owner->property(property.constData()).toBool();

    for (const bool wanted : {!before, before}) {
        d->clickText(text);
        QCOMPARE(owner->property(property.constData()).toBool(), wanted);
        QCOMPARE(settings().boolean(key, !wanted), wanted);
    }
}

void TestPropertiesDialog::leadsAnewThroughTheFirstSteps()
{
    d->click(d->textItem("Hints at first steps"));
    QCOMPARE(settings().value("firstStepsDone").toInt(), 3);
    d->click(d->textItem("Hints at first steps"));
    QCOMPARE(settings().value("firstStepsDone").toInt(), 0);
}

void TestPropertiesDialog::storesTheMinutesOfInactivity()
{
    d->clickText("Pause live view after");
    type("pauseMinutes", "45");
    QCOMPARE(d->host.global().inactivityMaximum(), 45);
    QCOMPARE(settings().integer("inactivityMax", -1), 45);
}

void TestPropertiesDialog::limitsTheMinutesOfInactivity()
{
    d->clickText("Pause live view after");
    type("pauseMinutes", "2");
    QCOMPARE(d->host.global().inactivityMaximum(), 5);
    type("pauseMinutes", "999");
    QCOMPARE(d->host.global().inactivityMaximum(), 180);
    QCOMPARE(settings().integer("inactivityMax", -1), 180);
}

void TestPropertiesDialog::storesTheAutosaveInterval()
{
    type("autosaveMinutes", "12");
    QCOMPARE(d->window.autosaveDelay(), 12);
    QCOMPARE(settings().integer("autosaveDelay", -1), 12);
}

void TestPropertiesDialog::limitsTheAutosaveInterval()
{
    type("autosaveMinutes", "500");
    QCOMPARE(d->window.autosaveDelay(), 60);
    type("autosaveMinutes", "1");
    QCOMPARE(d->window.autosaveDelay(), 3);
}

void TestPropertiesDialog::restsTheMinutesOfWhatIsOff()
{
    QVERIFY(!d->part("pauseMinutes")->property("active").toBool());
    QVERIFY(d->part("autosaveMinutes")->property("active").toBool());
    d->clickText("Autosave");
    QVERIFY(!d->part("autosaveMinutes")->property("active").toBool());
}

void TestPropertiesDialog::storesTheFontSize()
{
    for (int size = 0; size <= 8; ++size) {
        if (size == d->host.global().fontSize())
            chooseIn("fontSize", "8");
        chooseIn("fontSize", QString::number(size));
        QCOMPARE(d->host.global().fontSize(), size);
        QCOMPARE(settings().integer("fontsize", -5), size);
        QCOMPARE(d->part("fontNote") != nullptr, size != 1);
    }
}

void TestPropertiesDialog::automaticFontSizeIsStoredToo()
{
    const QQuickItem *row = d->part("fontSize");
    chooseIn("fontSize", "Auto");
    QCOMPARE(d->host.global().fontSize(), -1);
    QCOMPARE(settings().integer("fontsize", -5), -1);
    QCOMPARE(row->property("currentIndex").toInt(), 0);
}

void TestPropertiesDialog::choosesWhatTheLightboxShows()
{
    QVERIFY(d->part("lightboxColor"));
    chooseIn("lightboxMode", "Reference");
    QCOMPARE(d->window.lightboxMode(), int(Zum::LightboxModePicture));
    QVERIFY(!d->part("lightboxColor"));
    chooseIn("lightboxMode", "Color");
    QCOMPARE(d->window.lightboxMode(), int(Zum::LightboxModeColor));
}

void TestPropertiesDialog::choosesTheLightboxColor()
{
    d->click("lightboxColor");
    QQuickItem *chooser = d->host.item("colorChooser");
    QVERIFY(chooser && chooser->isVisible());
    QCOMPARE(chooser->property("color").value<QColor>(), QColor(Qt::green));
    // The left end of the upper edge is white.
    const QPoint white = chooser->mapToScene(QPointF(0, 0)).toPoint();
    QTest::mouseClick(&d->host.window(), Qt::LeftButton, Qt::NoModifier, white + QPoint(0, 1));
    QVERIFY(d->window.lightboxColor().lightness() > 240);
}

void TestPropertiesDialog::choosesTheExternalEditor()
{
    QVERIFY(d->texts().contains("None"));
    d->window.systemDialogs.pathAnswers = {"/usr/bin/gimp-2.10"};
    d->click("chooseEditor");
    QCOMPARE(d->window.systemDialogs.asked.value(0).caption, "Choose an external editor...");
    QCOMPARE(settings().value("exteditorpath").toString(), "/usr/bin/gimp-2.10");
    QCOMPARE(d->part("editorName")->property("text").toString(), "gimp-2");
}

void TestPropertiesDialog::clearsTheExternalEditor()
{
    QVERIFY(!d->part("clearEditor")->property("active").toBool());
    d->window.systemDialogs.pathAnswers = {"/usr/bin/krita"};
    d->click("chooseEditor");
    d->click("clearEditor");
    QVERIFY(!settings().contains("exteditorpath"));
    QCOMPARE(d->part("editorName")->property("text").toString(), "None");
}

void TestPropertiesDialog::takesTheDefaultExternalEditor()
{
    d->window.desktop.imageEditor = "/usr/bin/pinta";
    d->click("defaultEditor");
    QCOMPARE(settings().value("exteditorpath").toString(), "/usr/bin/pinta");
    QCOMPARE(d->part("editorName")->property("text").toString(), "pinta");
}

void TestPropertiesDialog::saveAndCloseCloses()
{
    d->click("saveAndClose");
    QVERIFY(!d->isOpen());
    QCOMPARE(d->window.qmlDialogUrl(), "");
}

void TestPropertiesDialog::returnCloses()
{
    d->host.key(Qt::Key_Return);
    QVERIFY(!d->isOpen());
}

void TestPropertiesDialog::countsWhatIsTypedWhenClosing()
{
    d->click(d->editor("autosaveMinutes"));
    d->host.key(Qt::Key_A, Qt::ControlModifier);
    d->host.type("25");
    d->click("saveAndClose");
    QVERIFY(!d->isOpen());
    QCOMPARE(settings().integer("autosaveDelay", -1), 25);
}

void TestPropertiesDialog::tabGoesRoundItsControls()
{
    const auto inside = [this](QQuickItem *item) {
        return item && item != d->dialog() && d->dialog()->isAncestorOf(item);
    };
    QSignalSpy tabs(&d->host.global(), &WebcamGlobal::tab);
    QSet<QQuickItem *> met;
    for (int i = 0; i < 40; ++i) {
        d->host.key(Qt::Key_Tab);
        QQuickItem *active = d->host.window().activeFocusItem();
        QVERIFY(inside(active));
        met.insert(active);
    }
    QCOMPARE(tabs.count(), 40);
    QVERIFY(met.size() >= 14);
    QVERIFY(met.size() < 40);
    QQuickItem *last = d->host.window().activeFocusItem();
    d->host.key(Qt::Key_Tab, Qt::ShiftModifier);
    QVERIFY(inside(d->host.window().activeFocusItem()));
    QVERIFY(d->host.window().activeFocusItem() != last);
    d->host.key(Qt::Key_Tab);
    QCOMPARE(d->host.window().activeFocusItem(), last);
    d->host.key(Qt::Key_Escape);
    QVERIFY(!d->isOpen());
}

void TestPropertiesDialog::scrollsInASmallWindow()
{
    d.reset();
    d = std::make_unique<DialogHost>(5, QSize(1024, 600));
    QVERIFY(d->open("PropertiesDialog.qml"));
    QVERIFY(d->dialog()->height() <= 600);
    d->window.desktop.imageEditor = "/usr/bin/pinta";
    d->click("defaultEditor");
    QCOMPARE(settings().value("exteditorpath").toString(), "/usr/bin/pinta");
    d->clickText("Web Cameras");
    QCOMPARE(settings().integer("currentCapturingDevice", -1), int(Zum::CapturingDeviceWebcam));
}

QTEST_MAIN(TestPropertiesDialog)

#include "tst_propertiesdialog.moc"
