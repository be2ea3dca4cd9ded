// dict/Abntrans.h
#pragma once

#include "util/FixedText.h"

#include <vector>

/// Translations of abundance texts by key, at most 100. What the codes and the text mean is the
/// caller's affair. Keys and texts hold at most 29 bytes.
class Abntrans {
public:
    /// Stores a translation; one beyond the hundredth is ignored.
    void add(const char* key, char code1, char code2, const char* text, char code3);
    /// Copies out the first translation of exactly that key; `text` must have room for 30 bytes. 1,
    /// or 0 and nothing copied when there is none.
    int find(const char* key, char* code1, char* code2, char* text, char* code3) const;
    int count() const { return static_cast<int>(entries_.size()); }

private:
    struct Entry {
        FixedText<29> key;
        char code1, code2;
        FixedText<29> text;
        char code3;
    };
    std::vector<Entry> entries_;
};
