// schema/Migrations.h
#pragma once

#include <span>
#include <string_view>
#include <vector>

/// What turns tables of the version before into those of `version`.
struct Migration {
    int version;
    std::vector<std::string_view> statements;
};

/// The steps from version 1 to `kSchemaVersion`, in order, one for each version. The version that
/// SCHEMA_INFO holds is not set by them but by whoever runs them. Valid for the life of the
/// process.
std::span<const Migration> migrations();
