// app/las/LasZones.h
#pragma once

#include <string>
#include <vector>

class Well;

/// A zone of a well as a file of tops has it. Depths in metres, as stored; texts as stored.
struct LasZone {
    std::string name;
    float top;
    float base;
    std::string scheme;
    std::string kind;  ///< "Chronostratigraphy", ...
    std::string level; ///< name of the rank
    int rank;
    std::string topQuality;
    std::string baseQuality;
    long interp_id;
};

/// The zones of a well and what was reported on the way.
struct LasZones {
    std::vector<LasZone> zones;
    std::vector<std::string> failures; ///< of statements: then zones may be missing
    std::vector<std::string> reports;  ///< of zones that were left out for want of their samples
};

/// All zones of all interpretations of a well, by interpretation, kind and depth. Loads samples
/// into the well on the way.
LasZones lasZonesOf(Well& well);
