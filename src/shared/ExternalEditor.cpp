#include "shared/ExternalEditor.h"

#include "shared/DesktopServices.h"
#include "shared/FileSelection.h"
#include "shared/MessageCentre.h"
#include "shared/Names.h"
#include "shared/PathText.h"
#include "shared/Settings.h"
#include "shared/WindowText.h"

#include <QFileInfo>

ExternalEditor::ExternalEditor(FileSelection &files, Settings &settings,
                               const morvane::DesktopServices &desktop, MessageCentre &messages,
                               morvane::ProcessStarter start, QObject *parent)
    : QObject(parent), m_files(files), m_settings(settings), m_desktop(desktop), m_messages(messages),
      m_start(std::move(start)), m_program(settings.value(morvane::externalEditorKey).toString())
{
}

QString ExternalEditor::externalEditor() const
{
    return m_program;
}

QString ExternalEditor::externalEditorName() const
{
    return QFileInfo(m_program).baseName();
}

void ExternalEditor::setExternalEditor()
{
    const QString program = m_files.openFileDialog(Zum::ExecudablesFilter);
    if (!program.isEmpty())
        store(program);
}

void ExternalEditor::removeExternalEditor()
{
    m_settings.remove(morvane::externalEditorKey);
    change(QString());
}

void ExternalEditor::setDefExternalEditor()
{
    const QString program = m_desktop.defaultImageEditor();
    if (program.isEmpty())
        m_messages.post(
            Zum::FileMessage, Zum::Warning,
            morvane::windowText(QT_TRANSLATE_NOOP("MainWindow", "No default image editor found")));
    else
        store(program);
}

void ExternalEditor::startWithExternalEditor(const QString &path)
{
    const QString filePath = morvane::withoutFilePrefix(path);
    const QFileInfo file(filePath);
    if (!QFileInfo::exists(m_program))
        fail(QT_TRANSLATE_NOOP("MainWindow", "External programm not found %1"), m_program);
    else if (!file.isFile())
        fail(QT_TRANSLATE_NOOP("MainWindow", "Cannot find file to open %1"), filePath);
    else if (!file.isReadable())
        fail(QT_TRANSLATE_NOOP("MainWindow", "File is not readable %1"), filePath);
    else if (!m_start(m_program, {filePath}))
        fail(QT_TRANSLATE_NOOP("MainWindow", "Unable to start %1"), m_program);
}

void ExternalEditor::store(const QString &program)
{
    if (program == m_program)
        return;
    m_settings.setValue(morvane::externalEditorKey, program);
    change(program);
}

void ExternalEditor::change(const QString &program)
{
    if (program == m_program)
        return;
    m_program = program;
    emit externalEditorChanged();
    emit externalEditorNameChanged();
}

void ExternalEditor::fail(const char *text, const QString &path)
{
    m_messages.post(Zum::FileMessage, Zum::Error, morvane::windowText(text).arg(path));
}
