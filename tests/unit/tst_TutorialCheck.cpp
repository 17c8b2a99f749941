#include "check/CheckSubject.h"
#include "check/HintRules.h"
#include "check/TutorialCheck.h"
#include "check/TutorialFiles.h"
#include "support/FileBytes.h"
#include "support/WarningGuard.h"

namespace
{
using Hints = QMap<int, QString>;

/// A tutorial without a fault, whose step 2 in the third line has these entries, too. What is passed over has faults.
QByteArray tutorial(const char *entries)
{
    return QByteArray(
               "var scenario = [\n"
               "{\"id\":1,\"name\":\"a\",\"condition\":\"click\",\"hint\":qsTr(\"#1\")},\n"
               "{\"id\":2,\"name\":\"b\",%\"hint\":qsTr(\"#2\")},\n"
               "{\"id\":3,\"name\":\"c\",\"folder\":true,\"children\":[\n"
               "{\"id\":4,\"name\":\"d\",\"hint\":qsTr(\"#4\")}]},\n"
               "{\"id\":5,\"name\":\"e\",\"prohibited\":true},\n"
               "{\"id\":6,\"name\":\"f\",\"folder\":true,\"children\":[\n"
               "{\"id\":7,\"name\":\"g\",\"prohibited\":true,\"jump\":99,\"jumpNo\":7,\"icon\":\"x\",\"x\":1}]}\n"
               "];")
        .replace('%', entries);
}

/// A translation source: from the third line on three lines for each hint. One that begins with a question mark is
/// marked as unfinished.
QByteArray source(const Hints &hints)
{
    QString text = QStringLiteral("<TS version=\"2.1\"><context>\n<name>X</name>\n");
    for (auto hint = hints.cbegin(); hint != hints.cend(); ++hint) {
        const bool unfinished = hint->startsWith(QLatin1Char('?'));
        text += QStringLiteral("<message>\n<source>#%1</source>\n<translation%2>%3</translation></message>\n")
                    .arg(hint.key())
                    .arg(unfinished ? QStringLiteral(" type=\"unfinished\"") : QString(),
                         hint->mid(unfinished ? 1 : 0).toHtmlEscaped());
    }
    return (text + QStringLiteral("</context></TS>\n")).toUtf8();
}

QString told(const QVector<Problem> &problems)
{
    QStringList lines;
    for (const Problem &problem : problems) {
        lines.append(QStringLiteral("%1 %2 %3:%4")
                         .arg(problem.rule)
                         .arg(problem.itemId)
                         .arg(QFileInfo(problem.file).fileName())
                         .arg(problem.line));
    }
    return lines.join(QLatin1String(", "));
}
} // namespace

class tst_TutorialCheck : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        mWarnings.begin();
        mFolder = std::make_unique<QTemporaryDir>();
    }
    void cleanup() { mWarnings.end(); }

    void findsEachFaultAlone();
    void knowsWhatTheHostHasReported();
    void measuresOnlySoLong();
    void programTellsAndEnds();
    void programWalksAndDraws();

