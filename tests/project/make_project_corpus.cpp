#include "DocumentText.h"
#include "RandomProject.h"

#include <QDir>
#include <QFile>

// Writes the seeds of the fuzz target into a folder: projects as the program itself writes them, and a few
// that only a reader meets.
int main(int argc, char **argv)
{
    if (argc < 2)
        return 2;
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    folder.mkpath(QStringLiteral("."));
    QByteArrayList samples;
    for (quint32 seed = 1; seed <= 8; ++seed)
        samples.append(ProjectWriter::xml(randomProject(seed, static_cast<int>(seed) * 2)));
    samples.append("<Project><Version ver=\"2.5\"/></Project>");
    samples.append("<!DOCTYPE a [<!ENTITY b \"c\">]><MorvaneProject><Version major=\"3\"/></MorvaneProject>");
    samples.append(
        projectFileWith("<Frame capFull=\"../a\" phase=\"-1\"/><Path pathData=\"0,1,2,3,4,5,6;\"/>"));
    int number = 0;
    for (const QByteArray &sample : samples) {
        QFile file(folder.filePath(QStringLiteral("%1.kzfx").arg(++number)));
        if (!file.open(QIODevice::WriteOnly) || file.write(sample) != sample.size())
            return 1;
    }
    return 0;
}
