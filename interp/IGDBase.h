// interp/IGDBase.h
#pragma once

#include <string>

/// One record of a well's interpretation: an interval, or a single depth. A record that is put into
/// an `IGDList` belongs to it. Depths are in the unit of the list.
class IGDBase {
public:
    IGDBase(int igdType, float topDepth, float baseDepth)
        : igd_type_(igdType)
        , top_(topDepth)
        , base_(baseDepth)
    {
    }
    virtual ~IGDBase();
    IGDBase(const IGDBase&) = delete;
    IGDBase& operator=(const IGDBase&) = delete;

    /// Boundary qualities, 0 where a record has none.
    virtual int topBoundary() const;
    virtual int baseBoundary() const;
    /// What to show for the record; a blank where there is nothing to say.
    virtual std::string label() const;
    virtual float value() const;

    /// The depths, negated when `negate` is not 0.
    float getTop(int negate) const { return negate ? -top_ : top_; }
    float getBase(int negate) const { return negate ? -base_ : base_; }
    void setTop(float depth) { setOrdering(top_, depth); }
    void setBase(float depth) { setOrdering(base_, depth); }

    int type() const { return igd_type_; }
    void setType(int igdType) { igd_type_ = igdType; }

protected:
    /// Every member that the order of a list depends on is set through here.
    template <typename T> void setOrdering(T& member, T value)
    {
        if (listed_ && member != value)
            ++changes_;
        member = value;
    }

private:
    friend class IGDList;

    int igd_type_;
    float top_;
    float base_;
    // Records get their values before a list has them, and that makes no list's index stale.
    bool listed_ = false;
    static inline unsigned long changes_ = 0;
};
