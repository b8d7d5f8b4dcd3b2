#pragma once

#include <optional>
#include <QHash>
#include <QVariantList>
#include <QXmlStreamReader>

/// Reads the pages of one documentation file; see UserDocs for what they hold.
class DocsReader
{
public:
    /// Pictures are looked for in `folder`, which has no slash at its end.
    DocsReader(const QByteArray &xml, const QString &folder);

    /// Nothing when the file is no well-formed document within the limits; the reason is then told below.
    std::optional<QVariantList> pages();

    QString errorString() const;
    int error() const;
    qint64 line() const;

private:
    using Texts = QHash<QString, QString>;

    bool enterRoot();
    QVariantMap page();
    QVariantMap phrase();
    QVariantList phrases();
    void takeText(Texts &texts);
    QString text(const Texts &texts, const QString &name) const;
    QString picture(const QString &name) const;

    QXmlStreamReader m_xml;
    QString m_folder;
};
