#pragma once

#include <QDialog>

class QCheckBox;
class QColor;
class QComboBox;
class QPushButton;

/// Settings of the canvas, which take effect at once.
class SettingsDialog : public QDialog
{
    Q_OBJECT

public:
    explicit SettingsDialog(QWidget *parent = nullptr);

    QComboBox *paperCombo() const { return mPaperCombo; }
    QCheckBox *snapCheck() const { return mSnapCheck; }
    QPushButton *okButton() const { return mOkButton; }

Q_SIGNALS:
    void paperChosen(const QColor &paper);
    void snappingChosen(bool snapping);

private:
    QComboBox *mPaperCombo;
    QCheckBox *mSnapCheck;
    QPushButton *mOkButton;
};
