#pragma once

#include "timeline/Ticker.h"

#include <array>
#include <memory>
#include <QObject>
#include <QSet>
#include <QSize>
#include <QStringList>

class MainWindow;
class QTextStream;

/// The main job without a person: a new project, the Demo Webcam, a second of film shot on twos, played once
/// and rendered to two movies. Works the window by what its controls call, step by step as the program tells
/// of the end of each, and quits at the end, however it comes. Prints a line for each step. Main thread.
///
/// The window's dialogs have to answer where the project goes, and its only camera is the Demo Webcam.
class DemoShoot : public QObject
{
    Q_OBJECT

public:
    /// Frames of the film: each pose is held for two, so it takes half as many shots.
    static constexpr int filmFrames = 24;
    static constexpr int framesPerPose = 2;
    static constexpr int filmFps = 24;
    static constexpr int tickMs = 100;
    /// Name of the movies, without their extension.
    inline static const QString movieName = QStringLiteral("demo");

    /// In ticks.
    struct Pace
    {
        /// Rests for those who watch.
        int betweenSteps = 0;
        int betweenShots = 0;
        /// A step in which the program tells of no change for so long has failed.
        int patience = 600;
    };

    /// What there is to show for it so far.
    struct Outcome
    {
        QString projectPath;
        QStringList movies;
        int frames = 0;
        QSize frameSize;
        /// Picture for lists of projects; may be empty.
        QString thumbnailUrl;
    };

    DemoShoot(MainWindow &window, Pace pace, std::unique_ptr<Ticker> ticker, QTextStream &out);

    void start();
    /// Ends before the time; a second reason does not replace the first. No effect once all is done.
    void giveUp(const QString &reason);

    /// All steps went through.
    bool isDone() const
    {
        return m_done;
    }
    /// The step and what went wrong in it; empty while all is well.
    QString failure() const
    {
        return m_failure;
    }
    const Outcome &outcome() const
    {
        return m_outcome;
    }

protected:
    /// Somebody closes the window.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Step
    {
        QString title;
        void (DemoShoot::*begin)();
        /// May find out that the step has failed.
        bool (DemoShoot::*isOver)();
        /// How far it is, in a word.
        QString (DemoShoot::*progress)() const;
    };
    static const std::array<Step, 7> &steps();
    const Step &step() const
    {
        return steps()[size_t(m_step)];
    }

    void listen();
    void tick();
    void lookSoon();
    void look();
    void rest(int ticks, void (DemoShoot::*then)());
    void beginStep();
    void endStep();
    void showProgress();
    void endLine();
    void heard(int type, const QString &text);
    void fail(const QString &reason);
    void leave();
    void leaveWhenQuiet();

    void createProject();
    bool projectIsThere();
    QString projectPath() const;

    void connectCamera();
    bool cameraIsReady();
    QString cameraName() const;

    void beginShooting();
    void wantShot();
    bool allIsShot();
    QString shotFrames() const;

    void playRange();
    void startPlaying();
    bool rangeWasPlayed();
    QString playedFrames() const;

    void renderWebm();
    void renderAvi();
    void render(const QString &format);
    bool movieIsThere();
    QString renderedPart() const;

    void saveProject();
    bool projectIsSaved();
    QString savedFrames() const;

    MainWindow &m_window;
    const Pace m_pace;
    std::unique_ptr<Ticker> m_ticker;
    QTextStream &m_out;

    int m_step = 0;
    int m_quietTicks = 0;
    int m_restTicks = 0;
    void (DemoShoot::*m_afterRest)() = nullptr;
    bool m_lookIsDue = false;
    bool m_leaving = false;
    bool m_done = false;
    bool m_lineIsOpen = false;
    bool m_quitAsked = false;
    QString m_shownProgress;
    QString m_lastWarning;
    QString m_failure;
    Outcome m_outcome;

    bool m_shotWanted = false;
    /// Frames that there are when the shot under way has ended well.
    int m_framesToCome = 0;
    bool m_hasPlayed = false;
    /// Finished ones that have not shown every frame.
    int m_playbacks = 0;
    QSet<int> m_playedRows;
};
