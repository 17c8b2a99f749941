#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include <memory>

class QTextDocument;
class QTextEdit;
class QWidget;

/// The heights of hints as the guidance lays them out, in pixels. Each text is measured once: a layout takes too long
/// to be made of each hint after each edit. Needs an application with widgets.
class HintSizes
{
public:
    HintSizes();
    ~HintSizes();

    /// -1 for a hint that was not measured yet.
    int height(const QString &hint) const { return mHeights.value(hint, -1); }

    /// Measures those of the hints that were not measured yet, for about that long; false if some are left.
    bool measure(const QStringList &hints, int milliseconds);
    /// The same for as long as it takes.
    void measure(const QStringList &hints);

private:
    Q_DISABLE_COPY(HintSizes)

    void forgetAllBut(const QStringList &hints);
    int layOut(const QString &hint);

    QHash<QString, int> mHeights;
    std::unique_ptr<QTextDocument> mDocument;
    std::unique_ptr<QWidget> mWindow; // never seen; as the hint's in the guidance
    QTextEdit *mTextEdit = nullptr;
};
