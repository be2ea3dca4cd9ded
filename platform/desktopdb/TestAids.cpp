// platform/desktopdb/TestAids.cpp
#include "platform/desktopdb/TestAids.h"

#include "platform/desktopdb/Conversion.h"

#include <charconv>
#include <cstdlib>
#include <fstream>
#include <mutex>

namespace desktopdb {

namespace testaids {
std::atomic<bool> faultSet{false};
std::atomic<bool> recording{false};
} // namespace testaids

namespace {
struct Fault {
    std::string function;
    long remaining = 0;
    Failure failure;
    bool always = false;
    std::string fired;
};

struct State {
    std::mutex mutex;
    Fault fault;
    std::string recordFile;
    std::string faultVariable;
    std::string recordVariable;
};

State& state()
{
    static State* const kept = new State; // the last calls may come while the process ends
    return *kept;
}

std::string variable(const char* name)
{
    const char* text = std::getenv(name);
    return text ? text : "";
}

std::string_view takeField(std::string_view& text)
{
    const size_t colon = std::min(text.find(':'), text.size());
    const std::string_view field = text.substr(0, colon);
    text.remove_prefix(std::min(colon + 1, text.size()));
    return field;
}

// The text may hold colons itself; only a last ":always" is taken off.
bool readFault(std::string_view setting, Fault& fault)
{
    constexpr std::string_view kAlways = ":always";
    fault.always = setting.ends_with(kAlways);
    if (fault.always)
        setting.remove_suffix(kAlways.size());
    fault.function = takeField(setting);
    const std::string_view number = takeField(setting);
    const std::string_view state = takeField(setting);
    fault.failure = {state.empty() ? "HY000" : std::string(state),
        setting.empty() ? "injected fault" : std::string(setting)};
    const char* end = number.data() + number.size();
    return !fault.function.empty() && fault.failure.state.size() == 5
        && std::from_chars(number.data(), end, fault.remaining).ptr == end && fault.remaining > 0;
}

std::string escaped(std::string_view text)
{
    std::string out;
    for (const char c : text) {
        switch (c) {
        case '\n':
            out += "\\n";
            break;
        case '\r':
            out += "\\r";
            break;
        case '\t':
            out += "\\t";
            break;
        case '\\':
            out += "\\\\";
            break;
        default:
            out += c;
        }
    }
    return out;
}

void appendLine(const std::string& line)
{
    const std::lock_guard lock(state().mutex);
    // Written in one piece, so that two processes may share the file.
    std::ofstream(state().recordFile, std::ios::app | std::ios::binary) << line + "\n";
}

std::string textOf(const Cell& value)
{
    char number[40];
    switch (value.kind) {
    case ValueKind::Null:
        return "NULL";
    case ValueKind::Integer:
        return std::to_string(value.integer);
    case ValueKind::Real:
        return std::string(realText(value.real, number));
    default:
        return escaped(value.bytes);
    }
}
} // namespace

bool testaids::countCall(const char* function, Diagnostics* diagnostics)
{
    const std::lock_guard lock(state().mutex);
    Fault& fault = state().fault;
    if (fault.function != "any" && fault.function != function)
        return false;
    if (fault.remaining > 0 && --fault.remaining > 0)
        return false;
    if (!fault.fired.empty() && !fault.always)
        return false;
    if (fault.fired.empty())
        fault.fired = function;
    if (diagnostics)
        diagnostics->fail(fault.failure);
    return true;
}

bool setFault(std::string_view setting)
{
    const std::lock_guard lock(state().mutex);
    Fault fault;
    const bool good = setting.empty() || readFault(setting, fault);
    if (good) {
        state().fault = fault;
        testaids::faultSet = !setting.empty();
    }
    return good;
}

std::string firedFault()
{
    const std::lock_guard lock(state().mutex);
    return state().fault.fired;
}

void setRecordFile(std::string_view path)
{
    const std::lock_guard lock(state().mutex);
    state().recordFile = path;
    testaids::recording = !path.empty();
}

std::string recordFile()
{
    const std::lock_guard lock(state().mutex);
    return state().recordFile;
}

void readTestEnvironment()
{
    const std::string fault = variable("DESKTOPDB_FAULT");
    const std::string record = variable("DESKTOPDB_RECORD");
    State& s = state();
    if (s.faultVariable != fault)
        setFault(s.faultVariable = fault);
    if (s.recordVariable != record)
        setRecordFile(s.recordVariable = record);
}

void recordStatement(std::string_view sql) { appendLine(escaped(sql)); }

void recordParameter(const Cell& value) { appendLine("param:" + textOf(value)); }

} // namespace desktopdb
