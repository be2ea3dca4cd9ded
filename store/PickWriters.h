// store/PickWriters.h
#pragma once

#include "store/NamedEntries.h"
#include "store/Outcome.h"
#include "store/TableWriter.h"

/// What a row says of a dated surface beside its name.
struct SurfaceRecord {
    std::optional<Value> schemeId; ///< IGD_SCH.sch_id, whose term ages the surface marks
    std::optional<Value> age;      ///< Ma
    std::optional<Value> type;
};

/// Brings surfaces in (SURFACE), known by their names.
class SurfaceWriter {
public:
    explicit SurfaceWriter(Writing writing);

    bool load() { return surfaces_.load(); }
    NamedEntry* find(const std::string& name) { return surfaces_.find(name); }
    NamedEntry* add(const std::string& name) { return surfaces_.add(name); }
    Outcome put(NamedEntry& surface, const SurfaceRecord& record);

    std::string error() const;

private:
    Writing writing_;
    TableWriter table_;
    NamedEntries surfaces_;
};

/// A surface picked at a sample. Columns that are not set are left as they are.
struct PickRecord {
    long wellId = 0;
    long sampleId = 0;
    long surfaceId = 0;
    std::optional<Value> comment;
    std::optional<Value> boundary; ///< quality [1-7]; a new pick without one is confident
    std::optional<Value> qualifier;
};

/// Brings picks into the default interpretation (SQPICK), found by sample and surface.
class PickWriter {
public:
    explicit PickWriter(Writing writing);

    Outcome put(const PickRecord& record);

    const std::string& error() const { return table_.error(); }

private:
    Writing writing_;
    TableWriter table_;
};
