#pragma once

#include "shared/Dialogs.h"

/// The dialogs that people see: the system's file dialogs and message boxes.
class SystemDialogs : public morvane::Dialogs
{
public:
    QString openFile(const QString &caption, const QString &start, const QString &filter) override;
    QStringList openFiles(const QString &caption, const QString &start, const QString &filter) override;
    QString saveFile(const QString &caption, const QString &start, const QString &filter,
                     const QString &defaultSuffix) override;
    QString selectFolder(const QString &caption, const QString &start) override;
    void warn(const QString &title, const QString &text) override;
    Answer ask(const QString &title, const QString &text, const QString &yesText,
               const QString &noText) override;
};
