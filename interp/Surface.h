// interp/Surface.h
#pragma once

#include <string>

/// A dated horizon of an interpretation scheme, at which its terms start and end. A value.
struct Surface {
    /// None: the age is 0.
    Surface() = default;
    /// Reads the surface; none without such a row, and after a failure, which is reported.
    explicit Surface(long id);

    long sch_id = 0; ///< IGD_SCH.sch_id
    long surface_id = 0;
    float age = 0; ///< Ma
    std::string name;
    int type = 0;
};
