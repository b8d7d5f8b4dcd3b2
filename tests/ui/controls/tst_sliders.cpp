#include "ui/controls/ControlHost.h"

#include <QAccessible>
#include <QSignalSpy>
#include <QtTest>

/// SliderNew, Scrollbar and ColorChooser in a window.
class TestSliders : public QObject
{
    Q_OBJECT

private slots:
    void dragAsksAtEveryStep();
    void sliderOfARefusingOwnerSpringsBack();
    void tabComesToTheSliderAndKeysMoveIt();
    void doubleClickGivesTheDefault();
    void wheelMovesTheSliderUnlessItNeedsTheFocus();
    void sliderSetByTheOwnerIsNoMove();
    void inactiveSliderTakesNothing();
    void sliderIsToldToAssistivePrograms();
    void sliderTextsFitAtEveryFontSize_data();
    void sliderTextsFitAtEveryFontSize();
    void scrollbarHidesWhileEverythingFits();
    void scrollbarDragScrolls();
    void scrollbarScrollsByKeys();
    void lyingScrollbarScrollsSideways();
    void colourIsChosenByClickingTheSquare();
    void colourIsChosenByKeys();
    void greyKeepsTheHueOfTheStrip();
    void colourIsChosenByItsCode_data();
    void colourIsChosenByItsCode();
    void inactiveChooserTakesNothing();
    void chooserIsToldToAssistivePrograms();

private:
    static QList<QQuickItem *> itemsOfType(QQuickItem *top, const QByteArray &type);
};

QList<QQuickItem *> TestSliders::itemsOfType(QQuickItem *top, const QByteArray &type)
{
    QList<QQuickItem *> found;
    if (QByteArray(top->metaObject()->className()).startsWith(type))
        found.append(top);
    const QList<QQuickItem *> children = top->childItems();
    for (QQuickItem *child : children)
        found.append(itemsOfType(child, type));
    return found;
}

namespace {

const QString opacity =
    R"(SliderNew { width: 300; value: 40; defaultValue: 100; label: "Live View"; suffix: " %"
    toolTip: "Opacity of the live view"; onMoved: value => this.value = value })";

const QString longList =
    R"(Flickable { id: view; width: 200; height: 100; contentWidth: 600; contentHeight: 400 }
    Scrollbar { objectName: "bar"; x: 200; height: 100; flickable: view }
    Scrollbar { objectName: "lying"; y: 100; width: 200; vertical: false; flickable: view })";

const QString chooser = R"(ColorChooser { width: 200; color: "#804020"; onChosen: value => color = value })";

} // namespace

void TestSliders::dragAsksAtEveryStep()
{
    ControlHost host;
    QQuickItem *slider = host.load(opacity);
    QVERIFY(slider);
    QQuickItem *track = itemsOfType(slider, "ASlider").constFirst();
    QSignalSpy moved(slider, SIGNAL(moved(double)));
    const QPoint middle = host.centreOf(track);
    QTest::mousePress(&host.window(), Qt::LeftButton, Qt::NoModifier, middle);
    QCOMPARE(slider->property("value").toReal(), 50.0);
    QTest::mouseMove(&host.window(), middle + QPoint(500, 0));
    QCOMPARE(slider->property("value").toReal(), 100.0);
    QTest::mouseRelease(&host.window(), Qt::LeftButton, Qt::NoModifier, middle + QPoint(500, 0));
    QCOMPARE(moved.size(), 2);
    QCOMPARE(host.warnings(), QStringList());
}

void TestSliders::sliderOfARefusingOwnerSpringsBack()
{
    ControlHost host;
    QQuickItem *slider = host.load(R"(SliderNew { width: 300; value: 40; toolTip: "Opacity" })");
    QVERIFY(slider);
    QQuickItem *track = itemsOfType(slider, "ASlider").constFirst();
    QSignalSpy moved(slider, SIGNAL(moved(double)));
    QTest::mousePress(&host.window(), Qt::LeftButton, Qt::NoModifier, host.centreOf(track));
    QCOMPARE(track->property("value").toReal(), 50.0);
    QTest::mouseRelease(&host.window(), Qt::LeftButton, Qt::NoModifier, host.centreOf(track));
    QCOMPARE(moved.size(), 1);
    QCOMPARE(track->property("value").toReal(), 40.0);
    host.focus(slider);
    host.key(Qt::Key_Right);
    QCOMPARE(moved.size(), 2);
    QCOMPARE(track->property("value").toReal(), 40.0);
}

