// What the frames model costs over the length of a film, and how long it keeps the main thread from
// answering: "block_ms" is the longest turn of the event loop or call within the timed part.

#include "timeline/FramesModel.h"

#include <benchmark/benchmark.h>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>

namespace {

constexpr int shortest = 100;
constexpr int longest = 100000;

std::unique_ptr<FramesModel> filmOf(int frames)
{
    auto model = std::make_unique<FramesModel>();
    for (int i = 0; i < frames; ++i) {
        // Every third frame is held for three rows.
        const QString name = QString::number(i % 9 < 3 ? i - i % 9 : i) + QStringLiteral(".jpg");
        model->appendFrame({{"capFull", name}, {"capTumb", name}});
    }
    model->setLoaded(true);
    return model;
}

/// Longest time that the main thread was away from its event loop.
class LongestBlock
{
public:
    template <typename Call>
    void time(Call call)
    {
        QElapsedTimer elapsed;
        elapsed.start();
        call();
        m_longestNs = qMax(m_longestNs, elapsed.nsecsElapsed());
    }
    void settle(const FramesModel &model)
    {
        while (model.currentAction() != Zum::ActNoAction)
            time([] { QCoreApplication::processEvents(QEventLoop::AllEvents); });
    }
    void report(benchmark::State &state) const
    {
        state.counters["block_ms"] = double(m_longestNs) / 1e6;
    }

private:
    qint64 m_longestNs = 0;
};

void holdScanAfterOneEdit(benchmark::State &state)
{
    const int frames = int(state.range(0));
    const auto model = filmOf(frames);
    LongestBlock block;
    model->searchStaticness(0, 0);
    block.settle(*model);
    LongestBlock timed;
    for (auto _ : state) {
        timed.time([&] {
            model->switchMirroredOnSingleFrame(frames / 2);
            model->searchStaticness(0, 0);
        });
        timed.settle(*model);
    }
    timed.report(state);
    state.SetComplexityN(frames);
}

void holdScanWithFiles(benchmark::State &state)
{
    const QTemporaryDir empty;
    const int frames = int(state.range(0));
    const auto model = filmOf(frames);
    model->setFolders({{"capFull", empty.path() + '/'}});
    LongestBlock timed;
    for (auto _ : state) {
        timed.time([&] { model->searchStaticness(0, 0); });
        timed.settle(*model);
    }
    timed.report(state);
    state.SetComplexityN(frames);
}

void selectAll(benchmark::State &state)
{
    const int frames = int(state.range(0));
    const auto model = filmOf(frames);
    LongestBlock timed;
    for (auto _ : state) {
        timed.time([&] { model->selectAll(); });
        timed.time([&] { model->dismiss(); });
    }
    timed.report(state);
    state.SetComplexityN(frames);
}

/// Spread evenly over the film; all of a short one.
void selectThousand(FramesModel &model)
{
    const int count = qMin(1000, model.framesCount());
    const int step = qMax(1, model.framesCount() / count);
    for (int i = 0; i < count; ++i)
        model.switchSelectionOnSingleFrame(i * step);
}

void deleteThousandSelected(benchmark::State &state)
{
    const int frames = int(state.range(0));
    LongestBlock timed;
    for (auto _ : state) {
        state.PauseTiming();
        auto model = filmOf(frames);
        selectThousand(*model);
        state.ResumeTiming();
        timed.time([&] { model->actionOnSelectedFrames(Zum::ActDelete); });
        timed.settle(*model);
        state.PauseTiming();
        model.reset();
        state.ResumeTiming();
    }
    timed.report(state);
    state.SetComplexityN(frames);
}

void undoAndRedoThreeHundred(benchmark::State &state)
{
    const int frames = int(state.range(0));
    const auto model = filmOf(frames);
    for (int i = 0; i < 300; ++i)
        model->appendFrame({}, false, i * 7919 % frames);
    LongestBlock timed;
    for (auto _ : state) {
        for (int i = 0; i < 300; ++i)
            timed.time([&] { model->undo(); });
        for (int i = 0; i < 300; ++i)
            timed.time([&] { model->redo(); });
    }
    timed.report(state);
    state.SetComplexityN(frames);
}

void fill(benchmark::State &state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(filmOf(int(state.range(0))));
    state.SetComplexityN(state.range(0));
}

#define OVER_FILM_LENGTHS(name)         \
    BENCHMARK(name)                     \
        ->RangeMultiplier(10)           \
        ->Range(shortest, longest)      \
        ->Unit(benchmark::kMillisecond) \
        ->Complexity()

OVER_FILM_LENGTHS(fill);
OVER_FILM_LENGTHS(holdScanAfterOneEdit)->UseRealTime();
OVER_FILM_LENGTHS(holdScanWithFiles)->UseRealTime();
OVER_FILM_LENGTHS(selectAll);
OVER_FILM_LENGTHS(deleteThousandSelected)->UseRealTime();
OVER_FILM_LENGTHS(undoAndRedoThreeHundred);

void dropLog(QtMsgType, const QMessageLogContext &, const QString &)
{
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication app(argc, argv);
    qInstallMessageHandler(dropLog);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
