// app/shell/ConnectFailure.h
#pragma once

#include <string>

/// The text for the user when `connectString` did not connect: what was tried, the reason that
/// driver or manager gave (may be empty), and what to do about it. No secrets.
std::string connectFailure(const std::string& connectString, const std::string& reason);
