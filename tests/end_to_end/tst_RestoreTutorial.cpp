#include "AuthorDriver.h"

#include <QDirIterator>

/// What a writer has not saved comes back after the program was killed.
class tst_RestoreTutorial : public QObject, private AuthorDriver
{
    Q_OBJECT

private Q_SLOTS:
    void changesComeBackOrGo();
    void cleanup() { mHost.reset(); }

private:
    /// Kills the program once its copy holds that text, and starts it again. The window of its question.
    QString killAndStart(const QByteArray &text);
    QByteArray copy() const
    {
        QDirIterator files(dataFolder(), { QStringLiteral("copy.json") }, QDir::Files, QDirIterator::Subdirectories);
        return files.hasNext() ? readAll(files.next()) : QByteArray();
    }
    static QStringList question()
    {
        return Screen::xdotool(QStringLiteral("search --onlyvisible --name ^保存されていない変更$"))
            .split(QLatin1Char('\n'));
    }
};

// Places in the window at its first size, in pixels.
constexpr QPoint kAddItem(160, 723);
constexpr QPoint kHint2(600, 570);
constexpr QPoint kCondition(480, 678);

QString tst_RestoreTutorial::killAndStart(const QByteArray &text)
{
    if (!QTest::qWaitFor([&] { return copy().contains(text); }, kLimit))
        return QString();
    mHost->process().kill();
    mHost->process().waitForFinished();
    if (!launch() || !QTest::qWaitFor([] { return !question().first().isEmpty(); }, kLimit))
        return QString();
    Screen::xdotool(QStringLiteral("windowactivate --sync"), question());
    return question().first();
}

void tst_RestoreTutorial::changesComeBackOrGo()
{
    QVERIFY(start());
    click(kAddItem);
    QVERIFY(QTest::qWaitFor([&] { return current() == 1; }, kLimit));
    click(kHint2);
    press("ctrl+a");
    type(QStringLiteral("Hello"));
    click(kCondition);
    press("ctrl+a");
    type(QStringLiteral("wait,300"));

    const QString window = killAndStart("wait,300");
    QVERIFY(!window.isEmpty());
    const auto height = [&window] {
        return Screen::xdotool(QStringLiteral("getwindowgeometry --shell"), { window })
            .section(QStringLiteral("HEIGHT="), 1)
            .section(QLatin1Char('\n'), 0, 0)
            .toInt();
    };
    const int before = height();
    press("Tab Return");
    QTRY_VERIFY(height() > before);
    press("shift+Tab Return");
    QTRY_VERIFY(question().first().isEmpty());
    QVERIFY(findWindow());
    QTRY_VERIFY(isModified());
    press("ctrl+s");
    QTRY_VERIFY_WITH_TIMEOUT(!isModified(), kLimit);
    QCOMPARE(stored("en_US").size(), 1);
    QCOMPARE(stored("en_US").first().value(QLatin1String("hint")).toString(), QStringLiteral("Hello"));
    QCOMPARE(stored("ja_JP").first().value(QLatin1String("condition")).toString(), QStringLiteral("wait,300"));
    QTRY_VERIFY(copy().isEmpty());

    const QList<QJsonObject> saved = items();
    click(kAddItem);
    QVERIFY(!killAndStart("項目002").isEmpty());
    press("Tab Tab Return");
    QTRY_VERIFY(question().first().isEmpty());
    QVERIFY(findWindow());
    QVERIFY(!isModified());
    QCOMPARE(items(), saved);
    QVERIFY(copy().isEmpty());
}

QTEST_MAIN(tst_RestoreTutorial)
#include "tst_RestoreTutorial.moc"
