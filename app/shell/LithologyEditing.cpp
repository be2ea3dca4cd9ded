// app/shell/LithologyEditing.cpp
#include "app/shell/LithologyEditing.h"

#include "app/shell/CollectedReports.h"
#include "app/shell/TypedDepth.h"
#include "app/shell/ZoneConflicts.h"
#include "db/Session.h"
#include "db/Units.h"
#include "interp/IntLithZone.h"
#include "interp/LithQualifier.h"
#include "store/Value.h"
#include "util/TextUtil.h"
#include "well/Well.h"

#include <cmath>
#include <optional>

namespace {

constexpr char kMetres = 'M';
constexpr float kThinnest = 0.0099f; // metres: a hundredth, as it comes out in single precision

bool isQualifier(char kind) { return kind == 'A' || kind == 'Q' || kind == 'S'; }

/// The names of a record's rock, as they are stored.
struct RockNames {
    std::string descr;
    std::string abr;
};

template <typename Rock> RockNames namesOf(const Rock& rock)
{
    return {rock.descr.str(), rock.abr.str()};
}

struct Said {
    long lith_id;
    RockNames names;
};

Said saidBy(const IGDBase& record)
{
    if (lithologyKind(record) == LithDicTerm::kMainLithology) {
        const auto& rock = static_cast<const IntLithZone&>(record);
        return {rock.lith_id, namesOf(rock)};
    }
    const auto& qualifier = static_cast<const LithQualifier&>(record);
    return {qualifier.lith_id, namesOf(qualifier)};
}

bool isRowOf(const StoredLithology& row, const LithQualifier& qualifier, int negate)
{
    return static_cast<float>(row.top) == qualifier.getTop(negate)
        && static_cast<float>(row.base) == qualifier.getBase(negate)
        && row.lith_id == qualifier.lith_id && row.kind == qualifier.qualType()
        && static_cast<float>(row.place) == qualifier.plotpos();
}

/// Takes the record out of the list that holds it.
void destroy(IGDList& list, const IGDBase& record)
{
    list.reset();
    while (const IGDBase* at = list.next()) {
        if (at != &record)
            continue;
        list.remove();
        delete at;
        list.setChanged(1); // which a removal is not to the list
        return;
    }
}

} // namespace

LithologyEditing::Edited::Edited(Well& well, int igd_type, StoredLithologies (*rows)(long well_id))
    : read(rows)
    , before(rows(well.well_id))
    , list(igd_type, 0, 0, &well, kMetres, 0, 0, nullptr)
    , count(list.count())
{
}

bool LithologyEditing::Edited::isWhole() const
{
    return list.isComplete() && before && static_cast<int>(before->size()) == count;
}

LithologyEditing::LithologyEditing(Well& well)
    : negate_(isSection(well))
    , rocks_(well, IntLithZone::kType, storedRocks)
    , qualifiers_(well, LithQualifier::kType, storedQualifiers)
{
    noteTexts();
}

LithologyEditing::~LithologyEditing() = default;

std::vector<const LithDicTerm*> LithologyEditing::termsOf(char kind)
{
    std::vector<const LithDicTerm*> terms;
    for (const LithDicTerm* term : dictionary().terms) {
        const bool fits =
            kind == LithDicTerm::kMainLithology ? !isQualifier(term->kind) : term->kind == kind;
        if (fits && term->active)
            terms.push_back(term);
    }
    return terms;
}

LithologyInput LithologyEditing::inputOf(const IGDBase& record, char units) const
{
    constexpr int kAsHeld = 0;
    return {lithologyKind(record), shownDepth(record.getTop(kAsHeld), units),
        shownDepth(record.getBase(kAsHeld), units), saidBy(record).lith_id};
}

std::vector<std::string> LithologyEditing::saidOf(const IGDBase& record, char units) const
{
    std::vector<std::string> said;
    for (const IGDBase* at : qualifiers_.list) {
        const bool meets = at->getTop(0) <= record.getBase(0) && at->getBase(0) >= record.getTop(0);
        if (at == &record || !meets)
            continue;
        const std::string kind(lithologyKindName(lithologyKind(*at)));
        said.push_back(kind + " " + shownText(at->label()) + ", "
            + shownSpan(at->getTop(0), at->getBase(0), units));
    }
    return said;
}

LithologyEdit LithologyEditing::add(const LithologyInput& input, char units)
{
    return put(input, nullptr, units);
}

LithologyEdit LithologyEditing::change(
    const IGDBase& record, const LithologyInput& input, char units)
{
    LithologyInput same = input;
    same.kind = lithologyKind(record);
    return put(same, &record, units);
}

void LithologyEditing::remove(const IGDBase& record)
{
    texts_.erase(&record);
    destroy(editedOf(lithologyKind(record)).list, record);
}

