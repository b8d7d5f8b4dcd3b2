#include "PreviewOnScreen.h"

#include <QCoreApplication>
#include <QImageWriter>
#include <QTimer>

PreviewOnScreen::PreviewOnScreen(QSize view)
{
    for (const char *folder : {"cap", "ref", "tmp/cache"})
        QDir(m_folder.path()).mkpath(QLatin1String(folder));
    Zum::setProjectFolders({m_folder.path() + u'/', captured(), {}, {}, {}});
    m_item = new RamPreview(m_window.contentItem());
    m_item->setPlayingCaptured(true);
    m_item->setScaleFactor(0);
    m_item->setCameraViewWidth(view.width());
    m_item->setCameraViewHeight(view.height());
    m_item->setHistogramOn(false);
    m_window.resize(view);
    m_window.show();
    waitFor([this] { return m_window.isExposed(); });
    settle();
}

PreviewOnScreen::~PreviewOnScreen()
{
    delete m_item;
}

void PreviewOnScreen::addPicture(const QString &name, QSize size, int seed) const
{
    QImage small(size.width() / 8, size.height() / 8, QImage::Format_RGB32);
    quint32 value = quint32(seed) + 1;
    for (int y = 0; y < small.height(); ++y)
        for (int x = 0; x < small.width(); ++x) {
            value = value * 1664525 + 1013904223;
            const int grain = int(value >> 27);
            small.setPixel(x, y, qRgb((x + seed) % 200 + grain, y % 200 + grain, (x + y) % 200 + grain));
        }
    QImageWriter writer(captured() + name, "jpg");
    writer.setQuality(92);
    writer.write(small.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
}

double PreviewOnScreen::show(const QString &name)
{
    bool painted = false;
    const auto connection =
        QObject::connect(m_item, &RamPreview::newPicRendered, m_item, [&painted] { painted = true; });
    const qint64 former = m_item->image().cacheKey();
    double held = -1;
    QElapsedTimer time;
    time.start();
    m_item->setImageName(name);
    QTimer guard;
    guard.start(1000);
    while (!painted && time.elapsed() < 20000) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        if (held < 0 && m_item->image().cacheKey() != former)
            held = double(time.nsecsElapsed()) / 1e6;
    }
    QObject::disconnect(connection);
    return held;
}

void PreviewOnScreen::settle(int milliseconds)
{
    waitFor([] { return false; }, milliseconds);
}

bool PreviewOnScreen::waitFor(const std::function<bool()> &done, int limitMs)
{
    QElapsedTimer time;
    time.start();
    // Sleeps between events: a thread that spins would take the worker's processor.
    QTimer guard;
    guard.start(2);
    while (!done()) {
        if (time.elapsed() >= limitMs)
            return false;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    return true;
}

QString PreviewOnScreen::copy() const
{
    const QStringList names = copies().entryList({QStringLiteral("*.jpg")}, QDir::Files);
    return names.isEmpty() ? QString() : copies().filePath(names.first());
}

void PreviewOnScreen::removeCopies() const
{
    QDir folder = copies();
    for (const QString &name : folder.entryList(QDir::Files))
        folder.remove(name);
}
