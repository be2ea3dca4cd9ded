// well/SampleDetails.cpp
#include "db/CurrentUser.h"
#include "db/ErrorReporter.h"
#include "taxonomy/Disciplines.h"
#include "taxonomy/TextArgument.h"
#include "well/Sample.h"

#include <algorithm>
#include <memory>
#include <string>

namespace {

std::unique_ptr<Smpdtl> madeRecord(char disc, const char* analyst, Date changed)
{
    auto record = std::make_unique<Smpdtl>();
    record->disc = disc;
    record->analyst = analyst;
    record->modified = changed;
    return record;
}

} // namespace

AnalystKey analystKey(std::string_view abr, long analy_no)
{
    std::string key(abr);
    if (analy_no > 1)
        key += "/" + std::to_string(analy_no);
    return AnalystKey(key);
}

Smpdtl* Sample::FindDetails(char disc, const char* analyst) const
{
    const auto found = std::find_if(
        details.begin(), details.end(), [disc, key = orEmpty(analyst)](const Smpdtl* record) {
            return record->disc == disc && record->isBy(key);
        });
    return found == details.end() ? nullptr : *found;
}

int Sample::HasAnalyst(const char* analyst) const
{
    return std::any_of(details.begin(), details.end(),
        [key = orEmpty(analyst)](const Smpdtl* record) { return record->analyst == key; });
}

int Sample::IsDisciplineBarren(char disc) const
{
    return std::any_of(details.begin(), details.end(),
        [disc](const Smpdtl* record) { return record->disc == disc && record->barren == 'Y'; });
}

/// Puts `made` behind the others, in place of the first record that its discipline and `analyst`
/// name. The texts that `made` was filled from may lie in that one.
Smpdtl* Sample::replaceDetails(std::unique_ptr<Smpdtl> made, const char* analyst)
{
    const Smpdtl* old = FindDetails(made->disc, analyst);
    details.destroyIf([old](const Smpdtl& record) { return &record == old; });
    details.push(made.get());
    return made.release();
}

Smpdtl* Sample::AddDetails(char disc, const char* analyst, const char* picker, const char* source,
    const char* notes, char barren)
{
    auto record = madeRecord(disc, analyst, Date::Today());
    record->picker = picker;
    record->source = source;
    record->notes = notes;
    record->modifier = currentUserAbr.view();
    record->barren = barren;
    saved = 0;
    return replaceDetails(std::move(record), analyst);
}

Smpdtl* Sample::AddDetailsFromDb(char disc, const char* analyst, const char* picker,
    const char* source, char barren, Date changed, const char* changedBy)
{
    auto record = madeRecord(disc, analyst, changed);
    record->picker = picker;
    record->source = source;
    record->modifier = changedBy;
    record->barren = barren;
    record->inDb = 1;
    detailsLoaded[discIndex(disc)] = 1;
    return replaceDetails(std::move(record), analyst);
}

void Sample::UpdDtl(char disc, const char* analyst, const char* picker, const char* source,
    char barren, Date changed, const char* changedBy)
{
    Smpdtl* record = FindDetails(disc, analyst);
    if (!record) {
        reportFatal(std::string("Cannot find sample details in Sample::UpdDtl, sample=")
            + DepthLabelInReports());
        return;
    }
    record->picker = picker;
    record->source = source;
    record->modifier = changedBy;
    record->modified = changed;
    record->barren = barren;
    record->weight = record->coarse = record->medium = record->fine = 0;
    record->notes.clear();
}

void Sample::SetNotes(char disc, const char* analyst, const char* notes)
{
    Smpdtl* record = FindDetails(disc, analyst);
    if (!record) {
        record = madeRecord(disc, "", Date::Today()).release();
        record->inDb = 1;
        detailsLoaded[discIndex(disc)] = 1;
        details.push(record);
    }
    record->notes = notes;
}

void Sample::AppendNotes(char disc, const char* analyst, const char* text)
{
    Smpdtl* record = FindDetails(disc, analyst);
    // Room for the blank alone is no room.
    if (record && record->notes.size() + 1 < decltype(record->notes)::capacity())
        record->notes = record->notes.str() + " " + std::string(orEmpty(text));
}

void Sample::SetWeight(char disc, const char* analyst, float weight)
{
    if (Smpdtl* record = FindDetails(disc, analyst))
        record->weight = weight;
}

void Sample::SetSplitFactors(char disc, const char* analyst, float coarse, float medium, float fine)
{
    Smpdtl* record = FindDetails(disc, analyst);
    if (!record) {
        reportError("Attempt to add split factors when no details present");
        return;
    }
    record->coarse = coarse;
    record->medium = medium;
    record->fine = fine;
}

Smpdtl* Sample::SetBarren(char disc, const char* analyst, int flag)
{
    Smpdtl* record = FindDetails(disc, analyst);
    if (record) {
        record->barren = flag ? 'Y' : 'N';
        record->inDb = 0;
    }
    return record;
}

void Sample::SetDetailsModified(
    char disc, const char* analyst, Date date, const char* userAbr, int force)
{
    Smpdtl* record = FindDetails(disc, analyst);
    if (!record)
        return;
    if (force || !record->modified.isValid())
        record->modified = date;
    if (force || record->modifier.empty())
        record->modifier = userAbr;
    record->inDb = 0;
}

void Sample::RemoveDetails(char disc, const char* analyst)
{
    details.destroyIf([this, disc, key = std::string(orEmpty(analyst))](const Smpdtl& record) {
        const bool unwanted = record.disc == disc && record.isBy(key);
        if (unwanted)
            occSaved[discIndex(disc)] = 1;
        return unwanted;
    });
    detailsLoaded[discIndex(disc)] = 0;
}

void Sample::ChangeDiscipline(char oldDisc, char newDisc, const char* analyst)
{
    Smpdtl* record = FindDetails(oldDisc, analyst);
    if (!record)
        return;
    record->disc = newDisc;
    occSaved[discIndex(oldDisc)] = 0;
    occSaved[discIndex(newDisc)] = 0;
}

void Sample::ProximalDistal(long* minProximal, long* maxDistal) const
{
    *minProximal = *maxDistal = 0;
    for (const Smpdtl* record : details) {
        if (record->proximal > 0 && (*minProximal == 0 || record->proximal < *minProximal))
            *minProximal = record->proximal;
        *maxDistal = std::max(*maxDistal, record->distal);
    }
}
