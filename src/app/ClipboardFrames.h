#pragma once

#include <QObject>
#include <QStringList>

class QMimeData;

/// Picture files that stand on the clipboard and could be imported as frames. Main thread only.
class ClipboardFrames : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Looks at what the clipboard holds now. Without a project, or without URLs, what was kept stays.
    void clipboardChanged(const QMimeData *data, bool projectLoaded);

    int countClipboardFrames() const
    {
        return static_cast<int>(m_paths.size());
    }
    QStringList paths() const
    {
        return m_paths;
    }
    void clearClipboardFrames();

signals:
    /// There are files to import.
    void weHaveClipboardFrames();

private:
    QStringList m_paths;
};
