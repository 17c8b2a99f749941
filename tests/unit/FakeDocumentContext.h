#pragma once

#include "model/DocumentContext.h"

#include <QStringList>

/// The program round the document, as far as a test needs it.
class FakeDocumentContext : public DocumentContext
{
public:
    QString translate(const QString &key) const override { return key; }
    QString applyTranslationToText(const QString &text, QStringList &) const override { return text; }
    void setPendingJumpLink(const QString &linkInfo) override { mPendingJumpLink = linkInfo; }
    void setModified(bool modified) override { mModified = modified; }

    /// The pending link, which is empty from then on.
    QString takeLink()
    {
        QString link;
        link.swap(mPendingJumpLink);
        return link;
    }

    QString mPendingJumpLink;
    bool mModified = false;
};
