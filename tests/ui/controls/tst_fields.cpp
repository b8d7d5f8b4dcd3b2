#include "ui/controls/ControlHost.h"

#include <QAccessible>
#include <QSignalSpy>
#include <QtTest>

/// NumberInput4, NumberInput5 and TextPropertyInput in a window.
class TestFields : public QObject
{
    Q_OBJECT

private slots:
    void typedNumberCountsOnReturn();
    void typedNumberCountsWhenTheFocusLeaves();
    void typedNumberCountsBeforeAClickOnAButton();
    void escapeDropsWhatWasTyped();
    void returnAndEscapeGiveTheKeyboardBack();
    void ownerThatRefusesKeepsItsNumber();
    void buttonsStepWithinTheLimits();
    void heldButtonGoesOn();
    void arrowKeysStep();
    void wheelStepsOnlyWithTheFocus();
    void realNumbersKeepTheirDecimals();
    void numberSetByTheOwnerIsNoEdit();
    void inactiveNumberTakesNothing();
    void numbersFitAtEveryFontSize_data();
    void numbersFitAtEveryFontSize();
    void typedTextCountsOnReturn();
    void typedTextCountsWhenTheFocusLeaves();
    void typedTextIsToBeSeenBeforeItCounts();
    void unchangedTextIsNoEdit();
    void escapeDropsTypedText();
    void textOfARefusingOwnerComesBack();
    void inactiveTextTakesNothing();
    void placeholderStandsInAnEmptyField();
    void assistiveProgramsAreToldOfFields();

private:
    /// The text that stands in a field's editor.
    static QQuickItem *editorOf(QQuickItem *field);
};

QQuickItem *TestFields::editorOf(QQuickItem *field)
{
    if (field->inherits("QQuickTextInput"))
        return field;
    const QList<QQuickItem *> children = field->childItems();
    for (QQuickItem *child : children) {
        if (QQuickItem *editor = editorOf(child))
            return editor;
    }
    return nullptr;
}

namespace {

const QString frames = R"(NumberInput4 { value: 12; maximum: 60; label: "Frames"; toolTip: "How many"
    onEdited: value => this.value = value })";
const QString name = R"(TextPropertyInput { text: "Puppet"; toolTip: "Name"
    onEdited: text => this.text = text })";

} // namespace

void TestFields::typedNumberCountsOnReturn()
{
    ControlHost host;
    QQuickItem *field = host.load(frames);
    QVERIFY(field);
    QSignalSpy edited(field, SIGNAL(edited(int)));
    host.key(Qt::Key_Tab);
    QVERIFY(field->hasActiveFocus());
    host.type("24");
    QCOMPARE(edited.size(), 0);
    host.key(Qt::Key_Return);
    QCOMPARE(edited.size(), 1);
    QCOMPARE(edited.at(0).at(0).toInt(), 24);
    QCOMPARE(field->property("value").toInt(), 24);
    host.key(Qt::Key_Enter);
    QCOMPARE(edited.size(), 1);
    QCOMPARE(host.warnings(), QStringList());
}

void TestFields::typedNumberCountsWhenTheFocusLeaves()
{
    ControlHost host;
    QQuickItem *field = host.load(frames + R"(TextButton { y: 50; text: "Next" })");
    QVERIFY(field);
    host.focus(field);
    host.type("99");
    host.key(Qt::Key_Tab);
    QCOMPARE(field->property("value").toInt(), 60);
    QCOMPARE(editorOf(field)->property("text").toString(), "60");
}

void TestFields::typedNumberCountsBeforeAClickOnAButton()
{
    ControlHost host;
    QQuickItem *field = host.load(QString(frames).replace("value: 12", "id: field; value: 12")
                                  + R"(TextButton { objectName: "ok"; y: 50; text: "OK"
                                       property int seen: 0; onClicked: seen = field.value })");
    QVERIFY(field);
    host.focus(field);
    host.type("24");
    host.click(host.item("ok"));
    QCOMPARE(host.item("ok")->property("seen").toInt(), 24);
}

void TestFields::escapeDropsWhatWasTyped()
{
    ControlHost host;
    QQuickItem *field = host.load(frames);
    QVERIFY(field);
    QSignalSpy edited(field, SIGNAL(edited(int)));
    host.focus(field);
    host.type("24");
    QCOMPARE(editorOf(field)->property("text").toString(), "24");
    host.key(Qt::Key_Escape);
    QCOMPARE(edited.size(), 0);
    QCOMPARE(editorOf(field)->property("text").toString(), "12");
}

void TestFields::returnAndEscapeGiveTheKeyboardBack()
{
    ControlHost host;
    QQuickItem *field =
        host.load(frames + R"(Item { objectName: "home"; Component.onCompleted: FocusHome.home = this })");
    QVERIFY(field);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape}) {
        host.focus(field);
        QVERIFY(field->hasActiveFocus());
        host.key(key);
        QVERIFY(host.item("home")->hasActiveFocus());
    }
}

