#pragma once

#include "project/ProjectWriter.h"

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
