#include "app/UserDocs.h"

#include "app/DocsReader.h"

#include <QFile>
#include <QFileInfo>
#include <QtDebug>

namespace {

const QString fallbackLocale = QStringLiteral("en_US");

QString fileName(const QString &appType, const QString &locale)
{
    return QStringLiteral("userdocs_") + appType.toLower() + QLatin1Char('_') + locale
           + QStringLiteral(".xml");
}

} // namespace

UserDocs::UserDocs(const QString &appType, const QString &locale, const QStringList &folders, QObject *parent)
    : QObject(parent), m_appType(appType), m_locale(locale), m_folders(folders), m_docsDir(folders.value(0)),
      m_docsFile(fileName(appType, locale))
{
}

QStringList UserDocs::standardFolders(const QString &applicationFolder)
{
    return {applicationFolder + QLatin1Char('/') + QStringLiteral("userdocs"),
            applicationFolder + QStringLiteral("/../share/morvane-capture/userdocs"),
            QStringLiteral(":/userdocs")};
}

QString UserDocs::docsDir() const
{
    return m_docsDir;
}

QString UserDocs::docsFile() const
{
    return m_docsFile;
}

QVariantList UserDocs::docs()
{
    // No signal from here: whoever asks gets the pages with the answer.
    if (!m_read)
        read();
    return m_docs;
}

void UserDocs::loadDocs()
{
    const QVariantList before = m_docs;
    read();
    if (m_docs != before)
        emit docsChanged();
}

void UserDocs::locate()
{
    const QString own = fileName(m_appType, m_locale);
    m_docsDir = m_folders.value(0);
    m_docsFile = own;
    for (const QString &folder : std::as_const(m_folders)) {
        for (const QString &name : {own, fileName(m_appType, fallbackLocale)}) {
            if (QFileInfo(folder + QLatin1Char('/') + name).isFile()) {
                m_docsDir = folder;
                m_docsFile = name;
                return;
            }
        }
    }
}

void UserDocs::read()
{
    m_read = true;
    locate();
    const QString path = m_docsDir + QLatin1Char('/') + m_docsFile;
    if (!QFileInfo(path).isFile()) {
        qWarning().noquote() << QStringLiteral("File %1 not found or not a file").arg(path);
        return;
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        qWarning().noquote() << QStringLiteral("loadDocs: Failed to open ") + path;
        return;
    }
    const QByteArray bytes = file.read(largestFileBytes + 1);
    const auto failed = [&path](const QString &reason, int error, qint64 line) {
        qWarning().noquote() << QStringLiteral("Failed to read %1 (str: %2, err: %3, line: %4)")
                                    .arg(path, reason)
                                    .arg(error)
                                    .arg(line);
    };
    if (bytes.size() > largestFileBytes) {
        failed(QStringLiteral("The file is too large"), QXmlStreamReader::CustomError, 0);
        return;
    }
    DocsReader reader(bytes, m_docsDir);
    if (const std::optional<QVariantList> pages = reader.pages())
        m_docs = *pages;
    else
        failed(reader.errorString(), reader.error(), reader.line());
}
