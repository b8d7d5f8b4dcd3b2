#include "ui/shoot/FilmOnDisk.h"

#include <QDir>
#include <QFile>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

FilmOnDisk::FilmOnDisk(const QString &folder, const QString &name) : m_folder(folder), m_name(name)
{
}

QString FilmOnDisk::projectPath() const
{
    return m_folder + u'/' + m_name + u".kzfx"_s;
}

QString FilmOnDisk::picturePath(const QString &name) const
{
    return m_folder + u'/' + m_name + u"_files/cap/"_s + name;
}

QString FilmOnDisk::moviePath(const QString &extension) const
{
    return m_folder + u'/' + m_name + u"_files/video/videotest."_s + extension;
}

QStringList FilmOnDisk::pictures() const
{
    return QDir(picturePath({})).entryList(QDir::Files | QDir::Hidden);
}

QStringList FilmOnDisk::filesBeside() const
{
    return QDir(m_folder).entryList(QDir::Files | QDir::Hidden);
}

QList<FilmOnDisk::Attributes> FilmOnDisk::elements(const QString &name) const
{
    QList<Attributes> found;
    QFile file(projectPath());
    if (!file.open(QIODevice::ReadOnly))
        return found;
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement || xml.name() != name)
            continue;
        Attributes attributes;
        const QXmlStreamAttributes all = xml.attributes();
        for (const QXmlStreamAttribute &attribute : all)
            attributes.insert(attribute.name().toString(), attribute.value().toString());
        found.append(attributes);
    }
    return xml.hasError() ? QList<Attributes>() : found;
}
