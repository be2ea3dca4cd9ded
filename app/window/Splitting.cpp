// app/window/Splitting.cpp
#include "app/window/Splitting.h"

#include <QSplitter>

QWidget* beside(QWidget* left, QWidget* right, int leftWidth)
{
    constexpr int kFirstWidth = 1100; // only the proportion counts
    auto* both = new QSplitter(Qt::Horizontal);
    both->addWidget(left);
    both->addWidget(right);
    both->setStretchFactor(1, 1);
    both->setChildrenCollapsible(false);
    both->setSizes({leftWidth, kFirstWidth - leftWidth});
    return both;
}
