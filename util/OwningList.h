// util/OwningList.h
#pragma once

#include "util/GList.h"

/// A list that owns its items: what is in it is destroyed with it, once per entry. An item that is
/// taken out with the operations of `GList` is the caller's.
template <typename T> class OwningList : public TypedList<T> {
public:
    OwningList() = default;
    ~OwningList() { destroyAll(); }

    void destroyAll()
    {
        while (T* item = this->pop())
            delete item;
    }

    /// Takes every item for which `unwanted(item)` holds out and destroys it. The cursor goes to
    /// the end.
    template <typename Predicate> void destroyIf(Predicate unwanted)
    {
        this->reset();
        while (T* item = this->next()) {
            if (unwanted(*item)) {
                this->remove();
                delete item;
            }
        }
    }
};