private:
    void check(const QByteArray &scenario, const Hints &first, const Hints &second, const QString &found)
    {
        cleanup();
        init();
        const bool isRefused =
            found.contains(QRegularExpression(QStringLiteral("^(syntax|translation-call|no-list -1 X.js:2)")))
            || scenario.count("];") > 1; // that in a text ends the list
        mWarnings.expect(QStringLiteral("Json parse error"), int(isRefused));
        mWarnings.expect(QStringLiteral("jsonStr is empty"), int(scenario.isEmpty()));
        mWarnings.expect(QStringLiteral(" for kValue"), found.count(QStringLiteral("item-unreadable")));
        TutorialFiles files;
        const QString file = write(scenario, first, second);
        QCOMPARE(files.read(file, TutorialFiles::translationsOf(file)), QString());
        files.measureHints();
        const QString all = told(files.problems());
        QVERIFY2(all == found, qPrintable(QString::fromUtf8(scenario.left(500)) + all));
    }
    /// Without hints there are no translation sources.
    QString write(const QByteArray &scenario, const Hints &first = kFirst, const Hints &second = kSecond)
    {
        writeAll(path(QStringLiteral("qml/Tutorial/X.js")), scenario);
        if (first.isEmpty())
            return path(QStringLiteral("qml/Tutorial/X.js"));
        writeAll(path(QStringLiteral("translations/ja_JP.ts")), source(first));
        writeAll(path(QStringLiteral("translations/en_US.ts")), source(second));
        return path(QStringLiteral("qml/Tutorial/X.js"));
    }
    QString path(const QString &name) const { return mFolder->filePath(name); }
    QByteArray run(const QStringList &arguments, int exitCode)
    {
        QProcess program;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        // Neither is asked for.
        environment.remove(QStringLiteral("QT_QPA_PLATFORM"));
        environment.remove(QStringLiteral("DISPLAY"));
#ifdef Q_OS_UNIX // elsewhere the program's libraries are found by it
        if (!mSearchPath.isEmpty())
            environment.insert(QStringLiteral("PATH"), mSearchPath);
#endif
        program.setProcessEnvironment(environment);
        program.setWorkingDirectory(mFolder->path());
        program.start(QStringLiteral(TRELVANE_CHECK_PROGRAM), arguments);
        if (!program.waitForFinished(60000) || program.exitStatus() != QProcess::NormalExit)
            return "did not end";
        // Windows ends its lines in two characters.
        return program.exitCode() == exitCode ? program.readAllStandardOutput().replace("\r\n", "\n")
                                              : "exit code " + QByteArray::number(program.exitCode());
    }
    QString mSearchPath; // where the program looks for others; the system's if it is empty

    static inline const Hints kFirst{ { 1, QStringLiteral("あ") },
                                      { 2, QStringLiteral("い") },
                                      { 4, QStringLiteral("う") } };
    static inline const Hints kSecond{ { 1, QStringLiteral("a") },
                                       { 2, QStringLiteral("b") },
                                       { 4, QStringLiteral("c") } };

    std::unique_ptr<QTemporaryDir> mFolder;
    WarningGuard mWarnings;
};

