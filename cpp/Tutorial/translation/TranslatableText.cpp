#include "Tutorial/translation/TranslatableText.h"

#include "tool/TextSearch.h"

#include <QCoreApplication>

namespace
{
// As strings with a known length, so that a search does not measure them.
const QLatin1String kQsTr("qsTr(\"");
const QLatin1String kNoop("QT_TRANSLATE_NOOP(\"");
const QLatin1String kClosing("\")");
const QLatin1String kBlankSeparator("\", \"");
const QLatin1String kPlainSeparator("\",\"");
const QLatin1String kArgument(".arg(");

// Both calls look for their closing marker from here on.
constexpr int kClosingSearchStart = 6;

// Calls inside calls deeper than this are no text that anybody wrote.
constexpr int kMaximumDepth = 200;

// Places that are filled with places double with each argument.
constexpr qint64 kMaximumInserted = 64 * 1024;

const char *const kNoString = QT_TRANSLATE_NOOP("TutorialManager", "unable to parse as string: ");

QString message(const char *text)
{
    return QCoreApplication::translate("TutorialManager", text);
}

/// Reads expressions of one text, from its front to its end. Positions are those of the text.
class Scanner
{
public:
    Scanner(const QString &text, const QString &context, const TranslatableText::Translate &translate,
            QVector<TranslatableText::Failure> &failures)
        : mText(text)
        , mContext(context)
        , mTranslate(translate)
        , mFailures(failures)
    { }

    struct Expression
    {
        QString literal;
        // After the expression; at the end of the text after a failure.
        int end;
    };

    Expression read(int start, int depth = 0);

private:
    bool standsAt(int position, const QLatin1String &marker) const
    {
        return mText.midRef(position, marker.size()) == marker;
    }

    Expression fail(int start, const QString &errorText);
    Expression readPlainLiteral(int start);
    Expression readQsTr(int start);
    Expression readNoop(int start);
    void readArguments(Expression &expression, int depth);
    /// The separator's next place, which is looked for only when the one found before is passed.
    struct Separator
    {
        const QLatin1String &marker;
        int position = -1;
        bool known = false;
    };
    int find(Separator &separator, int from) const;

    QString literal(const QString &context, const QStringRef &source) const
    {
        const QString translated = mTranslate(context, TranslatableText::unescapeString(source.toString()));
        return QLatin1Char('"') + TranslatableText::escapeString(translated) + QLatin1Char('"');
    }

    const QString &mText;
    const QString &mContext;
    const TranslatableText::Translate &mTranslate;
    QVector<TranslatableText::Failure> &mFailures;
    // So a text of many calls with a separator at its end, or none, is not searched to its end for each.
    Separator mBlankSeparator{ kBlankSeparator };
    Separator mPlainSeparator{ kPlainSeparator };
};

Scanner::Expression Scanner::fail(int start, const QString &errorText)
{
    mFailures.append({ errorText, start });
    return { mText.mid(start), mText.size() };
}

Scanner::Expression Scanner::read(int start, int depth)
{
    if (start >= mText.size())
        return { QString(), mText.size() };
    if (mText.at(start) == QLatin1Char('"'))
        return readPlainLiteral(start);

    const int failureCount = mFailures.size();
    Expression expression{ QString(), start };
    if (depth < kMaximumDepth && standsAt(start, kQsTr))
        expression = readQsTr(start);
    else if (depth < kMaximumDepth && standsAt(start, kNoop))
        expression = readNoop(start);
    else
        return fail(start, message(kNoString));
    if (mFailures.size() == failureCount)
        readArguments(expression, depth);
    return expression;
}

Scanner::Expression Scanner::readPlainLiteral(int start)
{
    for (int end = mText.indexOf(QLatin1Char('"'), start + 1); end >= 0;
         end = mText.indexOf(QLatin1Char('"'), end + 1)) {
        if (mText.at(end - 1) != QLatin1Char('\\'))
            return { mText.mid(start, end + 1 - start), end + 1 };
    }
    return fail(start, message(QT_TRANSLATE_NOOP("TutorialManager", "unterminated \"...\": ")));
}

Scanner::Expression Scanner::readQsTr(int start)
{
    const int closing = indexOfMarker(mText, kClosing, start + kClosingSearchStart);
    if (closing < 0) {
        const QString text = message(QT_TRANSLATE_NOOP("TutorialManager", "not matched %1...%2: "));
        return fail(start, text.arg(kQsTr, kClosing));
    }
    const int source = start + kQsTr.size();
    return { literal(mContext, mText.midRef(source, closing - source)), closing + kClosing.size() };
}

Scanner::Expression Scanner::readNoop(int start)
{
    const int closing = indexOfMarker(mText, kClosing, start + kClosingSearchStart);
    if (closing < 0) {
        const QString text = message(QT_TRANSLATE_NOOP("TutorialManager", "not matched %1...%2: "));
        return fail(start, text.arg(kNoop, kClosing));
    }
    const int contextStart = start + kNoop.size();
    int separator = find(mBlankSeparator, contextStart);
    int source = separator + kBlankSeparator.size();
    if (separator < 0) {
        separator = find(mPlainSeparator, contextStart);
        source = separator + kPlainSeparator.size();
    }
    if (separator < 0) {
        const QString text = message(QT_TRANSLATE_NOOP("TutorialManager", "not found %1 or %2: "));
        return fail(start, text.arg(kBlankSeparator, kPlainSeparator));
    }
    const int end = closing + kClosing.size();
    // A separator past the call leaves no source, and as the context a stretch of the text that nobody can know.
    if (separator >= end)
        return { QStringLiteral("\"\""), end };
    const QString context = mText.mid(contextStart, separator - contextStart);
    return { literal(context, mText.midRef(source, qMax(0, closing - source))), end };
}

int Scanner::find(Separator &separator, int from) const
{
    const bool passed = separator.position >= 0 && separator.position < from;
    if (!separator.known || passed) {
        separator.position = indexOfMarker(mText, separator.marker, from);
        separator.known = true;
    }
    return separator.position;
}

void Scanner::readArguments(Expression &expression, int depth)
{
    while (standsAt(expression.end, kArgument)) {
        const Expression argument = read(expression.end + kArgument.size(), depth + 1);
        const QString value = argument.literal.mid(1, argument.literal.size() - 2);
        if (qint64(expression.literal.count(QLatin1Char('%'))) * value.size() > kMaximumInserted) {
            expression.end = fail(expression.end, message(kNoString)).end;
            return;
        }
        expression.literal = expression.literal.arg(value);
        if (argument.end >= mText.size() || mText.at(argument.end) != QLatin1Char(')')) {
            const QString text = message(QT_TRANSLATE_NOOP("TutorialManager", "not closed %1: "));
            mFailures.append({ text.arg(kArgument), expression.end });
            expression.end = mText.size();
            return;
        }
        expression.end = argument.end + 1;
    }
}

/// Replaces the expressions that begin with the marker. A literal that holds a marker is not looked
/// at again, nor are the first skipped characters after it.
QString replaceExpressions(const QString &text, const QLatin1String &marker, int skipped, const QString &context,
                           const TranslatableText::Translate &translate, QVector<TranslatableText::Failure> &failures,
                           TextMap::Step *step = nullptr)
{
    int start = indexOfMarker(text, marker);
    if (start < 0)
        return text;
    Scanner scanner(text, context, translate, failures);
    QString result;
    // A translation is longer than its key. Memory that isn't written to costs nothing.
    result.reserve(text.size() + text.size() / 2);
    int copied = 0;
    for (; start >= 0; start = indexOfMarker(text, marker, copied + skipped)) {
        const Scanner::Expression expression = scanner.read(start);
        // Not as a sum, which would make room for just these two.
        result += text.midRef(copied, start - copied);
        if (step)
            step->append(result.size(), start);
        result += expression.literal;
        copied = expression.end;
        if (step)
            step->append(result.size(), copied);
    }
    result += text.midRef(copied);
    return result;
}

void tell(const QVector<TranslatableText::Failure> &failures, const QString &text, QStringList &errors)
{
    for (const TranslatableText::Failure &failure : failures)
        errors.append(failure.message + text.midRef(failure.position));
}

void chopLineFeeds(QString &text)
{
    while (text.endsWith(QLatin1Char('\n')))
        text.chop(1);
}
} // namespace

