// platform/desktopdb/ConnectString.h
#pragma once

#include "platform/desktopdb/Diagnostics.h"
#include "platform/desktopdb/Engine.h"
#include "platform/desktopdb/LikePattern.h"

#include <string>
#include <string_view>

namespace desktopdb {

/// What a connection string asks for.
struct ConnectSettings {
    OpenOptions open;
    Dialect dialect = Dialect::Auto;
    std::string owner; ///< empty: any owner is taken
};

/// Reads "Driver=...;Database=FILE[;Create=1][;Dialect=Access|Oracle][;Owner=NAME][;Timeout=ms]".
/// Keywords in any case; a value may stand in braces, in which }} means }; of a keyword given
/// twice the first counts; keywords that are not known are passed over. False with `failure` set
/// when the text or a value cannot be understood.
bool readConnectString(std::string_view text, ConnectSettings& settings, Failure& failure);

} // namespace desktopdb
