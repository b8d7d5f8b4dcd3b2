#pragma once

#include <QList>
#include <QString>
#include <QUrl>

/// What a drop of files on the window asks for.
struct DroppedFile
{
    enum class Kind {
        Nothing,
        Project,
        Video,
        Image,
    };

    Kind kind = Kind::Nothing;
    /// The file's path, without a URL prefix.
    QString path;
};

/// Looks at the URLs of a drop. Only a single plain file that is there, and that is no program, asks for
/// something; a video only while the video tab shows. `currentTab` is one of Zum::AppTabs.
DroppedFile droppedFile(const QList<QUrl> &urls, int currentTab);
