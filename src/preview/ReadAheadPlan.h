#pragma once

#include "preview/PictureRequest.h"

#include <QMetaType>
#include <QStringList>

/// Which pictures a preview is going to want, and from where on. A plain value.
struct ReadAheadPlan
{
    /// Tells plans apart in what is reported of them.
    int number = 0;
    /// In the order of the rows, each name once.
    QStringList names;
    /// Position among the names that the walk starts at; every request for one of the names moves it there.
    int cursor = 0;
    /// A Zum::PlayDirections.
    int direction = Zum::Forward;
    bool loop = true;
    bool pendulum = false;
    /// Everything but the name.
    PictureRequest like;

    /// Position of the picture that comes `step` pictures after the cursor. Counting steps from 0 to the
    /// number of names visits each once: first what this pass still shows, then what the next one will.
    int position(int step) const;
};

Q_DECLARE_METATYPE(ReadAheadPlan)
