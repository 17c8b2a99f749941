#include "check/Walk.h"

#include "check/StepGraph.h"

#include <algorithm>

Walk::Walk(const StepGraph &graph) : mGraph(&graph), mSteps(graph.steps().size())
{
    if (graph.first() == StepGraph::kEnd)
        return;
    findShortest();
    findGroups();
}

// Step after step, the nearest ones first.
void Walk::findShortest()
{
    QVector<int> queue{ mGraph->first() };
    mSteps[mGraph->first()].depth = 1;
    for (int i = 0; i < queue.size(); ++i) {
        const int from = queue.at(i);
        for (const int to : mGraph->steps().at(from).exits()) {
            if (to == StepGraph::kEnd) {
                mEnds.append(from);
            } else if (mSteps.at(to).depth == 0) {
                mSteps[to].depth = mSteps.at(from).depth + 1;
                mSteps[to].before = from;
                queue.append(to);
            }
        }
    }
    mReachedCount = queue.size();
    std::sort(mEnds.begin(), mEnds.end());
}

// Strongly connected components in one pass, with a stack of its own: a tutorial may be one way of 100,000 steps.
void Walk::findGroups()
{
    struct Visit
    {
        int step;
        int exit; // the next one to be followed
    };
    const QVector<StepGraph::Step> &steps = mGraph->steps();
    QVector<int> number(steps.size(), 0); // in the order of the visits, from 1 up
    QVector<int> lowest(steps.size(), 0); // the lowest number on a circle with the step, as far as is known
    QVector<int> open; // visited steps without a group
    QVector<Visit> visits;
    int count = 0;
    const auto enter = [&](int step) {
        number[step] = lowest[step] = ++count;
        open.append(step);
        visits.append({ step, 0 });
    };
    enter(mGraph->first());
    while (!visits.isEmpty()) {
        const int from = visits.last().step;
        const auto exits = steps.at(from).exits();
        if (visits.last().exit < exits.size()) {
            const int to = exits.at(visits.last().exit++);
            if (to == StepGraph::kEnd)
                continue;
            if (number.at(to) == 0)
                enter(to);
            else if (mSteps.at(to).group == kNone)
                lowest[from] = std::min(lowest.at(from), number.at(to));
            continue;
        }
        visits.removeLast();
        if (!visits.isEmpty())
            lowest[visits.last().step] = std::min(lowest.at(visits.last().step), lowest.at(from));
        if (lowest.at(from) != number.at(from))
            continue;
        const int begin = mGrouped.size();
        do {
            mGrouped.append(open.takeLast());
            mSteps[mGrouped.last()].group = mGroups.size();
        } while (mGrouped.last() != from);
        closeGroup(begin);
    }
}

// All that the group leads to is known.
void Walk::closeGroup(int begin)
{
    const int self = mGroups.size();
    Group group;
    group.begin = begin;
    group.end = mGrouped.size();
    group.isCircle = group.end - begin > 1;
    std::sort(mGrouped.begin() + begin, mGrouped.end());
    int rest = 0;
    for (int i = begin; i < group.end; ++i) {
        for (const int to : mGraph->steps().at(mGrouped.at(i)).exits()) {
            const int next = to == StepGraph::kEnd ? StepGraph::kEnd : mSteps.at(to).group;
            if (next == self) {
                group.isCircle = true;
                continue;
            }
            group.isLeft = true;
            const bool ends = next == StepGraph::kEnd;
            group.ways += ends ? WayCount(1) : mGroups.at(next).ways;
            const int longest = ends ? 0 : mGroups.at(next).longest;
            // What leads into a circle that no way leaves comes to no end.
            if ((ends || longest > 0) && (group.next == kNone || longest > rest)) {
                group.next = next;
                rest = longest;
            }
        }
    }
    if (group.next != kNone)
        group.longest = group.end - begin + rest;
    mGroups.append(group);
}

QSet<int> Walk::reachedIds() const
{
    QSet<int> ids;
    for (const int step : mGrouped)
        ids.insert(mGraph->steps().at(step).id);
    return ids;
}

QSet<int> Walk::lostIds(const QSet<int> &reachedOnce) const
{
    QSet<int> ids;
    for (int i = 0; i < mSteps.size(); ++i) {
        const int id = mGraph->steps().at(i).id;
        if (mGraph->isShown(i) && !isReached(i) && reachedOnce.contains(id))
            ids.insert(id);
    }
    return ids;
}

QVector<int> Walk::shortestWay(int step) const
{
    QVector<int> way;
    if (isReached(step)) {
        for (int i = step; i != kNone; i = mSteps.at(i).before)
            way.append(i);
        std::reverse(way.begin(), way.end());
    }
    return way;
}

// Where the walk begins, all others were found from, so that its group was closed last.
const Walk::Group *Walk::firstGroup() const
{
    return mGroups.isEmpty() ? nullptr : &mGroups.last();
}

int Walk::longest() const
{
    return firstGroup() ? firstGroup()->longest : 0;
}

QVector<int> Walk::longestWay() const
{
    QVector<int> way;
    if (longest() == 0)
        return way;
    for (int i = mGroups.size() - 1; i != StepGraph::kEnd; i = mGroups.at(i).next)
        way += stepsOf(mGroups.at(i));
    return way;
}

WayCount Walk::wayCount() const
{
    return firstGroup() ? firstGroup()->ways : WayCount();
}

QVector<int> Walk::stepsOf(const Group &group) const
{
    return mGrouped.mid(group.begin, group.end - group.begin);
}

QVector<Walk::Circle> Walk::circles() const
{
    QVector<Circle> circles;
    for (const Group &group : mGroups) {
        if (group.isCircle)
            circles.append({ stepsOf(group), group.isLeft });
    }
    std::sort(circles.begin(), circles.end(),
              [](const Circle &a, const Circle &b) { return a.steps.first() < b.steps.first(); });
    return circles;
}
