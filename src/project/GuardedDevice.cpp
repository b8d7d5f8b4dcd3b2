#include "project/GuardedDevice.h"

namespace {

constexpr qint64 longestToken = 32 * 1024 * 1024;
// The largest element of a project has about sixty.
constexpr int mostAttributes = 256;

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

// Every attribute has its value in quotes; a "<" never stands in one, so that it begins a tag wherever it
// comes.
bool GuardedDevice::hasTooManyAttributes(const char *data, qint64 size)
{
    for (const char *at = data; at != data + size; ++at) {
        if (*at == '<') {
            m_inTag = true;
            m_quote = '\0';
            m_attributesOfTag = 0;
        } else if (!m_inTag) {
            continue;
        } else if (m_quote != '\0') {
            if (*at == m_quote)
                m_quote = '\0';
        } else if (*at == '"' || *at == '\'') {
            m_quote = *at;
            if (++m_attributesOfTag > mostAttributes)
                return true;
        } else if (*at == '>') {
            m_inTag = false;
        }
    }
    return false;
}
