#pragma once

#include "model/DocumentContext.h"
#include "model/EditHistory.h"
#include "Tutorial/translation/TranslatableText.h"

#include <QHash>
#include <QVector>

#include <utility>

/// Stands in for the program round the document: translates from a table.
class FakeContext : public DocumentContext
{
public:
    ~FakeContext() override = default;

    QString translate(const QString &key) const override { return mTranslations.value(key, key); }

    QString applyTranslationToText(const QString &text, QStringList &errors) const override
    {
        return TranslatableText::applyToScenario(
            text, QString(), [this](const QString &, const QString &source) { return translate(source); }, errors);
    }

    void setPendingJumpLink(const QString &linkInfo) override { mJumpLink = linkInfo; }
    void setModified(bool modified) override { mModified = modified; }

    /// What was pending; nothing is from then on.
    QString takeJumpLink() { return std::exchange(mJumpLink, QString()); }

    QHash<QString, QString> mTranslations;
    QString mJumpLink;
    bool mModified = false;
};

/// Stands in for the undo history: writes down what it is asked for, and does nothing.
class FakeHistory : public EditHistory
{
public:
    struct Change
    {
        int itemId;
        QString propertyName;
        QVariant value;
        QString linkInfo;
    };

    ~FakeHistory() override = default;

    bool inTransaction() override { return mInTransaction; }
    void recordChange(int itemId, const QString &propertyName, const QVariant &value, const QString &linkInfo) override
    {
        mChanges.append({ itemId, propertyName, value, linkInfo });
    }
    bool isEmpty() const override { return mEmpty; }
    void markClean() override { ++mCleanCount; }
    void clear() override
    {
        ++mClearCount;
        mEmpty = true;
    }

    bool mInTransaction = false;
    bool mEmpty = true;
    int mCleanCount = 0;
    int mClearCount = 0;
    QVector<Change> mChanges;
};
