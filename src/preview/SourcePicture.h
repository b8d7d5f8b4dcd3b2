#pragma once

#include <QFile>
#include <QImage>
#include <QImageReader>
#include <QSize>
#include <QString>

/// One picture file on its way in. A JPEG is decoded at a reduced size when that is enough, which takes a
/// fraction of the time. What claims to be larger than the toolkit's limit for a picture is refused before
/// anything of that size is made.
class SourcePicture
{
public:
    /// The suffix of the path is a hint at the format; a picture with that of another format is read too.
    explicit SourcePicture(const QString &path);

    QString path() const
    {
        return m_file.fileName();
    }
    /// Size of the whole picture, from the file's head or, where that does not tell, from the decoded
    /// picture; invalid for what cannot be read.
    QSize size();
    /// The picture, at least as large as asked for, at most whole. Null when it cannot be read to its end: a
    /// file that was cut off is not half a picture. May be called once.
    QImage read(QSize least);

private:
    bool isJpeg() const;

    QFile m_file;
    QImageReader m_reader;
    QImage m_whole;
};
