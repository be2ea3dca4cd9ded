// util/RareText.h
#pragma once

#include <cstring>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

/// A text of any length that is nearly always empty: one pointer, null for the empty text. For
/// fields of objects that exist by the hundred thousand. Ends at a NUL inside, as fixed texts do.
class RareText {
public:
    RareText() = default;
    RareText(std::string_view text) // NOLINT(google-explicit-constructor)
    {
        text = text.substr(0, text.find('\0'));
        if (text.empty())
            return;
        bytes_ = std::make_unique_for_overwrite<char[]>(text.size() + 1);
        std::memcpy(bytes_.get(), text.data(), text.size());
        bytes_[text.size()] = '\0';
    }
    RareText(const char* text) // NOLINT(google-explicit-constructor)
        : RareText(std::string_view(text ? text : ""))
    {
    }
    RareText(const std::string& text) // NOLINT(google-explicit-constructor)
        : RareText(std::string_view(text))
    {
    }
    RareText(const RareText& other)
        : RareText(other.view())
    {
    }
    RareText(RareText&&) = default;
    RareText& operator=(RareText other)
    {
        bytes_ = std::move(other.bytes_);
        return *this;
    }
    ~RareText() = default;

    bool empty() const { return !bytes_; }
    const char* c_str() const { return bytes_ ? bytes_.get() : ""; }
    std::string_view view() const { return c_str(); }

    friend bool operator==(const RareText& a, std::string_view b) { return a.view() == b; }

private:
    std::unique_ptr<char[]> bytes_;
};
