#pragma once

class QWindow;

/// Gives the window that input context and returns the one that it had. With null the window takes
/// no text through an input method until it gets back what was returned.
///
/// The handle is the platform's; it is neither owned nor looked into by the caller.
void *associateInputContext(QWindow *window, void *context);
