// What the preview costs: a 24-megapixel JPEG from its file and from its disk copy, each in turn with the
// toolkit's bare read; pictures from memory, and 500 of them played. Times end when the item holds the
// picture, ready for the next frame of the scene.

#include "Figures.h"
#include "GapMeter.h"
#include "PreviewOnScreen.h"
#include "timeline/FramesModel.h"

#include <QGuiApplication>
#include <QImageReader>
#include <QSet>
#include <string>

namespace {

constexpr QSize photograph{6000, 4000};
constexpr QSize view{1280, 720};
const QString first = QStringLiteral("a.jpg");
const QString other = QStringLiteral("other.jpg");

double bareRead(const QString &path, QSize reduced)
{
    return figures::timed([&] {
        QImageReader reader(path);
        if (reduced.isValid())
            reader.setScaledSize(reduced);
        if (reader.read().isNull())
            qFatal("%s", qUtf8Printable(reader.errorString()));
    });
}

void measureFirst(int runs)
{
    PreviewOnScreen screen(view);
    screen.addPicture(first, photograph);
    screen.addPicture(other, {64, 36});
    // The decoder reduces to eighths; a copy of at most 1536x864 takes two of them.
    const QSize reduced(photograph.width() / 4, photograph.height() / 4);
    const auto show = [&] {
        screen.show(other);
        PreviewOnScreen::waitFor([&] { return !screen.copy().isEmpty(); }, 1000);
        PreviewOnScreen::settle(50);
        screen.removeCopies();
        screen.item().clearCache(first);
        return screen.show(first);
    };
    figures::print("first",
                   figures::inTurn(runs, show, [&] { return bareRead(screen.captured() + first, reduced); }));
}

void measureCopy(int runs)
{
    PreviewOnScreen screen(view);
    screen.addPicture(first, photograph);
    screen.addPicture(other, {64, 36});
    screen.show(first);
    PreviewOnScreen::waitFor([&] { return !screen.copy().isEmpty(); });
    PreviewOnScreen::settle();
    const QString copy = screen.copy();
    const auto show = [&] {
        screen.show(other);
        screen.item().clearCache(first);
        PreviewOnScreen::settle(20);
        return screen.show(first);
    };
    figures::print("copy", figures::inTurn(runs, show, [&] { return bareRead(copy, {}); }));
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
    int late = 0;
    for (int run = 0; run < runs; ++run) {
        PreviewOnScreen::settle(run % 7);
        const int before = frames;
        screen.window().update();
        screen.show(names.at(run % 8));
        late += frames - before > 1 ? 1 : 0;
    }
    figures::print("cached-late", late);
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
    if (!PreviewOnScreen::waitFor([&] { return item.readyPercent() == 100; }, 120000))
        qFatal("the memory does not fill");

    QSet<qint64> shown;
    const auto noteShown = [&] {
        shown.insert(item.image().cacheKey());
    };
    QObject context;
    QObject::connect(&frames, &FramesModel::currentIndexChanged, &context,
                     [&] { item.setImageName(frames.currentCaptured()); });
    screen.show(frames.currentCaptured());
    PreviewOnScreen::settle();
    noteShown();
    QObject::connect(&item, &RamPreview::newPicRendered, &context, noteShown);
    GapMeter gaps;
    frames.play();
    PreviewOnScreen::waitFor([&] { return frames.playing(); });
    gaps.start();
    PreviewOnScreen::waitFor([&] { return !frames.playing(); }, 60000);
    PreviewOnScreen::settle(50);
    const GapMeter::Gap gap = gaps.stop();
    const std::string name = "play-" + std::to_string(fps);
    figures::print((name + "-lost").c_str(), double(count - shown.size()));
    figures::print((name + "-block").c_str(), gap.cpu);
    item.setTimeline(nullptr);
    item.setRunning(false);
}

void measurePlay(int count)
{
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
    const bool quick = figures::quick(argc, argv);
    const int runs = quick ? 5 : 15;
    measureFirst(runs);
    measureCopy(runs);
    measureCached(10 * runs);
    measurePlay(quick ? 50 : 500);
    return 0;
}
