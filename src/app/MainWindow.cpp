#include "app/MainWindow.h"

#include "app/AppControllers.h"
#include "app/CommandLine.h"
#include "app/ContextValues.h"
#include "app/DroppedFiles.h"
#include "app/EventSounds.h"
#include "app/StartupSettings.h"
#include "app/SystemIconsProvider.h"
#include "app/WindowPlacement.h"
#include "shared/ScreenDensity.h"

#include <QClipboard>
#include <QCloseEvent>
#include <QDropEvent>
#include <QGuiApplication>
#include <QIcon>
#include <QMimeData>
#include <QQmlContext>
#include <QQmlEngine>

namespace {

constexpr QSize smallestSize{1024, 600};
constexpr QSize firstSize{1280, 760};
const QColor groundColor(0x39, 0x39, 0x39);

} // namespace

MainWindow::MainWindow(std::unique_ptr<AppControllers> controllers, const QStringList &arguments)
    : ShellFacet(std::move(controllers))
{
    AppControllers &c = this->controllers();
    c.attachWindow(*this);
    // Its many sizes take a while to decode, so the window is shown first.
    connect(
        this, &QQuickWindow::frameSwapped, this,
        [this] { setIcon(QIcon(QStringLiteral(":/icons/MorvaneCapture.ico"))); },
        Qt::ConnectionType(Qt::QueuedConnection | Qt::SingleShotConnection));
    engine()->addImageProvider(QStringLiteral("systemicons"), new SystemIconsProvider);
    setTitle();
    prepareWindow();
    startup::readInto(c.global, c.settings());
    publishContext();
    connectControllers();
    if (const QString camera = commandline::cameraFile(arguments); !camera.isEmpty())
        shootFrom(camera);
    setSource(QUrl(sceneUrl));
    WindowPlacement(c.settings(), QStringLiteral("mainwindow"), QStringLiteral("maximized")).restore(*this);
    emit windowSizeChanged();
    if (const QString complaint = startup::complaint(c.settings()); !complaint.isEmpty())
        c.messages.post(Zum::CommonMessage, Zum::Warning, complaint);
    // Once the window stands, so that whatever opening has to ask or tell is seen over it.
    QMetaObject::invokeMethod(
        this, [this, arguments] { openNamedProject(arguments); }, Qt::QueuedConnection);
}

MainWindow::~MainWindow()
{
    emit aboutToCloseApp();
    controllers().frames.stop();
    // Every item with a device or a worker goes while the model is still there.
    setSource(QUrl(QStringLiteral("qrc:/Dummy.qml")));
    // What still runs tells the facets of its end, so it ends before they go.
    controllers().lifecycle.finishOperations();
}

void MainWindow::prepareWindow()
{
    setColor(groundColor);
    setMinimumSize(smallestSize);
    setResizeMode(SizeRootObjectToView);
    resize(firstSize);
}

void MainWindow::publishContext()
{
    AppControllers &c = controllers();
    const int density = ScreenDensity::snapped(c.environment.logicalDpi);
    const morvane::FontChoice font =
        morvane::chooseFont(c.settings().value(QStringLiteral("fontsize")), density);
    const double scale = morvane::dpiScaleOf(font.sizes);
    c.global.setFontSize(font.chosenIndex);
    Zum::setDpiScale(scale);
    setSizes(density, scale);
    setTimelineH(morvane::timelineHeight(height(), font.sizes));

    QQmlContext *context = rootContext();
    context->setContextProperty(QStringLiteral("MainWindow"), this);
    context->setContextProperty(QStringLiteral("SubWindow"), this);
    context->setContextProperty(QStringLiteral("FramesModel"), &c.frames);
    context->setContextProperty(QStringLiteral("WebcamGlobal"), &c.global);
    context->setContextProperty(QStringLiteral("CurvesModel"), &c.curves);
    context->setContextProperty(QString::fromLatin1(CaptureEnvironment::contextName), &c.capture);
    context->setContextProperty(QStringLiteral("CameraList"), &c.cameras);
    context->setContextProperty(QStringLiteral("CaptureWorkflow"), &c.shots);
    context->setContextProperty(QStringLiteral("TimeLapse"), &c.timeLapse);
    context->setContextProperties(morvane::contextValues(
        {font, scale, startup::timelineScale(c.settings()), ::EventSounds::available()}));
}

