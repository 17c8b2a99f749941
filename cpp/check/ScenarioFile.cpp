#include "check/ScenarioFile.h"

#include "check/SwallowedText.h"
#include "check/TutorialCheck.h"
#include "tool/DataSupport.h"
#include "TutorialEditor/ScenarioReader.h"

#include <QJsonDocument>

#include <algorithm>

namespace
{
using Loss = LoadLosses::Loss;

/// What the value of a key must be.
QString wantedValue(const QString &key)
{
    const auto &fields = TutorialItemField::all();
    const auto field = std::find_if(fields.begin(), fields.end(), [&key](const TutorialItemField &candidate) {
        return candidate.name == key || candidate.olderName == key;
    });
    // In the order of the member's alternatives; what is no field is the mark of a folder.
    switch (field == fields.end() ? 2 : field->member.index()) {
    case 0:
        return TutorialCheck::tr("The value of \"%1\" is left out: write a whole number.").arg(key);
    case 1:
        return TutorialCheck::tr("The value of \"%1\" is left out: write a text in quotes.").arg(key);
    default:
        return TutorialCheck::tr("The value of \"%1\" is left out: write true or false.").arg(key);
    }
}

Problem problemOf(const Loss &loss)
{
    Problem problem;
    problem.itemId = loss.id;
    problem.itemName = loss.name;
    problem.key = loss.key;
    switch (loss.kind) {
    case Loss::Kind::Characters:
        problem.rule = QStringLiteral("not-utf8");
        problem.text = TutorialCheck::tr("The file holds characters that are not UTF-8: write them anew, as UTF-8.");
        break;
    case Loss::Kind::Trailing:
        problem.rule = QStringLiteral("after-steps");
        problem.text =
            TutorialCheck::tr("What follows the list of steps is left out: take it into the list, or take it away.");
        break;
    case Loss::Kind::Element:
        problem.rule = QStringLiteral("item-unreadable");
        problem.text =
            TutorialCheck::tr("This can't be read as an item, so that all of the item at the top is left out: "
                              "write it as an item, or take it away.");
        break;
    case Loss::Kind::Children:
        problem.rule = QStringLiteral("children-of-step");
        problem.text = TutorialCheck::tr(
            "What stands in this item is left out, since it is no folder: write \"folder\":true, or take it away.");
        break;
    case Loss::Kind::Value:
        problem.rule = QStringLiteral("value-left-out");
        problem.text = wantedValue(loss.key);
        break;
    case Loss::Kind::Id: // seen in the document, too
        break;
    }
    return problem;
}

/// The digits of a hint that is a key, as a call or as a text; else empty.
QString hintKeyAt(const QString &script, int position)
{
    const auto skip = [&](const QLatin1String &part) {
        const bool found = script.midRef(position, part.size()) == part;
        position += found ? part.size() : 0;
        return found;
    };
    skip(QLatin1String("qsTr("));
    if (!skip(QLatin1String("\"#")))
        return QString();
    const int begin = position;
    while (position < script.size() && script.at(position).isDigit())
        ++position;
    const QString digits = script.mid(begin, position - begin);
    return skip(QLatin1String("\"")) ? digits : QString();
}

bool hasValidId(const ScenarioLines::Item &item)
{
    return item.id >= 0 && !item.isIdMissing;
}
} // namespace

ScenarioFile::~ScenarioFile()
{
    qDeleteAll(mDocument.mDataList);
}

bool ScenarioFile::read(const QString &filename, const TranslatableText::Translate &translate)
{
    QByteArray bytes;
    if (!DataSupport::readFile(filename, bytes))
        return false;
    readBytes(filename, bytes, translate);
    return true;
}

void ScenarioFile::readBytes(const QString &filename, const QByteArray &bytes,
                             const TranslatableText::Translate &translate)
{
    mFilename = filename;
    const QString script = ScenarioReader::decoded(bytes);
    TextMap map;
    QVector<TranslatableText::Failure> failures;
    QString array = ScenarioReader::arrayOf(script, &map);
    array = TranslatableText::applyToScenario(array, QString(), translate, failures, map);
    mLines = ScenarioLines(script, array, map);

    if (DataSupport::isDamaged(script, bytes)) {
        Problem problem = problemOf({ Loss::Kind::Characters });
        addProblem("not-utf8", problem.text, mLines.lineAt(script.indexOf(QChar::ReplacementCharacter)));
    }
    for (const TranslatableText::Failure &failure : qAsConst(failures))
        addTranslationCall(failure.message.trimmed(), failure.position);
    const int swallowed = addSwallowedTexts(script);
    QStringList leftOut;
    QVector<Loss> losses;
    if (!ScenarioReader::read(array, mDocument, leftOut, &losses)) {
        // A call that can't be read is none that JSON knows.
        if (failures.isEmpty())
            addSyntaxError(array, swallowed);
        return;
    }
    addLostKeys();
    addIds();
    addHintKeys(script);
    for (const Loss &loss : qAsConst(losses)) {
        Problem problem = problemOf(loss);
        if (problem.rule.isEmpty())
            continue;
        problem.file = mFilename;
        problem.line = mLines.lineOfPlace(loss.element, loss.item, loss.key);
        if (loss.kind == Loss::Kind::Trailing) {
            QJsonParseError error;
            QJsonDocument::fromJson(array.toUtf8(), &error);
            problem.line = mLines.lineInArray(QString::fromUtf8(array.toUtf8().left(error.offset)).size());
        }
        mProblems.append(problem);
    }
}

