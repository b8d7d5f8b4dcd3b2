#pragma once

#include "shared/ProcessStarter.h"

#include <QObject>
#include <QString>

class FileSelection;
class MessageCentre;
class Settings;

namespace morvane {
class DesktopServices;
}

/// The program that the user edits pictures with. Its path is kept in the settings. Main thread only.
class ExternalEditor : public QObject
{
    Q_OBJECT
    /// Path of the program; empty when none is chosen.
    Q_PROPERTY(QString externalEditor READ externalEditor NOTIFY externalEditorChanged)
    /// Its base name, for display.
    Q_PROPERTY(QString externalEditorName READ externalEditorName NOTIFY externalEditorNameChanged)

public:
    /// Takes over the stored path. What is passed in must live as long as this object.
    ExternalEditor(FileSelection &files, Settings &settings, const morvane::DesktopServices &desktop,
                   MessageCentre &messages, morvane::ProcessStarter start = morvane::startDetached,
                   QObject *parent = nullptr);

    QString externalEditor() const;
    QString externalEditorName() const;

public slots:
    /// Lets the user choose; giving up leaves everything as it is.
    void setExternalEditor();
    void removeExternalEditor();
    /// Takes the desktop's own picture program; a message tells when there is none.
    void setDefExternalEditor();
    /// Opens a file, given with or without the "file:///" prefix. What stands in the way is told as a
    /// message.
    void startWithExternalEditor(const QString &path);

signals:
    void externalEditorChanged();
    void externalEditorNameChanged();

private:
    void store(const QString &program);
    void change(const QString &program);
    void fail(const char *text, const QString &path);

    FileSelection &m_files;
    Settings &m_settings;
    const morvane::DesktopServices &m_desktop;
    MessageCentre &m_messages;
    morvane::ProcessStarter m_start;
    QString m_program;
};
