// taxonomy/NameSlots.h
#pragma once

#include "taxonomy/TaxonSlots.h"

#include <array>
#include <cstddef>
#include <string_view>

/// The fourteen terminated texts of a name, side by side in one block that the slot table sizes:
/// taxa are held by the ten thousand.
class NameSlots {
public:
    /// Empty at first.
    const char* text(int number) const { return bytes_.data() + begin(number); }
    /// Stores `text`, cut to the slot's capacity at a character border. It may be the text of a
    /// slot.
    void set(int number, std::string_view text);

private:
    /// Where each slot begins, and the end.
    static constexpr auto kBegins = [] {
        std::array<std::size_t, slot::count + 1> begins{};
        for (std::size_t i = 0; i < slot::count; ++i)
            begins[i + 1] = begins[i] + kSlotRules[i].capacity + 1;
        return begins;
    }();
    static std::size_t begin(int number) { return kBegins[static_cast<std::size_t>(number)]; }

    std::array<char, kBegins[slot::count]> bytes_{};
};
