#pragma once

class GuidanceContext;
class QEvent;
class QWidget;

/// What the guidance windows do when one of them becomes the active window, or no longer is.
namespace WindowActivation
{
enum Loss { AcceptLoss, TakeBack };

/// To be called with each change event of the window.
void follow(QWidget *window, const QEvent &event, GuidanceContext *context, Loss loss);
} // namespace WindowActivation
