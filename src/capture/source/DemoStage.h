#pragma once

#include <QImage>
#include <QSize>

class QPainter;

/// A small puppet theatre: a walker crosses the boards, turns, waves and comes back. Each step of the
/// animation is a pose of its own, a little further than the one before. Any thread, one at a time.
class DemoStage
{
public:
    /// Poses until the walk repeats.
    static constexpr int posesPerRound = 240;

    /// The stage in RGB32. `zoom` is 1.0 for the whole stage, more for its middle alone.
    QImage picture(const QSize &size, int pose, double zoom);

private:
    void drawBackground(const QSize &size, double zoom);

    QImage m_background;
    double m_backgroundZoom = 0;
};
