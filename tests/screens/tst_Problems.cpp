#include "AuthoringTest.h"

#include "check/TutorialFiles.h"
#include "quick/ProblemListModel.h"

#include <QClipboard>

/// What is wrong with the tutorial, at the rows of the tree and in its window.
class tst_Problems : public AuthoringTest
{
    Q_OBJECT

protected Q_SLOTS:
    void init()
    {
        AuthoringTest::init();
        managerInstance->setLocale(QStringLiteral("ja_JP"));
        load(QStringLiteral("1 2[3 4] 5"));
        for (const QString &path : { kJapanese, kEnglish }) {
            const QString locale = QFileInfo(path).baseName();
            QVector<TranslationSource::Entry> entries;
            for (int id = 1; id < 10; ++id)
                entries.append({ QStringLiteral("#%1").arg(id), locale + QString::number(id) });
            QDomDocument document = TranslationSource::emptyDocument(locale);
            TranslationSource::writeMessages(document, QStringLiteral("Sample"), entries);
            writeAll(path, document.toByteArray());
        }
        evaluate(QStringLiteral("reloadTutorial()"));
        select(1);
        QTRY_COMPARE(problems("count").toInt(), 0);
    }

private Q_SLOTS:
    void editsAreFollowed();
    void windowLeadsToTheStep();
    void pagesPassOverNoRow();
    void typingIsNotDisturbed();
    void wordsAreThoseOfTheFiles();

private:
    QQuickWindow *window() const { return visibleWindow("ProblemsWindow"); }
    QQuickItem *list() const { return window()->findChild<QQuickItem *>(QStringLiteral("rows")); }
    QQuickItem *line(int number) const
    {
        for (QQuickItem *each : list()->property("contentItem").value<QQuickItem *>()->childItems()) {
            if (each->isVisible() && each->property("row") == number)
                return each;
        }
        return nullptr;
    }
    QString summary() const
    {
        return window()->findChild<QQuickItem *>(QStringLiteral("problemsSummary"))->property("text").toString();
    }
    /// The lines of the list from the top: what their signs show, the item and the sentence.
    QStringList lines() const
    {
        QStringList lines;
        for (int number = 0; number < list()->property("count").toInt(); ++number) {
            QStringList parts;
            if (const QQuickItem *row = line(number)) {
                for (const QQuickItem *each : row->childItems())
                    parts.append(each->property("text").toString());
                parts.replace(0, pictureOf(row));
            }
            lines.append(parts.mid(0, 3).join(QLatin1Char('|')));
        }
        return lines;
    }
    static QString pictureOf(const QQuickItem *parent)
    {
        for (const QQuickItem *each : parent->findChildren<QQuickItem *>()) {
            const QString source = QFileInfo(each->property("source").toUrl().path()).baseName();
            constexpr int kReady = 1;
            if (source.startsWith(QLatin1String("problem_")) && each->property("status") == kReady)
                return source.mid(8) + (each->opacity() < 1 ? QStringLiteral(" inside") : QString());
        }
        return QString();
    }
    QString signs(const QList<int> &ids) const
    {
        QStringList texts;
        for (const int id : ids)
            texts.append(pictureOf(row(id)));
        return texts.join(QLatin1Char(','));
    }
    void setJump(int id, int target) const
    {
        select(id);
        evaluate(QStringLiteral("settingScreen.jump = %1").arg(target));
    }
    QVariant problems(const char *property) const
    {
        return screen()->property("problems").value<QObject *>()->property(property);
    }
};

