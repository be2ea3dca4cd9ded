// app/las/LasWriter.cpp
#include "app/las/LasWriter.h"

#include "app/las/LasFile.h"
#include "app/las/LasText.h"
#include "app/shell/CollectedReports.h"
#include "app/shell/DepthModel.h"
#include "db/Cursor.h"
#include "db/Literals.h"
#include "db/Units.h"
#include "util/TextUtil.h"
#include "well/Sample.h"
#include "well/Well.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <ostream>
#include <sstream>

namespace {

constexpr const char* kNull = "-999.25";
constexpr int kDecimals = 4; // of depths: as fine as single precision holds them

std::string depthText(float metres) { return fixedString(metres, kDecimals); }

std::string padded(std::string text, std::size_t width)
{
    text.resize(std::max(text.size(), width), ' ');
    return text;
}

/// A column of data.
struct Column {
    const char* mnemonic;
    const char* unit;
    const char* description;
    const char* format;
};

constexpr Column kTops[] = {
    {"TOPN", "", "Name of the zone", "S"},
    {"TOPT", "M", "Depth of its top", "F"},
    {"TOPB", "M", "Depth of its base", "F"},
    {"TOPSRC", "", "Source, the scheme that names it", "S"},
    {"KIND", "", "Kind of stratigraphy", "S"},
    {"RANK", "", "Rank within the kind, 1 the widest", "I"},
    {"LVL", "", "Name of the rank", "S"},
    {"TOPQ", "", "Quality of the top boundary", "S"},
    {"BASQ", "", "Quality of the base boundary", "S"},
    {"INTP", "", "Number of the interpretation, 0 the default one", "I"},
};
constexpr Column kCores[] = {
    {"CORET", "M", "Depth of the top of the core", "F"},
    {"COREB", "M", "Depth of its base", "F"},
    {"CORN", "", "Number of the core", "S"},
    {"CORR", "", "Recovered, Y or N", "S"},
    {"SHFT", "M", "Shift of its top to the depths of the logs", "F"},
    {"SHFB", "M", "Shift of its base", "F"},
};
constexpr Column kSurvey[] = {
    {"MD", "M", "Measured depth", "F"},
    {"TVD", "M", "True vertical depth", "F"},
};

class Writer {
public:
    Writer(const Well& well, std::ostream& out)
        : well_(well)
        , out_(out)
    {
    }

    std::vector<std::string> write(const std::vector<LasZone>& zones)
    {
        for (const LasZone& zone : zones)
            reach(zone.top, zone.base);
        for (const CoredInt* core : well_.cores)
            reach(core->top, core->base);
        for (const Sample* sample : well_.samples)
            reach(sample->GetTop('M', 0, 0), sample->GetBase('M', 0, 0));
        writeVersion();
        writeWell();
        writeParameters();
        writeTops(zones);
        writeCores();
        writeSurvey();
        return texts_.changes();
    }

private:
    void reach(float top, float base)
    {
        const auto [least, most] = std::minmax(top, base);
        least_ = reached_ ? std::min(least_, least) : least;
        most_ = reached_ ? std::max(most_, most) : most;
        reached_ = true;
    }

    void writeItem(const char* mnemonic, const char* unit, const std::string& value,
        const std::string& description, const char* format = "")
    {
        constexpr std::size_t kMnemonicWidth = 6, kUnitWidth = 4, kValueWidth = 28;
        out_ << padded(mnemonic, kMnemonicWidth) << '.' << padded(unit, kUnitWidth) << ' '
             << padded(value, kValueWidth) << " : " << description;
        if (*format)
            out_ << " {" << format << '}';
        out_ << '\n';
    }
    void writeText(const char* mnemonic, std::string_view stored, const char* description)
    {
        writeItem(mnemonic, "", texts_.value(mnemonic, stored), description, "S");
    }
    void writeDate(const char* mnemonic, Date date, const char* description)
    {
        std::array<char, 16> text{};
        if (date.isValid())
            std::snprintf(
                text.data(), text.size(), "%02d/%02d/%04d", date.day(), date.month(), date.year());
        writeItem(mnemonic, "", text.data(), description, "DD/MM/YYYY");
    }
    // Levels of the header are in the units of the well; none is written for one not given.
    void writeLevel(const char* mnemonic, float level, const char* description)
    {
        const float metres = toMetres(level, well_.units);
        if (!isAbsentDepth(metres))
            writeItem(mnemonic, "M", depthText(metres), description, "F");
    }

    void writeVersion()
    {
        out_ << "~Version\n";
        writeItem("VERS", "", "3.0", "CWLS Log ASCII Standard, version 3.0");
        writeItem("WRAP", "", "NO", "One line for each row");
        writeItem("DLM", "", "COMMA", "Delimiter between the columns of data");
    }

    void writeWell()
    {
        out_ << "~Well\n";
        writeItem("STRT", "M", reached_ ? depthText(least_) : kNull, "First depth", "F");
        writeItem("STOP", "M", reached_ ? depthText(most_) : kNull, "Last depth", "F");
        writeItem("STEP", "M", depthText(0), "Step, 0 for none", "F");
        writeItem("NULL", "", kNull, "Null value", "F");
        writeText("COMP", well_.operator_.view(), "Company");
        writeText("WELL", well_.well_name.view(), "Well");
        writeText("FLD", well_.field.view(), "Field");
        writeText("LOC", location(), "Location");
        writeText("SRVC", "", "Service company");
        writeText("CTRY", well_.country.view(), "Country");
        writeDate("DATE", well_.comp_date, "Date of completion");
        writeText("UWI", well_.well_code.view(), "Code of the well");
        if (well_.lat_dec != 0 || well_.long_dec != 0) {
            writeItem("LATI", "DEG", degrees(well_.lat_dec), "Latitude, north positive", "F");
            writeItem("LONG", "DEG", degrees(well_.long_dec), "Longitude, east positive", "F");
            writeText("GDAT", well_.geoDatum, "Geodetic datum");
        }
    }
    std::string location() const
    {
        std::string place = well_.county.str();
        if (!well_.ocs.empty())
            place += (place.empty() ? "OCS " : ", OCS ") + well_.ocs.str();
        return place;
    }
    static std::string degrees(double value) { return fixedString(value, 7); }

