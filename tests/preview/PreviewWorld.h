#pragma once

#include "preview/PictureStore.h"
#include "preview/StoredText.h"

#include <mutex>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QImageWriter>
#include <QTemporaryDir>
#include <QtTest>

/// The lines that the program logs while this lives; they do not reach the test's output.
class LogCatcher
{
public:
    LogCatcher()
    {
        instance() = this;
        m_former = qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &line) {
            const std::lock_guard lock(instance()->m_mutex);
            instance()->m_lines.append(line);
        });
    }
    ~LogCatcher()
    {
        qInstallMessageHandler(m_former);
    }

    QStringList lines() const
    {
        const std::lock_guard lock(m_mutex);
        return m_lines;
    }
    int count(const QString &line) const
    {
        return int(lines().count(line));
    }

private:
    static LogCatcher *&instance()
    {
        static LogCatcher *catcher = nullptr;
        return catcher;
    }

    QtMessageHandler m_former = nullptr;
    mutable std::mutex m_mutex;
    QStringList m_lines;
};

/// A project's picture folders, with pictures made for the test.
class PreviewWorld
{
public:
    PreviewWorld()
    {
        for (const char *folder : {"cap", "ref", "bg", "tmp/cache"})
            QDir(m_folder.path()).mkpath(folder);
    }

    QString root() const
    {
        return m_folder.path() + '/';
    }
    QString captured() const
    {
        return root() + "cap/";
    }
    QString reference() const
    {
        return root() + "ref/";
    }
    QString copies() const
    {
        return root() + "tmp/cache/";
    }

    PictureStore::Surroundings surroundings() const
    {
        const PictureStore::Folders folders{captured(), reference(), root() + "bg/", copies()};
        const auto invert = [](QImage image, const QVariantMap &, double) {
            image.invertPixels();
            return image;
        };
        return {[folders] { return folders; }, invert, std::make_shared<DiskCopies>()};
    }

    static QImage plain(QSize size, QColor color)
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(color);
        return image;
    }
    /// Left half red, right half blue.
    static QImage halves(QSize size)
    {
        QImage image = plain(size, Qt::red);
        for (int y = 0; y < size.height(); ++y)
            for (int x = size.width() / 2; x < size.width(); ++x)
                image.setPixelColor(x, y, Qt::blue);
        return image;
    }
    /// Writes a picture into the captured frames; the name's suffix is the format.
    void addCaptured(const QString &name, QSize size, QColor color = Qt::red) const
    {
        add(captured() + name, plain(size, color));
    }
    static void add(const QString &path, const QImage &image)
    {
        QImageWriter writer(path);
        writer.setQuality(95);
        QVERIFY2(writer.write(image), qPrintable(path));
    }
    QStringList copyNames() const
    {
        return QDir(copies()).entryList(QDir::Files, QDir::Name);
    }

    static PictureRequest request(const QString &name, QSize target = {100, 100})
    {
        PictureRequest request;
        request.name = name;
        request.scale = 0;
        request.target = target;
        request.source = PictureRequest::fromCaptured;
        return request;
    }

private:
    QTemporaryDir m_folder;
};

/// A store in that world, and what it has told.
struct StoreUnderTest
{
    explicit StoreUnderTest(const PreviewWorld &world) : StoreUnderTest(world.surroundings())
    {
    }
    explicit StoreUnderTest(const PictureStore::Surroundings &surroundings) : store(surroundings, reports())
    {
    }

    PictureStore::Reports reports()
    {
        PictureStore::Reports reports;
        reports.caching = [this](bool caching) {
            told.append(caching ? "caching" : "not caching");
        };
        reports.imageSize = [this](int width, int height) {
            told.append(QString("size %1x%2").arg(width).arg(height));
        };
        reports.proportion = [this](double value) {
            told.append(QString("proportion %1").arg(value));
        };
        reports.usedPercent = [this](double percent) {
            used.append(percent);
        };
        reports.maxBytes = [this](int bytes) {
            told.append(QString("max %1").arg(bytes));
        };
        reports.finished = [this] {
            told.append("finished");
        };
        reports.ended = [this] {
            told.append("ended");
        };
        reports.ready = [this](int plan, const QBitArray &bits) {
            readyPlan = plan;
            ready = bits;
        };
        reports.diskUsedPercent = [this](double percent) {
            diskUsed.append(percent);
        };
        return reports;
    }

    /// Asks and gives what was delivered.
    QImage show(const PictureRequest &request)
    {
        store.request(request);
        return delivered();
    }
    QImage delivered()
    {
        QImage image;
        store.handover().take(image, std::chrono::seconds(1));
        return image;
    }
    StoredText text()
    {
        StoredText text;
        StoredText::read(delivered().text(StoredText::key), text);
        return text;
    }
    void workToTheEnd()
    {
        while (store.workWhileIdle())
            continue;
    }

    QStringList told;
    QList<double> used;
    QList<double> diskUsed;
    int readyPlan = 0;
    QBitArray ready;
    PictureStore store;
};
