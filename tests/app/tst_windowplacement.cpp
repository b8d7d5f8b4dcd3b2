#include "app/WindowPlacement.h"
#include "shared/Settings.h"

#include <QTemporaryDir>
#include <QTest>
#include <QWindow>

class TestWindowPlacement : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void geometryComesBack();
    void maximizedComesBackMaximized();
    void aPlaceOnNoScreenIsForgotten();
    void damagedBytesLeaveTheWindowAsItIs();
    void nothingStoredLeavesTheWindowAsItIs();
    void maximizedKeepsTheFormerGeometry();

private:
    WindowPlacement placement()
    {
        return WindowPlacement(*settings, "mainwindow", "maximized");
    }

    QTemporaryDir folder;
    std::unique_ptr<Settings> settings;
    const QRect start{5, 6, 300, 200};
};

void TestWindowPlacement::init()
{
    settings = std::make_unique<Settings>(folder.filePath("settings.ini"));
    settings->clear();
}

void TestWindowPlacement::geometryComesBack()
{
    QWindow window;
    window.setGeometry(40, 50, 640, 480);
    placement().save(window, false);
    QWindow other;
    other.setGeometry(start);
    placement().restore(other);
    QCOMPARE(other.geometry(), QRect(40, 50, 640, 480));
}

void TestWindowPlacement::maximizedComesBackMaximized()
{
    QWindow window;
    placement().save(window, true);
    QVERIFY(settings->boolean("mainwindow/maximized", false));
    QCOMPARE(settings->integer("mainwindow/screenNumber", -1), 0);
    QWindow other;
    placement().restore(other);
    QVERIFY(other.windowStates().testFlag(Qt::WindowMaximized));
}

void TestWindowPlacement::aPlaceOnNoScreenIsForgotten()
{
    QWindow window;
    window.setGeometry(20000, 20000, 640, 480);
    placement().save(window, false);
    QWindow other;
    other.setGeometry(start);
    placement().restore(other);
    QCOMPARE(other.geometry(), start);
}

void TestWindowPlacement::damagedBytesLeaveTheWindowAsItIs()
{
    settings->setValue("mainwindow/geometry", QByteArray("no geometry at all, but many bytes of something"));
    QWindow window;
    window.setGeometry(start);
    placement().restore(window);
    QCOMPARE(window.geometry(), start);
}

void TestWindowPlacement::nothingStoredLeavesTheWindowAsItIs()
{
    QWindow window;
    window.setGeometry(start);
    placement().restore(window);
    QCOMPARE(window.geometry(), start);
}

void TestWindowPlacement::maximizedKeepsTheFormerGeometry()
{
    QWindow window;
    window.setGeometry(40, 50, 640, 480);
    placement().save(window, false);
    placement().save(window, true);
    settings->setValue("mainwindow/maximized", false);
    QWindow other;
    placement().restore(other);
    QCOMPARE(other.geometry(), QRect(40, 50, 640, 480));
}

QTEST_MAIN(TestWindowPlacement)
#include "tst_windowplacement.moc"
