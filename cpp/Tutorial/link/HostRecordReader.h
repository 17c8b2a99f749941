#pragma once

#include "tool/DataSupport.h"

#include <QByteArray>
#include <QStringList>

/// Joins the reads of a stream to records. What a read leaves unfinished is kept until its end has
/// come, wherever the stream was cut.
class HostRecordReader
{
public:
    /// An unfinished record that grows past this many bytes is dropped with a warning in the log.
    static constexpr int kMaximumPending = DataSupport::kMostBytes;

    /// Takes records of that direction only; see HostRecord.
    explicit HostRecordReader(char direction);

    /// The messages of all records that this read has completed, in order. A record with another
    /// first byte, and all of the read after it, is dropped.
    QStringList read(const QByteArray &bytes);

    /// Forgets an unfinished record.
    void clear();

private:
    // A record holds at least its direction byte, the byte after it and its end.
    static constexpr int kHeaderSize = 2;

    char mDirection;
    QByteArray mPending;
    // No end stands before this position of mPending.
    int mSearchedSize = 0;
};
