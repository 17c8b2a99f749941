#include "check/HintRules.h"

#include "check/CheckSubject.h"
#include "check/HintSizes.h"
#include "check/StepGraph.h"
#include "check/TutorialCheck.h"
#include "Tutorial/guidance/HintView.h"
#include "Tutorial/translation/StaleHints.h"

#include <QRegularExpression>

#include <algorithm>

namespace
{
using Language = CheckSubject::Language;

QString nameOf(const Language &language)
{
    if (language.locale == QLatin1String("ja_JP"))
        return TutorialCheck::tr("Japanese");
    return language.locale == QLatin1String("en_US") ? TutorialCheck::tr("English") : language.locale;
}

bool isJapanese(QChar character)
{
    const QChar::Script script = character.script();
    return script == QChar::Script_Han || script == QChar::Script_Hiragana || script == QChar::Script_Katakana;
}

/// Whether the words are such that nobody would leave them as they are: Japanese, or a sentence. A name such as
/// "Side View", keys such as "Ctrl + S", and a number with its unit are the same in both languages.
bool needTranslation(const QString &words)
{
    static const QRegularExpression word(QStringLiteral("[A-Za-z]{3,}"));
    if (std::any_of(words.begin(), words.end(), isJapanese))
        return true;
    int count = 0;
    bool isSentence = false;
    for (auto match = word.globalMatch(words); match.hasNext() && !(isSentence && count > 1); ++count)
        isSentence = match.next().captured().front().isLower() || isSentence;
    return isSentence && count > 1;
}

class StepHints
{
public:
    StepHints(const CheckSubject &subject, const QVector<Language> &translated, const StepGraph::Step &step,
              QVector<Problem> &problems)
        : mSubject(subject)
        , mTranslated(translated)
        , mRecord(*step.record)
        , mId(step.id)
        , mProblems(problems)
    { }

    void check()
    {
        checkMissing();
        checkSame();
        for (const Language &language : mSubject.languages) {
            if (!isMissing(language))
                checkHeight(language);
        }
        checkStale();
    }

private:
    const QString &hint(const Language &language) const { return mRecord.*language.hint; }
    bool isMissing(const Language &language) const { return StaleHints::isMissing(mId, hint(language)); }

    void add(const char *rule, const QString &text, const QString &file = QString())
    {
        mProblems.append({ QString::fromLatin1(rule), Problem::Severity::Warning, mId, mRecord.mName, text, file, 0,
                           QStringLiteral("hint") });
    }

    void checkMissing()
    {
        const QVector<Language> &languages = mSubject.languages;
        const auto isMissing = [this](const Language &language) { return this->isMissing(language); };
        // A catalog gives the key for a text that is empty: an arrow alone needs a blank as its hint.
        if (languages.size() > 1 && std::all_of(languages.begin(), languages.end(), isMissing)) {
            add("hint-missing", TutorialCheck::tr("There is no hint: write one, or a blank if none is to be shown."));
            return;
        }
        for (const Language &language : mTranslated) {
            if (isMissing(language)) {
                add("hint-missing", TutorialCheck::tr("The hint is missing in %1: write it.").arg(nameOf(language)),
                    language.file);
            }
        }
    }

    void checkSame()
    {
        if (mSubject.languages.size() < 2 || isMissing(mSubject.languages.first()))
            return;
        const QString &first = hint(mSubject.languages.first());
        const Language &second = mSubject.languages.at(1);
        if (first == hint(second) && needTranslation(first)) {
            add("hint-same", TutorialCheck::tr("The hint has the same words in both languages: translate it."),
                second.file);
        }
    }

    void checkHeight(const Language &language)
    {
        const int height = mSubject.hintSizes ? mSubject.hintSizes->height(hint(language)) : -1;
        if (height <= HintView::mostHeight())
            return;
        add("hint-too-high",
            TutorialCheck::tr("The hint in %1 is %2 pixels high, and its window has room for %3: shorten it, or make "
                              "two steps of it.")
                .arg(nameOf(language))
                .arg(height)
                .arg(HintView::mostHeight()),
            language.file);
    }

    void checkStale()
    {
        if (mSubject.languages.size() < 2 || !mSubject.staleIds.contains(mId))
            return;
        const Language &second = mSubject.languages.at(1);
        if (!isMissing(second)) {
            add("hint-stale",
                TutorialCheck::tr("The hint has changed since it was translated into %1: look at the translation.")
                    .arg(nameOf(second)),
                second.file);
        }
    }

    const CheckSubject &mSubject;
    const QVector<Language> &mTranslated;
    const TutorialItemData &mRecord;
    const int mId;
    QVector<Problem> &mProblems;
};

/// False for a language that nobody has begun to translate the tutorial into: that is told once.
bool isTranslated(const CheckSubject &subject, const StepGraph &graph, const Language &language)
{
    constexpr int kFewSteps = 1;
    int hints = 0;
    for (int i = 0; i < graph.steps().size(); ++i) {
        const StepGraph::Step &step = graph.steps().at(i);
        const auto hasHint = [&step](const Language &one) {
            return !StaleHints::isMissing(step.id, step.record->*one.hint);
        };
        if (!graph.isShown(i))
            continue;
        if (hasHint(language))
            return true;
        hints += int(std::any_of(subject.languages.begin(), subject.languages.end(), hasHint));
    }
    return hints <= kFewSteps;
}
} // namespace

QVector<Problem> HintRules::check(const CheckSubject &subject, const StepGraph &graph)
{
    QVector<Problem> problems;
    QVector<Language> translated;
    for (const Language &language : subject.languages) {
        if (isTranslated(subject, graph, language))
            translated.append(language);
        else
            problems.append({ QStringLiteral("language-missing"), Problem::Severity::Remark, -1, QString(),
                              TutorialCheck::tr("No hint is there in %1 yet: translate them for learners who read it.")
                                  .arg(nameOf(language)),
                              language.file, 0 });
    }
    for (int i = 0; i < graph.steps().size() && !subject.languages.isEmpty(); ++i) {
        if (graph.isShown(i))
            StepHints(subject, translated, graph.steps().at(i), problems).check();
    }
    return problems;
}

QStringList HintRules::hints(const CheckSubject &subject)
{
    QStringList hints;
    for (const TutorialItemData *record : subject.document->mDataList) {
        for (const Language &language : subject.languages) {
            if (!record->mProhibited)
                hints.append(record->*language.hint);
        }
    }
    return hints;
}
