// bench/well_load/Statements.cpp
#include "bench/well_load/Statements.h"

#include "bench/well_load/GeneratedWell.h"

namespace {

std::string detailsOf(const std::string& well, char discipline)
{
    return "SELECT s.samp_id,u.abr,h.analy_no,s.picker,s.source,s.barren,s.modified,s.modifier,"
           "s.weight,s.coarse,s.medium,s.fine,s.notes,s.proximal,s.distal,h.red,h.green,h.blue,"
           "h.abnsch_id FROM SMPDTL s,ANALY_HDR h,USERDEF u WHERE s.well_id="
        + well + " AND h.disc_id='" + std::string(1, discipline)
        + "' AND h.analyst=u.user_id AND s.analy_id=h.analy_id AND s.well_id=h.well_id";
}

std::string occurrencesOf(const std::string& well, char discipline)
{
    return "SELECT samp_id,u.abr,h.analy_no,spec_id,status,ident_type,abund,caved,marker,medium,"
           "coarse,fine,spec_type_id,preserv,colour,t.comments FROM TAXONOCC t,ANALY_HDR h,"
           "USERDEF u WHERE t.well_id="
        + well + " AND t.well_id=h.well_id AND h.disc_id='" + std::string(1, discipline)
        + "' AND h.analy_id=t.analy_id  AND u.user_id=h.analyst ORDER BY samp_id, spec_id";
}

} // namespace

std::vector<LoadStatement> loadStatements(long well)
{
    const std::string id = std::to_string(well);
    std::vector<LoadStatement> statements{
        {"SELECT samp_id, top_depth, base_depth, type, grid_x, grid_y, created, modified, creator, "
         "modifier,label FROM SAMPLES WHERE well_id="
                + id + " ORDER BY samp_id",
            "lddsllsssss"}};
    for (const char discipline : GeneratedWell::kDisciplines)
        statements.push_back({detailsOf(id, discipline), "lslsscssddddsllllll"});
    for (const char discipline : GeneratedWell::kDisciplines)
        statements.push_back({occurrencesOf(id, discipline), "lsllccscclll-sss"});
    return statements;
}
