#pragma once

#include "check/CheckSubject.h"
#include "check/HintSizes.h"
#include "check/Problem.h"
#include "check/ScenarioFile.h"
#include "Tutorial/translation/TranslationSource.h"

#include <QHash>
#include <QString>
#include <QVector>

/// A tutorial, read from its scenario and its translation sources for the check alone. Nothing of it is ever written.
class TutorialFiles
{
public:
    /// Reads the scenario, and the hints of both languages from the sources of a folder, where that is there. The
    /// result is empty, or tells which file can't be read.
    QString read(const QString &scenario, const QString &translations);
    /// The same of what such files hold.
    void readBytes(const QString &scenario, const QByteArray &bytes);

    /// Where the translation sources lie beside a scenario, as the resource tree and the writer's folder have them.
    static QString translationsOf(const QString &scenario);
    /// Whether the folder has a translation source of one of the languages.
    static bool hasTranslations(const QString &folder);

    /// What is wrong with a translation source that holds no translations.
    static Problem unreadable(const QString &file, const QByteArray &bytes);

    /// Lays all hints out, so that those that are too high are found. Needs an application with widgets.
    void measureHints();

    /// All problems, each with its file and line: those of the files first, then those of the steps in their order.
    QVector<Problem> problems() const;
    /// The tutorial as the rules see it. It ends with this object.
    const CheckSubject &subject() const { return mSubject; }

private:
    QString readLanguage(const QString &locale, const QString &folder);
    void place(Problem &problem, QHash<int, int> &seen) const;

    QString mContext; // the name of the tutorial, under which its hints stand
    ScenarioFile mScenario;
    CheckSubject mSubject;
    HintSizes mHintSizes;
    QSet<QString> mStaleKeys;
    QVector<Problem> mProblems; // of the translation sources
    QHash<QString, QHash<QString, TranslationSource::Messages>> mMessages; // by locale and context
    QHash<QString, QHash<QString, int>> mLines; // of the messages, by file and source text
};
