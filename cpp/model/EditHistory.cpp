#include "model/EditHistory.h"

namespace
{
EditHistory *currentHistory = nullptr;
}

EditHistory::EditHistory()
{
    currentHistory = this;
}

EditHistory::~EditHistory()
{
    if (currentHistory == this)
        currentHistory = nullptr;
}

EditHistory *EditHistory::instance()
{
    return currentHistory;
}
