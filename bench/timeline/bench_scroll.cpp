// Scrolls the timeline of a long film from one end to the other in the program's own window: how long that
// keeps the main thread from its event loop, and how much memory grows. What a machine without a graphics
// card draws is in the time by the clock, but not in the time that the main thread itself computed.

#include "Figures.h"
#include "GapMeter.h"

#include "app/AppControllers.h"
#include "app/MainWindow.h"
#include "app/TypeRegistry.h"
#include "project/ProjectTree.h"
#include "project/ProjectWriter.h"

#include <cmath>
#include <cstdio>
#include <filesystem>
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
constexpr double frameWidth = 96;
constexpr double halfPage = 900;

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
    void endToEnd(double pixels, double most)
    {
        evaluate(u"timelineBox.strip.scrollTo(0)"_s);
        for (int i = 0; i < 20; ++i)
            nextFrame();
        const double width = qMin(most, contentWidth());
        const auto place = [pixels](int step) {
            return step * pixels;
        };
        scroll(place, int(width / pixels));
    }
    /// As the scroll bar does when its handle is thrown about.
    void jumps(int count)
    {
        const double width = contentWidth();
        const auto place = [width](int step) {
            return std::fmod(step * 0.382 * width, width);
        };
        scroll(place, count);
    }
    /// The longest of all that was scrolled.
    GapMeter::Gap longest() const
    {
        return m_longest;
    }

private:
    double contentWidth() const
    {
        return evaluate(u"timelineBox.strip.flickable.contentWidth"_s).toDouble();
    }
    template <typename Place>
    void scroll(Place place, int steps)
    {
        GapMeter meter;
        meter.start();
        for (int step = 0; step < steps; ++step) {
            evaluate(u"timelineBox.strip.scrollTo(%1)"_s.arg(place(step)));
            nextFrame();
        }
        const GapMeter::Gap gap = meter.stop();
        m_longest = {qMax(m_longest.wall, gap.wall), qMax(m_longest.cpu, gap.cpu)};
    }

    MainWindow &m_window;
    GapMeter::Gap m_longest;
};

} // namespace

int main(int argc, char **argv)
{
    const QApplication app(argc, argv);
    figures::dropLog();
    typeregistry::registerTypes();
    const bool quick = figures::quick(argc, argv);
    const Film film(quick ? 1000 : 10'000);
    QQmlEngine engine;
    MainWindow window(controllers(film, engine), {u"morvane"_s, film.path()});
    window.resize(1920, 1080);
    window.show();
    while (!window.projectLoaded() || window.controllers().frames.currentAction() != Zum::ActNoAction)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    Scroller scroller(window);
    for (int i = 0; i < 100; ++i)
        scroller.nextFrame();
    const double everything = 1e9;
    scroller.endToEnd(frameWidth, frameWidth * (quick ? 50 : 500));
    scroller.endToEnd(halfPage, everything);
    // By now the caches hold what they may.
    const double before = figures::residentMb();
    scroller.endToEnd(halfPage, everything);
    scroller.jumps(quick ? 20 : 200);
    figures::print("scroll-memory", figures::residentMb() - before);
    figures::print("scroll-cpu", scroller.longest().cpu);
    figures::print("scroll-gap", scroller.longest().wall);
    window.quit(true);
    return 0;
}
