#include "timeline/ModelSupport.h"
#include "timeline/RowBand.h"
#include "timeline/TimelineIndicator.h"

#include <QQuickWindow>

using Bars = std::vector<RowBars::Bar>;

/// The items that show rows as bands, without a screen: what they would paint.
class tst_TimelineIndicator : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void showsHoldsHiddenAndSelectedFrames();
    void followsEveryKindOfChange();
    void looksOnceForManyChangesAndNeverForOthers();
    void showsNothingWithoutAModel();
    void bandShowsItsRuns();
    void bandPassesOverWhatIsNoRun();

private:
    /// What would be painted now.
    Bars bars(BarsItem &item, size_t band);

    std::unique_ptr<QQuickWindow> m_window;
};

namespace {

enum Bands { Holds, Hidden, Selected };

/// Counts how often it looks at the frames.
class CountingIndicator : public TimelineIndicator
{
public:
    using TimelineIndicator::TimelineIndicator;

    mutable int looks = 0;

protected:
    std::vector<Band> collect() const override
    {
        ++looks;
        return TimelineIndicator::collect();
    }
};

} // namespace

void tst_TimelineIndicator::init()
{
    m_window = std::make_unique<QQuickWindow>();
    m_window->resize(200, 100);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

void tst_TimelineIndicator::cleanup()
{
    m_window.reset();
}

Bars tst_TimelineIndicator::bars(BarsItem &item, size_t band)
{
    QSignalSpy frames(m_window.get(), &QQuickWindow::afterRendering);
    m_window->update();
    frames.wait(2000);
    return band < item.bands().size() ? item.bands()[band].bars : Bars{};
}

void tst_TimelineIndicator::showsHoldsHiddenAndSelectedFrames()
{
    TestModel model(10);
    TimelineIndicator indicator(m_window->contentItem());
    indicator.setSize({100, 9});
    indicator.setModel(&model);
    model.setValue(2, Zum::StaticState, 0);
    model.setValue(3, Zum::StaticState, 1);
    model.setValue(4, Zum::StaticState, 2);
    model.setValue(7, Zum::Hidden, true);
    model.addRangeToGroup(8, 9);
    QVERIFY(bars(indicator, Holds) == (Bars{{20, 50}}));
    QVERIFY(bars(indicator, Hidden) == (Bars{{70, 80}}));
    QVERIFY(bars(indicator, Selected) == (Bars{{80, 100}}));
    // Holds at the top, the selection at the bottom, hidden frames above that.
    QVERIFY(indicator.bands()[Holds].bottom <= indicator.bands()[Hidden].top);
    QVERIFY(indicator.bands()[Hidden].bottom <= indicator.bands()[Selected].top);
    QCOMPARE(indicator.bands()[Selected].bottom, 1.0);
    QCOMPARE(indicator.bands()[Selected].color, QColor("#9A0101"));
    QCOMPARE(indicator.bands()[Hidden].color, QColor("#93e308"));
}

void tst_TimelineIndicator::followsEveryKindOfChange()
{
    TestModel model(10);
    TimelineIndicator indicator(m_window->contentItem());
    indicator.setSize({100, 9});
    indicator.setModel(&model);
    model.setValue(4, Zum::Hidden, true);
    QVERIFY(bars(indicator, Hidden) == (Bars{{40, 50}}));
    model.moveSingleFrame(4, 9, true);
    QVERIFY(bars(indicator, Hidden) == (Bars{{90, 100}}));
    model.removeSingleFrame(0, false);
    model.removeSingleFrame(0, false);
    QVERIFY(bars(indicator, Hidden) == (Bars{{87, 100}}));
    model.appendFrame({}, false, 7);
    model.appendFrame({}, false, 8);
    QVERIFY(bars(indicator, Hidden) == (Bars{{70, 80}}));
    indicator.setWidth(50);
    QVERIFY(bars(indicator, Hidden) == (Bars{{35, 40}}));
    model.selectAll();
    QVERIFY(bars(indicator, Selected) == (Bars{{0, 50}}));
    model.dismiss();
    QVERIFY(bars(indicator, Selected).empty());
    model.clear();
    QVERIFY(indicator.bands().empty() || bars(indicator, Hidden).empty());
}

void tst_TimelineIndicator::looksOnceForManyChangesAndNeverForOthers()
{
    TestModel model(10);
    CountingIndicator indicator(m_window->contentItem());
    indicator.setSize({100, 9});
    indicator.setModel(&model);
    bars(indicator, Hidden);
    indicator.looks = 0;
    for (int row = 0; row < 10; ++row)
        model.setValue(row, Zum::Hidden, true);
    bars(indicator, Hidden);
    QCOMPARE(indicator.looks, 1);
    emit model.dataChanged(model.index(0), model.index(9), {Zum::CapFull});
    bars(indicator, Hidden);
    QCOMPARE(indicator.looks, 1);
}

void tst_TimelineIndicator::showsNothingWithoutAModel()
{
    TimelineIndicator indicator(m_window->contentItem());
    indicator.setSize({100, 9});
    QVERIFY(bars(indicator, Holds).empty());
    {
        TestModel model(3);
        indicator.setModel(&model);
        QCOMPARE(indicator.model(), &model);
        model.setValue(1, Zum::Hidden, true);
        QVERIFY(!bars(indicator, Hidden).empty());
    }
    QVERIFY(indicator.model() == nullptr);
    indicator.setWidth(50);
    QVERIFY(bars(indicator, Hidden).empty());
}

void tst_TimelineIndicator::bandShowsItsRuns()
{
    RowBand band(m_window->contentItem());
    band.setSize({100, 2});
    band.setRows(20);
    band.setColor(Qt::green);
    band.setRuns({QVariantList{0, 3}, QVariantList{10, 10}});
    QVERIFY(bars(band, 0) == (Bars{{0, 20}, {50, 55}}));
    QCOMPARE(band.bands()[0].color, QColor(Qt::green));
    band.setRows(40);
    QVERIFY(bars(band, 0) == (Bars{{0, 10}, {25, 28}}));
}

void tst_TimelineIndicator::bandPassesOverWhatIsNoRun()
{
    RowBand band(m_window->contentItem());
    band.setSize({100, 2});
    band.setRows(10);
    band.setRuns({QVariantList{}, "text", QVariantList{1}, QVariantList{1, 2, 3}, QVariantList{7, 7}});
    QVERIFY(bars(band, 0) == (Bars{{70, 80}}));
}

QTEST_MAIN(tst_TimelineIndicator)
#include "tst_timelineindicator.moc"
