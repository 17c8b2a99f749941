#include "check/TutorialFiles.h"

#include "check/HintRules.h"
#include "check/TutorialCheck.h"
#include "tool/DataSupport.h"
#include "Tutorial/translation/HintMerge.h"
#include "Tutorial/translation/StaleHints.h"
#include "Tutorial/translation/TranslationXml.h"

#include <QDir>
#include <QFileInfo>

namespace
{
const QString kFirstLocale = QStringLiteral("ja_JP");
const QString kSecondLocale = QStringLiteral("en_US");

QString fileOf(const QString &folder, const QString &locale)
{
    return QDir(folder).filePath(locale + QLatin1String(".ts"));
}

/// As the program names a tutorial of a file.
QString contextOf(const QString &scenario)
{
    const QString name = QFileInfo(scenario).fileName();
    return name.endsWith(QLatin1String(".js")) ? name.left(name.size() - 3) : name;
}
} // namespace

QString TutorialFiles::translationsOf(const QString &scenario)
{
    return QDir::cleanPath(QFileInfo(scenario).path() + QLatin1String("/../../translations"));
}

bool TutorialFiles::hasTranslations(const QString &folder)
{
    return QFileInfo::exists(fileOf(folder, kFirstLocale)) || QFileInfo::exists(fileOf(folder, kSecondLocale));
}

QString TutorialFiles::read(const QString &scenario, const QString &translations)
{
    mContext = contextOf(scenario);
    for (const QString &locale : { kFirstLocale, kSecondLocale }) {
        QString unreadable = readLanguage(locale, translations);
        if (!unreadable.isEmpty())
            return unreadable;
    }
    QByteArray bytes;
    if (!DataSupport::readFile(scenario, bytes))
        return scenario;
    readBytes(scenario, bytes);
    return QString();
}

void TutorialFiles::readBytes(const QString &scenario, const QByteArray &bytes)
{
    mContext = contextOf(scenario);
    const auto first = mMessages.value(kFirstLocale);
    mScenario.readBytes(scenario, bytes, [&](const QString &context, const QString &source) {
        return first.value(context.isEmpty() ? mContext : context).value(source, source);
    });
    mSubject.document = &mScenario.document();
    mSubject.file = scenario;
    HintMerge::readHints(mScenario.document(), &TutorialItemData::mHint2,
                         mMessages.value(kSecondLocale).value(mContext));
    for (const TutorialItemData *record : qAsConst(mScenario.document().mDataList)) {
        if (mStaleKeys.contains(StaleHints::key(record->mId)))
            mSubject.staleIds.insert(record->mId);
    }
}

QString TutorialFiles::readLanguage(const QString &locale, const QString &folder)
{
    QString file = fileOf(folder, locale);
    if (folder.isEmpty() || !QFileInfo::exists(file))
        return QString();
    QByteArray bytes;
    if (!DataSupport::readFile(file, bytes))
        return file;
    QDomDocument document;
    if (!TranslationXml::parse(bytes, document)) {
        mProblems.append(unreadable(file, bytes));
        return QString();
    }
    const bool first = locale == kFirstLocale;
    mSubject.languages.append({ locale, file, first ? &TutorialItemData::mHint : &TutorialItemData::mHint2 });
    if (!first)
        mStaleKeys = TranslationSource::staleSources(document, mContext);
    mMessages.insert(locale, TranslationSource::readMessages(document));
    mLines.insert(file, TranslationSource::readLines(document, mContext));
    return QString();
}

Problem TutorialFiles::unreadable(const QString &file, const QByteArray &bytes)
{
    QString message;
    int line = 0;
    QDomDocument().setContent(bytes, &message, &line);
    return { QStringLiteral("translations-unreadable"),
             Problem::Severity::Error,
             -1,
             QString(),
             TutorialCheck::tr("The translations can't be read from here on (%1): mend the file.")
                 .arg(message.isEmpty() ? TutorialCheck::tr("it is not what such a file holds") : message),
             file,
             line };
}

void TutorialFiles::measureHints()
{
    mHintSizes.measure(HintRules::hints(mSubject));
    mSubject.hintSizes = &mHintSizes;
}

QVector<Problem> TutorialFiles::problems() const
{
    QVector<Problem> problems = mProblems + mScenario.problems();
    // What a rule finds in the value that stands in for one that is left out, the file does not say.
    QSet<QPair<int, QString>> leftOut;
    for (const Problem &problem : mScenario.problems()) {
        if (problem.rule == QLatin1String("value-left-out"))
            leftOut.insert({ problem.itemId, problem.key });
    }
    QHash<int, int> seen;
    const QVector<Problem> found = TutorialCheck::check(mSubject);
    for (Problem problem : found) {
        if (leftOut.contains({ problem.itemId, problem.key }))
            continue;
        place(problem, seen);
        problems.append(problem);
    }
    return problems;
}

void TutorialFiles::place(Problem &problem, QHash<int, int> &seen) const
{
    problem.line = mLines.value(problem.file).value(StaleHints::key(problem.itemId));
    if (problem.line > 0)
        return;
    problem.file = mSubject.file;
    const int earlier = problem.rule == QLatin1String("id-twice") ? ++seen[problem.itemId] : 0;
    problem.line = problem.itemId == -1 ? 0 : mScenario.lines().lineOfId(problem.itemId, earlier, problem.key);
}
