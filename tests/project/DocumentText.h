#pragma once

#include "project/ProjectReader.h"
#include "project/ProjectWriter.h"

#include <QBuffer>

/// Two documents are the same when they are written the same; handy to compare and to show what differs.
inline QString documentText(const ProjectDocument &document)
{
    return QString::fromUtf8(ProjectWriter::xml(document));
}

/// A small project file around some elements.
inline QByteArray projectFileWith(const QByteArray &elements)
{
    return "<MorvaneProject>\n    <Version major=\"3\"/>\n" + elements + "\n</MorvaneProject>\n";
}

inline ProjectReadResult readProject(QByteArray bytes)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    return ProjectReader::read(buffer);
}

inline ProjectReadResult readProjectWith(const QByteArray &elements)
{
    return readProject(projectFileWith(elements));
}
