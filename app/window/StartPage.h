// app/window/StartPage.h
#pragma once

#include <QWidget>

class QLabel;

/// What the window shows while it has no wells to show: why, and what to do about it.
class StartPage : public QWidget {
    Q_OBJECT

public:
    /// Speaks of a window without a database.
    explicit StartPage(QWidget* parent = nullptr);

    /// Speaks of a database without wells; `option` is what names it on a command line.
    void showNoWells(const QString& database, const QString& option);

signals:
    void openAsked();

private:
    QLabel* state_;
    QLabel* hint_;
    QLabel* commands_;
};
