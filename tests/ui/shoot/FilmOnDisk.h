#pragma once

#include <QImage>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

/// A film as another program finds it on the disk: the project file as any XML, the pictures and the movies.
class FilmOnDisk
{
public:
    using Attributes = QMap<QString, QString>;

    FilmOnDisk() = default;
    /// The project of that name in a folder.
    FilmOnDisk(const QString &folder, const QString &name);

    QString projectPath() const;
    /// A captured picture, or what lies beside the pictures; their folder when empty.
    QString picturePath(const QString &name) const;
    QImage picture(const QString &name) const
    {
        return QImage(picturePath(name));
    }
    QString moviePath(const QString &extension) const;
    /// The captured pictures in the folder.
    QStringList pictures() const;
    /// All files beside the project's folder, hidden ones too.
    QStringList filesBeside() const;
    /// The attributes of every element of that name in the project file; none when it is no XML.
    QList<Attributes> elements(const QString &name) const;

private:
    QString m_folder;
    QString m_name;
};
