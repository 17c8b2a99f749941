#include "PropertyPane.h"

#include "Drawing.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <QVBoxLayout>

PropertyPane::PropertyPane(Drawing *drawing, QWidget *parent)
    : QWidget(parent)
    , mDrawing(drawing)
    , mNameField(new QLineEdit)
    , mWidthSpin(new QSpinBox)
    , mLayerCombo(new QComboBox)
    , mGridCheck(new QCheckBox(tr("Show grid")))
{
    mNameField->setFixedSize(150, 28);
    mWidthSpin->setFixedSize(90, 28);
    mWidthSpin->setRange(1, 20);
    mLayerCombo->setFixedSize(150, 28);
    mLayerCombo->addItems({ tr("Normal"), tr("Front"), tr("Back") });
    mGridCheck->setFixedSize(150, 24);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(10, 6, 10, 6);
    layout->setSpacing(4);
    const auto addRow = [layout](const QString &label, QWidget *control) {
        layout->addWidget(new QLabel(label));
        layout->addWidget(control);
        layout->addSpacing(8);
    };
    addRow(tr("Name"), mNameField);
    addRow(tr("Line width"), mWidthSpin);
    addRow(tr("Layer"), mLayerCombo);
    addRow(tr("Canvas"), mGridCheck);
    layout->addStretch();
    setFixedWidth(170);

    connect(mDrawing, &Drawing::selectionChanged, this, &PropertyPane::showSelected);
    connect(mDrawing, &Drawing::changed, this, &PropertyPane::showSelected);
    connect(mNameField, &QLineEdit::textEdited, this, &PropertyPane::apply);
    connect(mWidthSpin, QOverload<int>::of(&QSpinBox::valueChanged), this, &PropertyPane::apply);
    connect(mLayerCombo, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &PropertyPane::apply);
    showSelected();
}

void PropertyPane::editName()
{
    mNameField->setFocus();
    mNameField->selectAll();
}

void PropertyPane::showSelected()
{
    mShowing = true;
    const bool any = mDrawing->selected() >= 0;
    const Shape shape = any ? mDrawing->shapes().at(mDrawing->selected()) : Shape();
    if (mNameField->text() != shape.name)
        mNameField->setText(shape.name);
    mWidthSpin->setValue(shape.lineWidth);
    mLayerCombo->setCurrentIndex(int(shape.layer));
    for (QWidget *control : { static_cast<QWidget *>(mNameField), static_cast<QWidget *>(mWidthSpin),
                              static_cast<QWidget *>(mLayerCombo) })
        control->setEnabled(any);
    mShowing = false;
}

void PropertyPane::apply()
{
    if (mShowing || mDrawing->selected() < 0)
        return;
    Shape shape = mDrawing->shapes().at(mDrawing->selected());
    shape.name = mNameField->text();
    shape.lineWidth = mWidthSpin->value();
    shape.layer = Shape::Layer(mLayerCombo->currentIndex());
    mDrawing->replace(mDrawing->selected(), shape);
}
