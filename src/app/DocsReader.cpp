#include "app/DocsReader.h"

#include "app/UserDocs.h"

#include <QFileInfo>
#include <QLoggingCategory>
#include <QRegularExpression>
#include <QUrl>

namespace {

// Most phrases have neither a link nor a picture, so telling of each that is not there is off unless asked
// for.
Q_LOGGING_CATEGORY(docsLog, "morvane.docs", QtInfoMsg)

/// Without the blanks that only indent the file; lines stay lines.
QString cleaned(const QString &raw)
{
    QStringList lines = raw.trimmed().split(QLatin1Char('\n'));
    for (QString &line : lines)
        line = line.simplified();
    return lines.join(QLatin1Char('\n'));
}

QString webAddress(const QString &text)
{
    if (text.isEmpty())
        return text;
    const QUrl url(text, QUrl::StrictMode);
    const bool web = url.scheme() == QLatin1String("https") || url.scheme() == QLatin1String("http");
    if (url.isValid() && web && !url.host().isEmpty())
        return text;
    qWarning().noquote() << QStringLiteral("loadDocs: Not a web address '%1'").arg(text);
    return QString();
}

} // namespace

DocsReader::DocsReader(const QByteArray &xml, const QString &folder) : m_xml(xml), m_folder(folder)
{
}

std::optional<QVariantList> DocsReader::pages()
{
    QVariantList list;
    if (enterRoot()) {
        while (m_xml.readNextStartElement()) {
            if (m_xml.name() != QLatin1String("page"))
                m_xml.skipCurrentElement();
            else if (list.size() == UserDocs::mostPages)
                m_xml.raiseError(QStringLiteral("Too many pages"));
            else
                list.append(page());
        }
        // What stands behind the root can make the file unsound too.
        while (!m_xml.atEnd())
            m_xml.readNext();
    }
    if (m_xml.hasError())
        return std::nullopt;
    return list;
}

QString DocsReader::errorString() const
{
    return m_xml.errorString();
}

int DocsReader::error() const
{
    return m_xml.error();
}

qint64 DocsReader::line() const
{
    return m_xml.lineNumber();
}

bool DocsReader::enterRoot()
{
    while (!m_xml.atEnd()) {
        const QXmlStreamReader::TokenType token = m_xml.readNext();
        if (token == QXmlStreamReader::StartElement)
            return true;
        if (token == QXmlStreamReader::DTD)
            m_xml.raiseError(QStringLiteral("A document type is not allowed"));
    }
    return false;
}

QVariantMap DocsReader::page()
{
    Texts texts;
    QVariantList content;
    while (m_xml.readNextStartElement()) {
        if (m_xml.name() == QLatin1String("text"))
            content += phrases();
        else
            takeText(texts);
    }
    const QString cover = picture(text(texts, QStringLiteral("image")));
    return {{QStringLiteral("title"), text(texts, QStringLiteral("title"))},
            {QStringLiteral("image"), cover},
            {QStringLiteral("zastavka"), cover},
            {QStringLiteral("text"), content}};
}

QVariantList DocsReader::phrases()
{
    QVariantList list;
    while (m_xml.readNextStartElement()) {
        if (m_xml.name() != QLatin1String("phrase"))
            m_xml.skipCurrentElement();
        else if (list.size() == UserDocs::mostPhrasesInPage)
            m_xml.raiseError(QStringLiteral("Too many phrases in a page"));
        else
            list.append(phrase());
    }
    return list;
}

QVariantMap DocsReader::phrase()
{
    Texts texts;
    while (m_xml.readNextStartElement())
        takeText(texts);
    return {{QStringLiteral("title"), text(texts, QStringLiteral("title"))},
            {QStringLiteral("image"), picture(text(texts, QStringLiteral("image")))},
            {QStringLiteral("text"), text(texts, QStringLiteral("text"))},
            {QStringLiteral("weblink"), webAddress(text(texts, QStringLiteral("weblink")))},
            {QStringLiteral("emailbox"), text(texts, QStringLiteral("emailbox"))}};
}

void DocsReader::takeText(Texts &texts)
{
    const QString name = m_xml.name().toString();
    const QString content = m_xml.readElementText(QXmlStreamReader::SkipChildElements);
    if (!texts.contains(name))
        texts.insert(name, cleaned(content));
}

QString DocsReader::text(const Texts &texts, const QString &name) const
{
    // What a damaged file did not get to say is no mistake of its own.
    if (m_xml.hasError())
        return QString();
    const auto found = texts.constFind(name);
    if (found == texts.cend()) {
        qCDebug(docsLog, "Doc object is null");
        return QString();
    }
    if (found->isEmpty())
        qWarning().noquote() << QStringLiteral("Empty node '%1'").arg(name);
    return *found;
}

QString DocsReader::picture(const QString &name) const
{
    if (name.isEmpty())
        return name;
    // A name, perhaps in a folder; never a way out of the documents' own folder.
    static const QRegularExpression allowed(QStringLiteral("^(?:[\\w-]+/)?[\\w-]+\\.(?:svg|png|jpg|webp)$"));
    const QString path = m_folder + QLatin1Char('/') + name;
    if (!allowed.match(name).hasMatch() || !QFileInfo(path).isFile()) {
        qWarning().noquote() << QStringLiteral("loadDocs: No picture '%1'").arg(name);
        return QString();
    }
    return path.startsWith(QLatin1Char(':')) ? QStringLiteral("qrc") + path
                                             : QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded);
}
