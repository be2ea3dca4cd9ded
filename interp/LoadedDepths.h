// interp/LoadedDepths.h
#pragma once

class IGDList;
class Well;

// Depths on their way from the database into a list: in the unit of the list.

/// 1 in a well that runs deepest first, whose records have negated depths; else 0.
int negates(const Well& well);
/// The depth of a sample, negated where the well says so; 0.0 when the database has no such sample.
/// One that the well has not got is read into it.
float depthOfSample(const IGDList& list, Well& well, long samp_id);
/// A depth that was stored in metres.
float depthFromMetres(const IGDList& list, double metres);
