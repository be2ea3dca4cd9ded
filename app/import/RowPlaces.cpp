// app/import/RowPlaces.cpp
#include "app/import/RowPlaces.h"

#include "app/import/Cells.h"

#include <algorithm>

namespace {

constexpr std::size_t kFirstSlots = 64; // a power of two, as all sizes

} // namespace

const RowPlace* FirstRows::before(std::uint64_t hash, const RowPlace& place)
{
    if ((count_ + 1) * 8 > hashes_.size() * 7)
        grow();
    const std::uint32_t number = numberOf(place);
    const std::size_t slot = slotOf(hash);
    if (numbers_[slot] == 0) {
        hashes_[slot] = hash;
        numbers_[slot] = number;
        ++count_;
    }
    if (numbers_[slot] == number)
        return nullptr;
    first_ = placeOf(numbers_[slot]);
    return &first_;
}

// The rows of one file come together, when they are checked and again when they are stored.
std::uint32_t FirstRows::numberOf(const RowPlace& place)
{
    auto file = std::ranges::find(files_, place.file, &FileStart::file);
    if (file == files_.end())
        file = files_.insert(files_.end(), {place.file, last_});
    const auto number = static_cast<std::uint32_t>(file->start + place.line);
    last_ = std::max(last_, number);
    return number;
}

RowPlace FirstRows::placeOf(std::uint32_t number) const
{
    const auto behind = std::ranges::lower_bound(files_, number, {}, &FileStart::start);
    const FileStart& file = *(behind - 1);
    return {file.file, static_cast<long>(number - file.start)};
}

std::size_t FirstRows::slotOf(std::uint64_t hash) const
{
    const std::size_t mask = hashes_.size() - 1;
    std::size_t slot = hash & mask;
    while (numbers_[slot] != 0 && hashes_[slot] != hash)
        slot = (slot + 1) & mask;
    return slot;
}

void FirstRows::grow()
{
    const auto hashes = std::move(hashes_);
    const auto numbers = std::move(numbers_);
    const std::size_t size = std::max(kFirstSlots, hashes.size() * 2);
    hashes_.assign(size, 0);
    numbers_.assign(size, 0);
    for (std::size_t i = 0; i < hashes.size(); ++i)
        if (numbers[i] != 0) {
            const std::size_t slot = slotOf(hashes[i]);
            hashes_[slot] = hashes[i];
            numbers_[slot] = numbers[i];
        }
}

bool takeFileNumber(CellReader& cells, int column, FileIds& ids, FileId** out)
{
    *out = nullptr;
    const std::string id(cells.raw(column));
    if (id.empty())
        return true;
    const RowPlace place{&cells.file(), cells.line()};
    const auto [known, isNew] = ids.try_emplace(id, FileId{place, 0});
    if (!isNew && known->second.place != place) {
        cells.refuse(
            column, "this number is in " + known->second.place.seenFrom(cells.file()) + " already");
        return false;
    }
    *out = &known->second;
    return true;
}