void TestSliders::tabComesToTheSliderAndKeysMoveIt()
{
    ControlHost host;
    QQuickItem *slider = host.load(opacity);
    QVERIFY(slider);
    const QImage before = host.window().grabWindow();
    host.key(Qt::Key_Tab);
    QVERIFY(slider->hasActiveFocus());
    QVERIFY2(host.window().grabWindow() != before, "the focus is to be seen");
    host.key(Qt::Key_Right);
    QCOMPARE(slider->property("value").toReal(), 41.0);
    host.key(Qt::Key_Home);
    QCOMPARE(slider->property("value").toReal(), 0.0);
}

void TestSliders::doubleClickGivesTheDefault()
{
    ControlHost host;
    QQuickItem *slider = host.load(opacity);
    QVERIFY(slider);
    QTest::mouseDClick(&host.window(), Qt::LeftButton, Qt::NoModifier,
                       host.centreOf(itemsOfType(slider, "ASlider").constFirst()));
    QCOMPARE(slider->property("value").toReal(), 100.0);
}

void TestSliders::wheelMovesTheSliderUnlessItNeedsTheFocus()
{
    ControlHost host;
    QQuickItem *slider = host.load(opacity);
    QVERIFY(slider);
    QQuickItem *track = itemsOfType(slider, "ASlider").constFirst();
    host.wheel(track, -1);
    QCOMPARE(slider->property("value").toReal(), 39.0);
    slider->setProperty("wheelWithoutFocus", false);
    host.wheel(track, -1);
    QCOMPARE(slider->property("value").toReal(), 39.0);
    host.focus(slider);
    host.wheel(track, -1);
    QCOMPARE(slider->property("value").toReal(), 38.0);
}

void TestSliders::sliderSetByTheOwnerIsNoMove()
{
    ControlHost host;
    QQuickItem *slider = host.load(opacity);
    QVERIFY(slider);
    QSignalSpy moved(slider, SIGNAL(moved(double)));
    slider->setProperty("value", 70);
    QCOMPARE(itemsOfType(slider, "ASlider").constFirst()->property("value").toReal(), 70.0);
    QCOMPARE(moved.size(), 0);
}

void TestSliders::inactiveSliderTakesNothing()
{
    ControlHost host;
    QQuickItem *slider = host.load(opacity);
    QVERIFY(slider);
    QQuickItem *track = itemsOfType(slider, "ASlider").constFirst();
    const QImage active = host.window().grabWindow();
    slider->setProperty("active", false);
    QVERIFY(host.window().grabWindow() != active);
    host.click(track);
    host.wheel(track, 1);
    host.key(Qt::Key_Tab);
    host.key(Qt::Key_Right);
    QCOMPARE(slider->property("value").toReal(), 40.0);
    QVERIFY(accessibleFacts(track).disabled);
}

void TestSliders::sliderIsToldToAssistivePrograms()
{
    ControlHost host;
    QQuickItem *slider = host.load(opacity);
    QVERIFY(slider);
    const AccessibleFacts facts = accessibleFacts(itemsOfType(slider, "ASlider").constFirst());
    QCOMPARE(facts.name, "Live View");
    QCOMPARE(facts.role, int(QAccessible::Slider));
    QCOMPARE(facts.description, "40 %");
    QVERIFY(facts.focusable);
}

void TestSliders::sliderTextsFitAtEveryFontSize_data()
{
    QTest::addColumn<int>("row");
    for (int row = 0; row <= 8; ++row)
        QTest::addRow("font index %d", row) << row;
}

