#include "project/ProjectTree.h"
#include "project/ProjectWriter.h"
#include "shared/Zum.h"

#include <cstdio>
#include <QDir>
#include <QFile>
#include <QImageReader>

// make_film PROJECT.kzfx FRAMES COUNT [filters]: a project of COUNT frames which shows the pictures of a
// folder, again and again; with "filters", contrast and denoise are on.
int main(int argc, char **argv)
{
    if (argc < 4)
        return 2;
    const QString path = QFileInfo(QString::fromLocal8Bit(argv[1])).absoluteFilePath();
    const QDir pictures(QString::fromLocal8Bit(argv[2]));
    const int count = QByteArray(argv[3]).toInt();
    const QStringList names = pictures.entryList({QStringLiteral("*.jpg")}, QDir::Files, QDir::Name);
    if (names.isEmpty())
        return 1;
    const ProjectTree tree = ProjectTree::of(path, {});
    QDir().mkpath(tree.capFullDirPath);
    for (const QString &name : names)
        QFile::link(pictures.absoluteFilePath(name), tree.capFullDirPath + name);

    ProjectDocument document;
    const QSize size = QImageReader(pictures.filePath(names.first())).size();
    document.frameSettings.emplace();
    document.frameSettings->frameWidth = size.width();
    document.frameSettings->frameHeight = size.height();
    document.render.emplace();
    document.render->fps = 25;
    document.render->exportVideoFileName = QStringLiteral("film");
    if (argc > 4) {
        document.filters.emplace();
        document.filters->enabled = Zum::NonRealtimeProcessing;
        document.filters->values = {{QStringLiteral("contrast"), QStringLiteral("20")},
                                    {QStringLiteral("denoise"), QStringLiteral("30")}};
    }
    for (int i = 0; i < count; ++i) {
        ProjectFrame frame;
        frame.capFull = names.at(i % names.size());
        document.frames.append(frame);
    }
    return ProjectWriter::save(path, document).ok ? 0 : 1;
}
