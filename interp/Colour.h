// interp/Colour.h
#pragma once

#include "db/Cursor.h"

/// A display colour as the tables keep it.
struct Colour {
    unsigned char red = 0;
    unsigned char green = 0;
    unsigned char blue = 0;
    unsigned char unused = 0; ///< fills the fourth byte

    friend bool operator==(const Colour&, const Colour&) = default;
};

inline constexpr Colour kWhite{255, 255, 255};

/// From three columns of the current row, red at `first`.
inline Colour colourFrom(const Cursor& row, short first)
{
    const auto part = [&row](int column) {
        return static_cast<unsigned char>(row.integer(static_cast<short>(column)));
    };
    const unsigned char red = part(first); // columns are read in order
    const unsigned char green = part(first + 1);
    return {red, green, part(first + 2)};
}

/// Terms that were never given a colour are stored as black.
inline Colour whiteForBlack(Colour colour) { return colour == Colour{} ? kWhite : colour; }
