#include "capture/system/V4l2Nodes.h"

#include <algorithm>
#include <QDir>
#include <QFile>

#ifdef Q_OS_LINUX
#include <fcntl.h>
#include <linux/videodev2.h>
#include <sys/ioctl.h>
#include <unistd.h>
#endif

namespace {

const QString nodePrefix = QStringLiteral("video");

QString firstLine(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return QString();
    return QString::fromUtf8(file.readLine(256)).trimmed();
}

} // namespace

V4l2Nodes::V4l2Nodes(QString systemFolder, QString deviceFolder, Probe probe)
    : m_systemFolder(std::move(systemFolder)), m_deviceFolder(std::move(deviceFolder)),
      m_probe(std::move(probe))
{
}

// The first node of a camera is the one with pictures; that has to do where the driver does not answer, as
// when the user may not open the node.
bool V4l2Nodes::deliversPictures(const QString &node) const
{
    switch (m_probe(m_deviceFolder + QLatin1Char('/') + node)) {
        case Delivers::Pictures:
            return true;
        case Delivers::Nothing:
            return false;
        case Delivers::Unknown:
            break;
    }
    const QString index = firstLine(QStringLiteral("%1/%2/index").arg(m_systemFolder, node));
    return index.isEmpty() || index == QLatin1String("0");
}

QList<VideoNode> V4l2Nodes::list()
{
    QList<VideoNode> nodes;
    const QStringList names = QDir(m_systemFolder).entryList({nodePrefix + QLatin1Char('*')}, QDir::Dirs);
    for (const QString &node : names) {
        bool isNumber = false;
        const int index = node.mid(nodePrefix.size()).toInt(&isNumber);
        if (!isNumber || !deliversPictures(node))
            continue;
        const QString name = firstLine(QStringLiteral("%1/%2/name").arg(m_systemFolder, node));
        nodes.append({name.isEmpty() ? node : name, index});
    }
    std::sort(nodes.begin(), nodes.end(),
              [](const VideoNode &a, const VideoNode &b) { return a.index < b.index; });
    return nodes;
}

V4l2Nodes::Delivers V4l2Nodes::probeDriver(const QString &devicePath)
{
#ifdef Q_OS_LINUX
    const int node = ::open(QFile::encodeName(devicePath).constData(), O_RDWR | O_NONBLOCK | O_CLOEXEC);
    if (node < 0)
        return Delivers::Unknown;
    v4l2_capability capability{};
    const bool answered = ::ioctl(node, VIDIOC_QUERYCAP, &capability) == 0;
    ::close(node);
    if (!answered)
        return Delivers::Unknown;
    const bool perNode = capability.capabilities & V4L2_CAP_DEVICE_CAPS;
    const quint32 abilities = perNode ? capability.device_caps : capability.capabilities;
    const bool captures = abilities & (V4L2_CAP_VIDEO_CAPTURE | V4L2_CAP_VIDEO_CAPTURE_MPLANE);
    return captures ? Delivers::Pictures : Delivers::Nothing;
#else
    Q_UNUSED(devicePath)
    return Delivers::Unknown;
#endif
}

std::unique_ptr<VideoNodes> VideoNodes::ofSystem()
{
    return std::make_unique<V4l2Nodes>(QStringLiteral("/sys/class/video4linux"), QStringLiteral("/dev"),
                                       &V4l2Nodes::probeDriver);
}
