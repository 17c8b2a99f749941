#include "SystemService/InputMethod.h"

#include "SystemService/InputContext.h"
#include "tool/Log.h"

InputMethod::InputMethod(QObject *parent) : QObject(parent) { }

void InputMethod::setEnabled(QWindow *window, bool enabled)
{
    Record &record = recordOf(window);
    Log::debug("cpp/SystemService", "InputMethod::setEnabled", __LINE__)
        << enabled << record.disableCount << record.context;
    if (!enabled) {
        if (record.disableCount == 0)
            record.context = associateInputContext(window, nullptr);
        ++record.disableCount;
    } else {
        --record.disableCount;
        if (record.disableCount == 0) {
            associateInputContext(window, record.context);
            record.context = nullptr;
        }
    }
    Log::debug("cpp/SystemService", "InputMethod::setEnabled", __LINE__)
        << enabled << record.disableCount << record.context;
}

InputMethod::Record &InputMethod::recordOf(QWindow *window)
{
    const WId id = window->winId();
    const auto record = mRecords.find(id);
    if (record != mRecords.end())
        return *record;
    // The window system gives ids out again: a new window must not inherit requests.
    connect(window, &QObject::destroyed, this, [this, id] { mRecords.remove(id); });
    return *mRecords.insert(id, Record());
}
