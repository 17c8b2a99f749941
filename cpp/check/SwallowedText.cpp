#include "check/SwallowedText.h"

#include <algorithm>

namespace
{
const QLatin1String kOpening("/*");
const QLatin1String kClosing("*/");
const QLatin1String kListEnd("];");

/// After the quote that ends the string, in the same line; -1 where there is none, so that a quote that is missing
/// turns only its own line inside out.
int endOfString(const QString &script, int begin)
{
    for (int i = begin + 1; i < script.size() && script.at(i) != QLatin1Char('\n'); ++i) {
        if (script.at(i) == QLatin1Char('"'))
            return i + 1;
        if (script.at(i) == QLatin1Char('\\'))
            ++i;
    }
    return -1;
}

int nextLine(const QString &script, int position)
{
    const int lineFeed = script.indexOf(QLatin1Char('\n'), position);
    return lineFeed < 0 ? script.size() : lineFeed;
}

class Scan
{
public:
    explicit Scan(const QString &script) : mScript(script), mLastClosing(script.lastIndexOf(kClosing)) { }

    QVector<SwallowedText::Place> run()
    {
        bool isBlank = true; // what stands in the line so far, comments apart
        int position = 0;
        while (position < mScript.size() && !standsAt(position, kListEnd)) {
            const QChar character = mScript.at(position);
            if (isClosedComment(position)) {
                position = mScript.indexOf(kClosing, position + kOpening.size()) + kClosing.size();
            } else if (isBlank && standsAt(position, QLatin1String("//"))) {
                position = scanLineComment(position);
            } else if (character == QLatin1Char('"')) {
                isBlank = false;
                position = scanString(position);
            } else {
                if (character == QLatin1Char('\n'))
                    isBlank = true;
                else if (character != QLatin1Char(' ') && character != QLatin1Char('\t'))
                    isBlank = false;
                ++position;
            }
        }
        return mPlaces;
    }

private:
    bool standsAt(int position, const QLatin1String &part) const
    {
        return mScript.midRef(position, part.size()) == part;
    }
    bool isClosedComment(int position) const
    {
        return position + kOpening.size() <= mLastClosing && standsAt(position, kOpening);
    }

    /// To the end of its line, or after the block comment that the reader sees begin in it.
    int scanLineComment(int begin)
    {
        const int lineEnd = nextLine(mScript, begin);
        for (int i = mScript.indexOf(kOpening, begin); i >= 0 && i < lineEnd; i = mScript.indexOf(kOpening, i)) {
            if (!isClosedComment(i))
                break;
            const int closing = mScript.indexOf(kClosing, i + kOpening.size());
            if (closing > lineEnd) {
                if (hasMoreThanLineComments(lineEnd, closing))
                    mPlaces.append({ kOpening, i, true });
                return closing + kClosing.size();
            }
            i = closing + kClosing.size();
        }
        return lineEnd;
    }
    bool hasMoreThanLineComments(int begin, int end) const
    {
        const QVector<QStringRef> lines = mScript.midRef(begin, end - begin).split(QLatin1Char('\n'));
        return std::any_of(lines.begin(), lines.end(), [](const QStringRef &line) {
            const QStringRef text = line.trimmed();
            return !text.isEmpty() && !text.startsWith(QLatin1String("//"));
        });
    }

    int scanString(int begin)
    {
        const int end = endOfString(mScript, begin);
        if (end < 0)
            return nextLine(mScript, begin);
        for (int i = begin; i < end; ++i) {
            if (!mHasComment && isClosedComment(i)) {
                mHasComment = true;
                mPlaces.append({ kOpening, i, false });
            } else if (!mHasEnd && standsAt(i, kListEnd)) {
                mHasEnd = true;
                mPlaces.append({ kListEnd, i, false });
            }
        }
        return end;
    }

    const QString &mScript;
    const int mLastClosing;
    QVector<SwallowedText::Place> mPlaces;
    bool mHasComment = false;
    bool mHasEnd = false;
};
} // namespace

QVector<SwallowedText::Place> SwallowedText::find(const QString &script)
{
    return Scan(script).run();
}
