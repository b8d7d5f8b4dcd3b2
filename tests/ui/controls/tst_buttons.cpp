#include "ui/controls/ControlHost.h"

#include <QAccessible>
#include <QSignalSpy>
#include <QtTest>

/// IconButton, TextButton, TabButton, CheckButton and ChoiceRow in a window.
class TestButtons : public QObject
{
    Q_OBJECT

private slots:
    void clickAndRightClick_data();
    void clickAndRightClick();
    void clickLeavesTheFocusWhereItIs();
    void tabComesToItAndKeysPressIt_data();
    void tabComesToItAndKeysPressIt();
    void heldKeyPressesOnce();
    void otherKeysReachTheWindow();
    void inactiveButtonDoesNothing();
    void inactiveContainerDisablesToo();
    void hoverLightsUp();
    void assistiveProgramsAreToldOfIt_data();
    void assistiveProgramsAreToldOfIt();
    void iconButtonIsSquare();
    void textButtonGrowsWithItsText();
    void textButtonCutsATextThatDoesNotFit();
    void checkButtonAsksAndLeavesTheStateToItsOwner();
    void choiceRowAsksAndLeavesTheChoiceToItsOwner();
    void choiceRowMovesByArrowKeysWithinItsEnds();
    void inactiveChoiceRowDoesNothing();
    void choiceRowWrapsWhenTooNarrow();
};

void TestButtons::clickAndRightClick_data()
{
    QTest::addColumn<QString>("type");
    QTest::newRow("IconButton") << "IconButton";
    QTest::newRow("TextButton") << "TextButton";
    QTest::newRow("TabButton") << "TabButton";
}

void TestButtons::clickAndRightClick()
{
    QFETCH(QString, type);
    ControlHost host;
    QQuickItem *button = host.load(type + R"( { icon: "svgicons/add.svg"; toolTip: "Add" })");
    QVERIFY(button);
    QSignalSpy clicked(button, SIGNAL(clicked()));
    QSignalSpy rightClicked(button, SIGNAL(rightClicked()));
    host.click(button);
    QCOMPARE(clicked.size(), 1);
    QCOMPARE(rightClicked.size(), 0);
    host.click(button, Qt::RightButton);
    QCOMPARE(clicked.size(), 1);
    QCOMPARE(rightClicked.size(), 1);
    QCOMPARE(host.warnings(), QStringList());
}

void TestButtons::clickLeavesTheFocusWhereItIs()
{
    ControlHost host;
    QVERIFY(host.load(R"(Item { objectName: "home"; focus: true }
        TextButton { objectName: "button"; y: 40; text: "Go" })"));
    host.focus(host.item("home"));
    host.click(host.item("button"));
    QVERIFY(host.item("home")->hasActiveFocus());
}

void TestButtons::tabComesToItAndKeysPressIt_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<Qt::Key>("key");
    for (const char *type : {"IconButton", "TextButton", "TabButton", "CheckButton"}) {
        QTest::addRow("%s, Space", type) << type << Qt::Key_Space;
        QTest::addRow("%s, Return", type) << type << Qt::Key_Return;
        QTest::addRow("%s, Enter", type) << type << Qt::Key_Enter;
    }
}

void TestButtons::tabComesToItAndKeysPressIt()
{
    QFETCH(QString, type);
    QFETCH(Qt::Key, key);
    ControlHost host;
    QQuickItem *button = host.load(type + R"( { toolTip: "Go" })");
    QVERIFY(button);
    QSignalSpy clicked(button, SIGNAL(clicked()));
    const QImage before = host.window().grabWindow();
    host.key(Qt::Key_Tab);
    QVERIFY(button->hasActiveFocus());
    host.key(key);
    QCOMPARE(clicked.size(), 1);
    QVERIFY2(host.window().grabWindow() != before, "the focus is to be seen");
}

void TestButtons::heldKeyPressesOnce()
{
    ControlHost host;
    QQuickItem *button = host.load(R"(TextButton { text: "Go" })");
    QVERIFY(button);
    QSignalSpy clicked(button, SIGNAL(clicked()));
    host.focus(button);
    QTest::keyPress(&host.window(), Qt::Key_Space);
    QKeyEvent again(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, " ", true);
    QCoreApplication::sendEvent(&host.window(), &again);
    QTest::keyRelease(&host.window(), Qt::Key_Space);
    QCOMPARE(clicked.size(), 1);
}

