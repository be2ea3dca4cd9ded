// well/EVt.h
#pragma once

#include "util/Date.h"

#include <string>

class EVdict;
class EVdictList;
class Sample;
class SampleList;

/// An event of the dictionary placed at a sample of a well.
class EVt {
public:
    /// Finds the sample in `samples` and the entry in `dictionary`. What is not there is read and
    /// put in: the sample as into a list that runs shallowest first, whatever this one does. A
    /// sample that the well does not have becomes one without identifier and depth, a new one for
    /// each such event. Changed today. Failure of a read: fatal report.
    EVt(long well_id, long interp_id, long ev_id, char kind, long samp_id, SampleList& samples,
        EVdictList& dictionary);
    EVt(const EVt&) = delete;
    EVt& operator=(const EVt&) = delete;

    /// As `eventLabel` of the dictionary's labels, which see for the room.
    void label(char* out) const;

    long interp_id; ///< the interpretation that the event belongs to
    long ev_id;

    // Lists keep indices of these, so an event has them for good.
    Sample* const sample; ///< of the well's list, never null
    EVdict* const entry;  ///< of the dictionary, never null
    const char kind;      ///< 'F' top, 'L' base, in the order of drilling; others are neither

    char disc_id = '\0';
    std::string analyst;
    std::string qualifier;
    std::string comments;
    std::string source;
    std::string company;
    Date modified;
};