void ScenarioFile::addProblem(const char *rule, const QString &text, int line)
{
    mProblems.append({ QString::fromLatin1(rule), Problem::Severity::Error, -1, QString(), text, mFilename, line });
}

void ScenarioFile::addTranslationCall(const QString &message, int position)
{
    addProblem("translation-call",
               TutorialCheck::tr("A translation call can't be read (%1): write it as qsTr(\"#12\"), with the id of "
                                 "its step.")
                   .arg(message),
               mLines.lineAt(position));
}

void ScenarioFile::addItemProblem(const char *rule, const QString &text, const ScenarioLines::Item &item, int position,
                                  const QString &key)
{
    const TutorialItemData *record = mDocument.getData(item.id);
    mProblems.append({ QString::fromLatin1(rule), Problem::Severity::Error, item.id, record ? record->mName : QString(),
                       text, mFilename, mLines.lineInArray(position), key });
}

void ScenarioFile::addLostKeys()
{
    for (const ScenarioLines::LostKey &lost : mLines.lostKeys()) {
        const ScenarioLines::Item &item = mLines.items().at(lost.item);
        const auto add = [&](const char *rule, const QString &text) {
            addItemProblem(rule, text.arg(lost.key), item, lost.position, QString());
        };
        switch (lost.kind) {
        case ScenarioLines::LostKey::Kind::Unknown:
            add("key-unknown",
                TutorialCheck::tr("No entry is called \"%1\", so that it is left out: correct its name, or "
                                  "take it away."));
            break;
        case ScenarioLines::LostKey::Kind::Twice:
            add("key-twice", TutorialCheck::tr("\"%1\" stands twice, and the first one is left out: take one away."));
            break;
        case ScenarioLines::LostKey::Kind::OfStep:
            add("key-unknown",
                TutorialCheck::tr("A folder has no \"%1\", so that it is left out: write it at its steps, or take it "
                                  "away."));
            break;
        }
    }
}

void ScenarioFile::addIds()
{
    for (const ScenarioLines::Item &item : mLines.items()) {
        if (hasValidId(item))
            continue;
        addItemProblem("id-invalid",
                       TutorialCheck::tr("The id must be a whole number from 0 up: give the item one of its own."),
                       item, item.position, QStringLiteral("id"));
    }
}

void ScenarioFile::addHintKeys(const QString &script)
{
    for (const ScenarioLines::Item &item : mLines.items()) {
        if (item.hint < 0 || !hasValidId(item))
            continue;
        // As it stands in the file: a translation hides the key.
        const QString key = hintKeyAt(script, mLines.inScript(item.hint));
        if (key.isEmpty() || key == QString::number(item.id))
            continue;
        addItemProblem("hint-key",
                       TutorialCheck::tr("The hint is that of #%1: write qsTr(\"#%2\").").arg(key).arg(item.id), item,
                       item.hint, QStringLiteral("hint"));
    }
}

int ScenarioFile::addSwallowedTexts(const QString &script)
{
    const QVector<SwallowedText::Place> places = SwallowedText::find(script);
    for (const SwallowedText::Place &place : places) {
        if (place.isInLineComment) {
            addProblem("comment-open",
                       TutorialCheck::tr("This comment holds \"%1\", so that all from there to the next \"*/\" is left "
                                         "out: write it without.")
                           .arg(place.part),
                       mLines.lineAt(place.position));
            continue;
        }
        addProblem(
            "text-unreadable",
            TutorialCheck::tr("%1 holds \"%2\", with which the saved file could not be read again: write it without.")
                .arg(TutorialCheck::tr("A text"), place.part),
            mLines.lineAt(place.position));
    }
    return places.isEmpty() ? script.size() : places.first().position;
}

void ScenarioFile::addSyntaxError(const QString &array, int swallowed)
{
    const QByteArray json = array.toUtf8();
    QJsonParseError error;
    QJsonDocument::fromJson(json, &error);
    const auto isNoSpace = [](QChar character) { return !character.isSpace(); };
    const auto first = std::find_if(array.begin(), array.end(), isNoSpace);
    if (first == array.end() || *first != QLatin1Char('[')) {
        addProblem("no-list",
                   TutorialCheck::tr("The file holds no list of steps: write \"var scenario = [\" before them, "
                                     "and \"];\" after them."),
                   mLines.lineInArray(first == array.end() ? 0 : int(first - array.begin())));
        return;
    }
    const int position = QString::fromUtf8(json.constData(), qBound(0, error.offset, json.size())).size();
    const int place = qMin(position, qMax(0, array.size() - 1));
    // That may come of what was swallowed.
    if (mLines.inScript(place) > swallowed)
        return;
    const QString rest = array.mid(place, array.indexOf(QLatin1Char('\n'), place) - place);
    if (rest.startsWith(QLatin1String("qsTr"))) {
        addTranslationCall(rest.left(rest.indexOf(QLatin1Char(')')) + 1), mLines.inScript(place));
        return;
    }
    addProblem("syntax",
               TutorialCheck::tr("The file can't be read from here on (%1): mend what stands here, or just before.")
                   .arg(error.errorString()),
               mLines.lineInArray(place));
}