void MainWindow::connectControllers()
{
    AppControllers &c = controllers();
    connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this, &MainWindow::clipboardChanged,
            Qt::UniqueConnection);
    connect(this, &MainWindow::disconnectModel, &c.global, &WebcamGlobal::disconnectModel,
            Qt::UniqueConnection);
    connect(this, &MainWindow::connectModel, &c.global, &WebcamGlobal::connectModel, Qt::UniqueConnection);
    connect(this, &MainWindow::appendMessage, &c.global, &WebcamGlobal::appendMessage, Qt::UniqueConnection);
    connect(this, &MainWindow::currentCapturingDeviceChanged, this, qOverload<>(&MainWindow::setTitle),
            Qt::UniqueConnection);
    connect(&c.global, &WebcamGlobal::connectedChanged, this, &MainWindow::cameraConnected,
            Qt::UniqueConnection);
    connect(&c.global, &WebcamGlobal::cameraNameChanged, this, &MainWindow::updateCurrentCapturingDeviceIcon,
            Qt::UniqueConnection);
    connect(&c.global, &WebcamGlobal::cameraNameChanged, this, &MainWindow::updateCurrentDeviceType,
            Qt::UniqueConnection);
    connect(this, &MainWindow::capturingDeviceObjectChanged, this, &MainWindow::updateCurrentDeviceType,
            Qt::UniqueConnection);
    connect(&c.frames, &FramesModel::changed, &c.lifecycle, &ProjectLifecycle::projectChanged,
            Qt::UniqueConnection);
    connect(&c.frames, &FramesModel::connectModel, this, &MainWindow::connectModel, Qt::UniqueConnection);
    connect(&c.frames, &FramesModel::disconnectModel, this, &MainWindow::disconnectModel,
            Qt::UniqueConnection);
    connect(&c.frames, &FramesModel::progressTotalChanged, this, &MainWindow::setProgressTotal,
            Qt::UniqueConnection);
    connect(&c.frames, &FramesModel::progressCurrentChanged, this, &MainWindow::setProgressCurrent,
            Qt::UniqueConnection);
    connect(&c.frames, &FramesModel::progressActionChanged, this, &MainWindow::setProgressAction,
            Qt::UniqueConnection);
    connect(c.quitSequence.get(), &QuitSequence::closingChanged, this, &MainWindow::closingChanged,
            Qt::UniqueConnection);
    connect(c.quitSequence.get(), &QuitSequence::closeAttemptsChanged, this,
            &MainWindow::closeAttemptsChanged, Qt::UniqueConnection);
    connect(&c.lifecycle, &ProjectLifecycle::titleChanged, this, qOverload<>(&MainWindow::setTitle),
            Qt::UniqueConnection);
    connect(&c.lifecycle, &ProjectLifecycle::windowModifiedChanged, this, [this] { setTitle(); });
    connect(&c.lifecycle, &ProjectLifecycle::quitRequested, this, qOverload<bool>(&MainWindow::quit),
            Qt::UniqueConnection);
}

void MainWindow::shootFrom(const QString &file)
{
    AppControllers &c = controllers();
    const int index = useFileAsCamera(file);
    if (index < 0)
        return;
    const QString kindKey = QStringLiteral("currentCapturingDevice");
    // A DSLR camera opens no files.
    if (c.settings().value(kindKey, Zum::CapturingDeviceCanonEOS).toInt() == Zum::CapturingDeviceCanonEOS)
        c.settings().setValue(kindKey, int(Zum::CapturingDeviceWebcam));
    c.devices.setCurrentCapturingDevice(c.settings().value(kindKey).toInt());
    c.cameras.fill(c.capture.devices());
    c.cameras.choose(index);
}

void MainWindow::openNamedProject(const QStringList &arguments)
{
    const QString path = commandline::projectPath(arguments);
    if (!path.isEmpty())
        openProject(path);
}

bool MainWindow::event(QEvent *event)
{
    switch (event->type()) {
        case QEvent::DragEnter:
        case QEvent::DragMove: {
            auto *drag = static_cast<QDragMoveEvent *>(event);
            drag->setAccepted(drag->mimeData()->hasFormat(QStringLiteral("text/uri-list")));
            return true;
        }
        case QEvent::Drop: {
            auto *drop = static_cast<QDropEvent *>(event);
            if (drop->mimeData()->hasFormat(QStringLiteral("text/uri-list"))) {
                drop->acceptProposedAction();
                takeDrop(drop->mimeData()->urls());
            }
            return true;
        }
        default:
            return ShellFacet::event(event);
    }
}

void MainWindow::takeDrop(const QList<QUrl> &urls)
{
    WebcamGlobal &global = controllers().global;
    const DroppedFile file = droppedFile(urls, global.currentActiveTab());
    switch (file.kind) {
        case DroppedFile::Kind::Project:
            openProject(file.path);
            break;
        case DroppedFile::Kind::Video:
            global.setPlayerPlaying(false);
            global.setPlayerSource(file.path);
            break;
        case DroppedFile::Kind::Image:
            controllers().messages.post(
                Zum::FileMessage, Zum::Info,
                tr("This version cannot import pictures yet. A camera can play them: add "
                   "them to the list of devices."));
            break;
        case DroppedFile::Kind::Nothing:
            break;
    }
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    event->setAccepted(controllers().quitSequence->attempt());
}