void TestSliders::sliderTextsFitAtEveryFontSize()
{
    QFETCH(int, row);
    ControlHost host(row, {1500, 900});
    QQuickItem *slider =
        host.load(R"(SliderNew { value: 100; label: "Live View"; suffix: " %"; toolTip: "Opacity" })");
    QVERIFY(slider);
    QCOMPARE(cutTexts(slider), QStringList());
    const QQuickItem *track = itemsOfType(slider, "ASlider").constFirst();
    const QList<QQuickItem *> texts = itemsOfType(slider, "TextLabel");
    QCOMPARE(texts.size(), 2);
    QVERIFY(texts.at(0)->x() + texts.at(0)->width() <= track->x());
    QVERIFY(track->x() + track->width() <= texts.at(1)->x());
}

void TestSliders::scrollbarHidesWhileEverythingFits()
{
    ControlHost host;
    QQuickItem *view = host.load(longList);
    QVERIFY(view);
    QVERIFY(host.item("bar")->isVisible());
    view->setProperty("contentHeight", 100);
    QVERIFY(!host.item("bar")->isVisible());
    QCOMPARE(host.item("bar")->implicitWidth(), 0.0);
    QVERIFY(host.item("lying")->isVisible());
    QCOMPARE(host.warnings(), QStringList());
}

void TestSliders::scrollbarDragScrolls()
{
    ControlHost host;
    QQuickItem *view = host.load(longList);
    QVERIFY(view);
    QTest::mousePress(&host.window(), Qt::LeftButton, Qt::NoModifier, {206, 5});
    QCOMPARE(view->property("contentY").toReal(), 0.0);
    QTest::mouseMove(&host.window(), {206, 42});
    QVERIFY(view->property("contentY").toReal() > 100);
    QTest::mouseMove(&host.window(), {206, 300});
    QCOMPARE(view->property("contentY").toReal(), 300.0);
    QTest::mouseRelease(&host.window(), Qt::LeftButton, Qt::NoModifier, {206, 300});
    QTest::mouseClick(&host.window(), Qt::LeftButton, Qt::NoModifier, {206, 2});
    QCOMPARE(view->property("contentY").toReal(), 0.0);
}

void TestSliders::scrollbarScrollsByKeys()
{
    ControlHost host;
    QQuickItem *view = host.load(longList);
    QVERIFY(view);
    host.key(Qt::Key_Tab);
    QVERIFY(host.item("bar")->hasActiveFocus());
    const QList<QPair<Qt::Key, qreal>> presses{
        {Qt::Key_Down, 26},    {Qt::Key_PageDown, 126}, {Qt::Key_End, 300}, {Qt::Key_Up, 274},
        {Qt::Key_PageUp, 174}, {Qt::Key_Home, 0},       {Qt::Key_Right, 0}};
    for (const auto &[key, expected] : presses) {
        host.key(key);
        QCOMPARE(view->property("contentY").toReal(), expected);
    }
    QCOMPARE(accessibleFacts(host.item("bar")).role, int(QAccessible::ScrollBar));
    QVERIFY(!accessibleFacts(host.item("bar")).name.isEmpty());
}

void TestSliders::lyingScrollbarScrollsSideways()
{
    ControlHost host;
    QQuickItem *view = host.load(longList);
    QVERIFY(view);
    host.focus(host.item("lying"));
    host.key(Qt::Key_Right);
    QCOMPARE(view->property("contentX").toReal(), 26.0);
    QTest::mouseClick(&host.window(), Qt::LeftButton, Qt::NoModifier, {199, 106});
    QCOMPARE(view->property("contentX").toReal(), 400.0);
    QCOMPARE(view->property("contentY").toReal(), 0.0);
}