void tst_TutorialCheck::findsEachFaultAlone()
{
    const auto step = [this](const char *entries, const char *found) {
        check(tutorial(entries), kFirst, kSecond, QString::fromLatin1(found));
    };
    step("", "");
    step("\"jump\":99,", "jump-missing 2 X.js:3");
    step("\"jump\":4,", "");
    step("\"condition\":\"yesNo\",\"jump\":2,", "jump-itself 2 X.js:3");
    step("\"condition\":\"yesNo\",\"jumpNo\":2,", "jump-itself 2 X.js:3");
    step("\"condition\":\"yesNo\",\"jump\":1,", "");
    step("\"condition\":\"yesNo\",\"jump\":5,", "jump-prohibited 2 X.js:3");
    step("\"condition\":\"yesNo\",\"jumpNo\":6,", "jump-empty-folder 2 X.js:3");
    step("\"condition\":\"yesNo\",\"jumpNo\":3,", "");
    step("\"condition\":\"click\",\"jumpNo\":4,", "no-unasked 2 X.js:3");
    step("\"icon\":\"Click\",", "icon-unknown 2 X.js:3");
    step("\"icon\":\"\",", "");
    step("\"x\":-9999,\"y\":0,", "place-half 2 X.js:3");
    step("\"x\":0,\"y\":-16385,", "place-outside 2 X.js:3");
    step("\"x\":16384,\"y\":-16384,", "");
    step("\n\"name\":\"a\",", "key-twice 2 X.js:4, name-twice 2 X.js:4");
    step("\"windowKey\":\"a\\u005d;\",", "text-unreadable 2 X.js:3");
    step("\"command\":\"qsTr\\u0028\",", "text-unreadable 2 X.js:3");
    step("\"condition\":\"a \\u002f* b\",", "text-unreadable 2 X.js:3");
    step("\"condition\":\"] ; / * qsTr\",", "");
    step("\"hint\":qsTr(\"#3\"),\n", "key-twice 2 X.js:4");
    // What is left out, at the line of the value.
    step("\n\"x\":1,\n\"y\":\"1\",", "value-left-out 2 X.js:5");
    step("\n\"showArrow\":1,", "value-left-out 2 X.js:4");
    step("\n\"folow\":\n{\"id\":9},", "key-unknown 2 X.js:5");
    step("\"followWindow\":\"a\",", "");
    step("\n\"j\\u0075mp\":\n99,", "jump-missing 2 X.js:5");
    step("\"command\":\"\\\"}\",\n\"showArrow\":\"\",", "value-left-out 2 X.js:4");
    step("\"folder\":true,\"children\":[{\"id\":8}],\n\"children\":[{\"id\":9,\"prohibited\":true,\n\"x\":\"\"}],",
         "key-twice 2 X.js:4, key-unknown 2 X.js:5, value-left-out 9 X.js:5");
    step("\"children\":[{\"a\":1,\"id\":8},{\"id\":9}],\n\"children\":[],", "key-twice 2 X.js:4");
    step("\n\"children\":[\n{\"id\":9}],", "children-of-step 2 X.js:4");
    step("\n\"children\":[{\"id\":9},\n7],", "item-unreadable 2 X.js:5");
    step("/* 1\n2 */\n// 3\n\t// {\n\"jump\":/*\n*/99,\n", "jump-missing 2 X.js:8");
    step("\n\"x\":-9999,\n\"y\":1,\n\"icon\":\"a\",", "icon-unknown 2 X.js:6, place-half 2 X.js:5");
    step("\n/*\n*/\"x\":\"\",//*\n*/* */\n\"y\":0,", "value-left-out 2 X.js:5");

    const auto file = [this](const QByteArray &bytes, const char *found) {
        check(bytes, {}, {}, QString::fromLatin1(found));
    };
    file("var scenario = [\n{\"id\":1,\"name\":\"a\"},\n{\"id\":2,\"name\":\"b\"},\n{\"id\":1,\"name\":\"c\"}\n];",
         "id-twice 1 X.js:4");
    file("[\n{\"id\":-1,\"name\":\"a\"},\n{\"id\":0,\"name\":\"b\"},\n{\"id\":-1,\"jump\":99},{\"id\":-2,\"hint\":\"#"
         "1\"}]",
         "id-invalid -1 X.js:2, id-invalid -1 X.js:4, id-invalid -2 X.js:4");
    file("[\n{\"name\":\"a\"}]", "id-invalid 0 X.js:2");
    file("// a\n\nvar scenario = [\n/* b\n */ {\"id\":1} // c\n];\n", "syntax -1 X.js:5");
    file("[\n{\"id\":1},\n\n]", "syntax -1 X.js:4");
    file("var scenario = [\n{\"id\":1,\"hint\":qsTr(\"%1\").arg(\"a\")},\n{\"id\":\"\n", "syntax -1 X.js:3");
    file("\nconst scenario = [\n{\"id\":1}\n];", "no-list -1 X.js:2");
    file("", "no-list -1 X.js:1");
    file("{\"id\":1}", "no-list -1 X.js:1");
    file("[\n{\"id\":1,\"hint\":\nqsTr(\"#1)}\n]", "translation-call -1 X.js:3");
    file("[\n{\"id\":1,\"hint\":\nqsTr('#1')}\n]", "translation-call -1 X.js:3");
    file("[\n{\"id\":1}\n],\n[]", "after-steps -1 X.js:3");
    file("[\n{\"id\":1,\"name\":\"\xe9\"}]", "not-utf8 -1 X.js:2");
    file("\xef\xbb\xbf[\r\n{\"id\":1,\"name\":\"\xc3\xa9\xef\xbf\xbd\"}]", "");

    file("[\n{\"id\":1,\"prohibited\":true}]", "no-step -1 X.js:0");
    // What the reader takes for a comment or the end of the list, but not in a comment, or after a quote too few.
    file("var scenario = [\n{\"id\":1,\"name\":\"a/*b\"},\n{\"id\":2,\"name\":\"b*/c\"}\n];",
         "text-unreadable -1 X.js:2");
    file("var scenario = [\n{\"id\":1},\n{\"id\":2,\"name\":\"\\\"a];\"}\n];", "text-unreadable -1 X.js:3");
    file("var scenario = [\n{\"id\":1},\n // a /* b\n{\"id\":2},\n// */\n{\"id\":3}\n];", "comment-open -1 X.js:3");
    file("var scenario = [\n// /* a */ b\n// /*\n// {},\n// */\n{\"id\":1,\"hint\":\"\"}\n];", "");
    file("[\n// \"];\"\n/* \" /* */{\"id\":1,\"name\":\"*/\"}\n]", "");
    file("[\n{\"id\":1,\"name\":\"a},\n/* b */\n{\"id\":2}\n];", "syntax -1 X.js:4");
    file("[\n{\"id\":1,\"hint\":\n/* \"#1\" */qsTr(\"#2\")},\n{\"id\":2,\"name\":\"b\",\"hint\":\"#2\"},"
         "{\"id\":3,\"hint\":\"#1\"}]",
         "hint-key 1 X.js:3, hint-key 3 X.js:4");
    // Too deep for the reader.
    file("[" + QByteArray("{\"id\":1,\"folder\":true,\"children\":[").repeated(100000), "syntax -1 X.js:1");
    // What a folder can't have, of which a later "folder" decides.
    file("[\n{\"id\":1,\"prohibited\":true,\n\"folder\":true,\"children\":[\n{\"id\":2,\"a\":1}],\n\"x\":4}]",
         "key-unknown 1 X.js:2, key-unknown 2 X.js:4, key-unknown 1 X.js:5");
    file("[{\"id\":1,\"folder\":true,\"prohibited\":false,\"children\":[{\"id\":2,\"x\":1,\"y\":1}]}]", "");

    const auto hints = [this](const char *first, const char *second, const char *found) {
        Hints firsts = kFirst;
        Hints seconds = kSecond;
        for (const auto &[all, text] : { std::pair(&firsts, first), std::pair(&seconds, second) }) {
            all->insert(2, QString::fromUtf8(text));
            if (qstrcmp(text, "-") == 0)
                all->remove(2);
        }
        check(tutorial(""), firsts, seconds, QString::fromLatin1(found));
    };
    hints("a", "-", "hint-missing 2 X.js:3");
    hints("a", "", "hint-missing 2 en_US.ts:6");
    hints("#2", "b", "hint-missing 2 ja_JP.ts:6");
    hints("", "-", "hint-missing 2 X.js:3");
    hints(" ", " ", "");
    hints("the same", "the same", "hint-same 2 en_US.ts:6");
    hints("同", "同", "hint-same 2 en_US.ts:6");
    hints("Ctrl + S", "Ctrl + S", "");
    hints("Side View", "Side View", "");
    hints("10 mm", "10 mm", "");
    hints("a", "?b", "hint-stale 2 en_US.ts:6");
    hints("a", "?", "hint-missing 2 en_US.ts:6");
    hints("a", "?#2", "hint-missing 2 en_US.ts:6");
    hints("a", QByteArray(2000, 'b'), "hint-too-high 2 en_US.ts:6");
    check(tutorial(""), kFirst, {}, QStringLiteral("language-missing -1 X.js:0"));
}