std::string LithologyEditing::save(char units)
{
    std::string reason = refusal(units);
    if (!reason.empty())
        return reason;
    for (Edited* edited : {&rocks_, &qualifiers_}) {
        if (reason.empty() && edited->list.changed())
            reason = store(*edited);
    }
    return reason;
}

LithologyEditing::Edited& LithologyEditing::editedOf(char kind)
{
    return kind == LithDicTerm::kMainLithology ? rocks_ : qualifiers_;
}

LithDictionary& LithologyEditing::dictionary()
{
    if (!dictionary_)
        dictionary_ = std::make_unique<LithDictionary>();
    return *dictionary_;
}

/// The lists name a qualifier after its rock, so its text is known from its row alone.
void LithologyEditing::noteTexts()
{
    if (!qualifiers_.before)
        return;
    for (const StoredLithology& row : *qualifiers_.before) {
        if (row.text.empty())
            continue;
        for (const IGDBase* record : qualifiers_.list) {
            const auto& qualifier = static_cast<const LithQualifier&>(*record);
            if (isRowOf(row, qualifier, negate_) && texts_.try_emplace(record, row.text).second)
                break;
        }
    }
}

LithologyEdit LithologyEditing::put(
    const LithologyInput& input, const IGDBase* replaced, char units)
{
    LithologyEdit edit;
    const Depths depths = readDepths(input, replaced, units, edit.faults);
    std::unique_ptr<IGDBase> record = makeRecord(input, depths, replaced);
    if (!record)
        edit.faults.push_back({LithologyField::Rock, "Choose what it is."});
    if (!edit.faults.empty())
        return edit;
    const std::string conflict = conflictOf(*record, replaced, units);
    if (!conflict.empty()) {
        edit.faults.push_back({LithologyField::All, conflict});
        return edit;
    }
    const auto text = texts_.find(replaced);
    if (text != texts_.end())
        texts_.emplace(record.get(), text->second); // or saving would lose it unasked
    if (replaced)
        remove(*replaced);
    edit.record = record.get();
    editedOf(input.kind).list.insert(record.release());
    return edit;
}

/// Null without a term.
std::unique_ptr<IGDBase> LithologyEditing::makeRecord(
    const LithologyInput& input, const Depths& depths, const IGDBase* replaced)
{
    RockNames names;
    if (const LithDicTerm* term = dictionary().findTerm(input.lith_id))
        names = namesOf(*term);
    else if (replaced && saidBy(*replaced).lith_id == input.lith_id)
        names = saidBy(*replaced).names; // no term of the dictionary, but the record's own
    else
        return nullptr;
    const char* const descr = names.descr.c_str();
    if (input.kind == LithDicTerm::kMainLithology)
        return std::make_unique<IntLithZone>(
            depths.top, depths.base, input.lith_id, descr, names.abr.c_str());
    const auto* before = static_cast<const LithQualifier*>(replaced);
    auto qualifier = std::make_unique<LithQualifier>(depths.top, depths.base, input.kind,
        before ? before->plotpos() : 0.0f, input.lith_id, descr, names.abr.c_str());
    if (before)
        qualifier->setAlignment(before->alignment());
    return qualifier;
}

/// As the lists hold them; of no meaning when there are faults.
LithologyEditing::Depths LithologyEditing::readDepths(const LithologyInput& input,
    const IGDBase* replaced, char units, std::vector<LithologyFault>& faults) const
{
    const auto read = [&](const std::string& text, LithologyField field) {
        const std::optional<float> typed = typedDepth(text);
        if (!typed)
            faults.push_back({field,
                trimmedRight(text).empty() ? "A depth is missing."
                                           : "\"" + text + "\" is not a number."});
        return typed ? meantDepth(*typed, replaced, units) : 0.0f;
    };
    const Depths depths{
        read(input.top, LithologyField::Top), read(input.base, LithologyField::Base)};
    if (!faults.empty())
        return depths;
    const bool isPoint = input.kind != LithDicTerm::kMainLithology && depths.top == depths.base;
    if (depths.base < depths.top)
        faults.push_back({LithologyField::Base,
            negate_ ? "The base lies above the top: in a section depths are read upwards."
                    : "The base lies above the top."});
    else if (!isPoint && depths.base - depths.top < kThinnest)
        faults.push_back({LithologyField::Base, "Nothing lies between the top and the base."});
    return depths;
}

