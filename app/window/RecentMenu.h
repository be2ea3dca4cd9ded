// app/window/RecentMenu.h
#pragma once

#include <QMenu>

/// A menu of the databases that were used last, the latest first; those whose file is gone are left
/// out. It is made anew each time it opens.
class RecentMenu : public QMenu {
    Q_OBJECT

public:
    explicit RecentMenu(const QString& title, QWidget* parent = nullptr);

signals:
    void chosen(const QString& file);

private:
    void fill();
};