void tst_TutorialCheck::knowsWhatTheHostHasReported()
{
    TutorialFiles files;
    files.read(write(tutorial("\"windowKey\":\"Main/tool\",\"x\":10,\"y\":-100,")),
               path(QStringLiteral("translations")));
    CheckSubject subject = files.subject();
    const auto found = [&subject] { return told(TutorialCheck::check(subject)); };
    subject.hostRect = QRect(0, 0, 800, 600);
    QCOMPARE(found(), QString());
    subject.isHostKnown = true;
    subject.reportedPlaces.insert(QStringLiteral("Main"), QPoint());
    QCOMPARE(found(), QStringLiteral("control-unreported 2 :0"));
    // The arrow hangs below its place and points into the window.
    subject.reportedPlaces.insert(QStringLiteral("Main/tool"), QPoint(0, 0));
    QCOMPARE(found(), QString());
    subject.reportedPlaces.insert(QStringLiteral("Main/tool"), QPoint(790, 0));
    QCOMPARE(found(), QStringLiteral("place-outside 2 :0"));
    subject.hostRect = QRect();
    QCOMPARE(found(), QString());
}

void tst_TutorialCheck::measuresOnlySoLong()
{
    QStringList hints;
    for (int i = 0; i < 200; ++i)
        hints.append(QString::number(i) + QString(300, QLatin1Char('w')));
    HintSizes sizes;
    QVERIFY(!sizes.measure(hints, 0));
    QCOMPARE(sizes.height(hints.last()), -1);
    while (!sizes.measure(hints, 0)) { }
    QVERIFY(sizes.height(hints.last()) > 0);
    // One that does not fit is reported once it is measured.
    const QString file = write(tutorial(""), { { 1, hints.first() }, { 2, QString(2000, QLatin1Char('w')) } }, kSecond);
    TutorialFiles files;
    files.read(file, TutorialFiles::translationsOf(file));
    CheckSubject subject = files.subject();
    subject.languages = subject.languages.mid(0, 1);
    subject.hintSizes = &sizes;
    const QString missing = QStringLiteral("hint-missing 4 ja_JP.ts:0");
    QCOMPARE(told(TutorialCheck::check(subject)), missing);
    sizes.measure(HintRules::hints(subject));
    QCOMPARE(told(TutorialCheck::check(subject)), QStringLiteral("hint-too-high 2 ja_JP.ts:0, ") + missing);
}

