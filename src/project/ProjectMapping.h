#pragma once

#include "project/ProjectDocument.h"
#include "project/ProjectNeighbours.h"

#include <QCoreApplication>

class MessageCentre;
class WebcamGlobal;

/// The way between a project document and the live objects. Main thread only.
class ProjectMapping
{
    Q_DECLARE_TR_FUNCTIONS(ProjectMapping)

public:
    enum class Rows {
        Include,
        /// A new project: whatever the timeline holds, no frame goes into the document.
        LeaveOut,
    };

    ProjectMapping(WebcamGlobal &global, ProjectNeighbours neighbours, MessageCentre &messages);

    /// The live state as a document. An empty vector path, camera map or filter map gives an element with
    /// empty or default values, never a missing element.
    ProjectDocument collect(Rows rows = Rows::Include) const;

    /// Puts the settings of a document into the live objects, group by group in the order in which the
    /// program relies on them; what the document leaves empty stays. The frames are not touched. An expected
    /// element that is missing is logged; an export folder or a colour that cannot be used is reported.
    void apply(const ProjectDocument &document);

private:
    void applyBackground(const ProjectDocument::Background &background);
    void applyAnimation(const QMap<QString, int> &animation);
    void applyFrameSettings(const ProjectDocument::Frames &settings);
    void applyExposureAndSizes(const ProjectDocument::Frames &settings);
    void applyOverlays(const ProjectDocument::Frames &settings);
    void applyPreview(const ProjectDocument::Frames &settings);
    void applyTimeline(const ProjectDocument::Frames &settings);
    void applyColors(const ProjectDocument::Frames &settings);
    void applyPath(const ProjectDocument::Path &path);
    void applyCamera(const ProjectDocument::Camera &camera);
    void applyRender(const ProjectDocument::Render &render);
    void applyInfo(const ProjectDocument::Info &info);
    void applyFilters(const ProjectDocument::Filters &filters);

    QColor colorOr(const std::optional<QString> &name, const QColor &standard) const;

    ProjectDocument::Frames collectFrameSettings() const;
    void collectOverlays(ProjectDocument::Frames &settings) const;
    void collectPicture(ProjectDocument::Frames &settings) const;
    void collectTimeline(ProjectDocument::Frames &settings) const;
    ProjectDocument::Path collectPath() const;
    ProjectDocument::Camera collectCamera() const;
    ProjectDocument::Render collectRender() const;
    ProjectDocument::Filters collectFilters() const;

    WebcamGlobal &m_global;
    ProjectNeighbours m_neighbours;
    MessageCentre &m_messages;
};
