#include "capture/CaptureEnvironment.h"

#include "capture/LivePicture.h"
#include "capture/source/OpenCvSource.h"

#include <qqml.h>
#include <QQmlContext>
#include <QQmlEngine>

namespace {

QVariantMap entry(const QString &name, int index)
{
    return {{QStringLiteral("name"), name}, {QStringLiteral("index"), index}};
}

} // namespace

CaptureEnvironment::CaptureEnvironment(Parts parts, Settings &settings, QObject *parent)
    : QObject(parent), m_parts(std::move(parts)), m_files(settings),
      m_demo(std::make_shared<DemoWebcamControls>()), m_livePicture(&LivePicture::processWide())
{
    if (!m_parts.openHardware)
        m_parts.openHardware = [](int index) {
            return std::make_unique<OpenCvSource>(index);
        };
    if (m_parts.monitor)
        connect(m_parts.monitor.get(), &DeviceMonitor::changed, this, &CaptureEnvironment::devicesChanged);
    connect(m_demo.get(), &DemoWebcamControls::presentChanged, this, &CaptureEnvironment::devicesChanged);
    connect(&m_files, &FileCameras::changed, this, &CaptureEnvironment::devicesChanged);
}

CaptureEnvironment::~CaptureEnvironment() = default;

QString CaptureEnvironment::demoName()
{
    // Kept as it is in every language: the kind of a device is told by the words of its name.
    return QStringLiteral("Demo Webcam");
}

CaptureEnvironment::Parts CaptureEnvironment::system()
{
    return {
        std::make_shared<SystemCaptureClock>(), VideoNodes::ofSystem(), DeviceMonitor::ofSystem(), {}, true};
}

CaptureEnvironment *CaptureEnvironment::of(const QObject *item)
{
    const QQmlEngine *engine = qmlEngine(item);
    if (!engine)
        return nullptr;
    const QVariant value = engine->rootContext()->contextProperty(QString::fromLatin1(contextName));
    return qobject_cast<CaptureEnvironment *>(value.value<QObject *>());
}

QVariantList CaptureEnvironment::devices()
{
    QVariantList list;
    if (m_parts.nodes) {
        const QList<VideoNode> nodes = m_parts.nodes->list();
        for (const VideoNode &node : nodes)
            list.append(entry(node.name, node.index));
    }
    if (m_parts.demo && m_demo->isPresent())
        list.append(entry(demoName(), demoIndex));
    const QList<FileCameras::Camera> files = m_files.cameras();
    for (const FileCameras::Camera &file : files)
        list.append(entry(file.name, file.index));
    return list;
}

std::unique_ptr<VideoSource> CaptureEnvironment::makeSource(int index) const
{
    if (index == demoIndex && m_parts.demo)
        return std::make_unique<DemoWebcam>(m_parts.clock, m_demo);
    const QString path = m_files.path(index);
    if (!path.isEmpty())
        return FileCameras::makeSource(path, m_parts.clock);
    return m_parts.openHardware(index);
}
