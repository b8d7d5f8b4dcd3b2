#pragma once

#include <QObject>
#include <QStringList>
#include <QVariantList>

/// The pages of the user's documentation, read from one file per language.
///
/// The file is looked for when the pages are first asked for, so that a start costs nothing. It is not
/// trusted: no document type, limits on its size, pictures from its own folder only, links to the web only. A
/// file that cannot be read to its end leaves the pages as they were and a line in the log. Main thread only.
class UserDocs : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QVariantList docs READ docs NOTIFY docsChanged)

public:
    static constexpr qint64 largestFileBytes = 4 * 1024 * 1024;
    static constexpr int mostPages = 200;
    static constexpr int mostPhrasesInPage = 1000;

    /// `appType` and `locale`, such as "capture" and "ru_RU", make the file's name. The first of the folders
    /// that holds a file for the locale, or else the English one, is taken.
    UserDocs(const QString &appType, const QString &locale, const QStringList &folders,
             QObject *parent = nullptr);

    /// Beside the program, in the shared data of an installation, and inside the program itself.
    static QStringList standardFolders(const QString &applicationFolder);

    /// Folder and name of the file that was read last or will be tried first.
    QString docsDir() const;
    QString docsFile() const;

    /// One map per page: "title", "image", "zastavka" (its cover) and "text", a list of phrases. A phrase has
    /// "title", "image", "text", "weblink" and "emailbox". Every value but "text" of a page is a string,
    /// empty when the page has none; pictures are addresses for the scene.
    QVariantList docs();

public slots:
    /// Looks for the file anew and reads it.
    void loadDocs();

signals:
    /// Reading again has given other pages.
    void docsChanged();

private:
    void locate();
    void read();

    QString m_appType;
    QString m_locale;
    QStringList m_folders;
    QString m_docsDir;
    QString m_docsFile;
    QVariantList m_docs;
    bool m_read = false;
};