    void writeParameters()
    {
        out_ << "~Parameter\n";
        writeItem("WTYP", "", well_.type == 'O' ? "SECTION" : "WELL",
            "Borehole with depths, or section with heights", "S");
        writeLevel("EREF", well_.rte, "Elevation of the depth reference, the rotary table");
        writeLevel("TDD", well_.td, "Total depth");
        writeLevel("SEAL", well_.sl, "Sea level");
        writeLevel("SEAB", well_.sb, "Sea bed");
        writeLevel("KICK", well_.kicko, "Kick-off depth");
        writeDate("SPUD", well_.spud_date, "Date when drilling began");
    }

    template <std::size_t N> void writeDefinition(const char* name, const Column (&columns)[N])
    {
        out_ << '~' << name << "_Definition\n";
        for (const Column& column : columns)
            writeItem(column.mnemonic, column.unit, "", column.description, column.format);
        out_ << '~' << name << "_Data | " << name << "_Definition\n";
    }
    template <std::size_t N> void writeRow(const std::string (&fields)[N])
    {
        const char* between = "";
        for (const std::string& field : fields) {
            out_ << between << field;
            between = ",";
        }
        out_ << '\n';
    }

    void writeTops(const std::vector<LasZone>& zones)
    {
        if (zones.empty())
            return;
        writeDefinition("Tops", kTops);
        for (const LasZone& zone : zones) {
            const std::string fields[std::size(kTops)] = {texts_.field("TOPN", zone.name),
                depthText(zone.top), depthText(zone.base), texts_.field("TOPSRC", zone.scheme),
                zone.kind, std::to_string(zone.rank), texts_.field("LVL", zone.level),
                texts_.field("TOPQ", zone.topQuality), texts_.field("BASQ", zone.baseQuality),
                std::to_string(zone.interp_id)};
            writeRow(fields);
        }
    }

    void writeCores()
    {
        if (well_.cores.count() == 0)
            return;
        writeDefinition("Core", kCores);
        for (const CoredInt* core : well_.cores) {
            const std::string recovered(core->recovered ? 1 : 0, core->recovered);
            const std::string fields[std::size(kCores)] = {depthText(core->top),
                depthText(core->base), texts_.field("CORN", core->corenum),
                texts_.field("CORR", recovered), depthText(core->shiftTop),
                depthText(core->shiftBase)};
            writeRow(fields);
        }
    }

    void writeSurvey()
    {
        if (!well_.tvd || well_.tvd->count == 0)
            return;
        writeDefinition("Inclinometry", kSurvey);
        for (int i = 0; i < well_.tvd->count; ++i) {
            float md = 0, tvd = 0;
            well_.tvd->GetPoint(i, &md, &tvd, 'M');
            const std::string fields[std::size(kSurvey)] = {depthText(md), depthText(tvd)};
            writeRow(fields);
        }
    }

    const Well& well_;
    std::ostream& out_;
    LasText texts_;
    float least_ = 0, most_ = 0;
    bool reached_ = false;
};

// How many rows a table has of a well; -1 when that cannot be read.
long rowsOf(const char* table, long well_id)
{
    Cursor rows(
        "SELECT count(*) FROM " + sql::table(table) + " WHERE well_id=" + sql::integer(well_id));
    return rows && rows.next() ? rows.integer(1) : -1;
}

// Loads what the well has beside its zones.
std::string loadProblem(Well& well)
{
    constexpr int kOnce = 0;
    CollectedReports reports;
    well.LoadSamples(kOnce);
    well.LoadCores(kOnce);
    depthModel(well);
    const std::vector<std::string> failures = reports.take();
    if (!failures.empty())
        return failures.front();
    // Where a fetch fails the loaders end early and tell nobody.
    if (well.cores.count() != rowsOf("CORES", well.well_id))
        return "Not all cores could be read.";
    if (well.tvd->count != rowsOf("WELLTVD", well.well_id))
        return "Not all points of the deviation survey could be read.";
    return {};
}

std::string readBackProblem(const std::string& content)
{
    std::istringstream in(content);
    std::vector<std::string> problems;
    readLas(in, &problems);
    return problems.empty() ? "" : "The file would not be a LAS file: " + problems.front();
}

} // namespace

std::vector<std::string> writeLas(
    const Well& well, const std::vector<LasZone>& zones, std::ostream& out)
{
    return Writer(well, out).write(zones);
}

LasExport lasExportOf(Well& well)
{
    LasExport made;
    made.error = loadProblem(well);
    LasZones found = lasZonesOf(well);
    made.reports = std::move(found.reports);
    if (made.error.empty() && !found.failures.empty())
        made.error = found.failures.front();
    if (!made.error.empty())
        return made;
    std::ostringstream out;
    made.changes = writeLas(well, found.zones, out);
    made.error = readBackProblem(out.str());
    if (made.error.empty())
        made.content = out.str();
    return made;
}
