// db/Parameters.h
#pragma once

#include <string>
#include <vector>

/// A statement whose literals with bars became parameters, in the order of their markers.
struct ParameterisedText {
    std::string statement;
    std::vector<std::string> parameters;
};

/// Takes every string literal that contains a "|" out of `statement` and puts "?" in its place;
/// bars outside literals stay. A doubled quote inside a literal is one quote of its text.
ParameterisedText withBarsAsParameters(const std::string& statement);
