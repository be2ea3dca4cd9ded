// well/TVDepth.h
#pragma once

#include <cstddef>
#include <vector>

/// The way of a deviated well: true vertical depth by measured depth. Metres. Points are in the
/// order of their measured depths. What it gives is a number for every depth that is one; points
/// that are no finite numbers are never taken.
class TVDepth {
public:
    /// Empty, with room for that many points.
    explicit TVDepth(int mostPoints);

    /// No points, and no trace of those that there were.
    void Clear();
    /// Reads the points of a well in place of those there, as many as there is room for; nothing
    /// for the well 0. After points were added: a report and nothing else. A failed statement is
    /// reported and leaves the points.
    void Load(long wellId);
    /// Adds a point in its place, given in `units`. Nothing is added within 0.009 m of another
    /// measured depth or when the table is full; the table counts as changed all the same.
    void AddPoint(float md, float tvd, char units);
    /// Point `i`, from 0, in `units`; 0 and 0 when there is none.
    void GetPoint(int i, float* md, float* tvd, char units) const;
    /// Between two points in proportion, above the first one in proportion from the surface, below
    /// the last one its value. As it is while there are fewer than two points, and above a first
    /// point that is at the surface. Where several depths fit, the last point that starts there
    /// counts. What is no finite number gives 0.
    float MDtoTVD(float md) const;
    float TVDtoMD(float tvd) const;

    long well_id = 0;
    std::vector<float> ddepth; ///< measured, -9999 where no point is
    std::vector<float> tvdepth;
    int capacity;
    int count = 0;
    int changed = 0; ///< 1 once a point was added

private:
    void put(std::size_t place, float md, float tvd);
    float converted(
        float depth, const std::vector<float>& from, const std::vector<float>& to) const;
};
