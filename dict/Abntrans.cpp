// dict/Abntrans.cpp
#include "dict/Abntrans.h"

void Abntrans::add(const char* key, char code1, char code2, const char* text, char code3)
{
    constexpr std::size_t kMostEntries = 100;
    if (entries_.size() < kMostEntries)
        entries_.push_back({key, code1, code2, text, code3});
}

int Abntrans::find(const char* key, char* code1, char* code2, char* text, char* code3) const
{
    for (const Entry& entry : entries_) {
        if (entry.key != (key ? key : ""))
            continue;
        *code1 = entry.code1;
        *code2 = entry.code2;
        std::memcpy(text, entry.text.c_str(), entry.text.size() + 1);
        *code3 = entry.code3;
        return 1;
    }
    return 0;
}
