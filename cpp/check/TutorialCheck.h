#pragma once

#include "check/Problem.h"

#include <QCoreApplication>
#include <QVector>

struct CheckSubject;

/// Finds all that is wrong with a tutorial. Its texts are those of all rules.
class TutorialCheck
{
    Q_DECLARE_TR_FUNCTIONS(TutorialCheck)

public:
    /// In the order of the steps, what is about the tutorial as a whole first.
    static QVector<Problem> check(const CheckSubject &subject);
};
