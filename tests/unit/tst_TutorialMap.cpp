#include "check/MapPicture.h"
#include "check/StepGraph.h"
#include "check/TutorialMap.h"
#include "check/Walk.h"
#include "support/FileBytes.h"
#include "support/SketchedTutorial.h"
#include "TutorialEditor/ScenarioReader.h"

#include <QtTest>

/// The map of a tutorial, as Graphviz draws it.
class tst_TutorialMap : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesStayAsTheyAre();
    void showsWhereEachAnswerLeads();
    void readmeShowsTheTutorial();
};

namespace
{
/// What stands in a picture beside the places and colours: for each box and arrow its name, what it says, and whether
/// its line is broken.
QStringList drawn(const QByteArray &svg)
{
    QStringList all;
    QXmlStreamReader xml(svg);
    QStringList parts; // of the one that is read
    bool isDashed = false;
    const auto close = [&] {
        if (!parts.isEmpty())
            all += parts.join(QLatin1Char('|')) + (isDashed ? QStringLiteral("|dashed") : QString());
        parts.clear();
        isDashed = false;
    };
    while (!xml.atEnd()) {
        const bool isStart = xml.readNext() == QXmlStreamReader::StartElement;
        const QStringRef name = xml.name();
        if (name == QLatin1String("g") && (xml.isEndElement() || xml.attributes().hasAttribute(QLatin1String("class"))))
            close();
        else if (isStart && name == QLatin1String("title"))
            parts = QStringList(xml.readElementText().remove(QStringLiteral(":e")));
        else if (isStart && name == QLatin1String("text"))
            parts += xml.readElementText().simplified();
        else if (isStart && xml.attributes().hasAttribute(QLatin1String("stroke-dasharray")))
            isDashed = true;
    }
    if (xml.hasError())
        all += QStringLiteral("no XML: ") + xml.errorString();
    all.sort();
    return all;
}

QStringList drawn(const TreeDataTemplate<TutorialItemData> &document, const QVector<Problem> &problems = {})
{
    const StepGraph graph(document);
    const Walk walk(graph);
    QString error;
    const QByteArray svg = MapPicture::svg(
        TutorialMap::dot(document, graph, walk, problems, QStringLiteral("TutorialSideViewStep0")), error);
    return error.isEmpty() ? drawn(svg) : QStringList(error);
}
} // namespace

void tst_TutorialMap::namesStayAsTheyAre()
{
    const QVector<QPair<QString, QString>> names{
        { QStringLiteral("a\"]; x [y=\"z"), {} },
        { QStringLiteral("\\N\\G\\l\\\\\""), {} },
        { QStringLiteral("<b>&amp;</b> & &#35;"), {} },
        { QStringLiteral("--></svg>]]>"), {} },
        { QStringLiteral("日本語の名前が長いので切ります"), QStringLiteral("日本語の名前が長いので切…") },
        { QStringLiteral("12345678901234567890123\U0001F600\U0001F600"), QStringLiteral("12345678901234567890123…") },
        { QString(QLatin1String("a\x01\x1b\tb\x7f")) + QChar(0xd800) + QChar(0xffff) + QLatin1Char('c'),
          QStringLiteral("a b c") },
    };
    SketchedTutorial tutorial(QStringLiteral("1 2 3 4 5 6 7 8(9)"));
    for (int i = 0; i < names.size(); ++i)
        tutorial.record(i + 1).mName = names.at(i).first;
    const QStringList all = drawn(tutorial.document());
    for (int i = 0; i < names.size(); ++i) {
        QString line = QStringLiteral("#%1|#%1 ").arg(i + 1);
        line += names.at(i).second.isEmpty() ? names.at(i).first : names.at(i).second;
        QVERIFY2(all.contains(line), qPrintable(line + QLatin1Char('\n') + all.join(QLatin1Char('\n'))));
    }
    // Seven steps, the one in the folder and the folder, both ends, an arrow from each of them, and the whole.
    QCOMPARE(all.size(), 8 + 1 + 2 + 9 + 1);
}

void tst_TutorialMap::showsWhereEachAnswerLeads()
{
    const SketchedTutorial tutorial(QStringLiteral("1?/4 2!>1 3(4?) 5>4 6?/6 7() 5"));
    const auto problem = [](int id, Problem::Severity severity) {
        return Problem{ QStringLiteral("rule"), severity, id, QString(), QStringLiteral("words") };
    };
    const QStringList all = drawn(tutorial.document(),
                                  { problem(6, Problem::Severity::Remark), problem(4, Problem::Severity::Warning),
                                    problem(4, Problem::Severity::Error), problem(3, Problem::Severity::Warning) });
    const QStringList expected{
        QStringLiteral("#1->#4|Yes / No"),
        QStringLiteral("#1|#1 item1"),
        QStringLiteral("#2|⊘ #2 item2|dashed"),
        QStringLiteral("#4->#5|Yes / No"),
        QStringLiteral("#4|✖ #4 item4"),
        QStringLiteral("#5->#4"),
        QStringLiteral("#5/2->#4|dashed"),
        QStringLiteral("#5/2|#5 item5|dashed"),
        QStringLiteral("#5|#5 item5"),
        QStringLiteral("#6->#5/2|Yes|dashed"),
        QStringLiteral("#6->#6|No|dashed"),
        QStringLiteral("#6|ℹ #6 item6|dashed"),
        QStringLiteral("cluster1|⚠ #3 item3"),
        QStringLiteral("cluster2|#7 item7|dashed"),
        QStringLiteral("empty2|(no step)"),
        QStringLiteral("end|End"),
        QStringLiteral("start->#1"),
        QStringLiteral("start|Start"),
        QStringLiteral("tutorial|TutorialSideViewStep0|steps: 6, ways: 0, ends: 0|problems: 4"),
    };
    QCOMPARE(all.join(QLatin1Char('\n')), expected.join(QLatin1Char('\n')));
}

void tst_TutorialMap::readmeShowsTheTutorial()
{
    // The names and the jumps are all that the map shows, so that the words of the hints can be anything.
    QString text = QString::fromUtf8(readAll(QStringLiteral(":/qml/Tutorial/TutorialSideViewStep0.js")));
    text.replace(QStringLiteral("qsTr("), QString()).replace(QStringLiteral("\"),"), QStringLiteral("\","));
    TutorialEditor::Manager manager;
    QStringList leftOut;
    QVERIFY(ScenarioReader::read(ScenarioReader::arrayOf(text), manager.mData, leftOut));
    QCOMPARE(drawn(readAll(QFINDTESTDATA("../../docs/tutorial-map.svg"))).join(QLatin1Char('\n')),
             drawn(manager.mData).join(QLatin1Char('\n')));
}

QTEST_GUILESS_MAIN(tst_TutorialMap)
#include "tst_TutorialMap.moc"
