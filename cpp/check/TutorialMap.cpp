#include "check/TutorialMap.h"

#include "check/DotText.h"
#include "check/StepGraph.h"
#include "check/TutorialCheck.h"
#include "check/Walk.h"

#include <QHash>
#include <QSet>

namespace
{
using DotText::attribute;
using Item = TreeItem<TutorialItemData>;

// What fits into a box. All boxes are alike, whatever fonts a machine has.
constexpr int kColumnsInBox = 29;
constexpr int kColumnsInFolder = 34;
constexpr int kColumnsInTitle = 48;

const QString kStart = QStringLiteral("start");
const QString kEnd = QStringLiteral("end");

// A name with a digit at its begin would need quotes of its own in the picture's file.
const QLatin1String kFont(" fontname=\"Noto Sans JP,Hiragino Sans,Yu Gothic UI,Meiryo,sans-serif\"");

const QLatin1String kGraphLook(" rankdir=TB ranksep=0.12 nodesep=0.4 bgcolor=\"#ffffff\" pad=0.15 labelloc=t"
                               " fontsize=11 fontcolor=\"#1d2733\"");
const QLatin1String kNodeLook(" shape=box style=\"filled,rounded\" fillcolor=\"#ffffff\" color=\"#5a6b7d\""
                              " fontcolor=\"#1d2733\" fontsize=10 height=0.23 width=2.2 fixedsize=true");
const QLatin1String kEdgeLook(" color=\"#5a6b7d\" fontcolor=\"#1d2733\" fontsize=9 arrowsize=0.65 penwidth=1.2");
const QLatin1String kFolderLook(" style=\"rounded,filled\" color=\"#b9c6d3\" fillcolor=\"#eef3f8\""
                                " fontcolor=\"#44566a\" labeljust=l margin=10 fontsize=10");
const QLatin1String kQuestionLook(" shape=hexagon style=filled fillcolor=\"#fff4cf\" color=\"#b38a1a\""
                                  " height=0.28 width=2.4");
const QLatin1String kTerminalLook(" shape=oval style=filled fillcolor=\"#2f5f4f\" color=\"#2f5f4f\""
                                  " fontcolor=\"#ffffff\" width=0.8");
const QLatin1String kUnreachedLook(" color=\"#8a8f95\" fontcolor=\"#6b7075\" fillcolor=\"#f4f4f4\"");
const QLatin1String kJumpLook(" color=\"#1f6fb2\" fontcolor=\"#1f6fb2\" penwidth=1.8 constraint=false tailport=e"
                              " headport=e labeldistance=2.1 labelangle=29");
const QLatin1String kUnreachedArrow(" color=\"#8a8f95\" fontcolor=\"#6b7075\" style=dashed");
const QLatin1String kBelow(" weight=100");

const QChar kProhibitedSign(0x2298);

QChar signOf(Problem::Severity severity)
{
    switch (severity) {
    case Problem::Severity::Error:
        return QChar(0x2716);
    case Problem::Severity::Warning:
        return QChar(0x26a0);
    case Problem::Severity::Remark:
        break;
    }
    return QChar(0x2139);
}

QLatin1String lookOf(Problem::Severity severity)
{
    switch (severity) {
    case Problem::Severity::Error:
        return QLatin1String(" color=\"#b3261e\" fillcolor=\"#fbdcd9\" penwidth=2");
    case Problem::Severity::Warning:
        return QLatin1String(" color=\"#a85b00\" fillcolor=\"#ffe3bd\" penwidth=2");
    case Problem::Severity::Remark:
        break;
    }
    return QLatin1String(" color=\"#2b5fa8\" fillcolor=\"#dbe8fb\" penwidth=2");
}

/// What is known of the problems of an item.
struct Mark
{
    Problem::Severity worst = Problem::Severity::Remark;
    QStringList texts;
};

class MapWriter
{
public:
    MapWriter(const TreeDataTemplate<TutorialItemData> &document, const StepGraph &graph, const Walk &walk,
              const QVector<Problem> &problems)
        : mDocument(document)
        , mGraph(graph)
        , mWalk(walk)
    {
        for (const Problem &problem : problems) {
            Mark &mark = mMarks[problem.itemId];
            mark.worst = qMin(mark.worst, problem.severity);
            mark.texts += problem.text;
        }
        for (const StepGraph::Step &step : graph.steps())
            mNodes.append(freeName(step.id));
    }

    QString write(const QString &headline)
    {
        mText = QStringLiteral("digraph tutorial {\n");
        add(QStringLiteral("graph"), kGraphLook + kFont + attribute("label", headline));
        add(QStringLiteral("node"), kNodeLook + kFont);
        add(QStringLiteral("edge"), kEdgeLook + kFont);
        addNode(kStart, kTerminalLook + attribute("label", TutorialCheck::tr("Start")));
        writeChildren(mDocument.mRoot);
        addNode(kEnd, kTerminalLook + attribute("label", TutorialCheck::tr("End")));
        writeArrows();
        return mText + QStringLiteral("}\n");
    }

private:
    // Of several items with one id only the first one has the plain name.
    QString freeName(int id)
    {
        const int count = ++mCountById[id];
        const QString name = QLatin1Char('#') + QString::number(id);
        return count == 1 ? name : name + QLatin1Char('/') + QString::number(count);
    }

    void add(const QString &what, const QString &attributes)
    {
        mText += what + QStringLiteral(" [") + attributes + QStringLiteral(" ]\n");
    }

    void addNode(const QString &name, const QString &attributes)
    {
        add(DotText::quoted(name), attributes);
        mColumn.append(name);
    }

