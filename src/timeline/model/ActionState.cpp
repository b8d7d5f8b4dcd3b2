#include "timeline/model/ActionState.h"

ActionState::ActionState(QObject *parent) : RangeState(parent)
{
    connect(&m_batch, &BatchRunner::currentActionChanged, this, &ActionState::currentActionChanged);
    connect(&m_batch, &BatchRunner::currentActionChanged, this, &ActionState::threadingChanged);
    connect(&m_batch, &BatchRunner::progressActionChanged, this, &ActionState::progressActionChanged);
    connect(&m_batch, &BatchRunner::progressTotalChanged, this, &ActionState::progressTotalChanged);
    connect(&m_batch, &BatchRunner::progressCurrentChanged, this, &ActionState::progressCurrentChanged);
}

void ActionState::stopThreadAction()
{
    m_batch.stop();
}
