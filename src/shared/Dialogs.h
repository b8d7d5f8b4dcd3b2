#pragma once

#include <QString>
#include <QStringList>

namespace morvane {

/// The questions that stop the program until a person answers: system file dialogs and message boxes.
/// Injected, so that a test answers without a person. Main thread only.
class Dialogs
{
public:
    enum class Answer {
        Yes,
        No,
        Cancel,
    };

    virtual ~Dialogs() = default;

    /// Each returns an empty path when the user gives up. `start` is a folder or a file, `filter` a filter
    /// string of the system's dialogs ("Images (*.png *.jpg);;"), both may be empty.
    virtual QString openFile(const QString &caption, const QString &start, const QString &filter) = 0;
    virtual QStringList openFiles(const QString &caption, const QString &start, const QString &filter) = 0;
    virtual QString saveFile(const QString &caption, const QString &start, const QString &filter,
                             const QString &defaultSuffix) = 0;
    virtual QString selectFolder(const QString &caption, const QString &start) = 0;

    /// A message with a single "OK".
    virtual void warn(const QString &title, const QString &text) = 0;
    /// A question; `yesText` and `noText` label the buttons, an empty `noText` leaves only yes and cancel.
    virtual Answer ask(const QString &title, const QString &text, const QString &yesText,
                       const QString &noText) = 0;
};

} // namespace morvane
