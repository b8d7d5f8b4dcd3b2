#include "FirstStepsWindow.h"

#include "app/Translations.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

/// The hints that follow the first steps: at the first shot, the first playback and the first render.
class TestStepHints : public QObject
{
    Q_OBJECT

private slots:
    void leadFromEmptySettingsToAMovie();
    void stayAwayAfterARestart();
    void eachWaitsForTheStepBefore_data();
    void eachWaitsForTheStepBefore();
    void canBeSwitchedOffAndOnAgain();
    void storedNonsenseCountsAsNone_data();
    void storedNonsenseCountsAsNone();
    void moveNothing();
    void areReachedByKeys();
    void renderHintBringsItsPanelBack();
    void fitTheWindow_data();
    void fitTheWindow();

private:
    static ShellWindow::Options with(int lastStep);
    static QString due(const FirstStepsWindow &shell);
    static bool connectCamera(FirstStepsWindow &shell);
    static void addFilm(FirstStepsWindow &shell, int frames);
};

ShellWindow::Options TestStepHints::with(int lastStep)
{
    ShellWindow::Options options;
    options.settings.insert("currentCapturingDevice", int(Zum::CapturingDeviceWebcam));
    options.settings.insert("firstStepsDone", lastStep);
    return options;
}

QString TestStepHints::due(const FirstStepsWindow &shell)
{
    QQuickItem *hint = shell.part("stepHint");
    return hint != nullptr ? hint->property("due").toString() : QString();
}

bool TestStepHints::connectCamera(FirstStepsWindow &shell)
{
    shell.press(Qt::Key_F5);
    return QTest::qWaitFor([&shell] { return shell.global().connected(); }, 10000);
}

void TestStepHints::addFilm(FirstStepsWindow &shell, int frames)
{
    shell.addFrames(frames);
    shell.frames().setTimelineRangeStart(0);
    shell.frames().setTimelineRangeEnd(qMax(0, frames - 1));
}

void TestStepHints::leadFromEmptySettingsToAMovie()
{
    FirstStepsWindow shell;
    shell.global().setSoundsOn(false);
    QVERIFY(shell.makeProject());
    QCOMPARE(due(shell), QString());
    shell.swapQuickly();
    shell.clickPart("connectFirst");
    QTRY_VERIFY_WITH_TIMEOUT(shell.global().connected(), 10000);

    QTRY_COMPARE(due(shell), "shoot");
    shell.clickPart("stepHintButton");
    QTRY_COMPARE(shell.frames().framesCount(), 1);
    QTRY_COMPARE(due(shell), "again");
    QTRY_COMPARE(shell.global().capturingInprogress(), -1);
    shell.clickPart("stepHintButton");
    QTRY_COMPARE(shell.frames().framesCount(), 2);

    QTRY_COMPARE(due(shell), "play");
    shell.clickPart("stepHintButton");
    QCOMPARE(shell.global().mainTabsState(), "timingUIisOn");
    QTRY_VERIFY(shell.frames().playing());
    QCOMPARE(due(shell), QString());
    // It plays round and round until it is stopped.
    shell.press(Qt::Key_Space);
    QTRY_VERIFY(!shell.frames().playing());

    QTRY_COMPARE(due(shell), "render");
    shell.clickPart("stepHintButton");
    QTRY_VERIFY(shell.part("startRender") != nullptr && shell.part("startRender")->hasActiveFocus());
    shell.timer(800)->setProperty("interval", 1);
    shell.press(Qt::Key_Return);
    QTRY_VERIFY_WITH_TIMEOUT(!shell.global().lastRenderedPath().isEmpty(), 30000);
    QVERIFY(QFileInfo(shell.global().lastRenderedPath()).size() > 0);
    QTRY_VERIFY(!shell.window().morvaRobotThreadStarted());
    QCOMPARE(due(shell), QString());
    QCOMPARE(shell.window().getSetting("firstStepsDone", -1).toInt(), 3);
    QCOMPARE(shell.sceneWarnings(), QStringList());
}

