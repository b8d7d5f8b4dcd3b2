#include "support/PublishedConstants.h"
#include "support/ShellWindow.h"

#include <qqml.h>
#include <QPainterPath>
#include <QPolygon>
#include <QPolygonF>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QTest>

/// What the scene finds when it loads: types, objects, and sizes and constants by name.
class TestSceneValues : public QObject
{
    Q_OBJECT

private slots:
    void typesAreRegisteredInTheirOrder();
    void metaTypesAreRegistered();
    void sizesByFontIndex_data();
    void sizesByFontIndex();
    void sizesByDensity_data();
    void sizesByDensity();
    void fontIndexOutOfRangeFallsBackToTheDensity_data();
    void fontIndexOutOfRangeFallsBackToTheDensity();
    void constantsReachTheScene();
    void objectsReachTheScene();
    void timelineScaleIsAtMostWhole_data();
    void timelineScaleIsAtMostWhole();

private:
    static void compareSizes(ShellWindow &shell, int row);
};

namespace {

struct Row
{
    int normal;
    int smaller;
    int padding;
    int lineWidth;
};

const QList<Row> rows{{13, 11, 8, 2}, {13, 11, 2, 2}, {14, 12, 0, 3}, {18, 16, 4, 3}, {21, 19, 8, 3},
                      {26, 24, 8, 3}, {31, 29, 8, 3}, {41, 38, 8, 3}, {51, 47, 8, 3}};

} // namespace

void TestSceneValues::compareSizes(ShellWindow &shell, int row)
{
    const auto [n, s, padding, lineWidth] = rows.at(row);
    QList<std::pair<QString, int>> expected{
        {"DefFontSizeNormal", n},
        {"DefFontSizeSmaler", s},
        {"DefFontSizeNormal_TwoThirds", int(0.66 * n)},
        {"DefFontSizeNormal_Pltr", int(1.5 * n)},
        {"DefFontSizeBigger", int(1.5 * n)},
        {"DefFontSizeNormal_SevenEighths", int(1.75 * n)},
        {"DefFontSizeNormal_x2Half", int(2.5 * n)},
        {"DefFontSizeNormal_x3Half", 3 * n},
        {"DefFontSizeSmaler_2", 2 * s},
        {"DefFontSizeEvenSmaler", int(0.9 * s)},
        {"DefFontSizeMicro", n / 2},
        {"DefFontSizeNano", n / 3},
        {"DefFontSizePico", n / 4},
        {"DialogWidth", 46 * n},
        {"scrollBarW", n},
        {"RenderPanH", 25 * n},
        {"ControlsPanesBoxW", 30 * n},
        {"HPadding", padding},
        {"lineWidth", lineWidth},
    };
    for (int k = 2; k <= 22; ++k)
        expected.append({QString("DefFontSizeNormal_x%1").arg(k), k * n});
    for (const auto &[name, value] : expected) {
        bool isNumber = false;
        const int seen = shell.evaluate(name).toInt(&isNumber);
        QVERIFY2(isNumber, qPrintable(name));
        QVERIFY2(seen == value, qPrintable(QString("%1 is %2, not %3").arg(name).arg(seen).arg(value)));
    }
    QCOMPARE(shell.evaluate("DpiScale").toDouble(), n / 13.0);
    QCOMPARE(shell.window().dpiScale(), n / 13.0);
    QCOMPARE(Zum::dpiScale(), n / 13.0);
    QCOMPARE(shell.window().scaledThumbSize(), QSizeF(90, 60) * (n / 13.0));
    QCOMPARE(shell.window().timelineH(), qMax(qMin(760 / 2, 18 * n), 14 * n));
}

void TestSceneValues::typesAreRegisteredInTheirOrder()
{
    ShellWindow shell;
    int before = -1;
    for (const char *name :
         {"WebCamera", "Progress", "Histogram", "CRamPreview", "Zum", "WheelArea", "CursorShapeArea",
          "Aslider", "QNumImput", "QChromaKey", "RowBand", "TimelineIndicator", "OsSpecific"}) {
        const int id = qmlTypeId(name, 1, 0, name);
        QVERIFY2(id > before, name);
        before = id;
        QQmlComponent component(shell.window().engine());
        component.setData(
            QString("import QtQuick\nimport %1 1.0\nItem { property %1 one }").arg(name).toUtf8(), QUrl());
        QVERIFY2(component.isReady(), qPrintable(component.errorString()));
    }
    // These stand in the same row as soon as there is something behind them.
    for (const char *name : {"CycloBarC", "PathRenderer", "BufferPlayer", "QmlVideo", "CanonCamera"})
        QVERIFY2(qmlTypeId(name, 1, 0, name) == -1, name);
}

void TestSceneValues::metaTypesAreRegistered()
{
    ShellWindow shell;
    QCOMPARE(QMetaType::fromName("QPainterPath"), QMetaType::fromType<QPainterPath>());
    QCOMPARE(QMetaType::fromName("QPolygonF"), QMetaType::fromType<QPolygonF>());
    QCOMPARE(QMetaType::fromName("QPolygon"), QMetaType::fromType<QPolygon>());
}

