#pragma once

#include "shared/vocabulary/PictureVocabulary.h"

#include <QString>

/// The program's shared vocabulary. Every enumeration that the scene and native code both name is reached
/// through this class, and declared in one of its bases by subject; the numbers stand in project files and
/// settings, so they may never be renumbered.
///
/// Registered in QML as the type "Zum" of the module "Zum" 1.0. Has no state of its own beyond two
/// process-wide values that are set once at start, on the main thread, before anything reads them, and the
/// folders of the open project.
class Zum : public PictureVocabulary
{
    Q_OBJECT

public:
    using PictureVocabulary::PictureVocabulary;

    /// Scale of everything drawn in pixels, 1.0 at the smallest font row.
    static double dpiScale();
    static void setDpiScale(double scale);

    /// Folders of the open project, each ending in "/"; all empty before the first one.
    struct ProjectFolders
    {
        QString projContntDirPath;
        QString capFullDirPath;
        QString refFullDirPath;
        QString backgroundDirPath;
        QString extractedDirPath;
    };
    /// A copy for code that has no way to the project's paths. Any thread; all five belong to one project.
    static ProjectFolders projectFolders();
    static void setProjectFolders(const ProjectFolders &folders);

    /// One sRGB channel, 0 .. 255, to linear light, 0.0 .. 1.0, and back.
    static double srgbToLinear(int channel);
    static int linearToSrgb(double light);
    /// Luminance of an sRGB colour, worked out in linear light and encoded back to 0 .. 255.
    static int luminance(int red, int green, int blue);

signals:
    void bookmarksGroupNameChanged();
};
