// app/batch/Failure.cpp
#include "app/batch/Failure.h"

#include "app/batch/BatchOptions.h"

#include <iostream>

int failed(const std::string& why)
{
    std::cerr << "zonaris: " << why << '\n';
    return kFailed;
}
