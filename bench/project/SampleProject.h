#pragma once

#include "project/ProjectDocument.h"
#include "project/ProjectTree.h"

#include <QTemporaryDir>

/// A project on the disk with a captured picture and a thumbnail for every frame, all files there but empty;
/// in a folder of its own that goes with it.
class SampleProject
{
public:
    explicit SampleProject(int frames);

    const ProjectTree &tree() const
    {
        return m_tree;
    }
    const ProjectDocument &document() const
    {
        return m_document;
    }
    /// A file beside it to write to.
    QString otherPath() const
    {
        return m_folder.filePath(QStringLiteral("other.kzfx"));
    }
    QString settingsPath() const
    {
        return m_folder.filePath(QStringLiteral("settings.ini"));
    }

private:
    QTemporaryDir m_folder;
    ProjectTree m_tree;
    ProjectDocument m_document;
};
