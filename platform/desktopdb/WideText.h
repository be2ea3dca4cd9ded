// platform/desktopdb/WideText.h
#pragma once

#include <string>
#include <string_view>

namespace desktopdb {

/// UTF-8 as UTF-16. A byte that is no UTF-8 becomes U+FFFD.
std::u16string utf16Of(std::string_view text);

/// UTF-16 as UTF-8. A lone surrogate becomes U+FFFD.
std::string utf8Of(std::u16string_view text);

} // namespace desktopdb
