// bench/well_load/Statements.cpp
#include "bench/well_load/Statements.h"

namespace {

std::string detailsOf(char discipline)
{
    return "SELECT s.samp_id,u.abr,h.analy_no,s.picker,s.source,s.barren,s.modified,s.modifier,"
           "s.weight,s.coarse,s.medium,s.fine,s.notes,s.proximal,s.distal,h.red,h.green,h.blue,"
           "h.abnsch_id FROM SMPDTL s,ANALY_HDR h,USERDEF u WHERE s.well_id=1 AND h.disc_id='"
        + std::string(1, discipline)
        + "' AND h.analyst=u.user_id AND s.analy_id=h.analy_id AND s.well_id=h.well_id";
}

std::string occurrencesOf(char discipline)
{
    return "SELECT samp_id,u.abr,h.analy_no,spec_id,status,ident_type,abund,caved,marker,medium,"
           "coarse,fine,spec_type_id,preserv,colour,t.comments FROM TAXONOCC t,ANALY_HDR h,"
           "USERDEF u WHERE t.well_id=1 AND t.well_id=h.well_id AND h.disc_id='"
        + std::string(1, discipline)
        + "' AND h.analy_id=t.analy_id  AND u.user_id=h.analyst ORDER BY samp_id, spec_id";
}

} // namespace

std::vector<LoadStatement> loadStatements()
{
    std::vector<LoadStatement> statements{
        {"SELECT samp_id, top_depth, base_depth, type, grid_x, grid_y, created, modified, creator, "
         "modifier,label FROM SAMPLES WHERE well_id=1 ORDER BY samp_id",
            "lddsllsssss"}};
    for (const char discipline : GeneratedWell::kDisciplines)
        statements.push_back({detailsOf(discipline), "lslsscssddddsllllll", 2});
    for (const char discipline : GeneratedWell::kDisciplines)
        statements.push_back({occurrencesOf(discipline), "lsllccscclll-sss", 2});
    return statements;
}
