#pragma once

#include "Drawing.h"
#include "DrawingCanvas.h"

#include <QMainWindow>
#include <QTimer>

class ControlRegistry;
class PropertyPane;
class QListWidget;
class QMenu;
class ScriptDialog;
class SettingsDialog;

/// The window of the small drawing editor. It registers its windows, controls and menu entries, and
/// reports what the user does with them.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(ControlRegistry *registry);

    /// Puts the window at its usual size to where the screen leaves room for the guidance.
    void takePlace();

    ScriptDialog *scriptDialog() const { return mScript; }

Q_SIGNALS:
    void minimised();
    void restored();

protected:
    void changeEvent(QEvent *event) override;

private:
    void makeTools();
    void makeMenus();
    void makePanes();
    void makeDialog();
    QAction *addAction(QMenu *menu, const QString &name, const QString &text);
    void prepareMenu(QMenu *menu, const QString &key);
    void registerControls();
    void reportValues();
    void fillList();
    void savePicture();
    void showHelp(DrawingCanvas::Tool tool);

    ControlRegistry *mRegistry;
    Drawing mDrawing;
    DrawingCanvas *mCanvas;
    QListWidget *mObjectList;
    PropertyPane *mPane;
    SettingsDialog *mSettings;
    ScriptDialog *mScript;
    QMenu *mCanvasMenu;
    QAction *mGridAction = nullptr;
    QAction *mDuplicateAction = nullptr;
    QAction *mDeleteAction = nullptr;
    QTimer mTypingPause;
};
