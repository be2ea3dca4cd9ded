// platform/desktopdb/Handles.h
#pragma once

#include <array>
#include <atomic>
#include <cstdint>
#include <memory>
#include <mutex>
#include <vector>

namespace desktopdb {

/// Turns objects into ODBC handles and back. A handle is a slot number with a generation, not an
/// address: a stale, foreign or made-up handle is recognised without touching freed memory.
/// Finding takes no lock; adding and removing do. The table points only, it owns nothing.
template <class T> class HandleTable {
public:
    /// A handle for `object`; null when all slots are taken.
    void* add(T* object)
    {
        const std::lock_guard lock(mutex_);
        const std::uint32_t index = takeSlot();
        if (index == kNoSlot)
            return nullptr;
        Slot& slot = at(index);
        slot.object.store(object, std::memory_order_release);
        return asHandle(index, slot.generation.load(std::memory_order_relaxed));
    }

    /// The object behind `handle`, or null when the handle is none of this table's living ones.
    T* find(void* handle) const
    {
        const auto bits = reinterpret_cast<std::uintptr_t>(handle);
        const auto index = static_cast<std::uint32_t>(bits & 0xffffffffu);
        Slot* chunk = index < kChunks * kChunkSize
            ? chunks_[index / kChunkSize].load(std::memory_order_acquire)
            : nullptr;
        if (!chunk)
            return nullptr;
        Slot& slot = chunk[index % kChunkSize];
        if (asHandle(index, slot.generation.load(std::memory_order_relaxed)) != handle)
            return nullptr;
        return slot.object.load(std::memory_order_acquire);
    }

    /// Forgets a living handle: from here on it is found no more.
    void remove(void* handle)
    {
        const std::lock_guard lock(mutex_);
        const auto index =
            static_cast<std::uint32_t>(reinterpret_cast<std::uintptr_t>(handle) & 0xffffffffu);
        Slot& slot = at(index);
        slot.object.store(nullptr, std::memory_order_release);
        slot.generation.fetch_add(1, std::memory_order_relaxed);
        free_.push_back(index);
    }

private:
    struct Slot {
        std::atomic<T*> object{nullptr};
        std::atomic<std::uint32_t> generation{1}; // 1 keeps slot 0 from being the null handle
    };
    static constexpr std::uint32_t kChunkSize = 256;
    static constexpr std::uint32_t kChunks = 4096;
    static constexpr std::uint32_t kNoSlot = 0xffffffffu;
    static_assert(sizeof(void*) == 8, "a handle packs a slot number and a generation");

    static void* asHandle(std::uint32_t index, std::uint32_t generation)
    {
        // Never followed as an address.
        // NOLINTNEXTLINE(performance-no-int-to-ptr)
        return reinterpret_cast<void*>(std::uintptr_t{generation} << 32 | index);
    }

    Slot& at(std::uint32_t index)
    {
        return chunks_[index / kChunkSize].load(std::memory_order_relaxed)[index % kChunkSize];
    }

    std::uint32_t takeSlot()
    {
        if (free_.empty() && !addChunk())
            return kNoSlot;
        const std::uint32_t index = free_.back();
        free_.pop_back();
        return index;
    }

    bool addChunk()
    {
        if (owned_.size() == kChunks)
            return false;
        const auto first = static_cast<std::uint32_t>(owned_.size()) * kChunkSize;
        owned_.push_back(std::make_unique<Slot[]>(kChunkSize));
        chunks_[first / kChunkSize].store(owned_.back().get(), std::memory_order_release);
        for (std::uint32_t i = kChunkSize; i > 0; --i)
            free_.push_back(first + i - 1);
        return true;
    }

    mutable std::array<std::atomic<Slot*>, kChunks> chunks_{};
    std::vector<std::unique_ptr<Slot[]>> owned_;
    std::vector<std::uint32_t> free_;
    std::mutex mutex_;
};

} // namespace desktopdb
