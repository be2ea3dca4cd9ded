// app/window/Texts.cpp
#include "app/window/Texts.h"

#include "store/Value.h"

QString missingText() { return QStringLiteral("\u2013"); }

QString shownOrMissing(std::string_view stored)
{
    return stored.empty() ? missingText() : QString::fromStdString(shownText(stored));
}
