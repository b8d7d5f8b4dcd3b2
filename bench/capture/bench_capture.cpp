// What capturing costs: a grabbed picture on its way to a texture against the copies and conversions that it
// needs, a shot from the request to the row against the bare encoding of its files, live view on the screen,
// and 2,000 shots in a row.

#include "capture/CaptureWorkflow.h"
#include "capture/LivePicture.h"
#include "capture/LiveViewItem.h"
#include "capture/webcam/FrameGrabber.h"
#include "capture/webcam/FrameSaver.h"
#include "capture/webcam/WebCamWindow.h"
#include "Figures.h"
#include "shared/Settings.h"
#include "shared/WebcamGlobal.h"
#include "support/FakeCapture.h"
#include "timeline/FramesModel.h"

#include <algorithm>
#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>
#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QImageWriter>
#include <QQuickWindow>
#include <QTemporaryDir>

namespace {

constexpr int intervalMs = 33;
constexpr QSize fullHd(1920, 1080);

/// The stage in its large size, drawn once.
cv::Mat stage()
{
    DemoWebcam camera(std::make_shared<FakeCaptureClock>(), std::make_shared<DemoWebcamControls>());
    camera.open();
    camera.set(3, fullHd.width());
    camera.set(4, fullHd.height());
    cv::Mat picture;
    camera.read(picture);
    return picture;
}

class StageSource : public VideoSource
{
public:
    bool open() override
    {
        return true;
    }
    bool isOpened() const override
    {
        return true;
    }
    bool read(cv::Mat &picture) override
    {
        picture = m_stage;
        return true;
    }
    bool set(int, double) override
    {
        return true;
    }
    double get(int) override
    {
        return -1;
    }
    void close() override
    {
    }

private:
    cv::Mat m_stage = stage();
};

void grabToSharedPicture(const char *name, QSize available)
{
    StageSource source;
    LivePicture live;
    CaptureRequests requests;
    FrameGrabber grabber(source, live, nullptr, requests, {[] {}, [](const auto &) {}, {}});
    grabber.setAvailableWidth(available.width());
    grabber.setAvailableHeight(available.height());
    grabber.setHistogramWanted(false);
    cv::Mat picture;
    source.read(picture);
    const auto grab = [&] {
        return figures::timed([&] { grabber.grab(); });
    };
    const auto bare = [&] {
        return figures::timed([&] {
            cv::Mat small = picture;
            if (available.width() < picture.cols)
                cv::resize(picture, small, cv::Size(available.width(), available.height()), 0, 0,
                           cv::INTER_AREA);
            QImage image(small.cols, small.rows, QImage::Format_ARGB32);
            cv::Mat view(small.rows, small.cols, CV_8UC4, image.bits(), size_t(image.bytesPerLine()));
            cv::cvtColor(small, view, cv::COLOR_BGR2BGRA);
        });
    };
    figures::print(name, figures::inTurn(100, grab, bare));
}

/// The program's capture without its scene, on the machine's own clock.
struct Studio
{
    Studio()
    {
        CaptureEnvironment::Parts parts;
        parts.clock = std::make_shared<SystemCaptureClock>();
        environment = std::make_unique<CaptureEnvironment>(std::move(parts), settings);
        environment->setLivePicture(picture);
        device.setEnvironment(environment.get());
        device.setGlobal(&global);
        device.setAvailWidth(960);
        device.setAvailHeight(540);
        frames.setShootMultipleFrames(0);
        frames.setLoaded(true);
        QObject::connect(&device, &WebCamWindow::frameSaved, &workflow, &CaptureWorkflow::finishShot);
        global.setCamindex(CaptureEnvironment::demoIndex);
        device.connects();
        waitFor([&] { return device.connected(); });
        device.setFrameSize(fullHd.width(), fullHd.height());
        waitFor([&] { return device.coordSystemWidth() == fullHd.width(); });
    }
    template <typename Done>
    static void waitFor(Done done)
    {
        while (!done())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    /// Returns with the next picture of the live view, one interval before the camera is asked again.
    void waitForPicture() const
    {
        const int before = environment->demo().delivered();
        waitFor([&] { return environment->demo().delivered() > before; });
    }
    void shoot()
    {
        const int rows = frames.framesCount();
        const QVariantMap shot = workflow.nextShot(folder.path() + '/', folder.path() + "/tmb_");
        workflow.beginShot();
        device.captureFrame("jpg", shot["fullPath"].toString(), shot["tumbPath"].toString(), 0, 0, false,
                            false, false);
        global.setUnsavedCapturedFull(shot["fullName"].toString());
        global.setUnsavedCapturedTumb(shot["tumbName"].toString());
        waitFor([&] { return frames.framesCount() > rows; });
    }

    QTemporaryDir folder;
    Settings settings{folder.filePath("settings.ini")};
    LivePicture picture;
    WebcamGlobal global;
    FramesModel frames;
    CaptureWorkflow workflow{global, frames};
    std::unique_ptr<CaptureEnvironment> environment;
    WebCamWindow device;
};

/// The picture and the thumbnail of a shot as bytes.
double bareEncodeMs(const QImage &image)
{
    return figures::timed([&image] {
        for (const auto &[picture, quality] :
             {std::pair(image, 100), std::pair(image.scaled(90, 60, Qt::KeepAspectRatio), 67)}) {
            QByteArray bytes;
            QBuffer buffer(&bytes);
            buffer.open(QIODevice::WriteOnly);
            QImageWriter writer(&buffer, "jpeg");
            writer.setQuality(quality);
            writer.write(picture);
        }
    });
}

struct NobodyListens : SaveObserver
{
    void progressTotal(int) override
    {
    }
    void progressCurrent(int) override
    {
    }
    void progressAction(const QString &) override
    {
    }
    void frameSaved(const QString &, const QString &) override
    {
    }
    void thumbnailFailed(const QString &) override
    {
    }
    void imageFailed(const QString &) override
    {
    }
};

/// What the camera's thread does for a shot, the waiting for the next picture left out.
void saveShot(int runs)
{
    const QTemporaryDir folder;
    NobodyListens nobody;
    FrameSaver saver(nobody);
    // A camera's picture has noise, and is dearer to encode than a drawing.
    cv::Mat noise(fullHd.height(), fullHd.width(), CV_8UC3);
    cv::randn(noise, cv::Scalar::all(6), cv::Scalar::all(3));
    const cv::Mat picture = stage() + noise;
    QImage image(picture.cols, picture.rows, QImage::Format_RGB888);
    cv::Mat view(picture.rows, picture.cols, CV_8UC3, image.bits(), size_t(image.bytesPerLine()));
    cv::cvtColor(picture, view, cv::COLOR_BGR2RGB);
    int number = 0;
    const auto save = [&] {
        ++number;
        CaptureRequest request;
        request.fullPath = folder.filePath(QString("full_%1.jpg").arg(number));
        request.tumbPath = folder.filePath(QString("tumb_%1.jpg").arg(number));
        return figures::timed([&] { saver.save(image, request); });
    };
    figures::print("shot-save", figures::inTurn(runs, save, [&] { return bareEncodeMs(image); }));
}

/// The key is pressed just after the camera was asked for a picture, so that all of an interval has to pass
/// until it is asked again; that interval does not count.
void keyPressToRow(int runs)
{
    Studio studio;
    studio.shoot();
    const QImage image = QImage(studio.folder.filePath(studio.global.unsavedCapturedFull()))
                             .convertToFormat(QImage::Format_RGB888);
    const auto shoot = [&studio] {
        studio.waitForPicture();
        return figures::timed([&studio] { studio.shoot(); }) - intervalMs;
    };
    figures::print("key-to-row", figures::inTurn(runs, shoot, [&image] { return bareEncodeMs(image); }));
}

void manyShots(int count)
{
    Studio studio;
    std::vector<double> first;
    std::vector<double> second;
    double early = 0;
    for (int i = 0; i < count; ++i) {
        (i < count / 2 ? first : second).push_back(figures::timed([&studio] { studio.shoot(); }));
        QFile::remove(studio.folder.filePath(studio.global.unsavedCapturedFull()));
        if (i == count / 10)
            early = figures::residentMb();
    }
    figures::print("shots-memory", figures::residentMb() - early);
    figures::print("shots-time", {figures::median(second), figures::median(first)});
}

void liveOnScreen(int seconds)
{
    Studio studio;
    QQuickWindow window;
    window.resize(960, 540);
    studio.device.setParentItem(window.contentItem());
    window.show();
    int behind = 0;
    int shown = 0;
    const auto *view = qobject_cast<LiveViewItem *>(studio.device.liveView());
    int delivered = studio.environment->demo().delivered();
    QObject::connect(view, &LiveViewItem::refreshme, &window, [&] {
        const int now = studio.environment->demo().delivered();
        behind = std::max(behind, now - delivered - 1);
        delivered = now;
        ++shown;
    });
    QElapsedTimer timer;
    timer.start();
    Studio::waitFor([&] { return timer.elapsed() > seconds * 1000; });
    figures::print("live-behind", behind);
    figures::print("live-rate", double(shown) / seconds);
    studio.device.setParentItem(nullptr);
}

} // namespace

int main(int argc, char **argv)
{
    const QGuiApplication app(argc, argv);
    figures::dropLog();
    const bool quick = figures::quick(argc, argv);
    grabToSharedPicture("grab-whole", fullHd);
    grabToSharedPicture("grab-half", fullHd / 2);
    saveShot(quick ? 10 : 60);
    keyPressToRow(quick ? 20 : 100);
    liveOnScreen(quick ? 2 : 10);
    manyShots(quick ? 100 : 2000);
    return 0;
}
