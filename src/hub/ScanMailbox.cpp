#include "ScanMailbox.h"

#include <algorithm>
#include <memory>

ScanMailbox::~ScanMailbox()
{
    takeAll();
}

void ScanMailbox::put(ScanResult result)
{
    auto letter = std::make_unique<Letter>(Letter{std::move(result), newest.load(std::memory_order_relaxed)});
    while (!newest.compare_exchange_weak(letter->older, letter.get(), std::memory_order_release,
                                         std::memory_order_relaxed)) {
    }
    [[maybe_unused]] const Letter *posted = letter.release();
}

std::vector<ScanResult> ScanMailbox::takeAll()
{
    std::vector<ScanResult> taken;
    std::unique_ptr<Letter> letter(newest.exchange(nullptr, std::memory_order_acquire));
    while (letter) {
        taken.push_back(std::move(letter->result));
        letter.reset(letter->older);
    }
    std::reverse(taken.begin(), taken.end());
    return taken;
}
