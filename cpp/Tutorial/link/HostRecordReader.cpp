#include "Tutorial/link/HostRecordReader.h"

#include "tool/Log.h"
#include "Tutorial/link/HostRecord.h"

HostRecordReader::HostRecordReader(char direction) : mDirection(direction) { }

QStringList HostRecordReader::read(const QByteArray &bytes)
{
    mPending.append(bytes);
    QStringList messages;
    int position = 0;
    while (position < mPending.size()) {
        if (mPending.at(position) != mDirection) {
            clear();
            return messages;
        }
        const int textStart = position + kHeaderSize;
        const int end = mPending.indexOf(HostRecord::kEnd, qMax(textStart, mSearchedSize));
        if (end < 0)
            break;
        const int textSize = end - textStart;
        messages += HostRecord::splitMessages(QByteArray::fromRawData(mPending.constData() + textStart, textSize));
        position = end + 1;
        mSearchedSize = 0;
    }
    mPending.remove(0, position);
    mSearchedSize = mPending.size();
    if (mPending.size() > kMaximumPending) {
        Log::warning("cpp/Tutorial", "HostRecordReader::read", __LINE__) << "record too long" << mPending.size();
        clear();
    }
    return messages;
}

void HostRecordReader::clear()
{
    mPending.clear();
    mSearchedSize = 0;
}
