#include "ui/controls/ControlHost.h"

#include <QAccessible>
#include <QSignalSpy>
#include <QtTest>

/// ButtonDropPanel, ButtonRowDropPanel and MenuList in a window.
class TestDropPanels : public QObject
{
    Q_OBJECT

private slots:
    void clickOpensAndClosesThePanel_data();
    void clickOpensAndClosesThePanel();
    void clickElsewhereOnlyCloses();
    void globalDismissCloses();
    void clickInThePanelKeepsItOpen();
    void panelOpensByKeyAndEscapeGivesTheKeyboardBack();
    void rowClosesAfterAChoice();
    void panelStaysInTheWindow_data();
    void panelStaysInTheWindow();
    void tallPanelScrolls();
    void inactiveButtonOpensNothing();
    void menuCallsTheActionAndTells();
    void menuIsWalkedByKeys();
    void menuPassesOverInactiveEntries();
    void menuTellsOfEscapeAndLetsItPass();
    void menuFitsAtEveryFontSize_data();
    void menuFitsAtEveryFontSize();
    void menuEntriesAreToldToAssistivePrograms();
};

namespace {

const QString panel = R"(ButtonDropPanel { objectName: "button"; text: "Layers"; toolTip: "What is shown"
        CheckButton { objectName: "inside"; text: "Grid"; property int asked: 0; onSwitched: ++asked }
        TextLabel { text: "A longer line of text" } }
    TextButton { objectName: "elsewhere"; x: 400; y: 300; text: "Go"; property int clicks: 0
        onClicked: ++clicks })";

const QString menu = R"(MenuList { objectName: "menu"; property string called: ""
    model: [{text: "New", icon: "svgicons/new-project.svg", shortcut: "Ctrl+N", action: () => { called += "n" }},
            {text: "Save", shortcut: "Ctrl+S", active: false, action: () => { called += "s" }},
            {text: "Clear Settings"},
            {text: "Quit", shortcut: "Ctrl+Q", action: () => { called += "q" }}] })";

bool isOpen(const QQuickItem *button)
{
    return button->property("opened").toBool();
}

} // namespace

void TestDropPanels::clickOpensAndClosesThePanel_data()
{
    QTest::addColumn<QString>("type");
    QTest::newRow("ButtonDropPanel") << "ButtonDropPanel";
    QTest::newRow("ButtonRowDropPanel") << "ButtonRowDropPanel";
}

void TestDropPanels::clickOpensAndClosesThePanel()
{
    QFETCH(QString, type);
    ControlHost host;
    QQuickItem *button = host.load(QString(panel).replace("ButtonDropPanel", type));
    QVERIFY(button);
    QVERIFY(!isOpen(button));
    QVERIFY(!host.item("inside")->isVisible());
    host.click(button);
    QVERIFY(isOpen(button));
    QVERIFY(host.item("inside")->isVisible());
    QVERIFY(sceneRect(host.item("inside")).top() >= button->height());
    host.click(button);
    QVERIFY(!isOpen(button));
    QVERIFY(!host.item("inside")->isVisible());
    QCOMPARE(host.warnings(), QStringList());
}

void TestDropPanels::clickElsewhereOnlyCloses()
{
    ControlHost host;
    QQuickItem *button = host.load(panel);
    QVERIFY(button);
    host.click(button);
    host.click(host.item("elsewhere"));
    QVERIFY(!isOpen(button));
    QCOMPARE(host.item("elsewhere")->property("clicks").toInt(), 0);
    host.click(host.item("elsewhere"));
    QCOMPARE(host.item("elsewhere")->property("clicks").toInt(), 1);
}

void TestDropPanels::globalDismissCloses()
{
    ControlHost host;
    QQuickItem *button = host.load(panel);
    QVERIFY(button);
    host.click(button);
    emit host.global().globalDismiss();
    QVERIFY(!isOpen(button));
}

void TestDropPanels::clickInThePanelKeepsItOpen()
{
    ControlHost host;
    QQuickItem *button = host.load(panel);
    QVERIFY(button);
    host.click(button);
    host.click(host.item("inside"));
    QCOMPARE(host.item("inside")->property("asked").toInt(), 1);
    const QPointF edge = sceneRect(host.item("inside")).bottomLeft() + QPointF(-3, 2);
    QTest::mouseClick(&host.window(), Qt::LeftButton, Qt::NoModifier, edge.toPoint());
    QVERIFY(isOpen(button));
}

void TestDropPanels::panelOpensByKeyAndEscapeGivesTheKeyboardBack()
{
    ControlHost host;
    QQuickItem *button = host.load(panel);
    QVERIFY(button);
    host.key(Qt::Key_Tab);
    host.key(Qt::Key_Space);
    QVERIFY(isOpen(button));
    QVERIFY(host.item("inside")->hasActiveFocus());
    host.key(Qt::Key_Escape);
    QVERIFY(!isOpen(button));
    QVERIFY(button->hasActiveFocus());
    QCOMPARE(host.warnings(), QStringList());
}

void TestDropPanels::rowClosesAfterAChoice()
{
    ControlHost host;
    QQuickItem *button = host.load(R"(ButtonRowDropPanel { icon: "svgicons/add.svg"; toolTip: "Add"
        TextButton { objectName: "first"; text: "Frames" }
        TextButton { objectName: "second"; text: "Video"; property int clicks: 0; onClicked: ++clicks } })");
    QVERIFY(button);
    host.click(button);
    QCOMPARE(sceneRect(host.item("first")).top(), sceneRect(host.item("second")).top());
    host.click(host.item("second"));
    QCOMPARE(host.item("second")->property("clicks").toInt(), 1);
    QVERIFY(!isOpen(button));
}

void TestDropPanels::panelStaysInTheWindow_data()
{
    addCorners();
}

