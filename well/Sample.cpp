// well/Sample.cpp
#include "well/Sample.h"

#include "db/CurrentUser.h"
#include "db/Units.h"
#include "taxonomy/TextArgument.h"
#include "well/SampleType.h"

Sample::Sample(long wellId, long sampId, Interval depths, std::string_view code)
    : well_id(wellId)
    , samp_id(sampId)
    , top(depths.top)
    , base(depths.base)
    , type(code)
    , typeBit(sampleTypeBit(code))
{
}

Sample::Sample(float topDepth, float baseDepth, const char* typeText, char units)
    : Sample(0, 0, Interval(toMetres(topDepth, units), toMetres(baseDepth, units)),
        enteredSampleType(orEmpty(typeText)))
{
    creator = currentUserAbr.view();
    modifier = currentUserAbr.view();
}

Sample::Sample(long wellId, long sampId, float topDepth, const char* typeText, long gridX,
    long gridY, float baseDepth)
    : Sample(wellId, sampId, Interval(topDepth, baseDepth), storedSampleType(orEmpty(typeText)))
{
    grid_x = gridX;
    grid_y = gridY;
    creator = currentUserAbr.view();
    modifier = currentUserAbr.view();
    saved = 1;
}

void Sample::SetType(const char* text)
{
    const FixedText<5> taken(text);
    if (type == taken)
        return;
    type = taken;
    typeBit = TypeBitOf(type);
    saved = 0;
}

void Sample::SetLabel(const char* text)
{
    const FixedText<15> taken(text);
    if (label == taken)
        return;
    label = taken;
    saved = 0;
}

void Sample::SetGrid(long x, long y)
{
    if (grid_x == x && grid_y == y)
        return;
    grid_x = x;
    grid_y = y;
    saved = 0;
}

void Sample::SetCreated(Date date, const char* userAbr, char disc)
{
    created = date;
    if (userAbr && *userAbr)
        creator = userAbr;
    for (Smpdtl* record : details) {
        if (disc == 0 || record->disc == disc)
            record->modified = date;
    }
}

void Sample::SetModified(Date date, const char* userAbr)
{
    modified = date;
    if (userAbr && *userAbr)
        modifier = userAbr;
}

void Sample::ClearMarks() { marks.fill(0); }

long Sample::TypeBitOf(const char* code) { return sampleTypeBit(knownSampleType(orEmpty(code))); }

int Sample::IsKnownType(const char* code) { return sampleTypeBit(orEmpty(code)) != 0; }
