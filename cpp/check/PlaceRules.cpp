#include "check/PlaceRules.h"

#include "check/CheckSubject.h"
#include "check/StepGraph.h"
#include "check/TutorialCheck.h"
#include "model/StepIcon.h"
#include "Tutorial/guidance/GuidanceGeometry.h"

namespace
{
using GuidanceGeometry::kNoPosition;

// No screen is that large.
constexpr int kFarAway = 16384;

/// Where the guidance of a step without flips lies, by the place that the step names.
QRect drawnRect(const TutorialItemData &record, const QPoint &place)
{
    if (record.mShowArrow)
        return { place + GuidanceGeometry::kArrowTip, QSize(1, 1) };
    return { place,
             QSize(GuidanceGeometry::kArrowSize + GuidanceGeometry::kTextWidth,
                   GuidanceGeometry::kTextTop + GuidanceGeometry::kArrowSize) };
}

/// What is wrong with the place, and the rule; both empty if nothing is.
struct Finding
{
    const char *rule;
    QString text;
};

Finding checkPlace(const CheckSubject &subject, const TutorialItemData &record)
{
    const bool hasX = record.mX != kNoPosition;
    const bool hasY = record.mY != kNoPosition;
    if (!hasX && !hasY)
        return {};
    if (hasX != hasY) {
        return { "place-half",
                 TutorialCheck::tr("Only one of x and y has a value: give the step both, or neither for no place.") };
    }
    if (qAbs(qint64(record.mX)) > kFarAway || qAbs(qint64(record.mY)) > kFarAway) {
        return { "place-outside",
                 TutorialCheck::tr("The place (%1, %2) is on no screen: take it over from the mouse again.")
                     .arg(record.mX)
                     .arg(record.mY) };
    }
    const auto reported = subject.reportedPlaces.constFind(record.mWindowKey);
    if (subject.hostRect.isEmpty() || reported == subject.reportedPlaces.constEnd()
        || subject.hostRect.intersects(drawnRect(record, *reported + QPoint(record.mX, record.mY))))
        return {};
    return { "place-outside",
             TutorialCheck::tr("The place (%1, %2) is outside of the host editor's window: take it over from the mouse "
                               "again.")
                 .arg(record.mX)
                 .arg(record.mY) };
}

void checkStep(const CheckSubject &subject, const StepGraph::Step &step, QVector<Problem> &problems)
{
    const TutorialItemData &record = *step.record;
    const auto add = [&](const char *rule, Problem::Severity severity, const QString &text, const QString &key) {
        problems.append({ QString::fromLatin1(rule), severity, step.id, record.mName, text, QString(), 0, key });
    };
    if (!record.mIcon.isEmpty() && !StepIcon::names().contains(record.mIcon)) {
        add("icon-unknown", Problem::Severity::Warning,
            TutorialCheck::tr("No icon is called \"%1\", so that none is shown: choose one of %2.")
                .arg(record.mIcon, StepIcon::names().join(QStringLiteral(", "))),
            QStringLiteral("icon"));
    }
    if (subject.isHostKnown && !record.mWindowKey.isEmpty() && !subject.reportedPlaces.contains(record.mWindowKey)) {
        add("control-unreported", Problem::Severity::Remark,
            TutorialCheck::tr("The host editor has not reported \"%1\" since the program was started: see whether the "
                              "key is right, or open the window that the control is in.")
                .arg(record.mWindowKey),
            QStringLiteral("windowKey"));
    }
    const Finding place = checkPlace(subject, record);
    if (!place.text.isEmpty())
        add(place.rule, Problem::Severity::Warning, place.text,
            record.mX == kNoPosition ? QStringLiteral("y") : QStringLiteral("x"));
}
} // namespace

QVector<Problem> PlaceRules::check(const CheckSubject &subject, const StepGraph &graph)
{
    QVector<Problem> problems;
    for (int i = 0; i < graph.steps().size(); ++i) {
        if (graph.isShown(i))
            checkStep(subject, graph.steps().at(i), problems);
    }
    return problems;
}
