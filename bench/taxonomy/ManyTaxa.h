// bench/taxonomy/ManyTaxa.h
#pragma once

#include "taxonomy/Taxon.h"

#include <cstdint>
#include <string>

/// Names as a dictionary has them: species share genera, every fourth has a subspecies, every
/// second an author. The same seed gives the same names.
class ManyTaxa {
public:
    explicit ManyTaxa(std::uint64_t seed)
        : state_(seed)
    {
    }

    Taxon next(long spec_id)
    {
        Taxon taxon;
        taxon.setSpecId(spec_id);
        taxon.setField(slot::category, below(2) == 0 ? "FORAM" : "NANNO");
        taxon.gen_id = static_cast<long>(below(kGenera)) + 1;
        taxon.setField(slot::genus, genus(taxon.gen_id));
        taxon.setField(slot::species, word() + word());
        if (below(4) == 0)
            taxon.setField(slot::subspecies, word());
        if (below(2) == 0) {
            taxon.setField(slot::author, "Author " + word());
            taxon.year = static_cast<short>(1800 + below(200));
        }
        return taxon;
    }

    static constexpr int kGenera = 2500;
    /// The genus of a number [1-kGenera]; no two are alike.
    static std::string genus(long number)
    {
        const auto n = static_cast<std::size_t>(number);
        return std::string(1, static_cast<char>('A' + n % 26)) + kSyllables[n % 8]
            + kSyllables[n / 8 % 8] + kSyllables[n / 64 % 8] + kSyllables[n / 512 % 8] + "ina";
    }

private:
    static constexpr const char* kSyllables[] = {"bo", "li", "vi", "ra", "ta", "no", "glo", "bu"};

    std::uint64_t below(std::uint64_t limit)
    {
        state_ = state_ * 6364136223846793005U + 1442695040888963407U;
        return (state_ >> 33) % limit;
    }
    std::string word()
    {
        return std::string(kSyllables[below(8)]) + kSyllables[below(8)] + kSyllables[below(8)];
    }

    std::uint64_t state_;
};
