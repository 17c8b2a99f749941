#pragma once

#include <QDialog>

class QPlainTextEdit;
class QPushButton;

/// Sends CoffeeScript to the program and shows what comes back.
class ScriptDialog : public QDialog
{
    Q_OBJECT

public:
    explicit ScriptDialog(QWidget *parent = nullptr);

    /// Shows the program's answer to a request, a record in JSON. Only the latest request counts.
    void showAnswer(int key, const QString &record);

Q_SIGNALS:
    /// The source as a script expression.
    void conversionRequested(int key, const QString &expression);

private:
    void convert();
    void markLine(int line);

    QPlainTextEdit *mSource;
    QPlainTextEdit *mAnswer;
    QPushButton *mConvertButton;
    int mKey = 0;
};
