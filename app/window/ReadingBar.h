// app/window/ReadingBar.h
#pragma once

#include <QTimer>
#include <QWidget>

class QLabel;
class QProgressBar;

/// How far the loading of a well is, with a button to leave off. It comes into sight only when
/// loading takes a moment, so that small wells do not make it flash.
class ReadingBar : public QWidget {
    Q_OBJECT

public:
    explicit ReadingBar(QWidget* parent = nullptr);

    void showProgress(int done, int count, const QString& next);
    /// Goes out of sight.
    void end();

signals:
    void cancelled();

private:
    QTimer patience_;
    QLabel* next_;
    QProgressBar* bar_;
};
