#include "app/facade/FacetRoot.h"

#include "app/AppControllers.h"

FacetRoot::FacetRoot(std::unique_ptr<AppControllers> controllers)
    : QQuickView(controllers->environment.engine, nullptr), m_controllers(std::move(controllers))
{
}

FacetRoot::~FacetRoot() = default;
