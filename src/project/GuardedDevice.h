#pragma once

#include <atomic>
#include <QIODevice>

/// Stands between a file that nobody vouches for and the XML parser, which would otherwise gather one token
/// without an end in memory, or spend its time comparing the attributes of one element without an end.
class GuardedDevice : public QIODevice
{
public:
    enum class Stop {
        None,
        Cancelled,
        TokenTooLong,
        TooManyAttributes,
    };

    GuardedDevice(QIODevice &source, const std::atomic<bool> *cancelled);

    /// The parser has finished a token.
    void tokenDone()
    {
        m_bytesOfToken = 0;
    }
    /// Why the data ended before the source did.
    Stop stop() const
    {
        return m_stop;
    }
    bool isSequential() const override;

protected:
    qint64 readData(char *data, qint64 maxSize) override;
    qint64 writeData(const char *data, qint64 size) override;

private:
    bool hasTooManyAttributes(const char *data, qint64 size);

    QIODevice &m_source;
    const std::atomic<bool> *m_cancelled;
    qint64 m_bytesOfToken = 0;
    int m_attributesOfTag = 0;
    bool m_inTag = false;
    /// The quote that ends the attribute under way; zero between attributes.
    char m_quote = '\0';
    Stop m_stop = Stop::None;
};
