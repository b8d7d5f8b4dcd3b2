#include "ui/controls/ControlHost.h"

#include <QAccessible>
#include <QSignalSpy>
#include <QtTest>

/// DialogPane, ConfirmDialog, Pane and EmptyState in a window.
class TestDialogs : public QObject
{
    Q_OBJECT

private slots:
    void dialogIsAsWideAsDialogsAre();
    void dialogIsAsTallAsItsContent();
    void dialogNeverOutgrowsItsWindow_data();
    void dialogNeverOutgrowsItsWindow();
    void longContentScrolls();
    void dialogScrollsToTheControlWithTheKeyboard();
    void manyButtonsBreakIntoLines();
    void dialogKeepsClicksFromWhatLiesBehind();
    void confirmButtonsAnswer();
    void globalConfirmConfirms();
    void hiddenQuestionDoesNotAnswer();
    void questionIsToldToAssistivePrograms();
    void confirmTextsFitAtEveryFontSize_data();
    void confirmTextsFitAtEveryFontSize();
    void paneHoldsItsContentBelowATitle();
    void emptyStateShowsItsButtons();
};

namespace {

const QString question = R"(ConfirmDialog { title: "Sure?"; okText: "Save"; cancelText: "Discard"
    question: "The project has changes that are not saved." })";

QString longDialog(int rows)
{
    return QString(R"(DialogPane { title: "Long"; buttons: TextButton { objectName: "ok"; text: "OK" }
        Repeater { model: %1; CheckButton { objectName: "check" + index; text: "Row " + index } } })")
        .arg(rows);
}

} // namespace

void TestDialogs::dialogIsAsWideAsDialogsAre()
{
    ControlHost host;
    QQuickItem *dialog = host.load(longDialog(2));
    QVERIFY(dialog);
    QCOMPARE(dialog->width(), 46.0 * 13);
    QCOMPARE(host.warnings(), QStringList());
}

void TestDialogs::dialogIsAsTallAsItsContent()
{
    ControlHost host;
    QQuickItem *two = host.load(longDialog(2));
    QVERIFY(two);
    const qreal height = two->height();
    QVERIFY(sceneRect(host.item("check1")).bottom() < sceneRect(host.item("ok")).top());
    ControlHost other;
    QQuickItem *three = other.load(longDialog(3));
    QVERIFY(three);
    QVERIFY(three->height() > height);
}

void TestDialogs::dialogNeverOutgrowsItsWindow_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QSize>("window");
    QTest::newRow("font index 0") << 0 << QSize(1024, 600);
    QTest::newRow("font index 8") << 8 << QSize(1024, 600);
    QTest::newRow("small window") << 1 << QSize(400, 300);
}

void TestDialogs::dialogNeverOutgrowsItsWindow()
{
    QFETCH(int, row);
    QFETCH(QSize, window);
    ControlHost host(row, window);
    QQuickItem *dialog = host.load(longDialog(60));
    QVERIFY(dialog);
    QVERIFY(dialog->height() < window.height());
    QVERIFY(dialog->width() < window.width());
    QVERIFY(QRectF(QPointF(), dialog->size()).contains(sceneRect(host.item("ok"))));
}

void TestDialogs::longContentScrolls()
{
    ControlHost host;
    QQuickItem *dialog = host.load(longDialog(60));
    QVERIFY(dialog);
    QQuickItem *first = host.item("check0");
    const qreal before = sceneRect(first).y();
    host.wheel(dialog, -3);
    QTRY_VERIFY(sceneRect(first).y() < before);
    ControlHost other;
    QVERIFY(other.load(longDialog(2)));
    const qreal still = sceneRect(other.item("check0")).y();
    other.wheel(other.item("check1"), -3);
    QTest::qWait(50);
    QCOMPARE(sceneRect(other.item("check0")).y(), still);
}

void TestDialogs::dialogScrollsToTheControlWithTheKeyboard()
{
    ControlHost host;
    QQuickItem *dialog = host.load(longDialog(60));
    QVERIFY(dialog);
    for (const char *name : {"check59", "check0", "check30"}) {
        host.focus(host.item(name));
        const QRectF seen = sceneRect(host.item(name));
        QVERIFY2(seen.top() >= 39 && seen.bottom() <= sceneRect(host.item("ok")).top(), name);
    }
    QCOMPARE(host.warnings(), QStringList());
}

void TestDialogs::manyButtonsBreakIntoLines()
{
    ControlHost host(1, {500, 400});
    QQuickItem *dialog = host.load(R"(DialogPane { title: "Many"
        buttons: [ TextButton { objectName: "first"; text: "Save and close the project" },
                   TextButton { text: "Close the project without saving" },
                   TextButton { objectName: "last"; text: "Go back to the project" } ] })");
    QVERIFY(dialog);
    for (const char *name : {"first", "last"})
        QVERIFY2(QRectF(QPointF(), dialog->size()).contains(sceneRect(host.item(name))), name);
    QCOMPARE(cutTexts(dialog), QStringList());
}

