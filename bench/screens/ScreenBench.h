#pragma once

#include "AuthoringWindow.h"

#include <QJsonArray>
#include <QMap>
#include <QStringList>

/// The rows of figures, one after another in one window. Each is printed at once and kept.
class ScreenBench
{
public:
    ScreenBench(const QVector<int> &sizes, const QStringList &only);

    void run();

    /// The document alone, and with the rows of the screen; of each item, and all that the process has.
    void measureMemory();

    const QJsonArray &rows() const { return mRows; }

private:
    /// Before the window: to write a scenario takes the process's one document.
    static QMap<int, QString> textsOf(const QVector<int> &sizes);

    void selections();
    void edits();
    /// Each begins with the tutorial as it is stored.
    void manyRows();
    /// All rows but a few go between these.
    Cost dropRows();
    Cost openJumpMenu();
    /// Grows with each check of the tutorial.
    int checkRevision() const;
    /// Waits until nothing is left to check and to measure.
    void checkComesToRest();
    void scrolls();
    Cost scroll();
    QString shownName(int id) const;
    void select(int id);
    /// The median of some rounds.
    void row(const char *name, const std::function<Cost()> &act, double Cost::*figure = &Cost::processor);
    void report(const char *name, double value, const char *unit);
    void append(const char *name, double value, const char *unit);

    QMap<int, QString> mTexts; // by size
    AuthoringWindow mWindow;
    QStringList mOnly;
    QJsonArray mRows;
    int mSize = 0;
    int mRound = 0;
};
