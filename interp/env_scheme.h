// interp/env_scheme.h
#pragma once

#include "interp/Colour.h"
#include "util/FixedText.h"

#include <array>
#include <cstddef>
#include <optional>

/// A scale of depositional environments: at most 20 terms, each with a colour. A term is known by
/// its number, its position from 1 on; the operations take positions from 0 on, unless said
/// otherwise. A value.
class env_scheme {
public:
    static constexpr int kMostTerms = 20;

    /// Reads the scheme; terms that it has not got are blue. Numbers stored with the terms order
    /// them and are not kept. A failure is reported, not fatal, and leaves what was read before.
    explicit env_scheme(long id);
    /// Without terms; all colours black.
    env_scheme(long id, const char* schemeName);
    env_scheme(
        long id, const char* schemeName, int n, const char* const* names, const Colour* colours);

    /// Outside the scheme, and without a name: "ERROR term: n is not in Palaeoenvironment scheme"
    /// with the number of the term, valid until the next call. Lives as long as the name otherwise.
    const char* termName(int index) const;
    /// White outside the scheme.
    Colour termColour(int index) const;
    /// The number, from 1 on, of the first term of that name, ignoring case; 0 when there is none.
    int termNumber(const char* termName) const;

    // From 0 to 19, in the scheme or not; anything else is ignored. Names are cut to 79 bytes.
    void setTermColour(int index, Colour colour);
    void setTermName(int index, const char* text);
    /// The first `n` terms, all there are from now on; more than 20 are cut off.
    void setTerms(int n, const char* const* names, const Colour* colours);
    void setName(const char* text) { name = text; }
    /// Taken as 0 to 20.
    void setTermCount(int n);
    int nTerms() const { return nTerms_; }

    FixedText<80> name;
    long envsch_id;

private:
    struct Term {
        std::optional<FixedText<79>> name; ///< nothing until it was given one, be it empty
        Colour colour;
    };

    void readTerms();
    /// Null outside 0 to 19.
    Term* slot(int index);
    /// Null outside the scheme.
    const Term* term(int index) const;

    std::array<Term, kMostTerms> terms_;
    int nTerms_ = 0;
};
