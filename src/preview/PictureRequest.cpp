#include "preview/PictureRequest.h"

#include <tuple>

QString PictureRequest::key() const
{
    return wantsFilters() ? filteredPrefix + name : name;
}

bool PictureRequest::hasSizesOf(const PictureRequest &other) const
{
    const auto sizes = [](const PictureRequest &request) {
        return std::tuple(request.scale, request.cropLimit, request.target, request.policy);
    };
    return sizes(*this) == sizes(other);
}

bool PictureRequest::wantsSameAs(const PictureRequest &other) const
{
    return hasSizesOf(other) && name == other.name && filtered == other.filtered && source == other.source
           && settings == other.settings;
}

QList<int> PictureRequest::parameters() const
{
    return {0,      cropLimit.width(), cropLimit.height(), 0,           int(filtered),
            source, target.width(),    target.height(),    int(forced), policy};
}

PictureRequest PictureRequest::of(const QString &name, double scale, const QList<int> &parameters,
                                  const QVariantMap &settings)
{
    PictureRequest request;
    request.name = name;
    request.scale = scale;
    request.cropLimit = {parameters.value(1), parameters.value(2)};
    request.filtered = parameters.value(4) == 1;
    request.source = parameters.value(5);
    request.target = {parameters.value(6), parameters.value(7)};
    request.forced = parameters.value(8) == 1;
    request.policy = parameters.value(9);
    request.settings = settings;
    return request;
}