void TestFields::ownerThatRefusesKeepsItsNumber()
{
    ControlHost host;
    QQuickItem *field = host.load(R"(NumberInput4 { value: 12; toolTip: "Frames" })");
    QVERIFY(field);
    QSignalSpy edited(field, SIGNAL(edited(int)));
    host.focus(field);
    host.type("24");
    host.key(Qt::Key_Return);
    QCOMPARE(edited.size(), 1);
    QCOMPARE(field->property("value").toInt(), 12);
    QCOMPARE(editorOf(field)->property("text").toString(), "12");
}

void TestFields::buttonsStepWithinTheLimits()
{
    ControlHost host;
    QQuickItem *field = host.load(QString(frames).replace("value: 12", "value: 59"));
    QVERIFY(field);
    QSignalSpy edited(field, SIGNAL(edited(int)));
    const int y = static_cast<int>(field->height()) / 2;
    const QPoint plus(static_cast<int>(field->width()) - y, y);
    QTest::mouseClick(&host.window(), Qt::LeftButton, Qt::NoModifier, plus);
    QCOMPARE(field->property("value").toInt(), 60);
    QTest::mouseClick(&host.window(), Qt::LeftButton, Qt::NoModifier, plus);
    QCOMPARE(edited.size(), 1);
    QQuickItem *editor = editorOf(field);
    const QPointF leftOfEditor = editor->mapToScene(QPointF(-y, y));
    QTest::mouseClick(&host.window(), Qt::LeftButton, Qt::NoModifier, leftOfEditor.toPoint());
    QCOMPARE(field->property("value").toInt(), 59);
}

void TestFields::heldButtonGoesOn()
{
    ControlHost host;
    QQuickItem *field = host.load(frames);
    QVERIFY(field);
    const int y = static_cast<int>(field->height()) / 2;
    const QPoint plus(static_cast<int>(field->width()) - y, y);
    QTest::mousePress(&host.window(), Qt::LeftButton, Qt::NoModifier, plus);
    QTRY_VERIFY(field->property("value").toInt() > 14);
    const int reached = field->property("value").toInt();
    QTest::mouseRelease(&host.window(), Qt::LeftButton, Qt::NoModifier, plus);
    QCOMPARE(field->property("value").toInt(), reached);
}

void TestFields::arrowKeysStep()
{
    ControlHost host;
    QQuickItem *field = host.load(frames);
    QVERIFY(field);
    host.focus(field);
    host.key(Qt::Key_Up);
    QCOMPARE(field->property("value").toInt(), 13);
    host.key(Qt::Key_PageDown);
    QCOMPARE(field->property("value").toInt(), 3);
}

void TestFields::wheelStepsOnlyWithTheFocus()
{
    ControlHost host;
    QQuickItem *field = host.load(frames);
    QVERIFY(field);
    host.wheel(editorOf(field), 1);
    QCOMPARE(field->property("value").toInt(), 12);
    host.focus(field);
    host.wheel(editorOf(field), 1);
    QCOMPARE(field->property("value").toInt(), 13);
}

void TestFields::realNumbersKeepTheirDecimals()
{
    ControlHost host;
    QQuickItem *field = host.load(R"(NumberInput5 { value: 0.5; step: 0.25; decimals: 2; toolTip: "Shift"
        onEdited: value => this.value = value })");
    QVERIFY(field);
    QSignalSpy edited(field, SIGNAL(edited(double)));
    QCOMPARE(editorOf(field)->property("text").toString(), "0.50");
    host.focus(field);
    host.type("1,456");
    host.key(Qt::Key_Return);
    QCOMPARE(field->property("value").toReal(), 1.46);
    host.key(Qt::Key_Up);
    QCOMPARE(field->property("value").toReal(), 1.71);
    QCOMPARE(edited.size(), 2);
    QCOMPARE(host.warnings(), QStringList());
}

void TestFields::numberSetByTheOwnerIsNoEdit()
{
    ControlHost host;
    QQuickItem *field = host.load(frames);
    QVERIFY(field);
    QSignalSpy edited(field, SIGNAL(edited(int)));
    field->setProperty("value", 30);
    QCOMPARE(editorOf(field)->property("text").toString(), "30");
    QCOMPARE(edited.size(), 0);
}

void TestFields::inactiveNumberTakesNothing()
{
    ControlHost host;
    QQuickItem *field = host.load(QString(frames).replace("value: 12", "active: false; value: 12"));
    QVERIFY(field);
    host.click(editorOf(field));
    QVERIFY(!editorOf(field)->hasActiveFocus());
    const int y = static_cast<int>(field->height()) / 2;
    QTest::mouseClick(&host.window(), Qt::LeftButton, Qt::NoModifier,
                      {static_cast<int>(field->width()) - y, y});
    QCOMPARE(field->property("value").toInt(), 12);
    QVERIFY(accessibleFacts(editorOf(field)).disabled);
}

void TestFields::numbersFitAtEveryFontSize_data()
{
    QTest::addColumn<int>("row");
    for (int row = 0; row <= 8; ++row)
        QTest::addRow("font index %d", row) << row;
}