void TestDropPanels::panelStaysInTheWindow()
{
    QFETCH(QString, anchors);
    QFETCH(int, row);
    ControlHost host(row, {1024, 600});
    QQuickItem *button = host.load(QString(R"(ButtonDropPanel { %1; text: "Panel"
            Rectangle { objectName: "inside"; width: DefFontSizeNormal_x8; height: DefFontSizeNormal_x4 } })")
                                       .arg(anchors));
    QVERIFY(button);
    host.click(button);
    const QRectF inside = sceneRect(host.item("inside"));
    QVERIFY(QRectF(QPointF(), host.root()->size()).contains(inside));
    QVERIFY(!inside.intersects(sceneRect(button)));
}

void TestDropPanels::tallPanelScrolls()
{
    ControlHost host(1, {600, 300});
    QQuickItem *button = host.load(R"(ButtonDropPanel { text: "Panel"
        Repeater { model: 40; CheckButton { objectName: "check" + index; text: "Row " + index } } })");
    QVERIFY(button);
    host.click(button);
    QVERIFY(isOpen(button));
    const qreal before = sceneRect(host.item("check0")).y();
    host.wheel(host.item("check2"), -2);
    QTRY_VERIFY(sceneRect(host.item("check0")).y() < before);
}

void TestDropPanels::inactiveButtonOpensNothing()
{
    ControlHost host;
    QQuickItem *button = host.load(QString(panel).replace("text: \"Layers\"", "active: false"));
    QVERIFY(button);
    host.click(button);
    QVERIFY(!isOpen(button));
}

void TestDropPanels::menuCallsTheActionAndTells()
{
    ControlHost host;
    QQuickItem *list = host.load(menu);
    QVERIFY(list);
    QSignalSpy chosen(list, SIGNAL(chosen(int)));
    const auto clickRow = [&](int row) {
        QTest::mouseClick(&host.window(), Qt::LeftButton, Qt::NoModifier, {40, 13 + 26 * row});
    };
    clickRow(3);
    QCOMPARE(list->property("called").toString(), "q");
    QCOMPARE(chosen.size(), 1);
    QCOMPARE(chosen.at(0).at(0).toInt(), 3);
    clickRow(1);
    QCOMPARE(chosen.size(), 1);
    clickRow(2);
    QCOMPARE(chosen.size(), 2);
    QCOMPARE(list->property("called").toString(), "q");
    QCOMPARE(host.warnings(), QStringList());
}

void TestDropPanels::menuIsWalkedByKeys()
{
    ControlHost host;
    QQuickItem *list = host.load(menu);
    QVERIFY(list);
    host.key(Qt::Key_Tab);
    QVERIFY(list->hasActiveFocus());
    QCOMPARE(list->property("currentIndex").toInt(), 0);
    host.key(Qt::Key_Return);
    host.key(Qt::Key_Up);
    QCOMPARE(list->property("currentIndex").toInt(), 3);
    host.key(Qt::Key_Enter);
    host.key(Qt::Key_Down);
    host.key(Qt::Key_Space);
    QCOMPARE(list->property("called").toString(), "nqn");
    host.key(Qt::Key_End);
    QCOMPARE(list->property("currentIndex").toInt(), 3);
    host.key(Qt::Key_Home);
    QCOMPARE(list->property("currentIndex").toInt(), 0);
}

void TestDropPanels::menuPassesOverInactiveEntries()
{
    ControlHost host;
    QQuickItem *list = host.load(menu);
    QVERIFY(list);
    host.key(Qt::Key_Tab);
    host.key(Qt::Key_Down);
    QCOMPARE(list->property("currentIndex").toInt(), 2);
    host.key(Qt::Key_Up);
    QCOMPARE(list->property("currentIndex").toInt(), 0);
    list->setProperty("currentIndex", 1);
    host.key(Qt::Key_Return);
    QCOMPARE(list->property("called").toString(), "");
}

void TestDropPanels::menuTellsOfEscapeAndLetsItPass()
{
    ControlHost host;
    QVERIFY(host.load(R"(Item { objectName: "keys"; property int escapes: 0; Keys.onEscapePressed: ++escapes
        )" + menu + "}"));
    QSignalSpy dismissed(host.item("menu"), SIGNAL(dismissed()));
    host.focus(host.item("menu"));
    host.key(Qt::Key_Escape);
    QCOMPARE(dismissed.size(), 1);
    QCOMPARE(host.item("keys")->property("escapes").toInt(), 1);
}

void TestDropPanels::menuFitsAtEveryFontSize_data()
{
    QTest::addColumn<int>("row");
    for (int row = 0; row <= 8; ++row)
        QTest::addRow("font index %d", row) << row;
}

void TestDropPanels::menuFitsAtEveryFontSize()
{
    QFETCH(int, row);
    ControlHost host(row, {1500, 900});
    QQuickItem *list = host.load(menu);
    QVERIFY(list);
    QCOMPARE(cutTexts(list), QStringList());
    QCOMPARE(list->height(), 4 * host.evaluate("DefFontSizeNormal_x2").toReal());
}

void TestDropPanels::menuEntriesAreToldToAssistivePrograms()
{
    ControlHost host;
    QQuickItem *list = host.load(menu);
    QVERIFY(list);
    QCOMPARE(accessibleFacts(list).role, int(QAccessible::PopupMenu));
    QVERIFY(!accessibleFacts(list).name.isEmpty());
    ControlHost drop;
    QQuickItem *button = drop.load(panel);
    QVERIFY(button);
    QCOMPARE(accessibleFacts(button).role, int(QAccessible::ButtonMenu));
    QCOMPARE(accessibleFacts(button).name, "Layers");
}

QTEST_MAIN(TestDropPanels)

#include "tst_droppanels.moc"
