#include "ui/controls/ControlHost.h"

#include <QtTest>

class TestButtons : public QObject
{
    Q_OBJECT

private slots:
    void all();
};

void TestButtons::all()
{
    ControlHost host;
    QQuickItem *first = host.load(R"(
        Column { spacing: 8; x: 20; y: 20
        IconButton { icon: "svgicons/add.svg"; toolTip: "Add" }
        TextButton { text: "Text" }
        TextButton { text: "Text"; toggled: true }
        TextButton { text: "Text"; active: false }
        TabButton { text: "Tab"; toggled: true }
        CheckButton { text: "Check"; checked: true }
        ChoiceRow { model: ["One", "Two", "Three"]; currentIndex: 1 }
        NumberInput4 { value: 5; label: "Frames" ; suffix: "fps"}
        NumberInput5 { value: 5; label: "Frames" }
        TextPropertyInput { placeholder: "Name" }
        ConfirmDialog { title: "Sure?"; question: "Really?" }
        }
    )");
    QVERIFY(first);
    QTest::qWait(300);
    host.window().grabWindow().save("/tmp/controls-first.png");
    QCOMPARE(host.warnings(), QStringList());
}

QTEST_MAIN(TestButtons)

#include "tst_buttons.moc"
