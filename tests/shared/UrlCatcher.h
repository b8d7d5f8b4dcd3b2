#pragma once

#include <QObject>
#include <QUrl>

/// Takes the addresses that would otherwise open a program of the desktop.
class UrlCatcher : public QObject
{
    Q_OBJECT

public:
    QList<QUrl> urls;

public slots:
    void open(const QUrl &url)
    {
        urls.append(url);
    }
};
