// well/SampleIdIndex.cpp
#include "well/SampleIdIndex.h"

#include "well/Sample.h"

Sample* SampleIdIndex::find(long samp_id)
{
    if (!isCurrent())
        refresh();
    const auto found = first_.find(samp_id);
    return found == first_.end() ? nullptr : found->second;
}

bool SampleIdIndex::isCurrent() const
{
    return made_ && revision_ == list_.revision() && changes_ == Sample::Identifier::changes();
}

void SampleIdIndex::added(Sample* s)
{
    // Which of two comes first in the list is not known here.
    if (s->samp_id != 0 && !first_.emplace(s->samp_id, s).second)
        made_ = false;
    else
        noteState();
}

void SampleIdIndex::removed(const Sample* s)
{
    if (repeated_) {
        made_ = false;
        return;
    }
    first_.erase(s->samp_id);
    noteState();
}

void SampleIdIndex::refresh()
{
    first_.clear();
    repeated_ = false;
    for (Sample* s : list_) {
        if (s->samp_id != 0 && !first_.emplace(s->samp_id, s).second)
            repeated_ = true;
    }
    made_ = true;
    noteState();
}

void SampleIdIndex::noteState()
{
    revision_ = list_.revision();
    changes_ = Sample::Identifier::changes();
}
