// app/window/Splitting.h
#pragma once

class QWidget;

/// Two panes beside each other, parted by a line that the user can move. The right one takes the
/// room that a larger window gives; the left one begins `leftWidth` pixels wide.
QWidget* beside(QWidget* left, QWidget* right, int leftWidth);
