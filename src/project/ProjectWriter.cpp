#include "project/ProjectWriter.h"

#include "project/ProjectFields.h"
#include "project/WebpDefaults.h"

#include <algorithm>
#include <cmath>
#include <QRegularExpression>
#include <QXmlStreamWriter>

using namespace Qt::StringLiterals;

namespace {

// Bytes of one frame with four names of the usual length; more only costs a growth of the buffer.
constexpr qsizetype bytesPerFrame = 260;

bool xmlBears(QChar c)
{
    const char16_t unit = c.unicode();
    return (unit >= 0x20 || unit == '\t' || unit == '\n' || unit == '\r') && !c.isSurrogate()
           && unit < 0xfffe;
}

// The parser of a file with one forbidden character refuses all of it, so such a character must not get
// there.
QString xmlText(const QString &text)
{
    if (std::all_of(text.cbegin(), text.cend(), xmlBears))
        return text;
    QString kept;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool isPair =
            text.at(i).isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate();
        if (isPair) {
            kept += text.mid(i, 2);
            ++i;
        } else if (xmlBears(text.at(i))) {
            kept += text.at(i);
        }
    }
    return kept;
}

/// Writes the attributes of the element that is open. Usable as a visitor of morvane::fields.
class AttributeWriter
{
public:
    explicit AttributeWriter(QXmlStreamWriter &xml) : m_xml(xml)
    {
    }

    template <typename Value, typename... Rule>
    void operator()(const char *name, const std::optional<Value> &value, const Rule &...)
    {
        if (value)
            write(QString::fromLatin1(name), *value);
    }

    void write(const QString &name, int value)
    {
        m_xml.writeAttribute(name, QString::number(value));
    }
    void write(const QString &name, bool value)
    {
        m_xml.writeAttribute(name, value ? u"1"_s : u"0"_s);
    }
    void write(const QString &name, double value)
    {
        if (std::isfinite(value))
            m_xml.writeAttribute(name, ProjectWriter::realText(value));
    }
    void write(const QString &name, const QString &value)
    {
        m_xml.writeAttribute(name, xmlText(value));
    }

private:
    QXmlStreamWriter &m_xml;
};

class DocumentWriter
{
public:
    DocumentWriter(QByteArray &bytes, const ProjectDocument &document)
        : m_document(document), m_xml(&bytes), m_attributes(m_xml)
    {
    }

    void write();

private:
    void writeVersion();
    void writeAnimation();
    void writeCamera();
    void writeFilters();
    void writeFrame(const ProjectFrame &frame);

    template <typename Group, typename Visit>
    void writeGroup(const QString &element, const std::optional<Group> &group, Visit visit)
    {
        if (!group)
            return;
        m_xml.writeEmptyElement(element);
        visit(*group, m_attributes);
    }

    const ProjectDocument &m_document;
    QXmlStreamWriter m_xml;
    AttributeWriter m_attributes;
};

void DocumentWriter::write()
{
    using namespace morvane::fields;
    m_xml.setAutoFormatting(true);
    m_xml.setAutoFormattingIndent(4);
    // Without a declaration the writer would begin the first element on a line of its own.
    m_xml.writeCharacters(QString());
    m_xml.writeStartElement(u"MorvaneProject"_s);
    writeVersion();
    writeGroup(u"BackgroundSettings"_s, m_document.background,
               [](const auto &group, auto &visit) { visitBackground(group, visit); });
    if (m_document.videoEffectsString) {
        m_xml.writeEmptyElement(u"VideoEffects"_s);
        m_attributes.write(u"videoEffectsString"_s, *m_document.videoEffectsString);
    }
    writeAnimation();
    writeGroup(u"FrameSettings"_s, m_document.frameSettings,
               [](const auto &group, auto &visit) { visitFrameSettings(group, visit); });
    writeCamera();
    writeGroup(u"Path"_s, m_document.path, [](const auto &group, auto &visit) { visitPath(group, visit); });
    writeGroup(u"RenderVideoSettings"_s, m_document.render,
               [](const auto &group, auto &visit) { visitRender(group, visit); });
    writeGroup(u"ProjectInfo"_s, m_document.info,
               [](const auto &group, auto &visit) { visitInfo(group, visit); });
    writeFilters();
    for (const ProjectFrame &frame : m_document.frames)
        writeFrame(frame);
    m_xml.writeEndDocument();
}

void DocumentWriter::writeVersion()
{
    m_xml.writeEmptyElement(u"Version"_s);
    m_attributes.write(u"major"_s, MORVANE_VERSION_MAJOR);
    m_attributes.write(u"minor"_s, MORVANE_VERSION_MINOR);
    m_attributes.write(u"bugfx"_s, MORVANE_VERSION_BUGFIX);
    m_attributes.write(u"devel"_s, MORVANE_VERSION_BUILD);
    m_attributes.write(u"mod"_s, u"Capture"_s);
}

void DocumentWriter::writeAnimation()
{
    if (!m_document.animation)
        return;
    m_xml.writeEmptyElement(u"AnimationSettings"_s);
    for (const morvane::WebpSetting &setting : morvane::webpSettingDefaults)
        m_attributes.write(setting.key, m_document.animation->value(setting.key, setting.standard));
}

void DocumentWriter::writeCamera()
{
    writeGroup(u"CanonCameraSettings"_s, m_document.camera,
               [](const auto &group, auto &visit) { morvane::fields::visitCamera(group, visit, visit); });
}

void DocumentWriter::writeFilters()
{
    if (!m_document.filters)
        return;
    static const QRegularExpression attributeName(u"^[A-Za-z_][A-Za-z0-9_.-]*$"_s);
    m_xml.writeEmptyElement(u"Filters"_s);
    m_attributes("enabled", m_document.filters->enabled);
    const QMap<QString, QString> &values = m_document.filters->values;
    for (auto it = values.cbegin(); it != values.cend(); ++it) {
        if (it.key() != "enabled"_L1 && attributeName.match(it.key()).hasMatch())
            m_attributes.write(it.key(), it.value());
    }
}

void DocumentWriter::writeFrame(const ProjectFrame &frame)
{
    m_xml.writeEmptyElement(morvane::fields::frameElement);
    m_attributes.write(u"capTumb"_s, frame.capTumb);
    m_attributes.write(u"capFull"_s, frame.capFull);
    m_attributes.write(u"refTumb"_s, frame.refTumb);
    m_attributes.write(u"refFull"_s, frame.refFull);
    m_attributes.write(u"mirrored"_s, frame.mirrored);
    m_attributes.write(u"static"_s, frame.staticState);
    m_attributes.write(u"hidden"_s, frame.hidden);
    if (frame.phase > 0)
        m_attributes.write(u"phase"_s, frame.phase);
}

} // namespace

QByteArray ProjectWriter::xml(const ProjectDocument &document)
{
    QByteArray bytes;
    bytes.reserve(8192 + document.frames.size() * bytesPerFrame);
    DocumentWriter(bytes, document).write();
    return bytes;
}

AtomicFile::Result ProjectWriter::save(const QString &path, const ProjectDocument &document)
{
    return AtomicFile::write(path, xml(document));
}

QString ProjectWriter::realText(double value)
{
    const QString shorter = QString::number(value, 'g', 16);
    return shorter.toDouble() == value ? shorter : QString::number(value, 'g', 17);
}