void TestStepHints::stayAwayAfterARestart()
{
    QTemporaryDir kept;
    ShellWindow::Options options = with(0);
    options.settingsPath = kept.filePath("settings.ini");
    {
        FirstStepsWindow shell(options);
        QVERIFY(shell.createProject());
        QVERIFY(connectCamera(shell));
        QTRY_COMPARE(due(shell), "shoot");
        shell.press(Qt::Key_Return);
        QTRY_COMPARE(shell.frames().framesCount(), 1);
    }
    options.settings.clear();
    FirstStepsWindow shell(options);
    QVERIFY(shell.createProject());
    QVERIFY(connectCamera(shell));
    QVERIFY(shell.settle());
    QVERIFY(due(shell) != "shoot");
}

void TestStepHints::eachWaitsForTheStepBefore_data()
{
    QTest::addColumn<int>("lastStep");
    QTest::addColumn<int>("frames");
    QTest::addColumn<bool>("onTiming");
    QTest::addColumn<QString>("hint");
    QTest::newRow("without a camera there is nothing to shoot with") << 0 << 0 << false << QString();
    QTest::newRow("frames of another day are no first shot") << 0 << 5 << false << QString();
    QTest::newRow("one frame does not move") << 1 << 1 << false << QString();
    QTest::newRow("two frames can be played") << 1 << 2 << false << u"play"_s;
    QTest::newRow("on the other tab too") << 1 << 2 << true << u"play"_s;
    QTest::newRow("what was played can be rendered") << 2 << 2 << false << u"render"_s;
    QTest::newRow("nothing to render") << 2 << 0 << true << QString();
    QTest::newRow("all is known") << 3 << 5 << false << QString();
}

void TestStepHints::eachWaitsForTheStepBefore()
{
    QFETCH(int, lastStep);
    QFETCH(int, frames);
    QFETCH(bool, onTiming);
    FirstStepsWindow shell(with(lastStep));
    QVERIFY(shell.createProject());
    addFilm(shell, frames);
    if (onTiming)
        shell.global().setMainTabsState("timingUIisOn");
    QVERIFY(shell.settle());
    QTEST(due(shell), "hint");
}

void TestStepHints::canBeSwitchedOffAndOnAgain()
{
    FirstStepsWindow shell(with(1));
    QVERIFY(shell.createProject());
    addFilm(shell, 2);
    QTRY_COMPARE(due(shell), "play");
    shell.clickPart("stepHintClose");
    QCOMPARE(due(shell), QString());
    QCOMPARE(shell.window().getSetting("firstStepsDone", -1).toInt(), 3);

    shell.evaluate("propertiesBox()");
    QTRY_VERIFY(shell.part("firstSteps") != nullptr);
    QVERIFY(!shell.part("firstSteps")->property("checked").toBool());
    shell.clickPart("firstSteps");
    QCOMPARE(shell.window().getSetting("firstStepsDone", -1).toInt(), 0);
    emit shell.global().dialogClosing();
    QVERIFY(connectCamera(shell));
    QTRY_COMPARE(due(shell), "shoot");
}

void TestStepHints::storedNonsenseCountsAsNone_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<int>("lastStep");
    QTest::newRow("a word") << QVariant("many") << 0;
    QTest::newRow("below") << QVariant(-4) << 0;
    QTest::newRow("beyond") << QVariant(99) << 3;
}

void TestStepHints::storedNonsenseCountsAsNone()
{
    QFETCH(QVariant, stored);
    ShellWindow::Options options = with(0);
    options.settings.insert("firstStepsDone", stored);
    FirstStepsWindow shell(options);
    QTEST(shell.evaluate("FirstStepsDone.last").toInt(), "lastStep");
}

void TestStepHints::moveNothing()
{
    FirstStepsWindow shell(with(1));
    QVERIFY(shell.createProject());
    addFilm(shell, 2);
    QTRY_COMPARE(due(shell), "play");
    QVERIFY(shell.settle());
    const QStringList parts{"screenArea", "timelineBox", "statusBar", "controlsPanesBox"};
    QList<QRectF> before;
    for (const QString &name : parts)
        before.append(shell.item(name)->mapRectToScene(shell.item(name)->boundingRect()));
    shell.clickPart("stepHintClose");
    QVERIFY(shell.settle());
    for (int i = 0; i < parts.size(); ++i)
        QCOMPARE(shell.item(parts.at(i))->mapRectToScene(shell.item(parts.at(i))->boundingRect()),
                 before.at(i));
    // And the keys of the timeline are told again.
    QVERIFY(shell.findItem("text", "select a frame") != nullptr);
}

