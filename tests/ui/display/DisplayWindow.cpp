#include "DisplayWindow.h"

#include <QQmlError>
#include <QTest>

namespace {

QImage plain(const QColor &color)
{
    QImage image(DisplayWindow::frameWidth, DisplayWindow::frameHeight, QImage::Format_RGB32);
    image.fill(color);
    return image;
}

} // namespace

QColor DisplayWindow::capturedColor(int row)
{
    const QList<QColor> colors{QColor(200, 60, 60), QColor(60, 160, 60), QColor(60, 90, 200),
                               QColor(190, 160, 50)};
    return colors.at(row % colors.size());
}

QColor DisplayWindow::referenceColor(int row)
{
    return QColor(20 + 40 * (row % 5), 200, 200);
}

ShellWindow::Options DisplayWindow::options(QSize size)
{
    Options options;
    options.size = size;
    return options;
}

DisplayWindow::DisplayWindow(int rows, const ShellWindow::Options &options) : ShellWindow(options)
{
    QObject::connect(qmlEngine(&root()), &QQmlEngine::warnings, &window(),
                     [this](const QList<QQmlError> &errors) {
                         for (const QQmlError &error : errors)
                             m_engineWarnings.append(error.toString());
                     });
    if (!createProject())
        qFatal("No project");
    global().setScaleDelay(std::chrono::milliseconds(1));
    global().setCropAreaW(frameWidth);
    global().setCropAreaH(frameHeight);
    for (int row = 0; row < rows; ++row) {
        const QString captured = QStringLiteral("frame_%1.%2").arg(row).arg(row % 2 == 0 ? "png" : "jpg");
        const QString reference = QStringLiteral("ref_%1.png").arg(row);
        if (!plain(capturedColor(row)).save(window().capFullDirPath() + captured, nullptr, 100)
            || !plain(referenceColor(row)).save(window().refFullDirPath() + reference))
            qFatal("No pictures");
        frames().appendFrame({{QStringLiteral("capFull"), captured}, {QStringLiteral("refFull"), reference}});
    }
    frames().setCurrentIndex(0);
}

void DisplayWindow::addPicture(const QImage &picture, const QString &name)
{
    QVERIFY(picture.save(window().capFullDirPath() + name, nullptr, 100));
    frames().appendFrame({{QStringLiteral("capFull"), name}});
}

QQuickItem *DisplayWindow::display() const
{
    return evaluateInside(item("screenArea"), QStringLiteral("capture.item")).value<QQuickItem *>();
}

QQuickItem *DisplayWindow::timingDisplay() const
{
    return evaluateInside(item("screenArea"), QStringLiteral("timing.item")).value<QQuickItem *>();
}

QQuickItem *DisplayWindow::cameraBox() const
{
    return display()->property("cameraBox").value<QQuickItem *>();
}

QQuickItem *DisplayWindow::flicker() const
{
    return display()->property("view").value<QQuickItem *>();
}

QVariant DisplayWindow::layers(const QString &expression) const
{
    return evaluateInside(cameraBox(), expression);
}

bool DisplayWindow::waitForPictures()
{
    return QTest::qWaitFor([this] {
               return layers(QStringLiteral("bigCapturedPicBox.preview.sourceImageWidth")).toInt() > 1
                      && layers(
                             QStringLiteral(
                                 "Math.abs(bigCapturedPicBox.preview.width - bigCapturedPicBox.width) < 2"))
                             .toBool();
           })
           && settle() && settle();
}

QImage DisplayWindow::shot()
{
    settle();
    return window().grabWindow();
}

QColor DisplayWindow::colorAt(QQuickItem *item, QPointF place)
{
    const QPointF at = item->mapToScene(QPointF(item->width() * place.x(), item->height() * place.y()));
    return shot().pixelColor(at.toPoint());
}

bool DisplayWindow::near(const QColor &a, const QColor &b, int tolerance)
{
    return std::abs(a.red() - b.red()) <= tolerance && std::abs(a.green() - b.green()) <= tolerance
           && std::abs(a.blue() - b.blue()) <= tolerance;
}
