#pragma once

#include "ScanResult.h"

#include <atomic>

/// Hands the results of passes from the enumeration thread to the GUI thread. One thread puts, another takes;
/// neither ever waits.
class ScanMailbox
{
public:
    ScanMailbox() = default;
    ~ScanMailbox();
    ScanMailbox(const ScanMailbox &) = delete;
    ScanMailbox &operator=(const ScanMailbox &) = delete;

    void put(ScanResult result);
    /// Everything that was put and not taken yet, oldest first.
    std::vector<ScanResult> takeAll();

private:
    struct Letter
    {
        ScanResult result;
        Letter *older;
    };

    std::atomic<Letter *> newest = nullptr;
};
