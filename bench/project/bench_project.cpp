// A film of 10,000 frames: opening and saving it beside the bare stream that does the same, and the longest
// that the main thread is away from its event loop while one opens and edits it. Then the same on a film ten
// times as long, which may take ten times as long and no more.

#include "BareProject.h"
#include "Figures.h"
#include "GapMeter.h"
#include "OpenProgram.h"
#include "project/ProjectWriter.h"
#include "SampleProject.h"

#include <functional>
#include <map>
#include <QCoreApplication>
#include <QEventLoop>
#include <QThreadPool>
#include <string>

namespace {

constexpr int selectedFrames = 1000;
constexpr int records = 300;

void runUntil(const std::function<bool()> &done)
{
    while (!done())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

/// The figures of a film of one length.
class Film
{
public:
    Film(int frames, int runs)
        : m_frames(frames), m_runs(runs), m_sample(frames), m_program(m_sample.settingsPath())
    {
    }

    void measure()
    {
        openings();
        savings();
        waitFor([this] { m_program.model.searchStaticness(0, m_program.model.last()); });
        holdScans();
        selections();
        undoAndRedo();
        m_program.life.closeProject();
        open();
        rest();
        deletion();
    }

    figures::Compared opening() const
    {
        return m_opening;
    }
    figures::Compared saving() const
    {
        return m_saving;
    }
    /// The longest that a kind of work kept the main thread from its event loop, in milliseconds.
    const std::map<std::string, double> &gaps() const
    {
        return m_gaps;
    }
    /// What a kind of work takes, in milliseconds; only those whose work grows with the film.
    const std::map<std::string, double> &times() const
    {
        return m_times;
    }

private:
    void openings()
    {
        m_opening = figures::inTurn(
            m_runs,
            [this] {
                const double time = watched("open", [this] { open(); });
                rest();
                if (m_program.model.framesCount() != m_frames)
                    qFatal("frames are missing");
                return time;
            },
            [this] {
                return figures::timed([this] {
                    if (bare::open(m_sample.tree().projPath, m_sample.tree()) != 2 * m_frames)
                        qFatal("files are missing");
                });
            });
        m_times["open"] = m_opening.ours;
    }

    void savings()
    {
        m_saving = figures::inTurn(
            m_runs * 2,
            [this] {
                return figures::timed([this] {
                    if (!ProjectWriter::save(m_sample.otherPath(), m_sample.document()).ok)
                        qFatal("cannot save");
                });
            },
            [this] {
                return figures::timed([this] {
                    if (!bare::save(m_sample.otherPath(), m_sample.document().frames))
                        qFatal("cannot save");
                });
            });
        m_times["save"] = m_saving.ours;
    }

    void holdScans()
    {
        std::vector<double> times;
        for (int run = 0; run < m_runs; ++run) {
            times.push_back(watched("scan", [this] {
                m_program.model.switchMirroredOnSingleFrame(m_frames / 2);
                waitFor([this] { m_program.model.searchStaticness(0, m_program.model.last()); });
            }));
        }
        m_times["scan"] = figures::median(times);
    }

    void selections()
    {
        std::vector<double> times;
        for (int run = 0; run < m_runs; ++run) {
            times.push_back(watched("select", [this] {
                m_program.model.selectAll();
                QCoreApplication::processEvents();
            }));
            if (m_program.model.selectedCount() != m_frames)
                qFatal("not all are selected");
            waitFor([this] { m_program.model.dismiss(); });
        }
        m_times["select"] = figures::median(times);
    }

    void undoAndRedo()
    {
        FramesModel &model = m_program.model;
        for (int i = 0; i < records; ++i)
            model.appendFrame({}, false, int(qint64(i) * 7919 % m_frames));
        const int full = model.framesCount();
        m_times["undo"] = watched("undo", [&] {
            for (int i = 0; i < 2 * records; ++i) {
                i < records ? model.undo() : model.redo();
                QCoreApplication::processEvents();
                if (i == records - 1 && model.framesCount() != full - records)
                    qFatal("not all is undone");
            }
        });
        if (model.framesCount() != full)
            qFatal("not all is redone");
    }

    /// Spread evenly over the film.
    void deletion()
    {
        for (int i = 0; i < selectedFrames; ++i)
            m_program.model.switchSelectionOnSingleFrame(i * (m_frames / selectedFrames));
        m_times["delete"] = watched("delete", [this] {
            waitFor([this] { m_program.model.actionOnSelectedFrames(Zum::ActDelete); });
        });
        if (m_program.model.framesCount() != m_frames - selectedFrames)
            qFatal("%d frames are left", m_program.model.framesCount());
    }

    void open()
    {
        if (m_program.life.projectFileOpen(m_sample.tree().projPath) != Zum::FileIsOk)
            qFatal("cannot open %s", qUtf8Printable(m_sample.tree().projPath));
        runUntil([this] { return m_program.life.projectLoaded(); });
    }
    /// What goes on in the background after an opening belongs to no figure.
    static void rest()
    {
        QThreadPool::globalInstance()->waitForDone();
        QCoreApplication::processEvents();
    }
    template <typename Work>
    void waitFor(Work work)
    {
        work();
        runUntil([this] { return m_program.model.currentAction() == Zum::ActNoAction; });
    }
    template <typename Work>
    double watched(const char *name, Work work)
    {
        GapMeter meter;
        meter.start();
        const double time = figures::timed(work);
        m_gaps[name] = std::max(m_gaps[name], meter.stop().wall);
        return time;
    }

    const int m_frames;
    const int m_runs;
    const SampleProject m_sample;
    OpenProgram m_program;
    figures::Compared m_opening;
    figures::Compared m_saving;
    std::map<std::string, double> m_gaps;
    std::map<std::string, double> m_times;
};

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication app(argc, argv);
    figures::dropLog();
    const bool quick = figures::quick(argc, argv);
    constexpr int frames = 10'000;
    Film film(frames, quick ? 3 : 9);
    film.measure();
    figures::print("open", film.opening());
    figures::print("save", film.saving());
    for (const auto &[name, gap] : film.gaps())
        figures::print((name + "-gap").c_str(), gap);
    if (quick)
        return 0;

    Film longer(10 * frames, 3);
    longer.measure();
    for (const auto &[name, time] : longer.times())
        figures::print((name + "-long").c_str(), {time, 10 * film.times().at(name)});
    return 0;
}
