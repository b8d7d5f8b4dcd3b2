#include "project/GuardedDevice.h"

namespace {

constexpr qint64 longestToken = 32 * 1024 * 1024;
// Two quotes an attribute; the largest element of a project has about sixty of them.
constexpr int mostQuotes = 2 * 256;

} // namespace

GuardedDevice::GuardedDevice(QIODevice &source, const std::atomic<bool> *cancelled)
    : m_source(source), m_cancelled(cancelled)
{
    open(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

bool GuardedDevice::isSequential() const
{
    return true;
}

qint64 GuardedDevice::readData(char *data, qint64 maxSize)
{
    if (m_stop != Stop::None)
        return -1;
    if (m_cancelled && *m_cancelled) {
        m_stop = Stop::Cancelled;
        return -1;
    }
    const qint64 size = m_source.read(data, maxSize);
    if (size <= 0)
        return size;
    m_bytesOfToken += size;
    if (m_bytesOfToken > longestToken)
        m_stop = Stop::TokenTooLong;
    else if (hasTooManyAttributes(data, size))
        m_stop = Stop::TooManyAttributes;
    return m_stop == Stop::None ? size : -1;
}

qint64 GuardedDevice::writeData(const char *, qint64)
{
    return -1;
}

// A "<" never stands inside an attribute, so the quotes since the last one bound the attributes of a tag.
bool GuardedDevice::hasTooManyAttributes(const char *data, qint64 size)
{
    for (const char *at = data; at != data + size; ++at) {
        if (*at == '<')
            m_quotesOfTag = 0;
        else if ((*at == '"' || *at == '\'') && ++m_quotesOfTag > mostQuotes)
            return true;
    }
    return false;
}
