#include "ui/controls/ControlHost.h"

#include <QtTest>

/// ToolTip and ToolTips in a window.
class TestToolTips : public QObject
{
    Q_OBJECT

private slots:
    void waitsMoreThanHalfASecondByDefault();
    void showsTheHoveredControlsText();
    void showsForAnInactiveControlToo();
    void showsForTheControlWithTheKeyboard();
    void hidesWhenThePointerLeaves();
    void hidesWhenAMouseButtonGoesDown();
    void hidesWithItsControl();
    void followsAChangedText();
    void staysAwayWithoutAText();
    void staysAwayWhenSwitchedOff();
    void neverLeavesTheWindow_data();
    void neverLeavesTheWindow();
    void standsAboveAControlAtTheBottom();
    void everyControlReports_data();
    void everyControlReports();

private:
    static QQuickItem *shortTip(ControlHost &host);
};

namespace {

const QString button = R"(IconButton { objectName: "button"; x: 100; y: 100; toolTip: "Add a frame" })";

} // namespace

/// The tip, set to come at once.
QQuickItem *TestToolTips::shortTip(ControlHost &host)
{
    QQuickItem *tip = host.item("toolTip");
    tip->setProperty("delayMs", 1);
    return tip;
}

void TestToolTips::waitsMoreThanHalfASecondByDefault()
{
    ControlHost host;
    QVERIFY(host.load(button));
    QCOMPARE(host.item("toolTip")->property("delayMs").toInt(), 600);
}

void TestToolTips::showsTheHoveredControlsText()
{
    ControlHost host;
    QVERIFY(host.load(button));
    QQuickItem *tip = shortTip(host);
    QVERIFY(!tip->isVisible());
    host.hover(host.item("button"));
    QTRY_VERIFY(tip->isVisible());
    QCOMPARE(tip->property("text").toString(), "Add a frame");
    QVERIFY(tip->y() >= 126);
    QCOMPARE(accessibleFacts(tip).name, "Add a frame");
    QCOMPARE(host.warnings(), QStringList());
}

void TestToolTips::showsForAnInactiveControlToo()
{
    ControlHost host;
    QVERIFY(host.load(QString(button).replace("x: 100", "active: false; x: 100")));
    host.hover(host.item("button"));
    QTRY_VERIFY(shortTip(host)->isVisible());
}

void TestToolTips::showsForTheControlWithTheKeyboard()
{
    ControlHost host;
    QVERIFY(host.load(button));
    QQuickItem *tip = shortTip(host);
    host.key(Qt::Key_Tab);
    QTRY_VERIFY(tip->isVisible());
    host.key(Qt::Key_Space);
    QVERIFY(!tip->isVisible());
}

void TestToolTips::hidesWhenThePointerLeaves()
{
    ControlHost host;
    QVERIFY(host.load(button));
    QQuickItem *tip = shortTip(host);
    host.hover(host.item("button"));
    QTRY_VERIFY(tip->isVisible());
    QTest::mouseMove(&host.window(), {400, 400});
    QTRY_VERIFY(!tip->isVisible());
}

void TestToolTips::hidesWhenAMouseButtonGoesDown()
{
    ControlHost host;
    QVERIFY(host.load(button));
    QQuickItem *tip = shortTip(host);
    host.hover(host.item("button"));
    QTRY_VERIFY(tip->isVisible());
    const QPoint at = host.centreOf(host.item("button"));
    QTest::mousePress(&host.window(), Qt::RightButton, Qt::NoModifier, at);
    QVERIFY(!tip->isVisible());
    QTest::mouseRelease(&host.window(), Qt::RightButton, Qt::NoModifier, at);
}

void TestToolTips::hidesWithItsControl()
{
    ControlHost host;
    QVERIFY(host.load(QString(R"(Loader { objectName: "loader"; sourceComponent: %1 })").arg(button)));
    QQuickItem *tip = shortTip(host);
    host.hover(host.item("button"));
    QTRY_VERIFY(tip->isVisible());
    host.item("loader")->setProperty("active", false);
    QTRY_VERIFY(!tip->isVisible());
    QCOMPARE(host.warnings(), QStringList());
}

