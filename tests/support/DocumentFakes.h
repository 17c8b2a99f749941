#pragma once

#include "model/DocumentContext.h"
#include "Tutorial/translation/TranslatableText.h"

#include <QHash>

#include <utility>

/// Stands in for the program round the document: translates from a table.
class FakeContext : public DocumentContext
{
public:
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
