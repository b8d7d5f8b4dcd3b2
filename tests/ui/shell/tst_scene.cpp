#include "support/ShellWindow.h"

#include <QDir>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QTest>

/// The scene as a whole: that it loads without a word, in every state, at every size.
class TestScene : public QObject
{
    Q_OBJECT

private slots:
    void loadsWithoutAnyWarning();
    void everyFileOfTheSceneCompiles_data();
    void everyFileOfTheSceneCompiles();
    void everyTabAndFormShowsWithoutAWarning();
    void everyFontSizeShowsWithoutAWarning_data();
    void everyFontSizeShowsWithoutAWarning();
    void closesWithoutAWarning();
};

void TestScene::loadsWithoutAnyWarning()
{
    ShellWindow shell;
    QCOMPARE(shell.window().status(), QQuickView::Ready);
    QCOMPARE(shell.sceneWarnings(), QStringList());
}

void TestScene::everyFileOfTheSceneCompiles_data()
{
    QTest::addColumn<QString>("file");
    const QStringList files = QDir(QStringLiteral(":/")).entryList({QStringLiteral("*.qml")});
    QVERIFY(files.size() > 50);
    const QStringList singletons{QStringLiteral("FirstStepsDone.qml"), QStringLiteral("FocusHome.qml"),
                                 QStringLiteral("Theme.qml"), QStringLiteral("ToolTips.qml")};
    for (const QString &file : files) {
        // The engine makes these itself, the first time that another file names them.
        if (singletons.contains(file))
            continue;
        QTest::newRow(qPrintable(file)) << file;
    }
}

void TestScene::everyFileOfTheSceneCompiles()
{
    QFETCH(QString, file);
    QQmlEngine engine;
    QQmlComponent component(&engine, QUrl(QStringLiteral("qrc:/") + file));
    QVERIFY2(component.isReady(), qPrintable(component.errorString()));
}

void TestScene::everyTabAndFormShowsWithoutAWarning()
{
    ShellWindow shell;
    for (const char *state :
         {"captureUIisOn", "captureUIisOn_compacted", "captureUIisOn_maximized", "timingUIisOn",
          "timingUIisOn_compacted", "timingUIisOn_maximized", "playbackUIisOn", "playbackUIisOn_compacted",
          "playbackUIisOn_maximized", "docsUIisOn", "captureUIisOn"}) {
        shell.global().setMainTabsState(QString::fromLatin1(state));
        QVERIFY(!shell.window().grabWindow().isNull());
    }
    QCOMPARE(shell.sceneWarnings(), QStringList());
}

void TestScene::everyFontSizeShowsWithoutAWarning_data()
{
    QTest::addColumn<int>("fontIndex");
    for (int index = 0; index <= 8; ++index)
        QTest::addRow("%d", index) << index;
}

void TestScene::everyFontSizeShowsWithoutAWarning()
{
    QFETCH(int, fontIndex);
    ShellWindow::Options options;
    options.settings.insert(QStringLiteral("fontsize"), fontIndex);
    options.size = {1024, 600};
    ShellWindow shell(options);
    QCOMPARE(shell.global().fontSize(), fontIndex);
    QVERIFY(!shell.window().grabWindow().isNull());
    QCOMPARE(shell.sceneWarnings(), QStringList());
}

void TestScene::closesWithoutAWarning()
{
    QStringList warnings;
    {
        ShellWindow shell;
        QVERIFY(shell.createProject());
        shell.addFrames(3);
        shell.window().quit(true);
        QCOMPARE(shell.quits(), 1);
        warnings = shell.sceneWarnings();
    }
    QCOMPARE(warnings, QStringList());
}

QTEST_MAIN(TestScene)
#include "tst_scene.moc"
