#pragma once

#include <QImage>

/// Where a camera's thread leaves pictures for the scopes. Called on that thread, with the live picture held:
/// it must be quick, and must not wait for anybody longer than LivePicture does.
class ScopeFeed
{
public:
    virtual ~ScopeFeed() = default;
    virtual void feed(const QImage &shown) = 0;
};
