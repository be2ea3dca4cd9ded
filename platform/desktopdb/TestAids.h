// platform/desktopdb/TestAids.h
#pragma once

#include "platform/desktopdb/Diagnostics.h"
#include "platform/desktopdb/Value.h"

#include <atomic>
#include <string>
#include <string_view>

namespace desktopdb {

// The process-wide side of TestControl.h. May be used from several threads.

/// Reads the environment variables; those that have not changed since are left alone.
void readTestEnvironment();

/// Sets or, with an empty text, ends the fault. False when the text cannot be read.
bool setFault(std::string_view setting);
std::string firedFault();
void setRecordFile(std::string_view path);
std::string recordFile();

namespace testaids {
extern std::atomic<bool> faultSet;
extern std::atomic<bool> recording;
bool countCall(const char* function, Diagnostics* diagnostics);
} // namespace testaids

inline bool isFaultSet() { return testaids::faultSet.load(std::memory_order_relaxed); }
/// Counts a call of `function`; when this is the one to fail, true with the failure noted in
/// `diagnostics`, unless they are null.
inline bool faultStrikes(const char* function, Diagnostics* diagnostics)
{
    return isFaultSet() && testaids::countCall(function, diagnostics);
}

inline bool isRecording() { return testaids::recording.load(std::memory_order_relaxed); }
void recordStatement(std::string_view sql);
void recordParameter(const Cell& value);

} // namespace desktopdb