void TestSliders::colourIsChosenByClickingTheSquare()
{
    ControlHost host;
    QQuickItem *control = host.load(chooser);
    QVERIFY(control);
    const QList<QQuickItem *> fields = itemsOfType(control, "ColorField");
    QCOMPARE(fields.size(), 2);
    QSignalSpy chosen(control, SIGNAL(chosen(QColor)));
    host.click(fields.at(0));
    QCOMPARE(chosen.size(), 1);
    QColor color = control->property("color").value<QColor>();
    QVERIFY(qAbs(color.hsvSaturationF() - 0.5F) < 0.02F);
    QVERIFY(qAbs(color.valueF() - 0.5F) < 0.02F);
    QVERIFY(qAbs(color.hueF() - QColor("#804020").hueF()) < 0.02F);
    host.click(fields.at(1));
    color = control->property("color").value<QColor>();
    QVERIFY(qAbs(color.hueF() - 0.5F) < 0.02F);
    QVERIFY(qAbs(color.valueF() - 0.5F) < 0.02F);
    QCOMPARE(host.warnings(), QStringList());
}

void TestSliders::colourIsChosenByKeys()
{
    ControlHost host;
    QQuickItem *control = host.load(chooser);
    QVERIFY(control);
    const QColor before = control->property("color").value<QColor>();
    host.key(Qt::Key_Tab);
    host.key(Qt::Key_Up);
    QVERIFY(control->property("color").value<QColor>().valueF() > before.valueF());
    host.key(Qt::Key_Down);
    host.key(Qt::Key_Right);
    QVERIFY(control->property("color").value<QColor>().hsvSaturationF() > before.hsvSaturationF());
    host.key(Qt::Key_Left);
    host.key(Qt::Key_Tab);
    host.key(Qt::Key_Right);
    QVERIFY(control->property("color").value<QColor>().hueF() > before.hueF());
}

void TestSliders::greyKeepsTheHueOfTheStrip()
{
    ControlHost host;
    QQuickItem *control = host.load(chooser);
    QVERIFY(control);
    const qreal hue = control->property("hue").toReal();
    QVERIFY(hue > 0);
    control->setProperty("color", QColor("#808080"));
    QCOMPARE(control->property("hue").toReal(), hue);
}

void TestSliders::colourIsChosenByItsCode_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("expected");
    QTest::newRow("six digits") << "#1854dd"
                                << "#1854dd";
    QTest::newRow("without the sign") << "1854DD"
                                      << "#1854dd";
    QTest::newRow("three digits") << "#f90"
                                  << "#ff9900";
    QTest::newRow("a word") << "orange"
                            << "#804020";
    QTest::newRow("four digits") << "#1234"
                                 << "#804020";
    QTest::newRow("empty") << ""
                           << "#804020";
}

void TestSliders::colourIsChosenByItsCode()
{
    QFETCH(QString, typed);
    QFETCH(QString, expected);
    ControlHost host;
    QQuickItem *control = host.load(chooser);
    QVERIFY(control);
    host.focus(itemsOfType(control, "TextPropertyInput").constFirst());
    host.key(Qt::Key_Delete);
    host.type(typed);
    host.key(Qt::Key_Return);
    QCOMPARE(control->property("color").value<QColor>().name(), expected);
    QCOMPARE(itemsOfType(control, "TextPropertyInput").constFirst()->property("typed").toString(), expected);
}

void TestSliders::inactiveChooserTakesNothing()
{
    ControlHost host;
    QQuickItem *control = host.load(QString(chooser).replace("width", "active: false; width"));
    QVERIFY(control);
    QSignalSpy chosen(control, SIGNAL(chosen(QColor)));
    for (const QQuickItem *field : itemsOfType(control, "ColorField"))
        host.click(field);
    QCOMPARE(chosen.size(), 0);
}

void TestSliders::chooserIsToldToAssistivePrograms()
{
    ControlHost host;
    QQuickItem *control = host.load(chooser);
    QVERIFY(control);
    const QList<QQuickItem *> fields = itemsOfType(control, "ColorField");
    QCOMPARE(accessibleFacts(fields.at(0)).name, "Saturation and brightness");
    QCOMPARE(accessibleFacts(fields.at(1)).name, "Hue");
    QCOMPARE(accessibleFacts(itemsOfType(control, "QQuickTextInput").constFirst()).name, "Color code");
}

QTEST_MAIN(TestSliders)

#include "tst_sliders.moc"
