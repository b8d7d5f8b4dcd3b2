#pragma once

#include "support/HandTicker.h"
#include "support/LogLines.h"
#include "support/RowsOnly.h"
#include "timeline/FramesModel.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QStringList>
#include <QTest>
#include <utility>

/// A frames model that runs by hand, watched by the model tester. Batches take a step a turn of the event
/// loop; playback ticks by hand.
class TestModel : public FramesModel
{
    Q_OBJECT

public:
    explicit TestModel(int frames = 0, bool isLoaded = true) : TestModel(new HandTicker, new HandTicker)
    {
        fill(frames);
        if (isLoaded)
            setLoaded(true);
    }

    /// Captured names "c0", "c1"... with thumbnails "t0"..., while the project is being filled.
    void fill(int frames)
    {
        for (int i = 0; i < frames; ++i)
            appendFrame(
                {{"capFull", QStringLiteral("c%1").arg(i)}, {"capTumb", QStringLiteral("t%1").arg(i)}});
    }
    /// The captured names in row order, to see at a glance what stands where.
    QStringList names() const
    {
        QStringList names;
        for (int row = 0; row < framesCount(); ++row)
            names.append(frameAt(row).capFull);
        return names;
    }
    QList<int> guidsInOrder() const
    {
        QList<int> guids;
        for (int row = 0; row < framesCount(); ++row)
            guids.append(frameAt(row).guid());
        return guids;
    }
    QList<int> holds() const
    {
        QList<int> holds;
        for (int row = 0; row < framesCount(); ++row)
            holds.append(frameAt(row).staticState);
        return holds;
    }
    int guidAt(int row) const
    {
        return frameAt(row).guid();
    }
    /// Lets a batch or a preparation come to its end.
    bool settle()
    {
        return QTest::qWaitFor([this] { return currentAction() == Zum::ActNoAction; });
    }

    HandTicker &playTicker;
    HandTicker &rateTicker;

private:
    TestModel(HandTicker *play, HandTicker *rate)
        : FramesModel({std::unique_ptr<Ticker>(play), std::unique_ptr<Ticker>(rate)}), playTicker(*play),
          rateTicker(*rate)
    {
        setBatchSliceMs(0);
        m_rows.setSourceModel(this);
    }

    RowsOnly m_rows;
    QAbstractItemModelTester m_tester{&m_rows, QAbstractItemModelTester::FailureReportingMode::QtTest};
};

/// Writes the names of signals into one list, to see their order.
class SignalOrder : public QObject
{
public:
    template <typename Sender, typename Signal>
    void watch(Sender *sender, Signal signal, const QString &name)
    {
        connect(sender, signal, this, [this, name] { m_names.append(name); });
    }
    QStringList take()
    {
        return std::exchange(m_names, {});
    }

private:
    QStringList m_names;
};