/// A boundary is typed as the screen shows it, which is not all of it: in feet it would become
/// another depth, and overlap what it was to meet.
float LithologyEditing::meantDepth(float typed, const IGDBase* replaced, char units) const
{
    const float metres = toMetres(typed, units);
    const float held = negate_ ? -metres : metres;
    const std::string shown = shownDepth(held, units);
    std::optional<float> boundary;
    const auto look = [&](float at) {
        const bool nearer = !boundary || std::abs(at - held) < std::abs(*boundary - held);
        if (nearer && shownDepth(at, units) == shown)
            boundary = at;
    };
    if (replaced) {
        look(replaced->getTop(0));
        look(replaced->getBase(0));
    }
    for (const IGDList* list : {&rocks_.list, &qualifiers_.list}) {
        for (const IGDBase* record : *list) {
            look(record->getTop(0));
            look(record->getBase(0));
        }
    }
    return boundary.value_or(held);
}

std::string LithologyEditing::conflictOf(IGDBase& record, const IGDBase* replaced, char units) const
{
    if (record.type() != IntLithZone::kType)
        return {};
    const auto conflict = conflictWith(rocks_.list, record, replaced);
    if (!conflict)
        return {};
    const IGDBase& other = *conflict->second;
    return "It would overlap " + shownText(other.label()) + ", "
        + shownSpan(other.getTop(0), other.getBase(0), units) + ".";
}

std::string LithologyEditing::refusal(char units) const
{
    std::string reason = refusalOfRocks(units);
    return reason.empty() ? refusalOfQualifiers(units) : reason;
}

std::string LithologyEditing::refusalOfRocks(char units) const
{
    if (!rocks_.list.changed())
        return {};
    const StoredLithologies unknown = storedUnknownRocks(rocks_.list.well_id());
    if (!unknown)
        return "The rocks of the well could not be read; nothing was saved.";
    if (unknown->empty())
        return refusalOf(rocks_);
    const StoredLithology& first = unknown->front();
    const float top = static_cast<float>(first.top), base = static_cast<float>(first.base);
    return "Saving would delete the interval "
        + shownSpan(negate_ ? -top : top, negate_ ? -base : base, units)
        + ": the lithology dictionary does not have its rock, number "
        + std::to_string(first.lith_id) + ". Nothing was saved.";
}

std::string LithologyEditing::refusalOfQualifiers(char units) const
{
    if (!qualifiers_.list.changed())
        return {};
    for (const IGDBase* record : qualifiers_.list) {
        const auto text = texts_.find(record);
        if (text != texts_.end())
            return "Saving would lose the text \"" + shownText(text->second) + "\" of the interval "
                + shownSpan(record->getTop(0), record->getBase(0), units)
                + ", which cannot be saved. Nothing was saved.";
    }
    return refusalOf(qualifiers_);
}

std::string LithologyEditing::refusalOf(const Edited& edited) const
{
    const std::string title = edited.list.title();
    if (!edited.isWhole())
        return title + " was not read whole, and saving would delete the rest. Nothing was saved.";
    const StoredLithologies now = edited.read(edited.list.well_id());
    if (now != edited.before)
        return title + " was changed in the database since it was read. Nothing was saved.";
    return {};
}

std::string LithologyEditing::store(Edited& edited) const
{
    constexpr char kOfList = 0;
    CollectedReports reports;
    edited.list.save(kOfList, negate_);
    std::string told;
    for (const std::string& text : reports.take())
        told += "\n" + text;
    const bool failed = edited.list.changed() || !told.empty() || !isCommitted(edited);
    if (failed) {
        dbRollback();
        edited.list.setChanged(1); // a commit that does not come about leaves it 0
        return std::string(edited.list.title()) + " could not be saved." + told;
    }
    edited.count = edited.list.count();
    return {};
}

/// A commit does not say whether it came about, but nothing is left to roll back then.
bool LithologyEditing::isCommitted(Edited& edited)
{
    const StoredLithologies written = edited.read(edited.list.well_id());
    dbRollback();
    StoredLithologies kept = edited.read(edited.list.well_id());
    const bool committed = written == kept;
    if (committed)
        edited.before = std::move(kept);
    return committed;
}

std::string LithologyEditing::shownDepth(float held, char units) const
{
    return fixedString(fromMetres(negate_ ? -held : held, units), 2);
}

std::string LithologyEditing::shownSpan(float top, float base, char units) const
{
    return shownDepth(top, units) + " to " + shownDepth(base, units)
        + (units == 'F' ? " ft" : " m");
}

char lithologyKind(const IGDBase& record)
{
    return record.type() == IntLithZone::kType
        ? LithDicTerm::kMainLithology
        : static_cast<const LithQualifier&>(record).qualType();
}

std::string_view lithologyKindName(char kind)
{
    switch (kind) {
    case LithDicTerm::kMainLithology:
        return "rock";
    case 'A':
        return "accessory";
    case 'Q':
        return "qualifier";
    case 'S':
        return "stringer";
    default:
        return "text";
    }
}
