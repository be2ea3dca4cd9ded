// well/Litho.h
#pragma once

class Sample;

/// One lithostratigraphic code between two samples of a well. The samples belong to the well's
/// list.
class Litho {
public:
    Litho(Sample* topSample, Sample* baseSample, int code)
        : top(topSample)
        , base(baseSample)
        , lithcode(code)
    {
    }

    /// Writes the code in place of every code that starts at the same top sample or ends at the
    /// same base sample; nothing without both samples. Samples that are not in the database share
    /// the identifier 0 as an end. Does not commit. Failure: fatal report; when a lost connection
    /// was restored, the code is still inserted.
    void save() const;

    Sample* top;  ///< null: not known
    Sample* base; ///< null: not known
    int lithcode;
};