void tst_Problems::editsAreFollowed()
{
    press(Qt::Key_F8);
    QTRY_VERIFY(window());
    QCOMPARE(summary(), QStringLiteral("No problems."));
    QVERIFY(activate());
    QVERIFY(open(2));
    QCOMPARE(signs({ 1, 2, 3, 4, 5 }), QStringLiteral(",,,,"));

    // Prohibiting a target leaves the jump in the air.
    setJump(3, 4);
    QQuickItem *toggle = row(4)->findChild<QQuickItem *>(QStringLiteral("prohibition"));
    click(toggle->childItems().first());
    const QString sentence =
        QStringLiteral("The jump leads to the prohibited step #4, which is passed over: permit it, or choose another.");
    QTRY_COMPARE(lines().value(0), QStringLiteral("warning|#3 name3|") + sentence);
    QCOMPARE(signs({ 1, 2, 3, 4, 5 }), QStringLiteral(",,warning,,"));
    // The folder has the sign of what is in it while that is hidden.
    evaluate(QStringLiteral("settingScreen.treeListView.selection.clear()"));
    selectInTree(2);
    press(Qt::Key_Minus);
    QTRY_VERIFY(!row(3));
    QCOMPARE(signs({ 1, 2, 5 }), QStringLiteral(",warning inside,"));
    press(Qt::Key_Plus);
    QTRY_VERIFY(row(3));
    QCOMPARE(signs({ 2, 3 }), QStringLiteral(",warning"));

    // Its words come while the mouse is on it.
    auto *sign = row(3)->findChild<QQuickItem *>(QStringLiteral("sign"));
    QTest::mouseMove(mWindow, sign->mapToScene(QPointF(8, 8)).toPoint());
    QTRY_VERIFY(find(mWindow->contentItem(), sentence));
    click(sign);
    QTRY_COMPARE(currentId(), 3);
    QTest::mouseMove(mWindow, sign->mapToScene(QPointF(300, 8)).toPoint());
    QTRY_VERIFY(!find(mWindow->contentItem(), sentence));

    undo();
    QTRY_COMPARE(summary(), QStringLiteral("No problems."));
    QCOMPARE(lines(), QStringList());
    QCOMPARE(signs({ 2, 3 }), QStringLiteral(","));
    redo();
    QTRY_COMPARE(lines().value(0), QStringLiteral("warning|#3 name3|") + sentence);

    // What an edit has cut off, until it is saved so.
    undo();
    setJump(1, 5);
    QTRY_VERIFY(lines().value(0).startsWith(
        QStringLiteral("warning|#3 name3|Since the last save no way reaches the 2 steps from here to #4 any more")));
    press(QKeySequence::Save);
    QTRY_VERIFY(lines().value(0).startsWith(QStringLiteral("warning|#3 name3|No way reaches the 2 steps")));
    managerInstance->unload();
    QTRY_COMPARE(summary(), QStringLiteral("No tutorial is open."));
    QTRY_COMPARE(lines(), QStringList());
}

void tst_Problems::windowLeadsToTheStep()
{
    setJump(1, 9);
    setJump(4, 9);
    select(5);
    press(Qt::Key_F8);
    QTRY_VERIFY(window() && window()->isActive());
    QTRY_VERIFY(list()->property("count").toInt() >= 2);
    const auto pressThere = [this](int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(window(), Qt::Key(key), modifiers);
    };
    const int last = list()->property("count").toInt() - 1;
    pressThere(Qt::Key_End);
    QCOMPARE(list()->property("currentIndex").toInt(), last);
    pressThere(Qt::Key_Up);
    QCOMPARE(list()->property("currentIndex").toInt(), last - 1);
    pressThere(Qt::Key_Home);
    pressThere(Qt::Key_C, Qt::ControlModifier);
    QVERIFY(QApplication::clipboard()->text().startsWith(
        QStringLiteral("#1 name1: The jump leads to #9, which is not there")));
    pressThere(Qt::Key_Return);
    QTRY_VERIFY(mWindow->isActive());
    QTRY_COMPARE(currentId(), 1);
    // A step of a closed folder.
    int number = 0;
    while (number < last && !lines().at(number).contains(QStringLiteral("#4 ")))
        ++number;
    const QPoint place = line(number)->mapToScene(QPointF(90, 8)).toPoint();
    QTest::mouseDClick(window(), Qt::LeftButton, Qt::NoModifier, place);
    QTRY_COMPARE(currentId(), 4);
    QTRY_VERIFY(row(4));
    QTRY_VERIFY(mWindow->isActive());
    // The keys go on in the tree.
    settle();
    press(Qt::Key_Up);
    QTRY_COMPARE(currentId(), 3);
    press(Qt::Key_F8);
    QTRY_VERIFY(window()->isActive());
    pressThere(Qt::Key_F9);
    QTRY_VERIFY(visibleWindow("TranslationWindow") && visibleWindow("TranslationWindow")->isActive());
    QTest::keyClick(visibleWindow("TranslationWindow"), Qt::Key_F8);
    QTRY_VERIFY(window()->isActive());
    visibleWindow("TranslationWindow")->close();
    pressThere(Qt::Key_Escape);
    QTRY_VERIFY(!window());
}

