// app/window/Page.h
#pragma once

#include <QWidget>

/// A page of the main window: one kind of thing that the database holds.
class Page : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// Reads the database anew; the user's choices stay as far as they are still there.
    virtual void read() = 0;
    /// Puts the keyboard where the page is searched.
    virtual void startSearch() = 0;
    /// Where the page begins: what has the keyboard when it is opened.
    virtual QWidget& firstPlace() const = 0;
    /// The panes that a key goes through, in their order.
    virtual QList<QWidget*> panes() const = 0;
};
