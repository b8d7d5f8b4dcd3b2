#pragma once

#include "jobs/EncoderBase.h"

#include <QFile>
#include <QList>

/// What a fake encoder was asked, kept beyond its life.
struct EncoderRecord
{
    QVariantList createArguments;
    QVariantMap webpSettings;
    QList<QImage> pictures;
    int closed = 0;
    bool interrupted = false;

    // How it behaves.
    QVariantMap answer{{QStringLiteral("ok"), true}};
    bool isOk = true;
    /// The picture, counted from 0, that it refuses.
    int refusedPicture = -1;
    QString writeError;
    QString path;
    /// Called before a picture is taken, on the job's thread; may wait.
    std::function<void()> beforePicture;
};

/// Imitates an encoder: keeps what it gets and fails on demand.
class FakeEncoder : public EncoderBase
{
public:
    explicit FakeEncoder(EncoderRecord &record) : m_record(record)
    {
    }

    QVariantMap createFile(const QString &basePath, int width, int height, int qualityIndex, double fps,
                           const QString &formatName, bool applyEffects, const QString &filter,
                           int frameCount, bool reserved) override
    {
        m_record.createArguments = {basePath,   width,        height, qualityIndex, fps,
                                    formatName, applyEffects, filter, frameCount,   reserved};
        m_record.webpSettings = m_webpSettings;
        return m_record.answer;
    }
    QString closeFile() override
    {
        ++m_record.closed;
        m_record.interrupted = isInterrupted();
        return m_record.path;
    }
    int encodeImage(const QImage &image) override
    {
        if (m_record.beforePicture)
            m_record.beforePicture();
        if (m_record.pictures.size() == m_record.refusedPicture)
            return -1;
        m_record.pictures.append(image);
        return 0;
    }
    bool isOk() const override
    {
        return m_record.isOk;
    }
    void setWebpSettings(const QVariantMap &settings) override
    {
        m_webpSettings = settings;
    }
    QString writeError() const override
    {
        return m_record.writeError;
    }
    using EncoderBase::tell;

private:
    EncoderRecord &m_record;
    QVariantMap m_webpSettings;
};
