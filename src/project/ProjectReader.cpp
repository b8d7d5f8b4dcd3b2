#include "project/ProjectReader.h"

#include "project/AttributeReader.h"
#include "project/GuardedDevice.h"
#include "project/WebpDefaults.h"

#include <QFile>
#include <QFileInfo>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;
using morvane::fields::IntegerRule;
using morvane::fields::RealRule;
using morvane::fields::TextRule;

namespace {

constexpr int deepestNesting = 64;

/// One pass over one document.
class Pass
{
    Q_DECLARE_TR_FUNCTIONS(ProjectReader)

public:
    Pass(QIODevice &device, const std::atomic<bool> *cancelled)
        : m_device(device, cancelled), m_xml(&m_device)
    {
        // Names count as they are written; a prefix that nobody declared is no reason to refuse a project.
        m_xml.setNamespaceProcessing(false);
    }

    ProjectReadResult run();

private:
    void readTokens();
    void startElement();
    void readGroup(QStringView name);
    void readFrame();
    void readVersion();
    void readAnimation();
    void readCamera();
    void readFilters();
    QString frameName(const QXmlStreamAttribute &attribute);
    int frameInteger(const QXmlStreamAttribute &attribute, const IntegerRule &rule);
    void refuseDeclaration();
    QString stopMessage() const;
    QString atPosition(const QString &message) const;

    AttributeReader attributeReader()
    {
        m_attributes = m_xml.attributes();
        return {m_attributes, m_refusals};
    }

    /// Reads a group the first time that its element comes; later ones of the same name are ignored.
    template <typename Group, typename Visit>
    void readOnce(std::optional<Group> &group, Visit visit)
    {
        if (group)
            return;
        AttributeReader reader = attributeReader();
        visit(group.emplace(), reader);
    }