void TestFields::numbersFitAtEveryFontSize()
{
    QFETCH(int, row);
    ControlHost host(row, {1500, 900});
    QQuickItem *field = host.load(R"(NumberInput5 { value: 30000; maximum: 30000; decimals: 2; suffix: "fps"
        label: "Frames per second" })");
    QVERIFY(field);
    const QQuickItem *editor = editorOf(field);
    QVERIFY2(editor->property("contentWidth").toReal() <= editor->width(), "the number fits");
    QCOMPARE(cutTexts(field), QStringList());
}

void TestFields::typedTextCountsOnReturn()
{
    ControlHost host;
    QQuickItem *field = host.load(name);
    QVERIFY(field);
    QSignalSpy edited(field, SIGNAL(edited(QString)));
    host.key(Qt::Key_Tab);
    host.type("Wolf");
    QCOMPARE(edited.size(), 0);
    host.key(Qt::Key_Return);
    QCOMPARE(edited.size(), 1);
    QCOMPARE(edited.at(0).at(0).toString(), "Wolf");
    QCOMPARE(field->property("text").toString(), "Wolf");
    QCOMPARE(host.warnings(), QStringList());
}

void TestFields::typedTextCountsWhenTheFocusLeaves()
{
    ControlHost host;
    QQuickItem *field = host.load(name + R"(TextButton { y: 50; text: "Next" })");
    QVERIFY(field);
    host.click(field);
    QVERIFY(field->hasActiveFocus());
    host.key(Qt::Key_End);
    host.type("_2");
    host.key(Qt::Key_Tab);
    QCOMPARE(field->property("text").toString(), "Puppet_2");
}

void TestFields::typedTextIsToBeSeenBeforeItCounts()
{
    ControlHost host;
    QQuickItem *field = host.load(name);
    QVERIFY(field);
    host.focus(field);
    host.type("Wo");
    QCOMPARE(field->property("typed").toString(), "Wo");
    QCOMPARE(field->property("text").toString(), "Puppet");
}

void TestFields::unchangedTextIsNoEdit()
{
    ControlHost host;
    QQuickItem *field = host.load(name);
    QVERIFY(field);
    QSignalSpy edited(field, SIGNAL(edited(QString)));
    host.focus(field);
    host.key(Qt::Key_Return);
    field->setProperty("text", "Fox");
    QCOMPARE(edited.size(), 0);
    QCOMPARE(field->property("typed").toString(), "Fox");
}

void TestFields::escapeDropsTypedText()
{
    ControlHost host;
    QQuickItem *field = host.load(name);
    QVERIFY(field);
    QSignalSpy edited(field, SIGNAL(edited(QString)));
    host.focus(field);
    host.type("Wolf");
    QCOMPARE(field->property("typed").toString(), "Wolf");
    host.key(Qt::Key_Escape);
    QCOMPARE(edited.size(), 0);
    QCOMPARE(field->property("typed").toString(), "Puppet");
}

void TestFields::textOfARefusingOwnerComesBack()
{
    ControlHost host;
    QQuickItem *field = host.load(R"(TextPropertyInput { text: "Puppet"; toolTip: "Name" })");
    QVERIFY(field);
    QSignalSpy edited(field, SIGNAL(edited(QString)));
    host.focus(field);
    host.type("Wolf");
    host.key(Qt::Key_Return);
    QCOMPARE(edited.size(), 1);
    QCOMPARE(field->property("typed").toString(), "Puppet");
    field->setProperty("text", "Fox");
    QCOMPARE(field->property("typed").toString(), "Fox");
}

void TestFields::inactiveTextTakesNothing()
{
    ControlHost host;
    QQuickItem *field = host.load(QString(name).replace("text: \"", "active: false; text: \""));
    QVERIFY(field);
    host.click(field);
    host.key(Qt::Key_Tab);
    QVERIFY(!editorOf(field)->hasActiveFocus());
    QVERIFY(accessibleFacts(editorOf(field)).disabled);
}

void TestFields::placeholderStandsInAnEmptyField()
{
    ControlHost host;
    QQuickItem *field = host.load(R"(TextPropertyInput { placeholder: "Name of the project" })");
    QVERIFY(field);
    const QImage withPlaceholder = host.window().grabWindow();
    field->setProperty("placeholder", "");
    QVERIFY(host.window().grabWindow() != withPlaceholder);
}

void TestFields::assistiveProgramsAreToldOfFields()
{
    ControlHost host;
    QQuickItem *number = host.load(frames);
    QVERIFY(number);
    const AccessibleFacts facts = accessibleFacts(editorOf(number));
    QCOMPARE(facts.name, "Frames");
    QCOMPARE(facts.role, int(QAccessible::SpinBox));
    QVERIFY(facts.focusable);
    ControlHost other;
    QQuickItem *text = other.load(name);
    QVERIFY(text);
    QCOMPARE(accessibleFacts(editorOf(text)).name, "Name");
    QCOMPARE(accessibleFacts(editorOf(text)).role, int(QAccessible::EditableText));
}

QTEST_MAIN(TestFields)

#include "tst_fields.moc"
