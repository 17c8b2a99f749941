#pragma once

#include "Tutorial/guidance/GuidanceContext.h"

#include <QCoreApplication>
#include <QStringList>
#include <QTimerEvent>

/// Stands in for the manager and notes what the windows ask of it.
class FakeGuidanceContext : public GuidanceContext
{
public:
    void sendMessage(const QString &text) override { mSent.append(text); }
    void dropPopupWindowKey() override { }
    void updateGuidanceVisibility() override { }
    QRect hostRect() const override { return mHostRect; }
    bool isGuidanceRunning() const override { return mRunning; }
    void editorTooltipClosed() override { ++mClosed; }

    QRect mHostRect = QRect(0, 0, 1000, 700);
    bool mRunning = true;
    QStringList mSent;
    int mClosed = 0;
};

/// Drives an object's timer by hand.
inline void tick(QObject &object, int count = 1)
{
    for (int i = 0; i < count; ++i) {
        QTimerEvent event(0);
        QCoreApplication::sendEvent(&object, &event);
    }
}