void TestSceneValues::sizesByFontIndex_data()
{
    QTest::addColumn<int>("index");
    for (int index = 0; index <= 8; ++index)
        QTest::addRow("%d", index) << index;
}

void TestSceneValues::sizesByFontIndex()
{
    QFETCH(int, index);
    ShellWindow::Options options;
    options.settings.insert("fontsize", index);
    // The density of another row has no say.
    options.logicalDpi = 180;
    ShellWindow shell(options);
    QCOMPARE(shell.global().fontSize(), index);
    compareSizes(shell, index);
}

void TestSceneValues::sizesByDensity_data()
{
    QTest::addColumn<int>("logicalDpi");
    QTest::addColumn<int>("density");
    QTest::addColumn<int>("row");
    QTest::newRow("96, the least") << 96 << 96 << 0;
    QTest::newRow("below all") << 72 << 96 << 0;
    QTest::newRow("110 counts as 126") << 110 << 120 << 1;
    QTest::newRow("120 counts as 150") << 120 << 144 << 2;
    QTest::newRow("144 counts as 216") << 144 << 192 << 3;
    QTest::newRow("160 counts as 266") << 160 << 240 << 4;
    QTest::newRow("192 counts as 384 and falls below it") << 192 << 288 << 5;
    QTest::newRow("200 counts as 416") << 200 << 384 << 6;
    QTest::newRow("288 counts as 864") << 288 << 480 << 7;
}

void TestSceneValues::sizesByDensity()
{
    QFETCH(int, logicalDpi);
    QFETCH(int, density);
    QFETCH(int, row);
    ShellWindow::Options options;
    options.logicalDpi = logicalDpi;
    ShellWindow shell(options);
    QCOMPARE(shell.window().currentDpi(), density);
    QCOMPARE(shell.global().fontSize(), -1);
    compareSizes(shell, row);
}

void TestSceneValues::fontIndexOutOfRangeFallsBackToTheDensity_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::newRow("9") << QVariant(9);
    QTest::newRow("-1") << QVariant(-1);
    QTest::newRow("no number") << QVariant("large");
}

void TestSceneValues::fontIndexOutOfRangeFallsBackToTheDensity()
{
    QFETCH(QVariant, stored);
    ShellWindow::Options options;
    options.settings.insert("fontsize", stored);
    options.logicalDpi = 144;
    ShellWindow shell(options);
    QCOMPARE(shell.global().fontSize(), -1);
    compareSizes(shell, 3);
}

void TestSceneValues::constantsReachTheScene()
{
    const QList<QQmlContext::PropertyPair> values =
        publishedConstants() + QList<QQmlContext::PropertyPair>{{"smoothUi", true}, {"timelineScale", 100}};
    ShellWindow shell;
    for (const auto &[name, value] : values) {
        const QVariant seen = shell.evaluate(name);
        QVERIFY2(seen.isValid(), qPrintable(name));
        QVERIFY2((seen.typeId() == QMetaType::QString) == (value.typeId() == QMetaType::QString),
                 qPrintable(name));
        QVERIFY2(seen == value, qPrintable(name));
    }
}

void TestSceneValues::objectsReachTheScene()
{
    ShellWindow shell;
    QCOMPARE(shell.evaluate("MainWindow").value<QObject *>(), &shell.window());
    QCOMPARE(shell.evaluate("SubWindow").value<QObject *>(), &shell.window());
    QCOMPARE(shell.evaluate("FramesModel").value<QObject *>(), &shell.frames());
    QCOMPARE(shell.evaluate("WebcamGlobal").value<QObject *>(), &shell.global());
    QCOMPARE(shell.evaluate("CurvesModel").value<QObject *>(), &shell.controllers().curves);
    QCOMPARE(shell.evaluate("typeof SoundsAvailable").toString(), "boolean");
    QVERIFY(shell.window().engine()->imageProvider("systemicons") != nullptr);
    QCOMPARE(shell.window().source(), QUrl("qrc:/MorvaneRoot.qml"));
}

void TestSceneValues::timelineScaleIsAtMostWhole_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<int>("scale");
    QTest::newRow("smaller") << QVariant(60) << 60;
    QTest::newRow("larger") << QVariant(140) << 100;
    QTest::newRow("no number") << QVariant("wide") << 100;
}

void TestSceneValues::timelineScaleIsAtMostWhole()
{
    QFETCH(QVariant, stored);
    QFETCH(int, scale);
    ShellWindow::Options options;
    options.settings.insert("timelinescale", stored);
    ShellWindow shell(options);
    QCOMPARE(shell.evaluate("timelineScale").toInt(), scale);
}

QTEST_MAIN(TestSceneValues)
#include "tst_scenevalues.moc"
