#include "BareProject.h"

#include <unistd.h>
#include <QFile>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

using namespace Qt::StringLiterals;

namespace bare {

int open(const QString &path, const ProjectTree &tree)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return -1;
    int found = 0;
    const auto test = [&](const QString &folder, QStringView name) {
        if (!name.isEmpty() && QFile::exists(folder + name.toString()))
            ++found;
    };
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement || xml.name() != "Frame"_L1)
            continue;
        const QXmlStreamAttributes attributes = xml.attributes();
        test(tree.capTumbDirPath, attributes.value("capTumb"_L1));
        test(tree.capFullDirPath, attributes.value("capFull"_L1));
        test(tree.refTumbDirPath, attributes.value("refTumb"_L1));
        test(tree.refFullDirPath, attributes.value("refFull"_L1));
    }
    return found;
}

bool save(const QString &path, const QList<ProjectFrame> &frames)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return false;
    QXmlStreamWriter xml(&file);
    xml.setAutoFormatting(true);
    xml.setAutoFormattingIndent(4);
    xml.writeStartElement(u"MorvaneProject"_s);
    for (const ProjectFrame &frame : frames) {
        xml.writeEmptyElement(u"Frame"_s);
        xml.writeAttribute(u"capTumb"_s, frame.capTumb);
        xml.writeAttribute(u"capFull"_s, frame.capFull);
        xml.writeAttribute(u"refTumb"_s, frame.refTumb);
        xml.writeAttribute(u"refFull"_s, frame.refFull);
        xml.writeAttribute(u"mirrored"_s, frame.mirrored ? u"1"_s : u"0"_s);
        xml.writeAttribute(u"static"_s, QString::number(frame.staticState));
        xml.writeAttribute(u"hidden"_s, frame.hidden ? u"1"_s : u"0"_s);
    }
    xml.writeEndDocument();
    return file.flush() && fsync(file.handle()) == 0;
}

} // namespace bare
