#include "ui/controls/ControlHost.h"

#include <QAccessible>
#include <QtTest>

/// PopupMessage, BusySign, ProgressLine and TextLabel in a window, and all controls together.
class TestSigns : public QObject
{
    Q_OBJECT

private slots:
    void popupStaysTwoAndAHalfSecondsByDefault();
    void popupShowsAndFades();
    void newPopupReplacesTheOldOne();
    void popupStaysInTheWindow();
    void busySignIsSeenWhileRunning();
    void progressLineShowsTheShare_data();
    void progressLineShowsTheShare();
    void unknownProgressWanders();
    void labelIsCutOrWraps();
    void labelTakesTextAsItIs();
    void allControlsLoadAtEveryFontSize_data();
    void allControlsLoadAtEveryFontSize();
};

void TestSigns::popupStaysTwoAndAHalfSecondsByDefault()
{
    ControlHost host;
    QQuickItem *popup = host.load("PopupMessage {}");
    QVERIFY(popup);
    QCOMPARE(popup->property("stayMs").toInt(), 2500);
    QVERIFY(!popup->isVisible());
}

void TestSigns::popupShowsAndFades()
{
    ControlHost host;
    QQuickItem *popup = host.load("PopupMessage { stayMs: 100 }");
    QVERIFY(popup);
    QMetaObject::invokeMethod(popup, "show", Q_ARG(QVariant, "Return to normal state [F9]"));
    QTRY_VERIFY(popup->isVisible());
    QCOMPARE(accessibleFacts(popup).name, "Return to normal state [F9]");
    QCOMPARE(accessibleFacts(popup).role, int(QAccessible::AlertMessage));
    QTRY_VERIFY(!popup->isVisible());
    QCOMPARE(host.warnings(), QStringList());
}

void TestSigns::newPopupReplacesTheOldOne()
{
    ControlHost host;
    QQuickItem *popup = host.load("PopupMessage {}");
    QVERIFY(popup);
    QMetaObject::invokeMethod(popup, "show", Q_ARG(QVariant, "One"));
    QMetaObject::invokeMethod(popup, "show", Q_ARG(QVariant, "Two"));
    QCOMPARE(accessibleFacts(popup).name, "Two");
    QTRY_VERIFY(popup->isVisible());
    QMetaObject::invokeMethod(popup, "hide");
    QTRY_VERIFY(!popup->isVisible());
}

void TestSigns::popupStaysInTheWindow()
{
    for (const int row : {0, 8}) {
        ControlHost host(row, {1024, 600});
        QQuickItem *popup = host.load("PopupMessage {}");
        QVERIFY(popup);
        QMetaObject::invokeMethod(popup, "show",
                                  Q_ARG(QVariant, QString("A text that goes on and on. ").repeated(5)));
        const QRectF window(QPointF(), host.root()->size());
        QTRY_VERIFY(window.contains(QRectF(popup->position(), popup->size())));
        QCOMPARE(cutTexts(popup), QStringList());
    }
}

void TestSigns::busySignIsSeenWhileRunning()
{
    ControlHost host;
    QQuickItem *sign = host.load("BusySign {}");
    QVERIFY(sign);
    QVERIFY(!sign->isVisible());
    sign->setProperty("running", true);
    QVERIFY(sign->isVisible());
    const qreal before = sign->rotation();
    QTRY_VERIFY(sign->rotation() != before);
    QVERIFY(!accessibleFacts(sign).name.isEmpty());
    QCOMPARE(host.warnings(), QStringList());
}

void TestSigns::progressLineShowsTheShare_data()
{
    QTest::addColumn<qreal>("total");
    QTest::addColumn<qreal>("current");
    QTest::addColumn<qreal>("width");
    QTest::addColumn<QString>("told");
    QTest::newRow("nothing to do") << 0.0 << 0.0 << 0.0 << "0 %";
    QTest::newRow("a part") << 8.0 << 3.0 << 75.0 << "37 %";
    QTest::newRow("all") << 8.0 << 8.0 << 200.0 << "100 %";
    QTest::newRow("more than all") << 8.0 << 9.0 << 200.0 << "100 %";
    QTest::newRow("less than nothing") << 8.0 << -1.0 << 0.0 << "0 %";
}

