#pragma once

#include <QHash>
#include <QObject>
#include <QWindow>

/// Turns the input method of windows off and on, for controls that take plain numbers.
///
/// Requests are counted per window: the input method goes off at the first request for it and comes
/// back with the last one's end. Callers balance their calls.
class InputMethod : public QObject
{
    Q_OBJECT

public:
    explicit InputMethod(QObject *parent = nullptr);

    /// With enabled false asks for the input method to be off, with true takes one such request back.
    void setEnabled(QWindow *window, bool enabled);

private:
    struct Record
    {
        int disableCount = 0; // requests that are open
        void *context = nullptr; // what was taken from the window, to be given back
    };

    Record &recordOf(QWindow *window);

    QHash<WId, Record> mRecords;
};
