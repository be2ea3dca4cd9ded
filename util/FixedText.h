// util/FixedText.h
#pragma once

#include <array>
#include <cstddef>
#include <cstring>
#include <string>
#include <string_view>
#include <utility>

/// Bytes of the character that `text` starts with: 2 to 4 for a well-formed UTF-8 character of
/// several bytes, 1 for any other byte, 0 for an empty text.
std::size_t utf8Length(std::string_view text);

/// The longest prefix of `text` of at most `limit` bytes that does not end inside a well-formed
/// UTF-8 character. A byte that is part of no such character counts as a character.
std::string_view utf8Prefix(std::string_view text, std::size_t limit);

/// Text of at most `Capacity` bytes, terminated: the one type of every fixed-capacity field.
/// A longer text is cut at the last character border that fits. Never holds a NUL inside.
template <std::size_t Capacity> class FixedText {
public:
    FixedText() = default;
    FixedText(std::string_view text) { assign(text); }        // NOLINT(google-explicit-constructor)
    FixedText(const char* text) { assign(text ? text : ""); } // NOLINT(google-explicit-constructor)
    FixedText& operator=(std::string_view text)
    {
        assign(text);
        return *this;
    }
    FixedText& operator=(const char* text)
    {
        assign(text ? text : "");
        return *this;
    }

    static constexpr std::size_t capacity() { return Capacity; }
    const char* c_str() const { return bytes_.data(); }
    operator const char*() const { return bytes_.data(); } // NOLINT(google-explicit-constructor)
    std::string_view view() const { return std::string_view(bytes_.data(), size()); }
    std::string str() const { return std::string(view()); }
    std::size_t size() const { return std::strlen(bytes_.data()); }
    bool empty() const { return bytes_[0] == '\0'; }
    void clear() { bytes_.fill('\0'); }
    /// The bytes themselves, for the in-place text operations; they must not lengthen the text
    /// beyond the capacity.
    char* data() { return bytes_.data(); }

    friend bool operator==(const FixedText& a, std::string_view b) { return a.view() == b; }
    friend bool operator==(const FixedText& a, const FixedText& b) { return a.view() == b.view(); }
    friend bool operator==(const FixedText& a, const char* b) { return a.view() == b; }

private:
    void assign(std::string_view text)
    {
        // The source may be this object's own bytes.
        text = text.substr(0, text.find('\0'));
        const std::string_view kept = utf8Prefix(text, Capacity);
        if (!kept.empty()) // an empty view may have no bytes at all
            std::memmove(bytes_.data(), kept.data(), kept.size());
        std::memset(bytes_.data() + kept.size(), 0, bytes_.size() - kept.size());
    }

    std::array<char, Capacity + 1> bytes_{};
};

/// The result text of one function, kept for its caller: the pointer that `keep` returns stays
/// valid until the same function is called again. Callers copy the text or use it at once.
class ResultText {
public:
    const char* keep(std::string text)
    {
        text_ = std::move(text);
        return text_.c_str();
    }

private:
    std::string text_;
};
