// app/window/StartPage.h
#pragma once

#include <QWidget>

/// What the window shows while no database is open: how to open one and how to make one.
class StartPage : public QWidget {
    Q_OBJECT

public:
    explicit StartPage(QWidget* parent = nullptr);

signals:
    void openAsked();
};