void TestDialogs::dialogKeepsClicksFromWhatLiesBehind()
{
    ControlHost host;
    QVERIFY(host.load(R"(MouseArea { objectName: "behind"; anchors.fill: parent; property int clicks: 0
        onClicked: ++clicks }
        DialogPane { objectName: "dialog"; title: "Front" })"));
    host.click(host.item("dialog"));
    QCOMPARE(host.item("behind")->property("clicks").toInt(), 0);
}

void TestDialogs::confirmButtonsAnswer()
{
    ControlHost host;
    QQuickItem *dialog = host.load(question);
    QVERIFY(dialog);
    QSignalSpy confirmed(dialog, SIGNAL(confirmed()));
    QSignalSpy refused(dialog, SIGNAL(refused()));
    host.key(Qt::Key_Tab);
    host.key(Qt::Key_Space);
    QCOMPARE(refused.size(), 1);
    QCOMPARE(confirmed.size(), 0);
    host.key(Qt::Key_Tab);
    host.key(Qt::Key_Return);
    QCOMPARE(refused.size(), 1);
    QCOMPARE(confirmed.size(), 1);
    QCOMPARE(host.warnings(), QStringList());
}

void TestDialogs::globalConfirmConfirms()
{
    ControlHost host;
    QQuickItem *dialog = host.load(question);
    QVERIFY(dialog);
    QSignalSpy confirmed(dialog, SIGNAL(confirmed()));
    emit host.global().globalConfirm();
    QCOMPARE(confirmed.size(), 1);
}

void TestDialogs::hiddenQuestionDoesNotAnswer()
{
    ControlHost host;
    QQuickItem *dialog = host.load(question);
    QVERIFY(dialog);
    QSignalSpy confirmed(dialog, SIGNAL(confirmed()));
    dialog->setVisible(false);
    emit host.global().globalConfirm();
    QCOMPARE(confirmed.size(), 0);
}

void TestDialogs::questionIsToldToAssistivePrograms()
{
    ControlHost host;
    QQuickItem *dialog = host.load(R"(ConfirmDialog { question: "Really?" })");
    QVERIFY(dialog);
    QCOMPARE(accessibleFacts(dialog).name, "Really?");
    QCOMPARE(accessibleFacts(dialog).role, int(QAccessible::Dialog));
}

void TestDialogs::confirmTextsFitAtEveryFontSize_data()
{
    QTest::addColumn<int>("row");
    for (int row = 0; row <= 8; ++row)
        QTest::addRow("font index %d", row) << row;
}

void TestDialogs::confirmTextsFitAtEveryFontSize()
{
    QFETCH(int, row);
    ControlHost host(row, {1024, 600});
    QQuickItem *dialog = host.load(question);
    QVERIFY(dialog);
    QCOMPARE(cutTexts(dialog), QStringList());
}

void TestDialogs::paneHoldsItsContentBelowATitle()
{
    ControlHost host;
    QQuickItem *pane = host.load(R"(Pane { title: "Sound"; TextLabel { objectName: "a"; text: "One" }
        TextLabel { objectName: "b"; text: "Two" } })");
    QVERIFY(pane);
    QCOMPARE(pane->width(), 30.0 * 13);
    QVERIFY(sceneRect(host.item("a")).bottom() <= sceneRect(host.item("b")).top());
    QVERIFY(QRectF(QPointF(), pane->size()).contains(sceneRect(host.item("b"))));
    const qreal titled = pane->height();
    pane->setProperty("title", "");
    QTRY_VERIFY(pane->height() < titled);
    QCOMPARE(host.warnings(), QStringList());
}

void TestDialogs::emptyStateShowsItsButtons()
{
    for (const int row : {0, 8}) {
        ControlHost host(row, {1024, 900});
        QQuickItem *state = host.load(R"(EmptyState { anchors.fill: parent; icon: "svgicons/film.svg"
            title: "No Frames"; text: "Capture a frame, or add pictures from files."
            TextButton { objectName: "add"; text: "Add"; property int clicks: 0; onClicked: ++clicks } })");
        QVERIFY(state);
        host.click(host.item("add"));
        QCOMPARE(host.item("add")->property("clicks").toInt(), 1);
        QCOMPARE(cutTexts(state), QStringList());
        QCOMPARE(accessibleFacts(state).name, "No Frames");
        QCOMPARE(host.warnings(), QStringList());
    }
}

QTEST_MAIN(TestDialogs)

#include "tst_dialogs.moc"
