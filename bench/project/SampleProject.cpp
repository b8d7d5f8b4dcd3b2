#include "SampleProject.h"

#include "project/ProjectWriter.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {

void touch(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        qFatal("cannot make %s", qUtf8Printable(path));
}

} // namespace

SampleProject::SampleProject(int frames) : m_tree(ProjectTree::of(m_folder.filePath(u"film.kzfx"_s), {}))
{
    QDir().mkpath(m_tree.capTumbDirPath);
    m_document.frameSettings.emplace();
    m_document.render.emplace();
    m_document.camera.emplace();
    for (int i = 0; i < frames; ++i) {
        ProjectFrame frame;
        frame.capTumb = u"frame_mini_%1_260101101500.jpg"_s.arg(i, 6, 10, QChar(u'0'));
        frame.capFull = u"frame_norm_%1_260101101500.jpg"_s.arg(i, 6, 10, QChar(u'0'));
        touch(m_tree.capTumbDirPath + frame.capTumb);
        touch(m_tree.capFullDirPath + frame.capFull);
        m_document.frames.append(frame);
    }
    if (!ProjectWriter::save(m_tree.projPath, m_document).ok)
        qFatal("cannot write %s", qUtf8Printable(m_tree.projPath));
}
