#pragma once

#include "check/WayCount.h"

#include <QSet>
#include <QVector>

class StepGraph;

/// A tutorial played without a host editor, by every answer, from its first step. Made in one pass; it ends with the
/// graph that it was made of. Steps are indices in that graph.
///
/// A way is the steps from the first one to an end, which is a step after which the tutorial can be over. Steps that
/// lead to each other are a circle: ways that differ only in how they go round in it count as one, and the longest way
/// is the one on which a learner meets the most different steps.
class Walk
{
public:
    /// Steps from each of which a way leads to each other one, or one that leads to itself.
    struct Circle
    {
        QVector<int> steps; ///< in the order of the tree
        bool isLeft = false; ///< whether a way leads out of it, to another step or to the end
    };

    explicit Walk(const StepGraph &graph);
    explicit Walk(StepGraph &&graph) = delete;

    bool isReached(int step) const { return mSteps.at(step).depth > 0; }
    int reachedCount() const { return mReachedCount; }
    QSet<int> reachedIds() const;
    /// The ids of steps that were reached once, and are still shown, but that no way reaches now.
    QSet<int> lostIds(const QSet<int> &reachedOnce) const;

    /// The steps after which the tutorial can be over, in the order of the tree.
    const QVector<int> &ends() const { return mEnds; }
    /// The number of steps on the shortest way to a step, itself included; 0 if none leads there.
    int shortest(int step) const { return mSteps.at(step).depth; }
    /// That way itself.
    QVector<int> shortestWay(int step) const;

    /// The number of different steps on the longest way; 0 if no way comes to an end.
    int longest() const;
    /// These steps in the order of the way, those of a circle in the order of the tree.
    QVector<int> longestWay() const;
    /// The number of ways that come to an end.
    WayCount wayCount() const;

    /// In the order of their first steps.
    QVector<Circle> circles() const;

private:
    static constexpr int kNone = -2; // kEnd is another

    struct StepState
    {
        int depth = 0;
        int before = kNone; // the step before it on the shortest way
        int group = kNone;
    };

    /// A circle, or a step that is in none.
    struct Group
    {
        int begin = 0; // its steps' place in mGrouped
        int end = 0;
        bool isCircle = false;
        bool isLeft = false;
        int longest = 0; // different steps from here to an end
        int next = kNone; // the group after it on the longest way
        WayCount ways; // from here to an end
    };

    void findShortest();
    void findGroups();
    void closeGroup(int begin);
    const Group *firstGroup() const;
    QVector<int> stepsOf(const Group &group) const;

    const StepGraph *mGraph;
    QVector<StepState> mSteps;
    QVector<Group> mGroups; // each after all that it leads to
    QVector<int> mGrouped; // the reached steps, group after group
    QVector<int> mEnds;
    int mReachedCount = 0;
};
