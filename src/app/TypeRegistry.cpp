#include "app/TypeRegistry.h"

#include "app/ASlider.h"
#include "app/CursorShapeArea.h"
#include "app/QNumImput.h"
#include "app/WheelArea.h"
#include "capture/OsSpecific.h"
#include "capture/webcam/WebCamWindow.h"
#include "preview/Histogram.h"
#include "preview/QChromaKey.h"
#include "preview/RamPreview.h"
#include "shared/Zum.h"
#include "timeline/Progress.h"
#include "timeline/RowBand.h"
#include "timeline/TimelineIndicator.h"

#include <qqml.h>
#include <QPainterPath>
#include <QPolygonF>

namespace typeregistry {

namespace {

template <typename T>
void add(const char *name)
{
    qmlRegisterType<T>(name, 1, 0, name);
}

} // namespace

void registerTypes()
{
    add<WebCamWindow>("WebCamera");
    add<Progress>("Progress");
    add<Histogram>("Histogram");
    add<RamPreview>("CRamPreview");
    add<Zum>("Zum");
    add<WheelArea>("WheelArea");
    add<CursorShapeArea>("CursorShapeArea");
    qRegisterMetaType<QPainterPath>("QPainterPath");
    qRegisterMetaType<QPolygonF>("QPolygonF");
    qRegisterMetaType<QPolygon>("QPolygon");
    add<ASlider>("Aslider");
    add<QNumImput>("QNumImput");
    add<QChromaKey>("QChromaKey");
    add<RowBand>("RowBand");
    add<TimelineIndicator>("TimelineIndicator");
    add<OsSpecific>("OsSpecific");
}

} // namespace typeregistry