    void addArrow(const QString &from, const QString &to, const QString &attributes)
    {
        add(DotText::quoted(from) + QStringLiteral(" -> ") + DotText::quoted(to), attributes);
    }

    void writeChildren(const Item &folder)
    {
        for (const Item &child : folder.mChildren) {
            const TutorialItemData *record = mDocument.getData(child.mId);
            if (record && child.mFolder)
                writeFolder(child, *record);
            else if (record)
                writeStep(*record);
        }
    }

    void writeFolder(const Item &folder, const TutorialItemData &record)
    {
        const int place = mColumn.size();
        int step = mNext;
        mText += QStringLiteral("subgraph cluster%1 {\n").arg(++mFolderCount);
        writeChildren(folder);
        // A folder without a box in it would not be drawn.
        if (mColumn.size() == place) {
            addNode(QStringLiteral("empty%1").arg(mFolderCount),
                    QLatin1String(" shape=plaintext style=\"\" fontcolor=\"#6b7075\"")
                        + attribute("label", TutorialCheck::tr("(no step)")));
        }
        while (step < mNext && !mWalk.isReached(step))
            ++step;
        QString look = kFolderLook;
        if (step == mNext)
            look += kUnreachedLook + QLatin1String(" style=\"rounded,filled,dashed\"");
        add(QStringLiteral("graph"), look + textOf(record, QString(), kColumnsInFolder));
        mText += QStringLiteral("}\n");
    }

    void writeStep(const TutorialItemData &record)
    {
        const int index = mNext++;
        QString look;
        if (mGraph.steps().at(index).asks)
            look += kQuestionLook;
        QString sign;
        if (!mGraph.isShown(index)) {
            look += kUnreachedLook + QLatin1String(" style=\"rounded,filled,dotted\"");
            sign = kProhibitedSign;
        } else if (!mWalk.isReached(index)) {
            look += kUnreachedLook + QLatin1String(" style=\"rounded,filled,dashed\"");
        }
        addNode(mNodes.at(index), look + textOf(record, sign, kColumnsInBox));
    }

    // What an item's box says, and what marks its problems.
    QString textOf(const TutorialItemData &record, QString sign, int columns) const
    {
        QString attributes;
        const auto mark = mMarks.constFind(record.mId);
        if (mark != mMarks.constEnd()) {
            sign = signOf(mark->worst) + sign;
            attributes += lookOf(mark->worst) + attribute("tooltip", mark->texts.join(QLatin1Char('\n')));
        }
        if (!sign.isEmpty())
            sign += QLatin1Char(' ');
        const QString text =
            sign + QLatin1Char('#') + QString::number(record.mId) + QStringLiteral("  ") + record.mName;
        return attributes + attribute("label", DotText::cut(text, columns));
    }

    // Steps stand one below the other. Where no arrow joins two of them, one that is not drawn does; jumps go beside.
    void writeArrows()
    {
        for (int i = 1; i < mColumn.size(); ++i)
            mBelow.insert(mColumn.at(i - 1), mColumn.at(i));
        writeArrow(kStart, mGraph.first(), QString(), QString());
        const QString yes = TutorialCheck::tr("Yes");
        const QString no = TutorialCheck::tr("No");
        for (int i = mGraph.first(); i != StepGraph::kEnd; i = mGraph.shownAfter(i)) {
            const StepGraph::Step &step = mGraph.steps().at(i);
            const QString look = mWalk.isReached(i) ? QString() : kUnreachedArrow;
            const auto exits = step.exits();
            if (exits.size() == 1) {
                writeArrow(mNodes.at(i), exits.first(), step.asks ? yes + QStringLiteral(" / ") + no : QString(), look);
                continue;
            }
            writeArrow(mNodes.at(i), exits.first(), yes, look);
            writeArrow(mNodes.at(i), exits.last(), no, look);
        }
        for (int i = 1; i < mColumn.size(); ++i) {
            if (mBelow.contains(mColumn.at(i - 1)))
                addArrow(mColumn.at(i - 1), mColumn.at(i), kBelow + QLatin1String(" style=invis"));
        }
    }

    void writeArrow(const QString &from, int to, const QString &label, const QString &look)
    {
        const QString target = to == StepGraph::kEnd ? kEnd : mNodes.at(to);
        if (mBelow.value(from) == target) {
            mBelow.remove(from);
            addArrow(from, target,
                     kBelow + (label.isEmpty() ? label : attribute("label", QStringLiteral("  ") + label)) + look);
        } else {
            addArrow(from, target, kJumpLook + attribute("taillabel", label) + look);
        }
    }

    const TreeDataTemplate<TutorialItemData> &mDocument;
    const StepGraph &mGraph;
    const Walk &mWalk;
    QHash<int, Mark> mMarks;
    QHash<int, int> mCountById;
    QStringList mNodes; // of the steps
    QStringList mColumn; // all nodes from top to bottom
    QHash<QString, QString> mBelow; // what is next in the column, where no arrow leads there yet
    QString mText;
    int mNext = 0; // the index of the next step in the tree
    int mFolderCount = 0;
};
} // namespace

QString TutorialMap::dot(const TreeDataTemplate<TutorialItemData> &document, const StepGraph &graph, const Walk &walk,
                         const QVector<Problem> &problems, const QString &title)
{
    QString headline = DotText::cut(title, kColumnsInTitle) + QLatin1Char('\n')
        + TutorialCheck::tr("steps: %1, ways: %2, ends: %3")
              .arg(graph.steps().size())
              .arg(walk.wayCount().text())
              .arg(walk.ends().size());
    if (!problems.isEmpty())
        headline += QLatin1Char('\n') + TutorialCheck::tr("problems: %1").arg(problems.size());
    return MapWriter(document, graph, walk, problems).write(headline);
}
