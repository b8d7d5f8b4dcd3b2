#include "app/ClipboardFrames.h"

#include <QMimeData>
#include <QUrl>

void ClipboardFrames::clipboardChanged(const QMimeData *data, bool projectLoaded)
{
    if (!projectLoaded || data == nullptr || !data->hasUrls())
        return;
    m_paths.clear();
    const QList<QUrl> urls = data->urls();
    for (const QUrl &url : urls)
        m_paths.append(url.isLocalFile() ? url.toLocalFile() : url.toString());
    emit weHaveClipboardFrames();
}

void ClipboardFrames::clearClipboardFrames()
{
    m_paths.clear();
}
