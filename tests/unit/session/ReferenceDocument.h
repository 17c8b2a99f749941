#pragma once

#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QVariantMap>

#include <algorithm>

/// The plainest document that does what an edit is told to do: values that are copied, lists that
/// are searched, one node at a time. It shares no code with the program.
struct ReferenceRecord
{
    explicit ReferenceRecord(int recordId = -1) : id(recordId)
    {
        values = { { QStringLiteral("x"), -9999 },
                   { QStringLiteral("y"), -9999 },
                   { QStringLiteral("windowKey"), QString() },
                   { QStringLiteral("condition"), QString() },
                   { QStringLiteral("hint"), QString() },
                   { QStringLiteral("hint2"), QString() },
                   { QStringLiteral("icon"), QStringLiteral("click") },
                   { QStringLiteral("jump"), -1 },
                   { QStringLiteral("jumpNo"), -1 },
                   { QStringLiteral("command"), QString() },
                   { QStringLiteral("showArrow"), true },
                   { QStringLiteral("prohibited"), false } };
    }

    bool operator==(const ReferenceRecord &other) const
    {
        return id == other.id && name == other.name && values == other.values;
    }

    int id;
    QString name;
    QVariantMap values;
};

struct ReferenceNode
{
    bool operator==(const ReferenceNode &other) const
    {
        return id == other.id && folder == other.folder && children == other.children;
    }

    ReferenceNode *find(int wanted)
    {
        if (id == wanted)
            return this;
        for (ReferenceNode &child : children) {
            if (ReferenceNode *hit = child.find(wanted))
                return hit;
        }
        return nullptr;
    }

    ReferenceNode *parentOf(int wanted, int &index)
    {
        for (int i = 0; i < children.size(); ++i) {
            if (children.at(i).id == wanted) {
                index = i;
                return this;
            }
        }
        for (ReferenceNode &child : children) {
            if (ReferenceNode *hit = child.parentOf(wanted, index))
                return hit;
        }
        return nullptr;
    }

    /// The ids below this node, depth first, parents before children.
    QList<int> idsBelow() const
    {
        QList<int> ids;
        for (const ReferenceNode &child : children) {
            ids.append(child.id);
            ids += child.idsBelow();
        }
        return ids;
    }

    QString text() const
    {
        QStringList texts;
        for (const ReferenceNode &child : children)
            texts.append(child.text());
        const QString ids = QString::number(id);
        return folder || !children.isEmpty() ? ids + QLatin1Char('[') + texts.join(QLatin1Char(' ')) + QLatin1Char(']')
                                             : ids;
    }

    int id = -1;
    bool folder = false;
    QList<ReferenceNode> children;
};

class ReferenceDocument
{
public:
    ReferenceDocument() { root.folder = true; }

    bool operator==(const ReferenceDocument &other) const { return records == other.records && root == other.root; }

    ReferenceRecord *record(int id)
    {
        const auto hit = std::find_if(records.begin(), records.end(), [id](const auto &r) { return r.id == id; });
        return hit == records.end() ? nullptr : &*hit;
    }

    int freeId()
    {
        int id = 1;
        while (record(id))
            ++id;
        return id;
    }

    bool hasName(const QString &name) const
    {
        return std::any_of(records.begin(), records.end(), [&name](const auto &r) { return r.name == name; });
    }

    /// The base and the number behind the highest in use, zero-padded to that many places.
    QString numberedName(const QString &base, int digits) const
    {
        int highest = 0;
        for (const ReferenceRecord &r : records) {
            const QString rest = r.name.startsWith(base) ? r.name.mid(base.size()) : QString();
            const bool number = std::all_of(rest.begin(), rest.end(), [](QChar c) { return c.isDigit(); });
            if (!rest.isEmpty() && number)
                highest = std::max(highest, rest.toInt());
        }
        return base + QString::number(highest + 1).rightJustified(digits, QLatin1Char('0'));
    }

