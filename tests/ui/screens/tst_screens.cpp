#include "app/Translations.h"
#include "support/ShellWindow.h"
#include "support/ShownItems.h"
#include "ui/screens/SampleFilm.h"

#include <QDir>
#include <QImage>
#include <QQuickWindow>
#include <QTest>

using namespace Qt::StringLiterals;

/// Every screen of the program, in both languages: it shows without a warning and with its texts whole. With
/// MORVANE_TEST_PICTURES set to a folder, its picture is kept there, also at a full HD window.
class TestScreens : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void shows_data();
    void shows();
};

namespace {

/// The program with the sample film, or with none, and the ways to its screens.
class Screens
{
public:
    Screens(const QString &locale, QSize size, bool withFilm)
    {
        ShellWindow::Options options;
        options.locale = locale;
        options.size = size;
        options.settingsPath = m_folder.filePath(u"settings.ini"_s);
        options.settings = {{u"currentCapturingDevice"_s, int(Zum::CapturingDeviceWebcam)},
                            {u"showToolTips"_s, false},
                            {u"soundsOn"_s, false}};
        if (locale != "en_US"_L1)
            translations::install(locale, &m_translators);
        if (withFilm)
            options.arguments.append(samplefilm::make(m_folder.path()));
        m_shell = std::make_unique<ShellWindow>(options);
        if (withFilm)
            QTRY_COMPARE(shell().frames().framesCount(), samplefilm::rows);
        QVERIFY(shell().settle());
    }

    ShellWindow &shell()
    {
        return *m_shell;
    }
    void keys(std::initializer_list<int> pressed)
    {
        for (const int key : pressed) {
            shell().press(key);
            QVERIFY(shell().settle());
        }
    }
    /// Clicks the control of a part of the scene that shows this icon.
    void click(const char *part, const QString &icon)
    {
        QQuickItem *control =
            shell().findItem("icon", u"svgicons/%1.svg"_s.arg(icon), shell().item(QLatin1String(part)));
        QVERIFY2(control != nullptr, qPrintable(icon));
        shell().click(control);
    }
    /// Clicks a control of the panel, which scrolls to what has the keyboard.
    void clickInPanel(const QString &objectName)
    {
        QQuickItem *control = shell().findItem("objectName", objectName);
        QVERIFY2(control != nullptr, qPrintable(objectName));
        control->forceActiveFocus(Qt::TabFocusReason);
        QVERIFY(shell().settle());
        shell().click(control);
    }
    /// Opens what no key opens, as the control of the scene does.
    void call(const QString &function)
    {
        shell().evaluate(function);
        QVERIFY(shell().settle());
    }
    void tab(const QString &name)
    {
        shell().global().setMainTabsState(name + u"UIisOn"_s);
        QVERIFY(shell().settle());
    }
    void goTo(int row)
    {
        shell().frames().setCurrentIndex(row);
        QVERIFY(shell().settle());
    }
    void connectCamera()
    {
        shell().press(Qt::Key_F5);
        QTRY_VERIFY(shell().global().connected());
    }
    void shoot(int frames)
    {
        shell().frames().setShootMultipleFrames(0);
        for (; frames > 0; --frames) {
            const int before = shell().frames().framesCount();
            shell().press(Qt::Key_Return);
            QTRY_VERIFY(shell().frames().framesCount() > before);
            QTRY_COMPARE(shell().global().capturingInprogress(), -1);
        }
    }

private:
    QTemporaryDir m_folder;
    QObject m_translators;
    std::unique_ptr<ShellWindow> m_shell;
};

struct Screen
{
    const char *name;
    bool withFilm;
    /// Also shown in a large window.
    bool large;
    void (*open)(Screens &);
};

const Screen screens[] = {
    {"start", false, true,
     [](Screens &) {
     }},
    {"capture", true, true,
     [](Screens &s) {
         s.goTo(9);
         s.keys({Qt::Key_Tab});
     }},
    {"shooting", true, true,
     [](Screens &s) {
         s.connectCamera();
         s.shoot(4);
     }},
    {"onion-skin", true, true,
     [](Screens &s) {
         s.goTo(9);
         s.keys({Qt::Key_Tab});
         s.shell().global().setStackDepth(4);
         s.click("screenControls", u"onion"_s);
         s.shell().global().setStackMode(Zum::StackPast);
     }},
    {"time-lapse", true, false,
     [](Screens &s) {
         s.connectCamera();
         s.clickInPanel(u"cameraTab2"_s);
     }},
    {"file-names", true, false,
     [](Screens &s) {
         s.clickInPanel(u"cameraTab1"_s);
     }},
    {"helper-lines", true, false,
     [](Screens &s) {
         s.goTo(3);
         s.keys({Qt::Key_Tab});
         s.shell().global().setRuleOfThirdsGridOn(true);
         s.shell().global().setSafeAreaOn(true);
         s.click("screenControls", u"overlay"_s);
     }},
    {"blend", true, false,
     [](Screens &s) {
         s.goTo(3);
         s.click("screenControls", u"blend-none"_s);
     }},
    {"flip-flop", true, false,
     [](Screens &s) {
         s.click("screenControls", u"flipflop"_s);
     }},
    {"histogram", true, false,
     [](Screens &s) {
         s.tab(u"timing"_s);
         s.goTo(3);
         s.click("screenControls", u"histogram"_s);
     }},
    {"timing", true, true,
     [](Screens &s) {
         s.tab(u"timing"_s);
         s.goTo(7);
         s.keys({Qt::Key_Insert, Qt::Key_Right, Qt::Key_Insert});
     }},
    {"picture-only", true, false,
     [](Screens &s) {
         s.tab(u"timing"_s);
         s.goTo(7);
         s.keys({Qt::Key_F6});
     }},
    {"add-frames", true, false,
     [](Screens &s) {
         s.goTo(7);
         s.click("timelineBox", u"add"_s);
     }},
    {"menu", true, false,
     [](Screens &s) {
         s.click("topLine", u"menu"_s);
     }},
    {"messages", true, false,
     [](Screens &s) {
         s.tab(u"capture"_s);
         s.keys({Qt::Key_Return});
         s.call(u"previewWindow()"_s);
         s.click("topLine", u"info"_s);
         QTest::qWait(400);
     }},
    {"video", true, false,
     [](Screens &s) {
         s.tab(u"playback"_s);
     }},
    {"documents", false, true,
     [](Screens &s) {
         s.keys({Qt::Key_F1});
     }},
    {"settings", false, true,
     [](Screens &s) {
         s.keys({Qt::Key_P});
     }},
    {"recent", true, true,
     [](Screens &s) {
         s.keys({Qt::Key_F3});
     }},
    {"about", false, false,
     [](Screens &s) {
         s.call(u"aboutBox()"_s);
     }},
    {"presets", true, false,
     [](Screens &s) {
         s.call(u"projectPresetsBox()"_s);
     }},
    {"devices", true, false,
     [](Screens &s) {
         QTRY_VERIFY(s.shell().evaluate(u"CameraList.rows.length"_s).toInt() > 0);
         s.call(u"devSelectDialog()"_s);
     }},
    {"filters", true, false,
     [](Screens &s) {
         s.goTo(3);
         s.keys({Qt::Key_Tab});
         s.call(u"filtersBox()"_s);
     }},
    {"effects", true, false,
     [](Screens &s) {
         s.tab(u"timing"_s);
         s.call(u"postProcessFiltersBox()"_s);
     }},
    {"save-question", true, false,
     [](Screens &s) {
         s.call(u"saveConfirmBox()"_s);
     }},
    {"cleanup-question", true, false,
     [](Screens &s) {
         s.call(u"cleanupConfirmBox()"_s);
     }},
    {"reconnect-question", true, false,
     [](Screens &s) {
         s.call(u"camReconnectConfirmBox()"_s);
     }},
    {"disconnect-question", true, false,
     [](Screens &s) {
         s.call(u"camDisconnectConfirmBox()"_s);
     }},
    {"device-question", true, false,
     [](Screens &s) {
         s.call(u"camReloadDeviceConfirmBox()"_s);
     }},
    {"image-quality", true, false,
     [](Screens &s) {
         s.call(u"imageQualityBox()"_s);
     }},
    {"rendered", true, false,
     [](Screens &s) {
         s.tab(u"timing"_s);
         s.clickInPanel(u"startRender"_s);
         QTRY_COMPARE_WITH_TIMEOUT(s.shell().window().qmlDialogUrl(), u"LoadDialog.qml"_s, 10000);
     }},
};

void collectCutTexts(QQuickItem *item, QStringList &cut)
{
    if (!item->isVisible() || item->opacity() == 0)
        return;
    if (shownItems::isCutOff(item))
        cut.append(item->property("text").toString());
    const QList<QQuickItem *> children = item->childItems();
    for (QQuickItem *child : children)
        collectCutTexts(child, cut);
}

QString picturesFolder()
{
    return qEnvironmentVariable("MORVANE_TEST_PICTURES");
}

} // namespace

