// well/CoredInt.h
#pragma once

#include <string>

/// A cored interval of a well and the shift that moves its depths onto those of the logs. Metres.
struct CoredInt {
    float top = 0;
    float base = 0;
    std::string corenum;
};
