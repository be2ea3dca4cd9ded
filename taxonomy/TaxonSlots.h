// taxonomy/TaxonSlots.h
#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string_view>

/// The fourteen parts of a taxon's name in written order: what the readers, the display composer,
/// the qualifier checks and the loaders all go by. The numbers are known outside: the qualifier
/// checks answer with them.
namespace slot {
enum : int {
    category,
    preGenus,
    genus,
    postGenus,
    preSubgenus,
    subgenus,
    postSubgenus,
    preSpecies,
    species,
    postSpecies,
    preSubspecies,
    subspecies,
    postSubspecies,
    author,
    count
};
} // namespace slot

/// The subspecies is of kind Species: both follow the same rules.
enum class SlotKind { Category, PreQualifier, Genus, Subgenus, Species, PostQualifier, Author };

/// A word of open nomenclature. A slot holds at most one exclusive word; the two marks may stand
/// beside it.
struct QualifierWord {
    std::string_view text;
    bool exclusive;
};

inline constexpr char kQuestionMark = '?';
inline constexpr char kQuoteMark = '"';

namespace qualifier {
inline constexpr QualifierWord question{"?", false};
inline constexpr QualifierWord quote{"\"", false};
inline constexpr QualifierWord cf{"cf.", true};
inline constexpr QualifierWord aff{"aff.", true};
inline constexpr QualifierWord grp{"grp.", true};
inline constexpr QualifierWord ss{"ss.", true};
inline constexpr QualifierWord sl{"sl.", true};
inline constexpr QualifierWord sensu{"sensu", true};
inline constexpr QualifierWord var{"var.", true};

// What a slot accepts, in the order in which it is written back.
inline constexpr std::array beforeGenus{question, cf, aff, quote};
inline constexpr std::array before{cf, aff, quote};
inline constexpr std::array beforeSubspecies{cf, aff, quote, var};
inline constexpr std::array behindGenus{question, quote, grp, ss, sl};
inline constexpr std::array behindSpecies{question, quote, grp, ss, sl, sensu};
inline constexpr std::array behindSubspecies{quote, ss, sl, sensu};
} // namespace qualifier

struct SlotRule {
    SlotKind kind;
    std::size_t capacity;       ///< bytes
    std::string_view column;    ///< of GENUS up to postSubgenus, of SPECIES from preSpecies
    std::string_view fieldName; ///< as the named-field reader knows it
    std::span<const QualifierWord> words; ///< accepted; none in a slot that is no qualifier
};

inline constexpr std::array<SlotRule, slot::count> kSlotRules{{
    {SlotKind::Category, 5, "cat_mnem", "Category", {}},
    {SlotKind::PreQualifier, 8, "q1", "Pre-Genus qualifier", qualifier::beforeGenus},
    {SlotKind::Genus, 30, "genus", "Genus", {}},
    {SlotKind::PostQualifier, 8, "q2", "Post-Genus qualifier", qualifier::behindGenus},
    {SlotKind::PreQualifier, 8, "q3", "Pre-Subgenus qualifier", qualifier::before},
    {SlotKind::Subgenus, 30, "sub_genus", "Subgenus", {}},
    {SlotKind::PostQualifier, 8, "q4", "Post-Subgenus qualifier", qualifier::behindGenus},
    {SlotKind::PreQualifier, 8, "q1", "Pre-Species qualifier", qualifier::before},
    {SlotKind::Species, 30, "species", "Species", {}},
    {SlotKind::PostQualifier, 8, "q2", "Post-Species qualifier", qualifier::behindSpecies},
    {SlotKind::PreQualifier, 8, "q3", "Pre-Subspecies qualifier", qualifier::beforeSubspecies},
    {SlotKind::Species, 30, "sub_spec", "Subspecies", {}},
    {SlotKind::PostQualifier, 8, "q4", "Post-Subspecies qualifier", qualifier::behindSubspecies},
    {SlotKind::Author, 79, "author", "Author", {}},
}};

/// The rule of a slot [0-13].
constexpr const SlotRule& slotRule(int number)
{
    return kSlotRules[static_cast<std::size_t>(number)];
}

constexpr bool isQualifier(int number) { return !slotRule(number).words.empty(); }
