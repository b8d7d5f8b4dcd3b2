#pragma once

#include <QCoreApplication>
#include <QString>

/// Looks whether a path is that of a project that can be opened: its file and its content folder are there.
/// Stateless; safe on any thread.
class ProjectPathCheck
{
    Q_DECLARE_TR_FUNCTIONS(ProjectPathCheck)

public:
    /// What is wrong, as a sentence for the user; empty when nothing is.
    static QString problem(const QString &projPath);
    /// What to do about the problem; empty when there is none.
    static QString advice(const QString &projPath);
    /// What to do about a project file that is not where it was.
    static QString adviceForMissing();
    /// The content folder that the check looks for: beside the file, named after all of its name but the
    /// last suffix. No trailing "/".
    static QString contentFolder(const QString &projPath);
    /// An existing, readable plain file that is no symbolic link.
    static bool isOpenableFile(const QString &path);

private:
    enum class Fault { None, NoFile, NotAFile, NotReadable, Suffix, NoFolder };

    static Fault fault(const QString &projPath);
};
