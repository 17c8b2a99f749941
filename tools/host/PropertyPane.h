#pragma once

#include <QWidget>

class Drawing;
class QCheckBox;
class QComboBox;
class QLineEdit;
class QSpinBox;

/// Name, line width and layer of the selected shape, and the box that shows the grid. All controls
/// have fixed sizes.
class PropertyPane : public QWidget
{
    Q_OBJECT

public:
    explicit PropertyPane(Drawing *drawing, QWidget *parent = nullptr);

    QLineEdit *nameField() const { return mNameField; }
    QSpinBox *widthSpin() const { return mWidthSpin; }
    QComboBox *layerCombo() const { return mLayerCombo; }
    QCheckBox *gridCheck() const { return mGridCheck; }

    /// Puts the cursor on the name.
    void editName();

private:
    void showSelected();
    void apply();

    Drawing *mDrawing;
    QLineEdit *mNameField;
    QSpinBox *mWidthSpin;
    QComboBox *mLayerCombo;
    QCheckBox *mGridCheck;
    bool mShowing = false;
};