    GuardedDevice m_device;
    QXmlStreamReader m_xml;
    QXmlStreamAttributes m_attributes;
    Refusals m_refusals;
    ProjectVersion::Facts m_version;
    ProjectDocument m_document;
    int m_depth = 0;
};

ProjectReadResult Pass::run()
{
    using Status = ProjectReadResult::Status;
    ProjectReadResult result;
    readTokens();
    if (m_device.stop() == GuardedDevice::Stop::Cancelled) {
        result.status = Status::Cancelled;
        return result;
    }
    if (m_xml.hasError() || m_device.stop() != GuardedDevice::Stop::None) {
        result.status = Status::NotParsable;
        result.error = atPosition(stopMessage());
        return result;
    }
    result.hasVersion = m_version.hasVersionElement;
    const ProjectVersion::Verdict verdict = ProjectVersion::check(m_version);
    result.error = verdict.message;
    result.logLine = verdict.logLine;
    if (verdict.event != Zum::FileIsOk) {
        result.status = verdict.event == Zum::LegacyFile ? Status::Legacy : Status::NotAProject;
        return result;
    }
    result.status = Status::Ok;
    result.refusals = m_refusals.sentences();
    result.document = std::move(m_document);
    return result;
}

void Pass::readTokens()
{
    while (!m_xml.atEnd()) {
        const QXmlStreamReader::TokenType token = m_xml.readNext();
        m_device.tokenDone();
        if (token == QXmlStreamReader::StartElement)
            startElement();
        else if (token == QXmlStreamReader::EndElement)
            --m_depth;
        else if (token == QXmlStreamReader::DTD)
            refuseDeclaration();
    }
}

// The name alone does no harm and stands in files of other writers; anything more could define entities or
// name files elsewhere.
void Pass::refuseDeclaration()
{
    if (m_xml.text().contains(u'[') || !m_xml.dtdSystemId().isEmpty() || !m_xml.dtdPublicId().isEmpty())
        m_xml.raiseError(tr("A document type declaration has no place in a project file"));
    else
        m_refusals.add(tr("The document type declaration of the project file is ignored"));
}

QString Pass::stopMessage() const
{
    switch (m_device.stop()) {
        case GuardedDevice::Stop::TokenTooLong:
            return tr("A single piece of the file is too long");
        case GuardedDevice::Stop::TooManyAttributes:
            return tr("An element has too many attributes");
        case GuardedDevice::Stop::None:
        case GuardedDevice::Stop::Cancelled:
            break;
    }
    return m_xml.errorString();
}

QString Pass::atPosition(const QString &message) const
{
    return message + u" at line %1, column %2"_s.arg(m_xml.lineNumber()).arg(m_xml.columnNumber());
}

void Pass::startElement()
{
    if (++m_depth > deepestNesting) {
        m_xml.raiseError(tr("The elements are nested too deep"));
        return;
    }
    const QStringView name = m_xml.qualifiedName();
    if (m_depth == 1)
        m_version.rootTag = name.toString();
    else if (name == morvane::fields::frameElement)
        readFrame();
    else
        readGroup(name);
}

void Pass::readGroup(QStringView name)
{
    using namespace morvane::fields;
    if (name == "Version"_L1)
        readVersion();
    else if (name == "BackgroundSettings"_L1)
        readOnce(m_document.background, [](auto &group, auto &reader) { visitBackground(group, reader); });
    else if (name == "VideoEffects"_L1 && !m_document.videoEffectsString)
        attributeReader()("videoEffectsString", m_document.videoEffectsString, TextRule{});
    else if (name == "AnimationSettings"_L1)
        readAnimation();
    else if (name == "FrameSettings"_L1)
        readOnce(m_document.frameSettings,
                 [](auto &group, auto &reader) { visitFrameSettings(group, reader); });
    else if (name == "CanonCameraSettings"_L1)
        readCamera();
    else if (name == "Path"_L1)
        readOnce(m_document.path, [](auto &group, auto &reader) {
            visitPath(group, reader);
            reader("pathData", group.pathData, pathText);
        });
    else if (name == "RenderVideoSettings"_L1)
        readOnce(m_document.render, [](auto &group, auto &reader) {
            visitRender(group, reader);
            reader("bitrate", group.bitrate, IntegerRule{0});
        });
    else if (name == "ProjectInfo"_L1)
        readOnce(m_document.info, [](auto &group, auto &reader) { visitInfo(group, reader); });
    else if (name == "Filters"_L1)
        readFilters();
}

void Pass::readVersion()
{
    if (m_version.hasVersionElement)
        return;
    m_version.hasVersionElement = true;
    AttributeReader reader = attributeReader();
    reader("major", m_version.majorText, morvane::fields::shortText);
    reader("ver", m_version.verText, morvane::fields::shortText);
}

void Pass::readAnimation()
{
    if (m_document.animation)
        return;
    AttributeReader reader = attributeReader();
    QMap<QString, int> &settings = m_document.animation.emplace();
    for (const morvane::WebpSetting &setting : morvane::webpSettingDefaults) {
        std::optional<int> value;
        reader(setting.key.data(), value, IntegerRule{setting.lowest, setting.highest});
        settings.insert(setting.key, value.value_or(setting.standard));
    }
}

void Pass::readCamera()
{
    readOnce(m_document.camera, [](auto &group, auto &reader) {
        const auto skip = [](const char *, auto &, const auto &) {
        };
        morvane::fields::visitCamera(group, reader, skip);
    });
}

void Pass::readFilters()
{
    if (m_document.filters)
        return;
    AttributeReader reader = attributeReader();
    ProjectDocument::Filters &filters = m_document.filters.emplace();
    reader("enabled", filters.enabled, IntegerRule{0, Zum::NonRealtimeProcessing});
    const auto real = [&](const char *name, double standard) {
        const QLatin1StringView key(name);
        if (!m_attributes.hasAttribute(key))
            return;
        std::optional<double> value;
        reader(name, value, RealRule{0.0, 1000.0});
        filters.values.insert(key, QString::number(value.value_or(standard), 'g', 17));
    };
    real("contrast", 0.0);
    real("denoise", 0.0);
    real("saturation", 50.0);
    std::optional<QString> chromakey;
    reader("chromakey", chromakey, morvane::fields::shortText);
    if (chromakey)
        filters.values.insert(u"chromakey"_s, *chromakey);
}

// Thousands of these, so each attribute is looked at once instead of each name being searched for.
void Pass::readFrame()
{
    if (m_version.rootTag != "MorvaneProject"_L1)
        return;
    if (m_document.frames.size() >= ProjectReader::maxFrames) {
        m_xml.raiseError(tr("The project has too many frames"));
        return;
    }
    ProjectFrame frame;
    const QXmlStreamAttributes attributes = m_xml.attributes();
    for (const QXmlStreamAttribute &attribute : attributes) {
        const QStringView name = attribute.qualifiedName();
        if (name == "capTumb"_L1)
            frame.capTumb = frameName(attribute);
        else if (name == "capFull"_L1)
            frame.capFull = frameName(attribute);
        else if (name == "refTumb"_L1)
            frame.refTumb = frameName(attribute);
        else if (name == "refFull"_L1)
            frame.refFull = frameName(attribute);
        else if (name == "mirrored"_L1)
            frame.mirrored = attribute.value().toLongLong() != 0;
        else if (name == "static"_L1)
            frame.staticState = frameInteger(attribute, morvane::fields::frameStatic);
        else if (name == "hidden"_L1)
            frame.hidden = attribute.value().toLongLong() != 0;
        else if (name == "phase"_L1)
            frame.phase = frameInteger(attribute, morvane::fields::framePhase);
    }
    m_document.frames.append(std::move(frame));
}

QString Pass::frameName(const QXmlStreamAttribute &attribute)
{
    QString name = attribute.value().toString();
    if (name.isEmpty() || morvane::isBareFileName(name))
        return name;
    m_refusals.add(tr("Frame %1: the file name \"%2\" is refused")
                       .arg(m_document.frames.size() + 1)
                       .arg(name.left(morvane::maxFileNameBytes)));
    return {};
}

int Pass::frameInteger(const QXmlStreamAttribute &attribute, const IntegerRule &rule)
{
    bool refused = false;
    const std::optional<int> value = morvane::fields::readInteger(attribute.value(), rule, refused);
    if (refused) {
        m_refusals.add(tr("Frame %1: the value \"%2\" of \"%3\" is refused")
                           .arg(m_document.frames.size() + 1)
                           .arg(attribute.value().left(60), attribute.qualifiedName()));
    }
    return value.value_or(0);
}

} // namespace

Zum::OpenFileEvents ProjectReadResult::event() const
{
    switch (status) {
        case Status::Ok:
            return Zum::FileIsOk;
        case Status::CannotOpen:
        case Status::NotParsable:
            return Zum::FileXMLunparseble;
        case Status::NotAProject:
            return Zum::NotMorvaneFile;
        case Status::Legacy:
            return Zum::LegacyFile;
        case Status::Cancelled:
            break;
    }
    return Zum::FileSelectionCanceled;
}

ProjectReadResult ProjectReader::readFile(const QString &path, const std::atomic<bool> *cancelled)
{
    QFile file(path);
    // A pipe or a device would keep the reader waiting for ever.
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return {};
    return read(file, cancelled);
}

ProjectReadResult ProjectReader::read(QIODevice &device, const std::atomic<bool> *cancelled)
{
    return Pass(device, cancelled).run();
}