void TestSigns::progressLineShowsTheShare()
{
    QFETCH(qreal, total);
    QFETCH(qreal, current);
    QFETCH(qreal, width);
    QFETCH(QString, told);
    ControlHost host;
    QQuickItem *line = host.load("ProgressLine { width: 200 }");
    QVERIFY(line);
    line->setProperty("total", total);
    line->setProperty("current", current);
    QCOMPARE(line->childItems().constFirst()->width(), width);
    const AccessibleFacts facts = accessibleFacts(line);
    QCOMPARE(facts.role, int(QAccessible::ProgressBar));
    QCOMPARE(facts.description, told);
}

void TestSigns::unknownProgressWanders()
{
    ControlHost host;
    QQuickItem *line = host.load("ProgressLine { width: 200; indeterminate: true }");
    QVERIFY(line);
    const QQuickItem *piece = line->childItems().at(1);
    const qreal before = piece->x();
    QTRY_VERIFY(piece->x() != before);
    QCOMPARE(accessibleFacts(line).description, "");
    QCOMPARE(host.warnings(), QStringList());
}

void TestSigns::labelIsCutOrWraps()
{
    ControlHost host;
    QQuickItem *label = host.load(R"(TextLabel { text: "A text of several words"; width: 60 })");
    QVERIFY(label);
    QCOMPARE(cutTexts(label), QStringList("A text of several words"));
    const qreal oneLine = label->height();
    label->setProperty("wrapMode", 4);
    QCOMPARE(cutTexts(label), QStringList());
    QVERIFY(label->height() > oneLine);
    const int size = label->property("font").value<QFont>().pixelSize();
    label->setProperty("small", true);
    QVERIFY(label->property("font").value<QFont>().pixelSize() < size);
    const QColor bright = label->property("color").value<QColor>();
    label->setProperty("dim", true);
    QVERIFY(label->property("color").value<QColor>().lightness() < bright.lightness());
}

void TestSigns::labelTakesTextAsItIs()
{
    ControlHost host;
    QQuickItem *label = host.load(R"(TextLabel { text: "<b>a</b>" })");
    QVERIFY(label);
    const qreal width = label->implicitWidth();
    label->setProperty("text", "a");
    QVERIFY(label->implicitWidth() < width);
}

void TestSigns::allControlsLoadAtEveryFontSize_data()
{
    QTest::addColumn<int>("row");
    for (int row = 0; row <= 8; ++row)
        QTest::addRow("font index %d", row) << row;
}

/// With MORVANE_GALLERY set to a folder, leaves a picture of each there.
void TestSigns::allControlsLoadAtEveryFontSize()
{
    QFETCH(int, row);
    QFile file(":/Gallery.qml");
    QVERIFY(file.open(QFile::ReadOnly));
    ControlHost host(row, {1580, 980});
    QQuickItem *gallery = host.load(QString::fromUtf8(file.readAll()).remove("import QtQuick"));
    QVERIFY(gallery);
    host.focus(host.item("focused"));
    if (const QString folder = qEnvironmentVariable("MORVANE_GALLERY"); !folder.isEmpty()) {
        const int pages = row < 4 ? 1 : 3;
        for (int page = 0; page < pages; ++page) {
            gallery->setX(-page * 1500);
            QVERIFY(host.window().grabWindow().save(
                QString("%1/controls-%2-%3.png").arg(folder).arg(row).arg(page)));
        }
    }
    QCOMPARE(cutTexts(gallery), QStringList());
    QCOMPARE(host.warnings(), QStringList());
}

QTEST_MAIN(TestSigns)

#include "tst_signs.moc"
