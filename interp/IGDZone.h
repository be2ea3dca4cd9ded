// interp/IGDZone.h
#pragma once

#include "interp/Colour.h"
#include "interp/IGDBase.h"
#include "util/Date.h"
#include "util/FixedText.h"

#include <string>

/// A zone of a well between two samples: a chronostratigraphic or lithostratigraphic unit, a
/// biozone or a sequence, named by one term of a scheme or by a range of two.
///
/// The zone keeps the names that it was stored with. Abbreviations and colours come from the
/// dictionary when first asked for and stay; a failed look-up is not reported and leaves the stored
/// name and white.
class IGDZone : public IGDBase {
public:
    /// Between two samples; depths 0 until they are set. Changed by the current user, at no date.
    IGDZone(int igd_type, long top_id, long base_id, char q_uzone, const char* upp_inf,
        char q_lzone, const char* low_inf);
    /// Between two depths, without samples. Changed today, by nobody.
    IGDZone(int igd_type, float top, float base, char q_uzone, const char* upp_inf, char q_lzone,
        const char* low_inf);

    /// Takes everything over but the sample types and what is looked up on demand, which this zone
    /// forgets: it asks the dictionary again.
    void copyFrom(const IGDZone& other);

    int topBoundary() const override { return top_bnd; }
    int baseBoundary() const override { return base_bnd; }
    /// "upper", "upper - lower", each name behind a "?" when it is questionable. The separator
    /// stands even without a lower name, unless it is the default one.
    std::string label() const override;

    /// The name of the upper or lower term, or, when `abbreviated` is not 0, its abbreviation: the
    /// name where the dictionary has none, or where the term is called otherwise by now. An
    /// abbreviated lower name is empty when both terms are the same. Lives until the zone changes.
    const char* upperName(int abbreviated);
    const char* lowerName(int abbreviated);
    /// The name that the dictionary has now, in room for 81 bytes; empty without a term or a row,
    /// and for a lower term that is the upper one. Returns the term's identifier.
    long upperNameFromDictionary(char* buffer) const;
    long lowerNameFromDictionary(char* buffer) const;
    Colour getUpperColour();
    Colour getLowerColour();
    /// `sep`, between blanks when `spaced` is not 0. Valid until the next call.
    const char* separatorText(int spaced) const;

    /// Rank, 0 when not known.
    int hier() const { return hier_; }
    void setHier(int rank) { setOrdering(hier_, rank); }

    long top_id = 0; ///< SAMPLES.samp_id
    long base_id = 0;
    FixedText<5> topSampleType; ///< type codes of the two samples
    FixedText<5> baseSampleType;
    int top_bnd = kConfident; ///< boundary qualities
    int base_bnd = kConfident;
    long sch_id = 0;
    char q_uzone; ///< 'Y': the upper term is questionable
    char q_lzone;
    long upp_zone = 0; ///< IGD_DICT.igd_id; -1 when stored without one
    long low_zone = 0;
    FixedText<80> upp_inf; ///< the names as stored with the zone
    FixedText<80> low_inf;
    FixedText<10> sep = "-";
    std::string top_analy; ///< analysts
    std::string base_analy;
    Date modified;
    std::string modifier; ///< user abbreviation

private:
    static constexpr int kConfident = 3;

    /// What the dictionary says of a term, once it was asked.
    struct Term {
        std::string abr;
        Colour colour = kWhite;
        bool colourFetched = false;
    };
    static const char* abbreviation(
        Term& term, const FixedText<80>& stored, const char* select, long igd_id);
    static Colour fetchedColour(Term& term, long igd_id);

    int hier_ = 0;
    Term upper_;
    Term lower_;
};

/// The rank of a zone; 0 of any other record.
int rankOf(const IGDBase& record);
