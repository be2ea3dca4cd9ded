// well/DetailsWalk.h
#pragma once

#include "taxonomy/TextArgument.h"
#include "well/Sample.h"

#include <string_view>

/// The detail records of a sample in a discipline (0: in any) by an analyst (empty or null: by
/// any), in list order, for a range-based loop. The text must live as long as this.
class RecordsOf {
    using Place = OwningList<Smpdtl>::iterator;

public:
    RecordsOf(const Sample& s, char disc, const char* analyst)
        : details_(s.details)
        , disc_(disc)
        , analyst_(orEmpty(analyst))
    {
    }

    class iterator {
    public:
        iterator(const RecordsOf& records, Place place)
            : records_(records)
            , place_(records.wanted(place))
        {
        }
        Smpdtl* operator*() const { return *place_; }
        iterator& operator++()
        {
            place_ = records_.wanted(++place_);
            return *this;
        }
        bool operator==(const iterator& other) const { return place_ == other.place_; }

    private:
        const RecordsOf& records_;
        Place place_;
    };
    iterator begin() const { return {*this, details_.begin()}; }
    iterator end() const { return {*this, details_.end()}; }

private:
    // The first from there on.
    Place wanted(Place place) const
    {
        while (place != details_.end() && !isWanted(**place))
            ++place;
        return place;
    }
    bool isWanted(const Smpdtl& record) const
    {
        return (disc_ == 0 || record.disc == disc_) && record.isBy(analyst_);
    }

    const OwningList<Smpdtl>& details_;
    char disc_;
    std::string_view analyst_;
};

/// The first of them, or null.
inline Smpdtl* firstRecordOf(const Sample& s, char disc, const char* analyst)
{
    for (Smpdtl* record : RecordsOf(s, disc, analyst))
        return record;
    return nullptr;
}
