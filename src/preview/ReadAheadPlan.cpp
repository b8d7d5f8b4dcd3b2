#include "preview/ReadAheadPlan.h"

int ReadAheadPlan::position(int step) const
{
    const int count = int(names.size());
    const int before = cursor;
    const int after = count - 1 - cursor;
    if (direction == Zum::Backward) {
        if (step <= before)
            return cursor - step;
        // A backward run that goes on does so forward; one that ends is started again from the end.
        return loop ? step : count - (step - before);
    }
    if (step <= after)
        return cursor + step;
    return loop && pendulum ? count - 1 - step : step - after - 1;
}