void TestButtons::otherKeysReachTheWindow()
{
    ControlHost host;
    QVERIFY(host.load(R"(Item { objectName: "keys"; property int pressed: 0; property int released: 0
        Keys.onPressed: ++pressed
        Keys.onReleased: ++released
        TextButton { objectName: "button"; text: "Go" } })"));
    host.focus(host.item("button"));
    host.key(Qt::Key_F5);
    QCOMPARE(host.item("keys")->property("pressed").toInt(), 1);
    QCOMPARE(host.item("keys")->property("released").toInt(), 1);
    host.key(Qt::Key_Space);
    QCOMPARE(host.item("keys")->property("pressed").toInt(), 1);
    QCOMPARE(host.item("keys")->property("released").toInt(), 1);
}

void TestButtons::inactiveButtonDoesNothing()
{
    ControlHost host;
    QQuickItem *button = host.load(R"(TextButton { text: "Go"; active: false })");
    QVERIFY(button);
    QSignalSpy clicked(button, SIGNAL(clicked()));
    QSignalSpy rightClicked(button, SIGNAL(rightClicked()));
    host.click(button);
    host.click(button, Qt::RightButton);
    host.key(Qt::Key_Tab);
    host.key(Qt::Key_Space);
    QCOMPARE(clicked.size(), 0);
    QCOMPARE(rightClicked.size(), 0);
    QVERIFY(accessibleFacts(button).disabled);
    const QImage inactive = host.window().grabWindow();
    button->setProperty("active", true);
    QVERIFY(!accessibleFacts(button).disabled);
    QVERIFY(host.window().grabWindow() != inactive);
}

void TestButtons::inactiveContainerDisablesToo()
{
    ControlHost host;
    QVERIFY(host.load(R"(Item { enabled: false; TextButton { objectName: "button"; text: "Go" } })"));
    QVERIFY(!host.item("button")->property("usable").toBool());
    QVERIFY(accessibleFacts(host.item("button")).disabled);
}

void TestButtons::hoverLightsUp()
{
    ControlHost host;
    QQuickItem *button = host.load(R"(TextButton { text: "Go" })");
    QVERIFY(button);
    const QColor plain = button->property("ground").value<QColor>();
    host.hover(button);
    QTRY_VERIFY(button->property("hovered").toBool());
    const QColor hovered = button->property("ground").value<QColor>();
    QVERIFY(hovered.lightness() > plain.lightness());
    button->setProperty("active", false);
    QVERIFY(!button->property("hovered").toBool());
}

void TestButtons::assistiveProgramsAreToldOfIt_data()
{
    QTest::addColumn<QString>("qml");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("role");
    QTest::addColumn<bool>("checked");
    QTest::newRow("tool tip names a picture") << R"(IconButton { toolTip: "Add" })"
                                              << "Add" << int(QAccessible::Button) << false;
    QTest::newRow("label goes before the tool tip") << R"(IconButton { toolTip: "Add"; label: "Add frame" })"
                                                    << "Add frame" << int(QAccessible::Button) << false;
    QTest::newRow("text goes before the tool tip") << R"(TextButton { text: "Go"; toolTip: "Goes" })"
                                                   << "Go" << int(QAccessible::Button) << false;
    QTest::newRow("TextButton with a picture only")
        << R"(TextButton { icon: "svgicons/add.svg"; toolTip: "Add" })"
        << "Add" << int(QAccessible::Button) << false;
    QTest::newRow("TabButton") << R"(TabButton { text: "Timing"; toggled: true })"
                               << "Timing" << int(QAccessible::PageTab) << true;
    QTest::newRow("CheckButton") << R"(CheckButton { text: "B/W"; checked: true })"
                                 << "B/W" << int(QAccessible::CheckBox) << true;
    QTest::newRow("ChoiceRow") << R"(ChoiceRow { toolTip: "FPS"; model: ["Min"] })"
                               << "FPS" << int(QAccessible::Grouping) << false;
}

void TestButtons::assistiveProgramsAreToldOfIt()
{
    QFETCH(QString, qml);
    QFETCH(QString, name);
    QFETCH(int, role);
    QFETCH(bool, checked);
    ControlHost host;
    QQuickItem *button = host.load(qml);
    QVERIFY(button);
    const AccessibleFacts facts = accessibleFacts(button);
    QCOMPARE(facts.name, name);
    QCOMPARE(facts.role, role);
    QCOMPARE(facts.checked, checked);
    QVERIFY(facts.focusable);
}

void TestButtons::iconButtonIsSquare()
{
    for (const int row : {0, 3, 8}) {
        ControlHost host(row);
        QQuickItem *button = host.load(R"(IconButton { icon: "svgicons/add.svg"; toolTip: "Add" })");
        QVERIFY(button);
        const qreal side = host.evaluate("DefFontSizeNormal_x2").toReal();
        QCOMPARE(button->size(), QSizeF(side, side));
    }
}

