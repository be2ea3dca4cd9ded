// schema/StatementSplitter.h
#pragma once

#include <string_view>
#include <vector>

/// The statements of a text of SQL, in order, as views into it: each without its final semicolon
/// and without the comments and blanks before it, and a trigger together with its body. Every
/// statement has to end with a semicolon.
std::vector<std::string_view> splitStatements(std::string_view text);
