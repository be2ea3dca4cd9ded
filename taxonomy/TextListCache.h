// taxonomy/TextListCache.h
#pragma once

#include "db/Cursor.h"
#include "util/FixedText.h"

#include <array>
#include <cstddef>
#include <string>

/// A short list of texts that lives as long as the process, ended by a null pointer: loaded when
/// first asked for and again on request. The texts stay at their places; a reload writes over them.
template <std::size_t Entries, std::size_t Room> class TextListCache {
public:
    const char* const* texts() const { return pointers_.data(); }

    bool needsLoad(int reload) const { return mustLoad_ || reload != 0; }

    /// Reads the rows of `sql`, as many as there is room for, through `compose`. False after a
    /// failed statement, which is not reported; the list is empty then.
    template <typename Compose> bool load(const std::string& sql, Compose compose)
    {
        mustLoad_ = false;
        pointers_.fill(nullptr);
        Cursor row(sql);
        if (!row)
            return false;
        for (std::size_t i = 0; i < Entries && row.next(); ++i) {
            texts_[i] = compose(row);
            pointers_[i] = texts_[i].c_str();
        }
        return true;
    }

private:
    std::array<FixedText<Room>, Entries> texts_;
    std::array<const char*, Entries + 1> pointers_{};
    bool mustLoad_ = true;
};
