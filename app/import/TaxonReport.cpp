// app/import/TaxonReport.cpp
#include "app/import/TaxonReport.h"

void tellReading(CellReader& cells, const std::string& written, const NameReading& name)
{
    FileReport& report = cells.report();
    if (!name.exact)
        report.adjust("name", written,
            "reads back as \"" + composedName(name.taxon)
                + "\"; as published it is kept in the notes");
    if (name.fault != 0)
        report.adjust("name", written,
            std::string(slotRule(name.fault).fieldName)
                + ": these marks cannot stand together; all marks were left in the name");
    if (written.find('%') != std::string::npos)
        report.adjust("name", written,
            "stored, but not found by this name: searches take a percent sign for a wildcard");
}

std::string asPublished(const std::string& written) { return "As published: " + written; }
