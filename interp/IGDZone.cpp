// interp/IGDZone.cpp
#include "interp/IGDZone.h"

#include "db/CurrentUser.h"
#include "db/Literals.h"

#include <cstring>

namespace {

std::string fromTerm(const char* select, long igd_id)
{
    return select + sql::table("IGD_DICT") + " WHERE igd_id=" + sql::integer(igd_id);
}

void dictionaryName(char* buffer, long igd_id)
{
    Cursor row(fromTerm("SELECT name FROM ", igd_id));
    if (row && row.next())
        std::strcpy(buffer, FixedText<80>(row.text(1)));
}

std::string marked(char questionable, const FixedText<80>& name)
{
    return (questionable == 'Y' ? "?" : "") + name.str();
}

} // namespace

IGDZone::IGDZone(int igd_type, long topId, long baseId, char questionableUpper, const char* upper,
    char questionableLower, const char* lower)
    : IGDBase(igd_type, 0, 0)
    , top_id(topId)
    , base_id(baseId)
    , q_uzone(questionableUpper)
    , q_lzone(questionableLower)
    , upp_inf(upper)
    , low_inf(lower)
    , modifier(currentUserAbr.view())
{
}

IGDZone::IGDZone(int igd_type, float top, float base, char questionableUpper, const char* upper,
    char questionableLower, const char* lower)
    : IGDBase(igd_type, top, base)
    , q_uzone(questionableUpper)
    , q_lzone(questionableLower)
    , upp_inf(upper)
    , low_inf(lower)
    , modified(Date::Today())
{
}

void IGDZone::copyFrom(const IGDZone& other)
{
    setType(other.type());
    setTop(other.getTop(0));
    setBase(other.getBase(0));
    setHier(other.hier());
    top_id = other.top_id;
    base_id = other.base_id;
    top_bnd = other.top_bnd;
    base_bnd = other.base_bnd;
    sch_id = other.sch_id;
    q_uzone = other.q_uzone;
    q_lzone = other.q_lzone;
    upp_zone = other.upp_zone;
    low_zone = other.low_zone;
    upp_inf = other.upp_inf;
    low_inf = other.low_inf;
    sep = other.sep;
    top_analy = other.top_analy;
    base_analy = other.base_analy;
    modified = other.modified;
    modifier = other.modifier;
    upper_ = {"", other.upper_.colour, false};
    lower_ = {"", other.lower_.colour, false};
}

std::string IGDZone::label() const
{
    std::string text = upp_inf.empty() ? "" : marked(q_uzone, upp_inf);
    if (low_inf.empty() && sep == "-")
        return text;
    if (!text.empty())
        text += sep.empty() ? " - " : " " + sep.str() + " ";
    return text + marked(q_lzone, low_inf);
}

const char* IGDZone::abbreviation(
    Term& term, const FixedText<80>& stored, const char* select, long igd_id)
{
    if (term.abr.empty() && igd_id != 0) {
        Cursor row(fromTerm(select, igd_id));
        if (row && row.next()) {
            const std::string name = row.text(1);
            if (stored.empty() || stored == name)
                term.abr = row.text(2);
        }
    }
    return term.abr.empty() ? stored.c_str() : term.abr.c_str();
}

const char* IGDZone::upperName(int abbreviated)
{
    return abbreviated ? abbreviation(upper_, upp_inf, "SELECT name, abr FROM ", upp_zone)
                       : upp_inf.c_str();
}

const char* IGDZone::lowerName(int abbreviated)
{
    if (!abbreviated)
        return low_inf;
    if (low_zone == upp_zone)
        return ""; // one term, which stands above already
    return abbreviation(lower_, low_inf, "SELECT name,abr FROM ", low_zone);
}

long IGDZone::upperNameFromDictionary(char* buffer) const
{
    buffer[0] = '\0';
    if (upp_zone != 0)
        dictionaryName(buffer, upp_zone);
    return upp_zone;
}

long IGDZone::lowerNameFromDictionary(char* buffer) const
{
    buffer[0] = '\0';
    if (low_zone != 0 && low_zone != upp_zone)
        dictionaryName(buffer, low_zone);
    return low_zone;
}

Colour IGDZone::fetchedColour(Term& term, long igd_id)
{
    if (term.colourFetched || igd_id == 0)
        return term.colour; // a term that is set later is still asked for
    term.colourFetched = true;
    Cursor row(fromTerm("SELECT red,green,blue FROM ", igd_id));
    if (row && row.next())
        term.colour = whiteForBlack(colourFrom(row, 1));
    return term.colour;
}

Colour IGDZone::getUpperColour() { return fetchedColour(upper_, upp_zone); }

Colour IGDZone::getLowerColour() { return fetchedColour(lower_, low_zone); }

const char* IGDZone::separatorText(int spaced) const
{
    static ResultText result;
    return result.keep(spaced ? " " + sep.str() + " " : sep.str());
}

int rankOf(const IGDBase& record)
{
    const auto* zone = dynamic_cast<const IGDZone*>(&record);
    return zone ? zone->hier() : 0;
}
