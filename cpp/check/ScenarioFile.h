#pragma once

#include "check/Problem.h"
#include "check/ScenarioLines.h"
#include "model/TreeItem.h"
#include "model/TutorialItemData.h"
#include "Tutorial/translation/TranslatableText.h"

#include <QString>
#include <QVector>

/// A scenario file, read for the check as the program reads it, and what the reader refuses or leaves out.
class ScenarioFile
{
public:
    ScenarioFile() = default;
    ~ScenarioFile();

    /// Reads the file. False, with a warning in the log, where it can't be opened.
    bool read(const QString &filename, const TranslatableText::Translate &translate);
    /// The same with what such a file holds.
    void readBytes(const QString &filename, const QByteArray &bytes, const TranslatableText::Translate &translate);

    /// What the file holds and the document doesn't, in the order of the file, with lines.
    const QVector<Problem> &problems() const { return mProblems; }
    /// Empty where the file can't be read.
    const TreeDataTemplate<TutorialItemData> &document() const { return mDocument; }
    TreeDataTemplate<TutorialItemData> &document() { return mDocument; }
    const ScenarioLines &lines() const { return mLines; }

private:
    Q_DISABLE_COPY(ScenarioFile)

    void addProblem(const char *rule, const QString &text, int line);
    /// The position is one in the script.
    void addTranslationCall(const QString &message, int position);
    void addItemProblem(const char *rule, const QString &text, const ScenarioLines::Item &item, int position,
                        const QString &key);
    void addLostKeys();
    void addIds();
    void addHintKeys(const QString &script);
    /// Where the first of them stands in the script, or its end.
    int addSwallowedTexts(const QString &script);
    void addSyntaxError(const QString &array, int swallowed);

    QString mFilename;
    QVector<Problem> mProblems;
    TreeDataTemplate<TutorialItemData> mDocument; // owns its records
    ScenarioLines mLines;
};