void tst_TutorialCheck::programTellsAndEnds()
{
    const QString file = QStringLiteral("qml/Tutorial/X.js");
    const QString english = QStringLiteral("--language=en_US");
    write(tutorial(""));
    QCOMPARE(run({ english, file }, 0), QByteArray());
    // A remark is no reason to stop a build.
    write(tutorial("").replace("\"b\"", "\"a\""));
    QCOMPARE(run({ english, file }, 0),
             QByteArray("qml/Tutorial/X.js:3: remark: a (#2): #1 has the same name: give one of them another. "
                        "[name-twice]\n"));

    const QByteArray scenario = tutorial("\"icon\":\"eyes\",");
    write(scenario, kFirst, { { 1, QStringLiteral("a") }, { 2, QString() }, { 4, QStringLiteral("c") } });
    const QByteArray icon = "qml/Tutorial/X.js:3: warning: b (#2): No icon is called \"eyes\", so that none is shown: "
                            "choose one of click, doubleClick, rightClick, eye, wait, keyboard. [icon-unknown]\n";
    QCOMPARE(run({ english, file }, 1),
             "translations/en_US.ts:6: warning: b (#2): The hint is missing in English: write it. [hint-missing]\n"
                 + icon);
    QVERIFY(run({ QStringLiteral("--language=ja_JP"), file }, 1).contains("b (#2): 英語のヒントがありません。"));
    QVERIFY(QDir(path(QString())).rename(QStringLiteral("translations"), QStringLiteral("t")));
    QCOMPARE(run({ english, file }, 1), icon);
    QCOMPARE(run({ english, QStringLiteral("--translations=t"), file }, 1).count('\n'), 2);
    QCOMPARE(run({ english, QStringLiteral("--translations=qml"), file }, 2), QByteArray());
    QVERIFY(QDir(path(QString())).rename(QStringLiteral("t"), QStringLiteral("translations")));
    const QJsonArray problems = QJsonDocument::fromJson(run({ english, QStringLiteral("--json"), file }, 1)).array();
    QCOMPARE(problems.size(), 2);
    QCOMPARE(problems.at(0).toObject(),
             QJsonObject({ { QStringLiteral("file"), QStringLiteral("translations/en_US.ts") },
                           { QStringLiteral("line"), 6 },
                           { QStringLiteral("severity"), QStringLiteral("warning") },
                           { QStringLiteral("rule"), QStringLiteral("hint-missing") },
                           { QStringLiteral("id"), 2 },
                           { QStringLiteral("name"), QStringLiteral("b") },
                           { QStringLiteral("text"), QStringLiteral("The hint is missing in English: write it.") } }));

    // What can be read is reported all the same.
    QCOMPARE(run({ english, file, QStringLiteral("missing.js") }, 2).count("icon-unknown"), 1);
    QCOMPARE(run({ english }, 2), QByteArray());
    QCOMPARE(run({ QStringLiteral("--language=fr"), file }, 2), QByteArray());
    QCOMPARE(run({ english, QStringLiteral("--map=translations/en_US.ts"), file }, 2), QByteArray());
    const QByteArray hostile = tutorial("\"icon\":\"\\u001b[31m\\r\\u2028\",");
    write(hostile);
    QVERIFY(run({ english, file }, 1).contains("\" [31m  \""));
    write(scenario);
    QVERIFY(run({ QStringLiteral("--help") }, 0).contains("--translations"));
    writeAll(path(QStringLiteral("translations/en_US.ts")), "<TS>\n<context>\n</TS>");
    QCOMPARE(run({ english, file }, 1).left(55), QByteArray("translations/en_US.ts:3: error: The translations can't "));
    QCOMPARE(readAll(path(file)), scenario);
}

