#pragma once

#include "project/ProjectDocument.h"

#include <QRandomGenerator>

/// A project with every value set to something that the format bears, the same for the same seed.
ProjectDocument randomProject(quint32 seed, int frames);
