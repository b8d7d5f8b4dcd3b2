#pragma once

#include "shared/Dialogs.h"

#include <QList>

/// Imitates the system's dialogs: answers are given beforehand, in order, and what was asked is kept. With no
/// answer left it gives up, as a person who closes the dialog.
class FakeDialogs : public morvane::Dialogs
{
public:
    struct Asked
    {
        QString kind;
        QString caption;
        QString start;
        QString filter;
    };

    QStringList pathAnswers;
    QList<Answer> askAnswers;
    QList<Asked> asked;

    QString openFile(const QString &caption, const QString &start, const QString &filter) override
    {
        return path(QStringLiteral("open"), caption, start, filter);
    }
    QStringList openFiles(const QString &caption, const QString &start, const QString &filter) override
    {
        return path(QStringLiteral("openFiles"), caption, start, filter)
            .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    }
    QString saveFile(const QString &caption, const QString &start, const QString &filter,
                     const QString &) override
    {
        return path(QStringLiteral("save"), caption, start, filter);
    }
    QString selectFolder(const QString &caption, const QString &start) override
    {
        return path(QStringLiteral("folder"), caption, start, QString());
    }
    void warn(const QString &title, const QString &text) override
    {
        asked.append({QStringLiteral("warn"), title, text, QString()});
    }
    Answer ask(const QString &title, const QString &text, const QString &, const QString &) override
    {
        asked.append({QStringLiteral("ask"), title, text, QString()});
        return askAnswers.isEmpty() ? Answer::Cancel : askAnswers.takeFirst();
    }

private:
    QString path(const QString &kind, const QString &caption, const QString &start, const QString &filter)
    {
        asked.append({kind, caption, start, filter});
        return pathAnswers.isEmpty() ? QString() : pathAnswers.takeFirst();
    }
};
