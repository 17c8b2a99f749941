// Runs random edits and steps of the history, and looks at the whole document after each. A fault
// is told with the operations that led to it.
//
// SESSION_COUNT=N runs so many sessions, and SESSION_SEED=N begins with that seed.

#include "RandomSession.h"

#include <QtTest>

#include <random>

namespace
{
QString unexpectedWarning;

/// The program's own messages are no concern here; any other warning is a fault.
void onMessage(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (type != QtDebugMsg && type != QtInfoMsg && !text.startsWith(QLatin1String("cpp/")))
        unexpectedWarning = text;
}

/// What went wrong, after the operations that led to it; or nothing.
QString runSession(unsigned seed)
{
    QStringList names;
    std::vector<int> weights;
    for (const RandomSession::Verb &verb : RandomSession::verbs()) {
        names.append(QLatin1String(verb.name));
        weights.push_back(verb.weight);
    }
    std::mt19937 random(seed);
    std::discrete_distribution<int> verbs(weights.begin(), weights.end());
    std::uniform_int_distribution<unsigned> numbers(0, 999);
    QVector<Operation> operations(600);
    for (Operation &operation : operations)
        operation = { verbs(random), numbers(random), numbers(random), numbers(random) };
    // At last all that is open is closed, and it goes back as far as the history reaches, and forth.
    for (const char *verb : { "endSequence", "undo", "redo" })
        operations += QVector<Operation>(20, { names.indexOf(QLatin1String(verb)), 0, 0, 0 });

    unexpectedWarning.clear();
    QString told;
    RandomSession session;
    for (const Operation &op : qAsConst(operations)) {
        told += QStringLiteral("%1 %2 %3 %4\n").arg(names.at(op.verb)).arg(op.a).arg(op.b).arg(op.c);
        const QString wrong = session.run(op) + unexpectedWarning;
        if (!wrong.isEmpty())
            return told + wrong;
    }
    return QString();
}
} // namespace

class RandomSessionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sessions();
};

void RandomSessionTest::sessions()
{
    const int count = qEnvironmentVariableIntValue("SESSION_COUNT");
    const int first = qEnvironmentVariableIntValue("SESSION_SEED");
    for (int seed = first; seed < first + (count ? count : 12); ++seed) {
        const QtMessageHandler previous = qInstallMessageHandler(onMessage);
        const QString wrong = runSession(static_cast<unsigned>(seed));
        qInstallMessageHandler(previous);
        // Longer than a message of Qt Test may be.
        if (!wrong.isEmpty())
            qWarning("seed %d: %s", seed, qPrintable(wrong));
        QVERIFY2(wrong.isEmpty(), "the document or its history went wrong");
    }
}

QTEST_MAIN(RandomSessionTest)
#include "tst_RandomSession.moc"
