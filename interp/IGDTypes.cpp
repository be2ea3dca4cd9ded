// interp/IGDTypes.cpp
#include "interp/IGDTypes.h"

#include "taxonomy/Disciplines.h"
#include "taxonomy/TextArgument.h"
#include "util/FixedText.h"
#include "util/TextUtil.h"

#include <algorithm>
#include <iterator>
#include <string>

namespace {

/// Where a name leads: some codes share a name, which then stands for one of them only.
enum class Reads { BothWays, AsName, AsCode };

struct TypeRow {
    int igd_type;
    const char* name;
    Reads reads = Reads::BothWays;
};

constexpr TypeRow kTypes[] = {
    {1, "Lithology"},
    {2, "Lithostratigraphy"},
    {3, "Chronostratigraphy"},
    {4, "Biozone", Reads::AsCode},
    {5, "Palaeoenvironment"},
    {8, "Core"},
    {10, "Sequence"},
    {11, "Casing"},
    {12, "Interval Lithology"},
    {13, "Lithology Qualifiers"},
    {13, "Lithology Accessory", Reads::AsCode},
    {13, "Lithology Qualifier", Reads::AsCode},
    {13, "Lithology Stringer", Reads::AsCode},
    {15, "Micro. Comments", Reads::AsName},
    {16, "Nanno. Comments", Reads::AsName},
    {17, "Paly Comments", Reads::AsName},
    {18, "Macro. Comments", Reads::AsName},
    {19, "Biostrat. Comments", Reads::AsName},
    {41, "Biozone", Reads::AsName},
    {42, "Biozone", Reads::AsName},
    {43, "Biozone", Reads::AsName},
    {44, "Biozone", Reads::AsName},
};

constexpr int kFirstBiozone = 41;

enum class Form { Either, Long, Short };
enum class Ranks { This, All };

struct ColumnRow {
    int igd_type; ///< the first of 41 to 44 stands for them all
    int hier;     ///< what the name is read as
    const char* name;
    Form form = Form::Either;
    Ranks named = Ranks::This; ///< which ranks have the name
};

// In the order in which a name of any type is looked for.
constexpr ColumnRow kColumns[] = {
    {3, 1, "Eon", Form::Long},
    {3, 2, "Era", Form::Long},
    {3, 3, "Period", Form::Long},
    {3, 4, "Sub Period", Form::Long},
    {3, 5, "Epoch", Form::Long},
    {3, 6, "Sub Epoch", Form::Long},
    {3, 7, "Age", Form::Long},
    {3, 8, "Sub Age", Form::Long},
    {3, 1, "Period/Epoch", Form::Short},
    {3, 2, "Age", Form::Short, Ranks::All},
    {2, 1, "Group"},
    {2, 2, "Formation"},
    {2, 3, "Member"},
    {2, 4, "Bed"},
    {kFirstBiozone, 1, "Scheme"},
    {kFirstBiozone, 2, "Super Zone"},
    {kFirstBiozone, 3, "Zone"},
    {kFirstBiozone, 4, "Sub Zone"},
    {10, 1, "Sequence", Form::Either, Ranks::All},
    {12, 1, "Interval Lithology", Form::Either, Ranks::All},
    {1, 1, "Lithology", Form::Either, Ranks::All},
    // The kinds of qualifiers are their ranks.
    {13, 'A', "Lithology Accessory"},
    {13, 'Q', "Lithology Qualifier"},
    {13, 'S', "Lithology Stringer"},
    {5, 1, "Palaeoenvironment", Form::Either, Ranks::All},
    {8, 1, "Core", Form::Either, Ranks::All},
    {11, 1, "Casing", Form::Either, Ranks::All},
};

struct BoundaryRow {
    int code;
    const char* name;
};

constexpr BoundaryRow kBoundaries[] = {
    {1, "Possible"},
    {2, "Probable"},
    {3, "Confident"},
    {4, "Unconformable"},
    {5, "?Unconformable"},
    {6, "Fault"},
    {7, "?Fault"},
};

/// The first row of a table of which something holds, or null.
template <typename Row, std::size_t N, typename Is>
const Row* firstRow(const Row (&table)[N], Is is)
{
    const Row* row = std::find_if(std::begin(table), std::end(table), is);
    return row == std::end(table) ? nullptr : row;
}

std::string disciplineBiozone(const Discs& disciplines, int number)
{
    return disciplines[number].adj.str() + " Biozone";
}

int disciplineBiozoneCode(std::string_view name)
{
    const Discs disciplines;
    for (int number = 0; number < kDisciplines; ++number) {
        if (name == disciplineBiozone(disciplines, number))
            return kFirstBiozone + number;
    }
    return 0;
}

/// The type whose rows tell of the ranks of `igd_type`.
int columnType(int igd_type) { return isDisciplineBiozone(igd_type) ? kFirstBiozone : igd_type; }

bool hasForm(const ColumnRow& row, int longForm)
{
    return row.form == Form::Either || row.form == (longForm ? Form::Long : Form::Short);
}

} // namespace

const char* typeName(int igd_type, int withDiscipline)
{
    static ResultText result;
    if (withDiscipline && isDisciplineBiozone(igd_type))
        return result.keep(disciplineBiozone(Discs(), igd_type - kFirstBiozone));
    const TypeRow* row = firstRow(kTypes, [igd_type](const TypeRow& type) {
        return type.igd_type == igd_type && type.reads != Reads::AsCode;
    });
    return row ? row->name : "****UNKNOWN TYPE****";
}

int typeCode(const char* name)
{
    const std::string_view text = orEmpty(name);
    const TypeRow* row = firstRow(kTypes,
        [text](const TypeRow& type) { return type.name == text && type.reads != Reads::AsName; });
    return row ? row->igd_type : disciplineBiozoneCode(text);
}

const char* columnName(int igd_type, int hier, int longForm)
{
    const int type = columnType(igd_type);
    const ColumnRow* row = firstRow(kColumns, [=](const ColumnRow& column) {
        return column.igd_type == type && hasForm(column, longForm)
            && (column.named == Ranks::All || column.hier == hier);
    });
    return row ? row->name : "****UNKNOWN COLUMN****";
}

int columnRank(int igd_type, const char* name, int longForm)
{
    const int type = columnType(igd_type);
    const std::string_view text = orEmpty(name);
    const ColumnRow* row = firstRow(kColumns, [=](const ColumnRow& column) {
        return (type == 0 || column.igd_type == type) && hasForm(column, longForm)
            && compareIgnoringCase(column.name, text) == 0;
    });
    return row ? row->hier : 0;
}

const char* boundaryName(int code)
{
    const BoundaryRow* row = firstRow(
        kBoundaries, [code](const BoundaryRow& boundary) { return boundary.code == code; });
    return row ? row->name : "***BOUNDARY TYPE ERROR****";
}

int boundaryCode(const char* name)
{
    const std::string_view text = orEmpty(name);
    const BoundaryRow* row = firstRow(kBoundaries, [text](const BoundaryRow& boundary) {
        return compareIgnoringCase(boundary.name, text) == 0;
    });
    return row ? row->code : 0;
}

bool isDisciplineBiozone(int igd_type)
{
    return igd_type >= kFirstBiozone && igd_type < kFirstBiozone + kDisciplines;
}
