#pragma once

#include <QObject>

class QWindow;

/// Keeps the keyboard from a window while a modal window blocks it. Qt itself keeps the keys from
/// it, but not the shortcuts and mnemonics of its menus, and the window may be given the focus.
class ModalGuard : public QObject
{
    Q_OBJECT

public:
    /// Guards all windows of the application for as long as it lives.
    explicit ModalGuard(QObject *parent = nullptr);

    /// Whether a modal window keeps the user from that one.
    static bool isBlocked(const QWindow *window);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void passFocusOn(QWindow *focused) const;
};