void TestToolTips::followsAChangedText()
{
    ControlHost host;
    QVERIFY(host.load(button));
    QQuickItem *tip = shortTip(host);
    host.hover(host.item("button"));
    QTRY_VERIFY(tip->isVisible());
    host.item("button")->setProperty("toolTip", "Another");
    QCOMPARE(tip->property("text").toString(), "Another");
    host.item("button")->setProperty("toolTip", "");
    QVERIFY(!tip->isVisible());
}

void TestToolTips::staysAwayWithoutAText()
{
    ControlHost host;
    QVERIFY(host.load(QString(button).replace("Add a frame", "")));
    QQuickItem *tip = shortTip(host);
    host.hover(host.item("button"));
    QTRY_VERIFY(host.item("button")->property("hovered").toBool());
    QTest::qWait(30);
    QVERIFY(!tip->isVisible());
}

void TestToolTips::staysAwayWhenSwitchedOff()
{
    ControlHost host;
    QVERIFY(host.load(button));
    QQuickItem *tip = shortTip(host);
    host.global().setShowToolTips(false);
    host.hover(host.item("button"));
    QTRY_VERIFY(host.item("button")->property("hovered").toBool());
    QTest::qWait(30);
    QVERIFY(!tip->isVisible());
    host.global().setShowToolTips(true);
    QTRY_VERIFY(tip->isVisible());
}

void TestToolTips::neverLeavesTheWindow_data()
{
    addCorners();
}

void TestToolTips::neverLeavesTheWindow()
{
    QFETCH(QString, anchors);
    QFETCH(int, row);
    ControlHost host(row, {640, 480});
    QQuickItem *control =
        host.load(QString(R"(IconButton { %1; toolTip: "A text that is rather long for such a "
        + "small window, so that it has to be broken into lines" })")
                      .arg(anchors));
    QVERIFY(control);
    QQuickItem *tip = shortTip(host);
    host.hover(control);
    QTRY_VERIFY(tip->isVisible());
    QTest::qWait(20);
    const QRectF window(QPointF(), host.root()->size());
    QVERIFY(window.contains(QRectF(tip->position(), tip->size())));
    QCOMPARE(cutTexts(tip), QStringList());
}

void TestToolTips::standsAboveAControlAtTheBottom()
{
    ControlHost host;
    QQuickItem *control = host.load(R"(IconButton { anchors.bottom: parent.bottom; toolTip: "Add" })");
    QVERIFY(control);
    QQuickItem *tip = shortTip(host);
    host.hover(control);
    QTRY_VERIFY(tip->isVisible());
    QVERIFY(tip->y() + tip->height() <= control->y());
}

void TestToolTips::everyControlReports_data()
{
    QTest::addColumn<QString>("qml");
    for (const char *qml :
         {"TextButton { text: \"T\"; ", "TabButton { text: \"T\"; ", "CheckButton { text: \"T\"; ",
          "ChoiceRow { model: [\"T\"]; ", "NumberInput4 { ", "NumberInput5 { ", "TextPropertyInput { ",
          "SliderNew { width: 300; ", "ColorChooser { ", "ButtonDropPanel { text: \"T\"; ",
          "ButtonRowDropPanel { text: \"T\"; "})
        QTest::addRow("%s", qml) << QString("%1toolTip: \"What it is for\" }").arg(qml);
}

void TestToolTips::everyControlReports()
{
    QFETCH(QString, qml);
    ControlHost host;
    QQuickItem *control = host.load(qml);
    QVERIFY(control);
    QQuickItem *tip = shortTip(host);
    host.hover(control);
    QTRY_COMPARE(tip->property("text").toString(), "What it is for");
    QCOMPARE(host.warnings(), QStringList());
}

QTEST_MAIN(TestToolTips)

#include "tst_tooltips.moc"