/// However high the rows are, each has been in view as a whole when the last one is reached.
void tst_Problems::pagesPassOverNoRow()
{
    load(longShape(40));
    QByteArray script = readAll(kTutorial);
    for (int id = 21; id < 31; ++id)
        script.replace("\"id\":" + QByteArray::number(id), "\"jump\":40,\"id\":" + QByteArray::number(id));
    writeAll(kTutorial, script.replace("\"id\":40", "\"prohibited\":true,\"id\":40"));
    evaluate(QStringLiteral("reloadTutorial()"));
    press(Qt::Key_F8);
    QTRY_VERIFY(window() && window()->isActive());
    constexpr int count = 50;
    QTRY_COMPARE(list()->property("count").toInt(), count);
    // The jumps' sentences take two lines, all others one.
    QTRY_VERIFY(line(0));
    const QQuickItem *sentence = line(0)->childItems().at(2);
    window()->resize(int(sentence->x() + sentence->implicitWidth()) + 60, 300);
    QTRY_VERIFY(list()->width() > window()->width() - 40 && list()->height() < 300 && line(0)->height() < 40);
    for (const int key : { Qt::Key_PageDown, Qt::Key_PageUp }) {
        QSet<int> seen;
        int presses = 0;
        const int end = key == Qt::Key_PageDown ? count - 1 : 0;
        do {
            QTest::keyClick(window(), Qt::Key(key));
            QMetaObject::invokeMethod(list(), "forceLayout");
            const qreal top = list()->property("contentY").toReal();
            for (int number = 0; number < count; ++number) {
                const QQuickItem *row = line(number);
                if (row && row->y() >= top - 1 && row->y() + row->height() <= top + list()->height() + 1)
                    seen.insert(number);
            }
            QVERIFY(seen.contains(list()->property("currentIndex").toInt()));
        } while (list()->property("currentIndex").toInt() != end && ++presses < count);
        QCOMPARE(seen.size(), count);
        QVERIFY(presses < count / 3);
    }
}

void tst_Problems::typingIsNotDisturbed()
{
    setJump(1, 9);
    select(3);
    QTRY_VERIFY(problems("count").toInt() > 0);
    click(item("hint.edit"));
    press(QKeySequence::SelectAll);
    QString typed;
    for (int i = 0; i < 26; ++i) {
        const int revision = problems("revision").toInt();
        typed += QLatin1Char(char('a' + i));
        type(typed.right(1));
        // A check comes after every third letter.
        if (i % 3 == 0)
            QTRY_VERIFY(problems("revision").toInt() > revision);
    }
    QCOMPARE(shown("hint.edit"), typed);
    QVERIFY(item("hint.edit")->hasActiveFocus());
    QCOMPARE(record(3)->mHint, typed);
}

void tst_Problems::wordsAreThoseOfTheFiles()
{
    // Left out by the reader, the same in both languages, too high for its window, and what jumps and names can be.
    QByteArray script = readAll(kTutorial);
    script.replace("\"id\":1,\"name\":\"name1\",\"x\":10", "\"id\":1,\"name\":\"name3\",\"jump\":9,\"y\":3,\"z\":10");
    script.replace("\"id\":4,", "\"id\":4,\"jumpNo\":2,");
    script.replace("\"icon\":\"eye\",\"showArrow\":true}];", "\"icon\":\"ear\",\"showArrow\":true}];");
    writeAll(kTutorial, script);
    QByteArray english = readAll(kEnglish);
    english.replace("en_US3", "ja_JP3").replace("en_US5", QByteArray("line\n").repeated(200));
    writeAll(kEnglish, english);
    evaluate(QStringLiteral("reloadTutorial()"));
    TutorialFiles files;
    QCOMPARE(files.read(kTutorial, QFileInfo(kEnglish).path()), QString());
    files.measureHints();
    QStringList meant;
    QSet<QString> rules;
    for (const Problem &problem : files.problems()) {
        meant.append(QString::number(problem.itemId) + problem.text);
        rules.insert(problem.rule);
    }
    QVERIFY2(rules.size() >= 6, qPrintable(meant.join(QLatin1Char('\n'))));
    const auto *model = screen()->property("problems").value<ProblemListModel *>();
    const auto shown = [model] {
        QStringList texts;
        for (const Problem &problem : model->problems())
            texts.append(QString::number(problem.itemId) + problem.text);
        return texts;
    };
    QTRY_COMPARE(shown(), meant);
}

AUTHORING_TEST_MAIN(tst_Problems)
#include "tst_Problems.moc"
