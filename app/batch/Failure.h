// app/batch/Failure.h
#pragma once

#include <string>

/// Tells the standard error stream why a command ends; returns `kFailed`.
int failed(const std::string& why);
