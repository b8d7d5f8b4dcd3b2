#pragma once

#include "MovieProbe.h"

#include "jobs/render/RenderInput.h"

#include <QDir>
#include <QTemporaryDir>

/// A project's pictures on the disk, one file for each mark, and the input of a render of them.
class SmallFilm
{
public:
    static constexpr QSize size{320, 280};

    /// A negative mark is a frame without a picture.
    explicit SmallFilm(const QList<int> &marks)
    {
        QDir(folder.path()).mkpath("cap");
        for (const int mark : marks)
            add(mark);
        input.formatName = "avi";
        input.cropSize = size;
        input.exportSize = size;
        input.bitrate = 8000000;
        input.fps = 25;
        input.videoFolder = folder.filePath("video/");
        input.fileName = "film";
    }

    void add(int mark)
    {
        const int row = static_cast<int>(input.frames.size());
        RenderFrame frame;
        if (mark >= 0) {
            frame.path = folder.filePath(QStringLiteral("cap/%1.png").arg(row));
            markedPicture(size, mark).save(frame.path);
        }
        input.frames.append(frame);
        input.frameCount = row + 1;
        input.rangeEnd = row;
    }
    QString picturePath(int row) const
    {
        return input.frames.at(row).path;
    }
    QStringList movies() const
    {
        return QDir(input.videoFolder).entryList(QDir::Files, QDir::Name);
    }

    QTemporaryDir folder;
    RenderInput input;
};
