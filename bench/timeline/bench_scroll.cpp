// Scrolls the timeline of a long film from one end to the other in the program's own window: how long that
// keeps the main thread from its event loop, and whether memory grows. One line for each way to scroll; "gap"
// is by the clock and grows on a busy machine, "cpu" is what the main thread itself computed between two
// turns of its loop.

#include "../project/GapMeter.h"

#include "app/AppControllers.h"
#include "app/MainWindow.h"
#include "app/TypeRegistry.h"
#include "project/ProjectTree.h"
#include "project/ProjectWriter.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QImage>
#include <QPainter>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQmlExpression>
#include <QQuickItem>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

constexpr int pictures = 64;

/// A film with a thumbnail for every frame. Many frames name links to the same few pictures, but each has a
/// file and thus a place in the caches of its own.
class Film
{
public:
    explicit Film(int frames) : m_tree(ProjectTree::of(m_folder.filePath(u"film.kzfx"_s), {}))
    {
        QDir().mkpath(m_tree.capTumbDirPath);
        for (int i = 0; i < pictures; ++i)
            paint(i);
        ProjectDocument document;
        document.frameSettings.emplace();
        document.render.emplace();
        document.camera.emplace();
        for (int i = 0; i < frames; ++i) {
            ProjectFrame frame;
            frame.capTumb = u"frame_mini_%1_260101101500.jpg"_s.arg(i, 6, 10, QChar(u'0'));
            frame.capFull = u"frame_norm_%1_260101101500.jpg"_s.arg(i, 6, 10, QChar(u'0'));
            link(i % pictures, m_tree.capTumbDirPath + frame.capTumb);
            link(i % pictures, m_tree.capFullDirPath + frame.capFull);
            document.frames.append(frame);
        }
        if (!ProjectWriter::save(m_tree.projPath, document).ok)
            qFatal("cannot write the project");
    }

    QString path() const
    {
        return m_tree.projPath;
    }
    QString settingsPath() const
    {
        return m_folder.filePath(u"settings.ini"_s);
    }

private:
    QString picture(int number) const
    {
        return m_folder.filePath(u"picture_%1.jpg"_s.arg(number));
    }
    void paint(int number) const
    {
        QImage image(180, 101, QImage::Format_RGB32);
        image.fill(QColor::fromHsv(number * 5, 120, 160));
        QPainter painter(&image);
        painter.setBrush(Qt::white);
        painter.drawEllipse(number * 2, 30, 40, 40);
        painter.end();
        if (!image.save(picture(number), "jpg", 85))
            qFatal("cannot write a picture");
    }
    void link(int number, const QString &path) const
    {
        std::filesystem::create_hard_link(picture(number).toStdString(), path.toStdString());
    }

    QTemporaryDir m_folder;
    ProjectTree m_tree;
};

/// Megabytes of this process in memory.
double residentMb()
{
    QFile file(u"/proc/self/statm"_s);
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    constexpr double pageMb = 4096 / 1048576.0;
    return file.readAll().split(' ').value(1).toDouble() * pageMb;
}

std::unique_ptr<AppControllers> controllers(const Film &film, QQmlEngine &engine)
{
    auto settings = std::make_unique<Settings>(film.settingsPath());
    settings->setValue(u"doubleDecker"_s, qEnvironmentVariableIsSet("MORVANE_BENCH_TWO_ROWS"));
    AppEnvironment environment = AppEnvironment::system(engine, std::move(settings));
    environment.quit = [] {
    };
    return std::make_unique<AppControllers>(std::move(environment));
}

class Scroller
{
public:
    explicit Scroller(MainWindow &window) : m_window(window)
    {
    }

    QVariant evaluate(const QString &expression) const
    {
        QQmlExpression asked(qmlContext(m_window.rootObject()), m_window.rootObject(), expression);
        const QVariant value = asked.evaluate();
        if (asked.hasError())
            qFatal("%s", qUtf8Printable(asked.error().toString()));
        return value;
    }
    void nextFrame() const
    {
        QEventLoop loop;
        QObject::connect(&m_window, &QQuickWindow::frameSwapped, &loop, &QEventLoop::quit,
                         Qt::QueuedConnection);
        m_window.update();
        loop.exec();
    }

    /// Goes on by so many pixels with every frame of the scene, from the start to the end.
    void endToEnd(const char *name, double pixels, double most) const
    {
        evaluate(u"timelineBox.strip.scrollTo(0)"_s);
        for (int i = 0; i < 20; ++i)
            nextFrame();
        const double width = qMin(most, evaluate(u"timelineBox.strip.flickable.contentWidth"_s).toDouble());
        const double before = residentMb();
        double highest = before;
        int frames = 0;
        GapMeter meter;
        meter.start();
        for (double x = 0; x < width; x += pixels, ++frames) {
            evaluate(u"timelineBox.strip.scrollTo(%1)"_s.arg(x));
            nextFrame();
            highest = qMax(highest, residentMb());
        }
        const GapMeter::Gap gap = meter.stop();
        std::printf(
            "%-22s %6d scene frames   gap %6.1f ms   cpu %6.1f ms   memory %6.1f MB, %+5.1f, at most "
            "%+5.1f\n",
            name, frames, gap.wall, gap.cpu, before, residentMb() - before, highest - before);
        std::fflush(stdout);
    }

    /// As the scroll bar does when its handle is thrown about.
    void jumps(const char *name, int count) const
    {
        const double width = evaluate(u"timelineBox.strip.flickable.contentWidth"_s).toDouble();
        GapMeter meter;
        const double before = residentMb();
        meter.start();
        for (int i = 0; i < count; ++i) {
            evaluate(u"timelineBox.strip.scrollTo(%1)"_s.arg(std::fmod(i * 0.382 * width, width)));
            nextFrame();
        }
        const GapMeter::Gap gap = meter.stop();
        std::printf("%-22s %6d scene frames   gap %6.1f ms   cpu %6.1f ms   memory %6.1f MB, %+5.1f\n", name,
                    count, gap.wall, gap.cpu, before, residentMb() - before);
        std::fflush(stdout);
    }

private:
    MainWindow &m_window;
};

void dropLog(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (type == QtFatalMsg)
        std::fprintf(stderr, "%s\n", qUtf8Printable(text));
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication app(argc, argv);
    qInstallMessageHandler(dropLog);
    typeregistry::registerTypes();
    const int frames = argc > 1 ? QByteArray(argv[1]).toInt() : 10'000;
    const Film film(frames);
    QQmlEngine engine;
    MainWindow window(controllers(film, engine), {u"morvane"_s, film.path()});
    window.resize(1920, 1080);
    window.show();
    while (!window.projectLoaded() || window.controllers().frames.currentAction() != Zum::ActNoAction)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    const Scroller scroller(window);
    for (int i = 0; i < 100; ++i)
        scroller.nextFrame();
    const double everything = 1e9;
    std::printf("%d frames, %s\n", window.controllers().frames.framesCount(), "1920x1080");
    scroller.endToEnd("a frame at a time", 96, 96 * 500);
    scroller.endToEnd("half a page at a time", 900, everything);
    scroller.endToEnd("again", 900, everything);
    scroller.jumps("jumps", 200);
    scroller.evaluate(u"timelineBox.contentScale = 0.3"_s);
    scroller.endToEnd("small frames", 900, everything);
    window.quit(true);
    return 0;
}