QString TranslatableText::escapeString(const QString &text)
{
    if (!text.contains(QLatin1Char('"')) && !text.contains(QLatin1Char('\\')))
        return text;
    QString escaped;
    int copied = 0;
    for (int i = 0; i < text.size(); ++i) {
        if (text.at(i) != QLatin1Char('"') && text.at(i) != QLatin1Char('\\'))
            continue;
        escaped += text.midRef(copied, i - copied);
        escaped += QLatin1Char('\\');
        copied = i;
    }
    escaped += text.midRef(copied);
    return escaped;
}

QString TranslatableText::unescapeString(const QString &text)
{
    if (!text.contains(QLatin1Char('\\')))
        return text;
    QString unescaped;
    unescaped.reserve(text.size());
    for (int i = 0; i < text.size(); ++i) {
        const bool escape = text.at(i) == QLatin1Char('\\') && i + 1 < text.size();
        unescaped += escape ? text.at(++i) : text.at(i);
    }
    return unescaped;
}

QString TranslatableText::parseStringExpression(const QString &text, const QString &context, const Translate &translate,
                                                QString &rest, QStringList &errors)
{
    QVector<Failure> failures;
    Scanner scanner(text, context, translate, failures);
    const Scanner::Expression expression = scanner.read(0);
    tell(failures, text, errors);
    rest = text.mid(expression.end);
    return expression.literal;
}

QString TranslatableText::applyToScenario(const QString &text, const QString &context, const Translate &translate,
                                          QStringList &errors)
{
    QVector<Failure> failures;
    QString result = replaceExpressions(text, kQsTr, 0, context, translate, failures);
    tell(failures, text, errors);
    failures.clear();
    const QString calls = result;
    result = replaceExpressions(calls, kNoop, 0, context, translate, failures);
    tell(failures, calls, errors);
    chopLineFeeds(result);
    return result;
}

QString TranslatableText::applyToScenario(const QString &text, const QString &context, const Translate &translate,
                                          QVector<Failure> &failures, TextMap &map)
{
    QString result = text;
    for (const QLatin1String &marker : { kQsTr, kNoop }) {
        QVector<Failure> found;
        TextMap::Step step;
        result = replaceExpressions(result, marker, 0, context, translate, found, &step);
        for (const Failure &failure : qAsConst(found))
            failures.append({ failure.message, map.original(failure.position) });
        map.append(step);
    }
    chopLineFeeds(result);
    return result;
}

QString TranslatableText::applyToList(const QString &text, const QString &context, const Translate &translate,
                                      QStringList &errors)
{
    constexpr int skipped = 2;
    QVector<Failure> failures;
    QString result = replaceExpressions(text, kQsTr, skipped, context, translate, failures);
    tell(failures, text, errors);
    return result;
}