void TestButtons::textButtonGrowsWithItsText()
{
    for (const int row : {0, 8}) {
        ControlHost host(row, {1500, 900});
        QQuickItem *button = host.load(R"(TextButton { text: "Go"; icon: "svgicons/add.svg" })");
        QVERIFY(button);
        const qreal before = button->width();
        button->setProperty("text", "Morvane will save RAW");
        QVERIFY(button->width() > before);
        QCOMPARE(cutTexts(button), QStringList());
    }
}

void TestButtons::textButtonCutsATextThatDoesNotFit()
{
    ControlHost host;
    QQuickItem *button = host.load(R"(TextButton { text: "A very long text"; width: 60 })");
    QVERIFY(button);
    QCOMPARE(cutTexts(button), QStringList("A very long text"));
}

void TestButtons::checkButtonAsksAndLeavesTheStateToItsOwner()
{
    ControlHost host;
    QQuickItem *check = host.load(R"(CheckButton { text: "B/W" })");
    QVERIFY(check);
    QSignalSpy switched(check, SIGNAL(switched(bool)));
    host.click(check);
    QCOMPARE(switched.size(), 1);
    QCOMPARE(switched.at(0).at(0).toBool(), true);
    QVERIFY(!check->property("checked").toBool());
    check->setProperty("checked", true);
    QCOMPARE(switched.size(), 1);
    host.focus(check);
    host.key(Qt::Key_Space);
    QCOMPARE(switched.size(), 2);
    QCOMPARE(switched.at(1).at(0).toBool(), false);
    QVERIFY(check->property("checked").toBool());
    check->setProperty("active", false);
    host.click(check);
    QCOMPARE(switched.size(), 2);
    QCOMPARE(host.warnings(), QStringList());
}

void TestButtons::choiceRowAsksAndLeavesTheChoiceToItsOwner()
{
    ControlHost host;
    QQuickItem *choices = host.load(R"(ChoiceRow { model: ["Min", "Middle", "Max"]; currentIndex: 1 })");
    QVERIFY(choices);
    QSignalSpy chosen(choices, SIGNAL(chosen(int)));
    QTest::mouseClick(&host.window(), Qt::LeftButton, Qt::NoModifier,
                      {static_cast<int>(choices->width()) - 5, 10});
    QCOMPARE(chosen.size(), 1);
    QCOMPARE(chosen.at(0).at(0).toInt(), 2);
    QCOMPARE(choices->property("currentIndex").toInt(), 1);
    QTest::mouseClick(&host.window(), Qt::LeftButton, Qt::NoModifier, host.centreOf(choices));
    QCOMPARE(chosen.size(), 1);
    choices->setProperty("currentIndex", 0);
    QCOMPARE(chosen.size(), 1);
    QCOMPARE(host.warnings(), QStringList());
}

void TestButtons::choiceRowMovesByArrowKeysWithinItsEnds()
{
    ControlHost host;
    QQuickItem *choices = host.load(R"(ChoiceRow { model: ["Min", "Middle", "Max"]; currentIndex: 1
        onChosen: index => currentIndex = index })");
    QVERIFY(choices);
    host.key(Qt::Key_Tab);
    QVERIFY(choices->hasActiveFocus());
    host.key(Qt::Key_Right);
    QCOMPARE(choices->property("currentIndex").toInt(), 2);
    host.key(Qt::Key_Down);
    QCOMPARE(choices->property("currentIndex").toInt(), 2);
    host.key(Qt::Key_Left);
    host.key(Qt::Key_Up);
    host.key(Qt::Key_Up);
    QCOMPARE(choices->property("currentIndex").toInt(), 0);
}

void TestButtons::inactiveChoiceRowDoesNothing()
{
    ControlHost host;
    QQuickItem *choices = host.load(R"(ChoiceRow { model: ["Min", "Max"]; active: false })");
    QVERIFY(choices);
    QSignalSpy chosen(choices, SIGNAL(chosen(int)));
    host.click(choices);
    host.key(Qt::Key_Tab);
    host.key(Qt::Key_Right);
    QCOMPARE(chosen.size(), 0);
}

void TestButtons::choiceRowWrapsWhenTooNarrow()
{
    for (const int row : {0, 8}) {
        ControlHost host(row, {1500, 900});
        QQuickItem *choices = host.load(R"(ChoiceRow { model: ["1280x720", "1600x900", "1920x1080"] })");
        QVERIFY(choices);
        const qreal oneLine = choices->height();
        const qreal wanted = choices->width();
        QCOMPARE(oneLine, host.evaluate("DefFontSizeNormal_x2").toReal());
        choices->setWidth(wanted - 1);
        QTRY_VERIFY(choices->height() > 2 * oneLine);
        QCOMPARE(cutTexts(choices), QStringList());
    }
}

QTEST_MAIN(TestButtons)

#include "tst_buttons.moc"
