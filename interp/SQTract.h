// interp/SQTract.h
#pragma once

#include <array>
#include <string>

/// Room for what is said of a tract of a sequence. A value; no table keeps it.
struct SQTract {
    std::array<int, 3> keys{};
    std::array<std::string, 3> texts;
    std::array<int, 4> values{};
};
