// platform/zapp/qt/QtWindow.h
#pragma once

class QWidget;
class zWindow;

// Under Qt a zWindow* is a QWidget* under another name: nothing else ever stands behind it, and
// these two functions alone convert. They take a QWidget* and not a subclass's pointer, since
// with several bases a subclass may lie at another address.

inline zWindow* windowOf(QWidget* widget) { return reinterpret_cast<zWindow*>(widget); }
inline QWidget* widgetOf(zWindow* window) { return reinterpret_cast<QWidget*>(window); }
