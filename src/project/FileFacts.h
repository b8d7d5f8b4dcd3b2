#pragma once

#include "project/ProjectTree.h"

#include <QVariantList>
#include <QVariantMap>

/// What the screen shows of files and folders. Stateless; safe on any thread.
namespace morvane {

enum ListFileTypes {
    ListVideoFiles,
    ListImageFiles,
    ListMetasFiles,
};

/// "exists", "path", "fileName", "baseName", "suffix", "lastModifiedDate", "lastModifiedTime", "created"
/// (texts in the system's short format), "size" (bytes) and "sizeText". With `isImage` also "width" and
/// "height" in pixels, 0 when the picture's header cannot be read. `path` may carry the "file:///" prefix.
QVariantMap fileInfo(const QString &path, bool isImage = false);

/// The same for a URL of a local file; a URL of another kind gives a map whose "exists" is false.
QVariantMap urlInfo(const QString &url, bool isImage = false);

/// The files of one kind in a folder, by name, each as fileInfo gives it. `ftype` is one of ListFileTypes.
QVariantList listDir(const QString &path, int ftype = ListVideoFiles);

/// Removes a file, its path given with or without the prefix. False when it is not there or stays.
bool deleteFile(const QString &path);

/// "projectname", "root", "rootOn", "capThumbs", and for each of "cap", "tif", "raw", "ref", "vid" and "bg"
/// the folder, "<key>On" when it holds files of its kind, and their number under "<key>Count".
QVariantMap projectDirInfo(const ProjectTree &tree);

} // namespace morvane