    /// The base and the number behind the highest in use, in brackets.
    QString bracketedName(const QString &base) const
    {
        int highest = 0;
        for (const ReferenceRecord &r : records) {
            const int number = r.name.mid(base.size() + 1, r.name.size() - base.size() - 2).toInt();
            if (number > 0 && r.name == QStringLiteral("%1(%2)").arg(base).arg(number))
                highest = std::max(highest, number);
        }
        return QStringLiteral("%1(%2)").arg(base).arg(highest + 1);
    }

    QString validName(const QString &candidate) const
    {
        if (!hasName(candidate))
            return candidate;
        int end = candidate.size();
        if (candidate.endsWith(QLatin1Char(')'))) {
            int start = end - 1;
            while (start > 0 && candidate.at(start - 1).isDigit())
                --start;
            if (start < end - 1 && start > 0 && candidate.at(start - 1) == QLatin1Char('('))
                return bracketedName(candidate.left(start - 1));
        }
        while (end > 0 && candidate.at(end - 1).isDigit())
            --end;
        return numberedName(candidate.left(end), candidate.size() - end);
    }

    void add(int targetId, const ReferenceRecord &record, bool folder)
    {
        ReferenceNode node;
        node.id = record.id;
        node.folder = folder;
        records.append(record);
        ReferenceNode *target = root.find(targetId);
        if (target->folder) {
            target->children.append(node);
            return;
        }
        int index = -1;
        ReferenceNode *parent = root.parentOf(targetId, index);
        parent->children.insert(index + 1, node);
    }

    /// The ids with all that stands below them.
    QSet<int> withContents(const QList<int> &idList)
    {
        QSet<int> all;
        for (const int id : idList) {
            all.insert(id);
            for (const int below : root.find(id)->idsBelow())
                all.insert(below);
        }
        return all;
    }

    /// Those of the ids that stand below no other of them, in tree order.
    QList<int> topsOf(const QList<int> &idList)
    {
        QSet<int> inside;
        for (const int id : idList) {
            for (const int below : root.find(id)->idsBelow())
                inside.insert(below);
        }
        QList<int> tops;
        for (const int id : root.idsBelow()) {
            if (idList.contains(id) && !inside.contains(id))
                tops.append(id);
        }
        return tops;
    }

    void remove(const QSet<int> &ids)
    {
        for (const int id : ids) {
            int index = -1;
            if (ReferenceNode *parent = root.parentOf(id, index))
                parent->children.removeAt(index);
        }
        records.erase(
            std::remove_if(records.begin(), records.end(), [&ids](const auto &r) { return ids.contains(r.id); }),
            records.end());
    }

    /// One after the other, up to the first that has no place to go. False if that is the first.
    bool move(const QList<int> &idList, bool before, int targetId)
    {
        bool moved = false;
        for (const int id : idList) {
            const ReferenceNode asItWas = root;
            int index = -1;
            ReferenceNode *parent = root.parentOf(id, index);
            const ReferenceNode node = parent->children.takeAt(index);
            ReferenceNode *target = before ? root.parentOf(targetId, index) : root.find(targetId);
            if (!target) {
                root = asItWas;
                return moved;
            }
            target->children.insert(before ? index : target->children.size(), node);
            moved = true;
        }
        return moved;
    }

    /// What a folder shows: it holds at least one item, and all that it holds are prohibited.
    bool shownProhibited(const ReferenceNode &node)
    {
        if (!node.folder)
            return node.id >= 0 && record(node.id)->values.value(QStringLiteral("prohibited")).toBool();
        bool any = false;
        for (const int id : node.idsBelow()) {
            if (root.find(id)->folder)
                continue;
            any = true;
            if (!record(id)->values.value(QStringLiteral("prohibited")).toBool())
                return false;
        }
        return any;
    }

    QString text() const
    {
        QString text = root.text();
        for (const ReferenceRecord &r : records) {
            text += QStringLiteral("\n    %1 \"%2\"").arg(r.id).arg(r.name);
            const ReferenceRecord fresh;
            for (auto value = r.values.cbegin(); value != r.values.cend(); ++value) {
                if (value.value() != fresh.values.value(value.key()))
                    text += QStringLiteral(" %1=%2").arg(value.key(), value.value().toString());
            }
        }
        return text;
    }

    QList<ReferenceRecord> records;
    ReferenceNode root;
};
