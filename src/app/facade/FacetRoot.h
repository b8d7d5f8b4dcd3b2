#pragma once

#include <memory>
#include <QQuickView>

struct AppControllers;

/// The end of the facet chain: the window itself, and the controllers that the facets forward to.
class FacetRoot : public QQuickView
{
    Q_OBJECT

public:
    explicit FacetRoot(std::unique_ptr<AppControllers> controllers);
    ~FacetRoot() override;

    AppControllers &controllers() const
    {
        return *m_controllers;
    }

private:
    std::unique_ptr<AppControllers> m_controllers;
};
