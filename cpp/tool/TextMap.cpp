#include "tool/TextMap.h"

#include <algorithm>

void TextMap::Step::append(int position, int before)
{
    while (!mStretches.isEmpty() && mStretches.last().position >= position)
        mStretches.removeLast();
    mStretches.append({ position, before });
}

int TextMap::Step::before(int position) const
{
    const auto next = std::upper_bound(mStretches.begin(), mStretches.end(), position,
                                       [](int sought, const Stretch &stretch) { return sought < stretch.position; });
    const Stretch stretch = next == mStretches.begin() ? Stretch{ 0, 0 } : *(next - 1);
    const int before = stretch.before + position - stretch.position;
    return next == mStretches.end() ? before : std::min(before, next->before);
}

int TextMap::original(int position) const
{
    for (int i = mSteps.size() - 1; i >= 0; --i)
        position = mSteps.at(i).before(position);
    return position;
}
