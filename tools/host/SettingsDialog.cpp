#include "SettingsDialog.h"

#include <QCheckBox>
#include <QColor>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

SettingsDialog::SettingsDialog(QWidget *parent)
    : QDialog(parent)
    , mPaperCombo(new QComboBox)
    , mSnapCheck(new QCheckBox(tr("Snap to the grid")))
    , mOkButton(new QPushButton(tr("OK")))
{
    setWindowTitle(tr("Settings"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    mPaperCombo->addItem(tr("White"), QColor(Qt::white));
    mPaperCombo->addItem(tr("Cream"), QColor(255, 249, 231));
    mPaperCombo->addItem(tr("Sky"), QColor(235, 245, 255));
    mPaperCombo->setFixedSize(160, 28);
    mSnapCheck->setFixedSize(200, 24);
    mOkButton->setFixedSize(88, 30);
    mOkButton->setDefault(true);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 16, 20, 16);
    layout->addWidget(new QLabel(tr("Canvas colour")));
    layout->addWidget(mPaperCombo);
    layout->addSpacing(8);
    layout->addWidget(mSnapCheck);
    layout->addStretch();
    layout->addWidget(mOkButton, 0, Qt::AlignRight);
    setFixedSize(280, 190);

    connect(mPaperCombo, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            [this] { Q_EMIT paperChosen(mPaperCombo->currentData().value<QColor>()); });
    connect(mSnapCheck, &QCheckBox::toggled, this, &SettingsDialog::snappingChosen);
    connect(mOkButton, &QPushButton::clicked, this, &QDialog::accept);
}