void TestStepHints::areReachedByKeys()
{
    FirstStepsWindow shell(with(1));
    QVERIFY(shell.createProject());
    addFilm(shell, 2);
    QTRY_COMPARE(due(shell), "play");
    for (int i = 0; i < 80 && !shell.part("stepHintButton")->hasActiveFocus(); ++i)
        shell.press(Qt::Key_Backtab);
    QVERIFY(shell.part("stepHintButton")->hasActiveFocus());
    shell.press(Qt::Key_Return);
    QTRY_VERIFY(shell.frames().playing());
}

void TestStepHints::renderHintBringsItsPanelBack()
{
    FirstStepsWindow shell(with(2));
    QVERIFY(shell.createProject());
    addFilm(shell, 2);
    shell.global().setRightPanelPinned(false);
    shell.global().setMainTabsState("captureUIisOn");
    QTRY_COMPARE(due(shell), "render");
    shell.clickPart("stepHintButton");
    QTRY_VERIFY(shell.part("startRender") != nullptr && shell.part("startRender")->hasActiveFocus());
    // The press itself is the user's.
    QCOMPARE(shell.window().currentRobotJob(), int(Zum::NoJob));
    QVERIFY(shell.window().qmlDialogUrl().isEmpty());
}

void TestStepHints::fitTheWindow_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("fontRow");
    QTest::addColumn<QString>("locale");
    QTest::addColumn<int>("lastStep");
    for (const QSize size : {QSize(1024, 600), QSize(1920, 1080)}) {
        for (const int row : {0, 8}) {
            for (const char *locale : {"en_US", "ru_RU"}) {
                for (const int step : {0, 1, 2})
                    QTest::addRow("%d wide, font %d, %s, step %d", size.width(), row, locale, step)
                        << size << row << QString(locale) << step;
            }
        }
    }
}

void TestStepHints::fitTheWindow()
{
    QFETCH(QSize, size);
    QFETCH(int, fontRow);
    QFETCH(QString, locale);
    QFETCH(int, lastStep);
    ShellWindow::Options options = with(lastStep);
    options.size = size;
    options.locale = locale;
    QObject language;
    translations::install(locale, &language);
    options.settings.insert("fontsize", fontRow);
    FirstStepsWindow shell(options);
    QVERIFY(shell.createProject());
    if (lastStep == 0)
        QVERIFY(connectCamera(shell));
    else
        addFilm(shell, 3);
    QTRY_VERIFY(!due(shell).isEmpty());
    QVERIFY(shell.settle());
    shell.keepPicture(u"hint-%1"_s.arg(QTest::currentDataTag()).replace(u", "_s, u"-"_s));

    QQuickItem *hint = shell.part("stepHint");
    QQuickItem *words = hint->findChild<QQuickItem *>("stepHintText");
    QQuickItem *button = shell.part("stepHintButton");
    QQuickItem *close = shell.part("stepHintClose");
    // The largest letters leave no room for the words beside the button in a small window.
    QVERIFY(words->isVisible() || (fontRow == 8 && size.width() == 1024));
    QVERIFY2(!words->isVisible() || !words->property("truncated").toBool(),
             qPrintable(words->property("text").toString()));
    QVERIFY(button->x() >= words->x() + words->width());
    QVERIFY(close->x() >= button->x() + button->width());
    QVERIFY(close->x() + close->width() <= hint->width());
    QVERIFY(button->width() >= button->implicitWidth());
    for (const QQuickItem *item : {button, close})
        QVERIFY(item->y() >= 0 && item->y() + item->height() <= hint->height());
    // Nothing of the picture's room is taken.
    QQuickItem *area = shell.item("screenArea");
    QVERIFY(hint->mapToScene(QPointF(0, 0)).y() >= area->mapToScene(QPointF(0, area->height())).y());
}

QTEST_MAIN(TestStepHints)
#include "tst_stephints.moc"
