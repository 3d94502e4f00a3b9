#pragma once

#include <algorithm>
#include <array>
#include <atomic>
#include <span>

/// The latest block of captured sound: interleaved left and right, full scale being -1 to 1. One thread may
/// store while another reads, without a lock: a reader may see parts of two blocks.
class SampleBlock
{
public:
    static constexpr size_t Channels = 2;
    static constexpr size_t Frames = 480;
    static constexpr size_t Length = Frames * Channels;

    /// Takes the front of \a block; of a shorter one what fits, and the rest stays as it was.
    void store(std::span<const float> block)
    {
        const size_t count = std::min(block.size(), Length);
        for (size_t i = 0; i < count; ++i)
            samples[i].store(block[i], std::memory_order_relaxed);
    }

    void silence()
    {
        for (std::atomic<float> &sample : samples)
            sample.store(0, std::memory_order_relaxed);
    }

    /// The sample at an index below Length.
    float at(size_t index) const { return samples[index].load(std::memory_order_relaxed); }

private:
    static_assert(std::atomic<float>::is_always_lock_free);
    std::array<std::atomic<float>, Length> samples{};
};
