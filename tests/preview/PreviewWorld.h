#pragma once

#include "preview/PictureStore.h"
#include "preview/StoredText.h"
#include "support/LogLines.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QImageWriter>
#include <QTemporaryDir>
#include <QtTest>

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
    /// So many captured pictures, "0.jpg", "1.jpg" and so on.
    QStringList addSeries(int count, QSize size = {200, 100}) const
    {
        QStringList names;
        for (int i = 0; i < count; ++i) {
            names.append(QString::number(i) + ".jpg");
            addCaptured(names.last(), size);
        }
        return names;
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

    static ReadAheadPlan readAheadPlan(const QStringList &names, int cursor = 0)
    {
        ReadAheadPlan plan;
        plan.number = 7;
        plan.names = names;
        plan.cursor = cursor;
        plan.like = request({});
        return plan;
    }

    static QColor middleOf(const QImage &image)
    {
        return image.isNull() ? QColor() : image.pixelColor(image.rect().center());
    }
    /// What a JPEG makes of a colour counts as that colour.
    static bool isNear(QColor a, QColor b)
    {
        return qAbs(a.red() - b.red()) < 6 && qAbs(a.green() - b.green()) < 6
               && qAbs(a.blue() - b.blue()) < 6;
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