void tst_TutorialCheck::programWalksAndDraws()
{
    const QString file = QStringLiteral("qml/Tutorial/X.js");
    const QString english = QStringLiteral("--language=en_US");
    const QString walk = QStringLiteral("--walk");
    write(tutorial("\"condition\":\"yesNo\",\"jump\":1,"));
    QCOMPARE(run({ english, walk, file }, 0),
             QByteArray("qml/Tutorial/X.js:\nsteps: 5, shown: 3, reached: 3\nways: 1\n"
                        "longest way, with 3 different steps: #1–#4\ncircle: #1–#2\n"
                        "end: #4 d, shortest way, with 3 steps: #1–#4\n"));
    const QJsonObject told = QJsonDocument::fromJson(run({ walk, QStringLiteral("--json"), file }, 0)).object();
    QVERIFY(told.value(QStringLiteral("problems")).toArray().isEmpty());
    const QJsonObject report = told.value(QStringLiteral("walks")).toArray().at(0).toObject();
    QCOMPARE(report.value(QStringLiteral("file")).toString(), file);
    QCOMPARE(report.value(QStringLiteral("ends")).toArray(),
             (QJsonArray{ QJsonObject{ { QStringLiteral("id"), 4 },
                                       { QStringLiteral("name"), QStringLiteral("d") },
                                       { QStringLiteral("steps"), 3 },
                                       { QStringLiteral("way"), QJsonArray{ 1, 2, 4 } } } }));

    mSearchPath = path(QString()); // without Graphviz
    QCOMPARE(run({ QStringLiteral("--map=map.dot"), file }, 0), QByteArray());
    QVERIFY(readAll(path(QStringLiteral("map.dot"))).startsWith("digraph"));
    QCOMPARE(run({ QStringLiteral("--map=map.svg"), file }, 2), QByteArray());
    QVERIFY(!QFile::exists(path(QStringLiteral("map.svg"))));
    QCOMPARE(run({ QStringLiteral("--map=none/map.dot"), file }, 2), QByteArray());
    QCOMPARE(run({ QStringLiteral("--map=map.dot"), file, file }, 2), QByteArray());
    mSearchPath.clear();
}

QTEST_MAIN(tst_TutorialCheck)
#include "tst_TutorialCheck.moc"
