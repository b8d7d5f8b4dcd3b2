// How long a film takes to open and to work on, and how long that keeps the main thread from its event loop,
// over the length of the film: one line for each figure and length. "gap" is by the clock and grows on a busy
// machine; "cpu" is what the main thread itself computed.

#include "BareProject.h"
#include "GapMeter.h"
#include "OpenProgram.h"
#include "SampleProject.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <functional>
#include <QCoreApplication>
#include <QEventLoop>
#include <QThreadPool>
#include <vector>

namespace {

constexpr int runs = 5;
constexpr int selectedFrames = 1000;
constexpr int records = 300;

void runUntil(const std::function<bool()> &done)
{
    while (!done())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

struct Figure
{
    double milliseconds = 0;
    GapMeter::Gap gap;
};

Figure measured(const std::function<void()> &work)
{
    GapMeter meter;
    QElapsedTimer time;
    time.start();
    meter.start();
    work();
    return {double(time.nsecsElapsed()) / 1e6, meter.stop()};
}

void print(const char *name, int frames, const Figure &figure)
{
    std::printf("%-14s %8d %10.1f ms   gap %7.1f ms   cpu %7.1f ms\n", name, frames, figure.milliseconds,
                figure.gap.wall, figure.gap.cpu);
    std::fflush(stdout);
}

/// The median time and the worst gaps.
Figure summary(const std::vector<Figure> &figures)
{
    Figure all;
    std::vector<double> times;
    for (const Figure &figure : figures) {
        times.push_back(figure.milliseconds);
        all.gap.wall = std::max(all.gap.wall, figure.gap.wall);
        all.gap.cpu = std::max(all.gap.cpu, figure.gap.cpu);
    }
    all.milliseconds = median(times);
    return all;
}

void open(OpenProgram &program, const QString &path)
{
    if (program.life.projectFileOpen(path) != Zum::FileIsOk)
        qFatal("cannot open %s", qUtf8Printable(path));
    runUntil([&] { return program.life.projectLoaded(); });
}

/// What goes on in the background after an opening belongs to no figure.
void rest()
{
    QThreadPool::globalInstance()->waitForDone();
    QCoreApplication::processEvents();
}

/// The bare reader and the program take turns, so that a busy machine slows both alike.
void openings(OpenProgram &program, const SampleProject &sample, int frames)
{
    std::vector<double> bareTimes;
    std::vector<Figure> own;
    for (int run = 0; run < runs; ++run) {
        QElapsedTimer time;
        time.start();
        if (bare::open(sample.tree().projPath, sample.tree()) != 2 * frames)
            qFatal("files are missing");
        bareTimes.push_back(double(time.nsecsElapsed()) / 1e6);
        own.push_back(measured([&] { open(program, sample.tree().projPath); }));
        rest();
        if (program.model.framesCount() != frames)
            qFatal("frames are missing");
    }
    const Figure figure = summary(own);
    print("open", frames, figure);
    std::printf("%-14s %8d %10.1f ms   ratio %5.2f\n", "  bare reader", frames, median(bareTimes),
                figure.milliseconds / median(bareTimes));
}

void waitForAction(const FramesModel &model)
{
    runUntil([&] { return model.currentAction() == Zum::ActNoAction; });
}

void scan(FramesModel &model)
{
    model.searchStaticness(0, model.last());
    waitForAction(model);
}

void holdScans(FramesModel &model, int frames)
{
    std::vector<Figure> figures;
    for (int run = 0; run < runs; ++run) {
        figures.push_back(measured([&] {
            model.switchMirroredOnSingleFrame(frames / 2);
            scan(model);
        }));
    }
    print("edit and scan", frames, summary(figures));
}

void selections(FramesModel &model, int frames)
{
    std::vector<Figure> figures;
    for (int run = 0; run < runs; ++run) {
        figures.push_back(measured([&] {
            model.selectAll();
            QCoreApplication::processEvents();
        }));
        if (model.selectedCount() != frames)
            qFatal("not all are selected");
        model.dismiss();
        waitForAction(model);
    }
    print("select all", frames, summary(figures));
}

/// Spread evenly over the film; all of a short one.
void deletion(FramesModel &model, int frames)
{
    const int count = std::min(selectedFrames, frames);
    for (int i = 0; i < count; ++i)
        model.switchSelectionOnSingleFrame(i * (frames / count));
    print("delete 1000", frames, measured([&] {
              model.actionOnSelectedFrames(Zum::ActDelete);
              waitForAction(model);
          }));
    if (model.framesCount() != frames - count)
        qFatal("%d frames are left", model.framesCount());
}

void undoAndRedo(FramesModel &model, int frames)
{
    for (int i = 0; i < records; ++i)
        model.appendFrame({}, false, int(qint64(i) * 7919 % frames));
    const int full = model.framesCount();
    const auto steps = [&](void (FramesModel::*step)()) {
        for (int i = 0; i < records; ++i) {
            (model.*step)();
            QCoreApplication::processEvents();
        }
    };
    print("undo 300", frames, measured([&] { steps(&FramesModel::undo); }));
    if (model.framesCount() != full - records)
        qFatal("not all is undone");
    print("redo 300", frames, measured([&] { steps(&FramesModel::redo); }));
    if (model.framesCount() != full)
        qFatal("not all is redone");
}

void figuresOf(int frames)
{
    const SampleProject sample(frames);
    OpenProgram program(sample.settingsPath());
    openings(program, sample, frames);
    scan(program.model);
    holdScans(program.model, frames);
    selections(program.model, frames);
    undoAndRedo(program.model, frames);
    program.life.closeProject();
    open(program, sample.tree().projPath);
    rest();
    deletion(program.model, frames);
}

void dropLog(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (type == QtFatalMsg)
        std::fprintf(stderr, "%s\n", qUtf8Printable(text));
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication app(argc, argv);
    qInstallMessageHandler(dropLog);
    for (const int frames : {100, 1'000, 10'000, 100'000})
        figuresOf(frames);
    return 0;
}