void TestScreens::initTestCase()
{
    QVERIFY2(picturesFolder().isEmpty() || QDir(picturesFolder()).exists(),
             "the folder for the pictures is not there");
}

void TestScreens::shows_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QSize>("size");
    for (int number = 0; number < int(std::size(screens)); ++number) {
        for (const char *locale : {"en_US", "ru_RU"}) {
            for (const QSize size : {QSize(1024, 600), QSize(1920, 1080)}) {
                if (size.width() > 1024 && (picturesFolder().isEmpty() || !screens[number].large))
                    continue;
                QTest::addRow("%s-%.2s-%d", screens[number].name, locale, size.width())
                    << number << QString::fromLatin1(locale) << size;
            }
        }
    }
}

void TestScreens::shows()
{
    QFETCH(int, number);
    QFETCH(QString, locale);
    QFETCH(QSize, size);
    const Screen &screen = screens[number];

    Screens opened(locale, size, screen.withFilm);
    screen.open(opened);
    if (QTest::currentTestFailed())
        return;
    QTest::qWait(picturesFolder().isEmpty() ? 0 : 500);
    QVERIFY(opened.shell().settle());
    const QImage picture = opened.shell().window().grabWindow();
    if (!picturesFolder().isEmpty())
        QVERIFY(
            picture.save(picturesFolder() + u'/' + QString::fromUtf8(QTest::currentDataTag()) + u".png"_s));

    QCOMPARE(picture.size(), size);
    QCOMPARE(opened.shell().sceneWarnings(), QStringList());
    QStringList cut;
    collectCutTexts(opened.shell().window().contentItem(), cut);
    QCOMPARE(cut.join(u" | "_s), QString());
}

QTEST_MAIN(TestScreens)
#include "tst_screens.moc"
