// app/las/LasWriter.h
#pragma once

#include "app/las/LasZones.h"

#include <iosfwd>
#include <string>
#include <vector>

class Well;

/// Writes a well as a LAS 3.0 file: its header, `zones` as tops, and the cores and the deviation
/// survey that are loaded. Depths are metres along the hole, heights in a section; UTF-8. Runs no
/// statement. Returns a line for each text that had to be written otherwise than stored.
std::vector<std::string> writeLas(
    const Well& well, const std::vector<LasZone>& zones, std::ostream& out);

/// The LAS file of a well.
struct LasExport {
    std::string content;              ///< empty after a failure
    std::vector<std::string> changes; ///< texts written otherwise than stored
    std::vector<std::string> reports; ///< zones that were left out
    std::string error;                ///< why there is none, for a user
};

/// Loads what goes into the file, writes it, reads it back and checks it. None is made of a part:
/// when something could not be read there is a failure. Samples that cannot be read end the
/// process.
LasExport lasExportOf(Well& well);
