#pragma once

#include "project/AtomicFile.h"
#include "project/ProjectDocument.h"

#include <QByteArray>

/// Writes project files. Stateless; safe on any thread.
class ProjectWriter
{
public:
    /// The document as the bytes of a project file: UTF-8, an indent of 4, every value an attribute, elements
    /// and attributes in a fixed order. Characters that XML cannot carry are left out.
    static QByteArray xml(const ProjectDocument &document);

    /// Writes the file in one piece: it either holds the whole document afterwards or is as it was before.
    static AtomicFile::Result save(const QString &path, const ProjectDocument &document);

    /// A real as attributes carry it: 16 significant digits without trailing zeros, 17 where 16 would not
    /// read back as the same number.
    static QString realText(double value);
};
