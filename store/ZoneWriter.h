// store/ZoneWriter.h
#pragma once

#include "store/Outcome.h"
#include "store/TableWriter.h"

#include <string>

/// A zone between two samples, named by one term or by two.
struct ZoneRecord {
    long wellId = 0;
    long type = 0; ///< interpretation type
    long hier = 0;
    long schemeId = 0;
    long topId = 0;   ///< SAMPLES.samp_id
    long baseId = 0;  ///< SAMPLES.samp_id
    long upperId = 0; ///< IGD_DICT.igd_id
    std::string upperName;
    long lowerId = 0; ///< 0: the upper term alone
    std::string lowerName;
};

/// Brings zones of wells into the default interpretation, found by what they are and where they
/// begin: a unit that comes again deeper is another zone. New zones have confident boundaries.
class ZoneWriter {
public:
    explicit ZoneWriter(Writing writing);

    Outcome put(const ZoneRecord& record);

    const std::string& error() const { return table_.error(); }

private:
    Writing writing_;
    TableWriter table_;
};
