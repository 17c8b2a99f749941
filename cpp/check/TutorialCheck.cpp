#include "check/TutorialCheck.h"

#include "check/CheckSubject.h"
#include "check/HintRules.h"
#include "check/JumpRules.h"
#include "check/NameRules.h"
#include "check/PlaceRules.h"
#include "check/StepGraph.h"
#include "check/Walk.h"
#include "check/WalkRules.h"

#include <algorithm>

namespace
{
/// In the order of the tree. Items that share an id have one record, whose problems count once.
QVector<Problem> sorted(QVector<Problem> problems, const TreeDataTemplate<TutorialItemData> &document)
{
    // An item whose id is invalid would pass for the tutorial as a whole.
    if (document.getData(-1)) {
        const auto isWhole = [](const Problem &problem) { return problem.itemId == -1; };
        problems.erase(std::remove_if(problems.begin(), problems.end(), isWhole), problems.end());
    }
    if (problems.size() < 2)
        return problems;
    QHash<int, int> positions;
    document.mRoot.visitAll([&positions](const TreeItem<TutorialItemData> &item) {
        if (!positions.contains(item.mId))
            positions.insert(item.mId, positions.size());
    });
    std::stable_sort(problems.begin(), problems.end(), [&positions](const Problem &one, const Problem &other) {
        return positions.value(one.itemId) < positions.value(other.itemId);
    });
    QSet<QString> seen;
    const auto isSeen = [&seen](const Problem &problem) {
        const QString key = QString::number(problem.itemId) + problem.rule + problem.text + problem.file;
        const bool known = problem.rule != QLatin1String("id-twice") && seen.contains(key);
        seen.insert(key);
        return known;
    };
    problems.erase(std::remove_if(problems.begin(), problems.end(), isSeen), problems.end());
    return problems;
}
} // namespace

QVector<Problem> TutorialCheck::check(const CheckSubject &subject)
{
    const StepGraph graph(*subject.document);
    const Walk walk(graph);
    return sorted(NameRules::check(subject) + JumpRules::check(graph)
                      + WalkRules::check(graph, walk, subject.reachedAtSave) + HintRules::check(subject, graph)
                      + PlaceRules::check(subject, graph),
                  *subject.document);
}
