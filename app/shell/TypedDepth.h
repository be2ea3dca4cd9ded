// app/shell/TypedDepth.h
#pragma once

#include <optional>
#include <string_view>

/// The depth that a user typed, with a point or a comma; nothing when it is no finite number.
std::optional<float> typedDepth(std::string_view text);
