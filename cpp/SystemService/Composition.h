#pragma once

#include <QObject>
#include <QPointer>

/// Brings the letters that an input method is still composing into the text field that shows them.
///
/// Qt asks for them by QInputMethod::commit() before the focus goes. Not every input method answers that: some hand
/// them over only after the field has lost the focus and its edit has ended, or never. So what is shown is taken as the
/// text, and what comes later is not taken again.
class Composition : public QObject
{
    Q_OBJECT

public:
    explicit Composition(QObject *parent = nullptr);

    /// What is being composed is text from now on. The focus stays.
    void finish();

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void take(QObject *field);

    QPointer<QObject> mLeftField; // the one that had letters taken as it lost the focus
    bool mResetting = false;
};
