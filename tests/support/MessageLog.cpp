// tests/support/MessageLog.cpp
#include "tests/support/MessageLog.h"

#include <iostream>

MessageLog::MessageLog()
    : before_(zUseToolkit(this))
{
}

MessageLog::~MessageLog() { zUseToolkit(before_); }

std::vector<std::string> MessageLog::texts() const
{
    std::vector<std::string> texts;
    for (const Box& box : boxes_)
        texts.push_back(box.text);
    return texts;
}

void MessageLog::messageBox(zWindow*, const char* text, const char* caption, long style)
{
    boxes_.push_back({text, caption, style});
    if (echo_)
        std::cerr << "box: " << text << std::endl;
}
