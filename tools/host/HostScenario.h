#pragma once

#include "Tutorial/link/HostMessages.h"

#include <QHash>
#include <QString>
#include <QVariantList>
#include <QVector>

/// A tutorial as the host editor walks it: its steps in order, folders laid flat.
namespace HostScenario
{
/// The id, and the index, that stand for none.
constexpr int kNone = -1;

struct Step
{
    int id = 0;
    QString name;
    /// Pixels from the place that windowKey names.
    int x = HostMessages::kNoPosition;
    int y = HostMessages::kNoPosition;
    QString windowKey;
    QString condition;
    QString hint;
    QString icon;
    int jump = kNone;
    int jumpNo = kNone;
    bool showArrow = true;
    bool prohibited = false;

    bool hasPlace() const { return x != HostMessages::kNoPosition || y != HostMessages::kNoPosition; }
};

struct Scenario
{
    QVector<Step> steps;
    /// For each id, of folders too, the index of the first step at or after it.
    QHash<int, int> indexById;
    /// What went wrong with the script; empty when nothing did.
    QString error;
};

/// Runs the script in a fresh engine and reads the array that it assigns to "scenario".
Scenario evaluate(const QString &script);

/// Lays the items of the array flat.
Scenario flatten(const QVariantList &items);

/// The first step that may be shown at or after that index, or kNone at the end.
int firstAllowed(const Scenario &scenario, int index);

/// The step to begin with. kNone and unknown ids begin at the first one.
int startIndex(const Scenario &scenario, int id);

/// The step after the current one, or kNone when the tutorial ends there. Items that are
/// prohibited are passed over, and so is a jump to an id that does not exist.
int nextIndex(const Scenario &scenario, int current, bool answeredNo);

/// The number of an icon's name; one that draws nothing for an unknown name.
int iconNumber(const QString &icon);
} // namespace HostScenario
