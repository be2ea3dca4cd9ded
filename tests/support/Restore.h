// tests/support/Restore.h
#pragma once

/// Puts a process-wide setting back when it goes, whatever the test did or how it ended.
template <typename T> class Restore {
public:
    explicit Restore(T& setting)
        : setting_(setting)
        , before_(setting)
    {
    }
    Restore(T& setting, const T& during)
        : Restore(setting)
    {
        setting = during;
    }
    ~Restore() { setting_ = before_; }
    Restore(const Restore&) = delete;
    Restore& operator=(const Restore&) = delete;

private:
    T& setting_;
    T before_;
};
