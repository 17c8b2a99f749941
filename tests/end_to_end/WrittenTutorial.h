#pragma once

#include <QByteArray>
#include <QVector>

/// The tutorial that a writer writes in the test, and what the files then hold, put together by the
/// rules of their formats without the program's own writers.
namespace WrittenTutorial
{
constexpr int kNone = -1;
constexpr int kNowhere = -9999;

struct Step
{
    int id;
    const char *name;
    const char *windowKey;
    int x;
    int y;
    const char *icon;
    const char *condition;
    const char *japanese;
    const char *english;
    bool showArrow = false;
    int jump = kNone;
    int jumpNo = kNone;
    bool prohibited = false;
};

struct Folder
{
    int id;
    const char *name;
    QVector<Step> steps;
};

/// As it is to stand in the end. Ids are given in the order of making.
const QVector<Folder> &folders();

QByteArray scenario();
/// A translation file of this tree without the texts of any tutorial of that name.
QByteArray withoutHints(QByteArray translations);
/// The same with the hints of the tutorial as the last context.
QByteArray withHints(const QByteArray &translations, const char *Step::*hint);
} // namespace WrittenTutorial
