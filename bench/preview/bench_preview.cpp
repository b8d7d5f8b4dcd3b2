// What the preview costs, each in turn with the least that has to be done:
//   first   a 24-megapixel JPEG, not cached, against the toolkit's read of it at the nearest reduced size
//   copy    the same picture from its disk copy, against the toolkit's read of that copy
//   cached  how many scene frames after a change of the name the picture is on screen
//   play    500 frames of 1280x720 played from memory at 25 and at 60 a second
// Times end when the item holds the picture, ready for the next frame of the scene.

#include "../project/GapMeter.h"
#include "PreviewOnScreen.h"
#include "timeline/FramesModel.h"

#include <algorithm>
#include <cstdio>
#include <QDir>
#include <QGuiApplication>
#include <QImageReader>
#include <utility>
#include <vector>

namespace {

constexpr QSize photograph{6000, 4000};
constexpr QSize view{1280, 720};
const QString first = QStringLiteral("a.jpg");
const QString other = QStringLiteral("other.jpg");

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values.empty() ? 0 : values[values.size() / 2];
}

double bareRead(const QString &path, QSize reduced)
{
    QElapsedTimer time;
    time.start();
    QImageReader reader(path);
    if (reduced.isValid())
        reader.setScaledSize(reduced);
    const QImage image = reader.read();
    return image.isNull() ? -1 : double(time.nsecsElapsed()) / 1e6;
}

void printRatio(const char *what, const std::vector<double> &bare, const std::vector<double> &ours,
                double limit)
{
    std::printf("%-24s %10.2f %10.2f %8.2f  (limit %.2f, medians of %zu runs in turn)\n", what, median(bare),
                median(ours), median(ours) / median(bare), limit, bare.size());
}

void measureFirst(int runs)
{
    PreviewOnScreen screen(view);
    screen.addPicture(first, photograph);
    screen.addPicture(other, {64, 36});
    // The decoder reduces to eighths; a copy of at most 1536x864 takes two of them.
    const QSize reduced(photograph.width() / 4, photograph.height() / 4);
    std::vector<double> bare;
    std::vector<double> ours;
    for (int run = 0; run < runs; ++run) {
        bare.push_back(bareRead(screen.captured() + first, reduced));
        screen.show(other);
        PreviewOnScreen::waitFor([&] { return !QDir(screen.copies()).isEmpty() || run == 0; }, 2000);
        PreviewOnScreen::settle(50);
        screen.removeCopies();
        screen.item().clearCache(first);
        ours.push_back(screen.show(first));
    }
    printRatio("first showing", bare, ours, 1.2);
}

void measureCopy(int runs)
{
    PreviewOnScreen screen(view);
    screen.addPicture(first, photograph);
    screen.addPicture(other, {64, 36});
    screen.show(first);
    PreviewOnScreen::waitFor([&] { return !QDir(screen.copies()).isEmpty(); });
    PreviewOnScreen::settle();
    const QString copy = screen.copies() + QDir(screen.copies()).entryList(QDir::Files).value(0);
    std::vector<double> bare;
    std::vector<double> ours;
    for (int run = 0; run < runs; ++run) {
        bare.push_back(bareRead(copy, {}));
        screen.show(other);
        screen.item().clearCache(first);
        PreviewOnScreen::settle(20);
        ours.push_back(screen.show(first));
    }
    printRatio("from the disk copy", bare, ours, 1.5);
}

/// Something else in the scene changes together with the name, so that a frame is due anyway.
void measureCached(int runs)
{
    PreviewOnScreen screen(view);
    QStringList names;
    for (int i = 0; i < 8; ++i) {
        names.append(QStringLiteral("%1.jpg").arg(i));
        screen.addPicture(names.last(), view, i);
        screen.show(names.last());
    }
    QQuickItem mark(screen.window().contentItem());
    int frames = 0;
    QObject::connect(&screen.window(), &QQuickWindow::afterAnimating, &mark, [&frames] { ++frames; });
    std::vector<double> waited;
    int late = 0;
    for (int run = 0; run < runs * 10; ++run) {
        PreviewOnScreen::settle(run % 7);
        const int before = frames;
        screen.window().update();
        waited.push_back(screen.show(names.at(run % 8)));
        late += frames - before > 1 ? 1 : 0;
    }
    std::printf("%-24s %d changes, %d later than the next frame, %.2f ms\n", "cached", runs * 10, late,
                median(waited));
}

void play(PreviewOnScreen &screen, int fps, int count)
{
    FramesModel frames;
    for (int i = 0; i < count; ++i)
        frames.appendFrame({{"capFull", QStringLiteral("%1.jpg").arg(i)}});
    frames.setLoaded(true);
    frames.setTimelineRangeStart(0);
    frames.setTimelineRangeEnd(count - 1);
    frames.setLoop(false);
    frames.setTimelineFps(fps);
    frames.setCurrentIndex(0);
    RamPreview &item = screen.item();
    item.setTimeline(&frames);
    item.setRunning(true);
    QElapsedTimer filling;
    filling.start();
    PreviewOnScreen::waitFor([&] { return item.readyPercent() == 100; }, 120000);
    const double filled = double(filling.elapsed()) / 1000;

    int ticks = 0;
    int shown = 0;
    // A tick that finds the picture of the one before not yet there has lost it.
    int skipped = 0;
    qint64 former = 0;
    QObject context;
    QObject::connect(&frames, &FramesModel::currentIndexChanged, &context, [&] {
        ++ticks;
        skipped += std::exchange(former, item.image().cacheKey()) == item.image().cacheKey() ? 1 : 0;
        item.setImageName(frames.currentCaptured());
    });
    PreviewOnScreen::settle();
    GapMeter gaps;
    frames.play();
    PreviewOnScreen::waitFor([&] { return frames.playing(); });
    ticks = 0;
    skipped = 0;
    QObject::connect(&item, &RamPreview::newPicRendered, &context, [&] { ++shown; });
    gaps.start();
    PreviewOnScreen::waitFor([&] { return !frames.playing(); }, 60000);
    PreviewOnScreen::settle(50);
    const GapMeter::Gap gap = gaps.stop();
    std::printf(
        "%-24s %d ticks, %d skipped by us, %d shown, longest block %.1f ms computed, %.1f ms by the clock; "
        "filled in %.1f s\n",
        qPrintable(QStringLiteral("play at %1").arg(fps)), ticks, skipped, shown, gap.cpu, gap.wall, filled);
    item.setTimeline(nullptr);
    item.setRunning(false);
}

void measurePlay()
{
    constexpr int count = 500;
    constexpr int bytes = 1500000000;
    PreviewOnScreen screen(view);
    screen.item().setCacheMaxInBytes(bytes);
    for (int i = 0; i < count; ++i)
        screen.addPicture(QStringLiteral("%1.jpg").arg(i), view, i);
    for (const int fps : {25, 60})
        play(screen, fps, count);
}

} // namespace

int main(int argc, char **argv)
{
    const QGuiApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const QString what = arguments.value(1, QStringLiteral("all"));
    const auto wants = [&what](const char *name) {
        return what == QLatin1String("all") || what == QLatin1String(name);
    };
    const int runs = std::max(1, arguments.value(2, QStringLiteral("21")).toInt());
    if (wants("first"))
        measureFirst(runs);
    if (wants("copy"))
        measureCopy(runs);
    if (wants("cached"))
        measureCached(runs);
    if (wants("play"))
        measurePlay();
    return 0;
}
