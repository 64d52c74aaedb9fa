#pragma once

#include <benchmark/benchmark.h>

namespace tolvik {

/// Seconds by the clock since some moment. A document is read by several threads, so that the processor's
/// seconds say nothing of how long a user waits; only ratios between measurements of one run mean something.
double elapsedSeconds();

/// Bytes that the process has taken from the allocator and not given back.
double allocatedBytes();

/// The largest amount of memory that the process holds from here on, over what it holds here. Memory that
/// the allocator keeps for later is given to the system first.
class MemoryPeak
{
public:
    MemoryPeak();

    double bytes() const;

private:
    double before;
};

/// One benchmark that times by elapsedSeconds() and is registered with UseManualTime().
class Measure
{
public:
    explicit Measure(benchmark::State& state) : state(state) {}

    /// Runs \a work in front of an iteration, which is compared with it: a slow minute of the machine is slow
    /// for both.
    template <class Work>
    void yardstick(Work work)
    {
        const double start = elapsedSeconds();
        work();
        yardsticks += elapsedSeconds() - start;
    }

    /// Runs \a work as one iteration.
    /// \return its seconds by the clock
    template <class Work>
    double iteration(Work work)
    {
        const double start = elapsedSeconds();
        work();
        const double taken = elapsedSeconds() - start;
        state.SetIterationTime(taken);
        total += taken;
        ++iterations;
        return taken;
    }

    /// Mean of the iterations so far, 0 before the first.
    double seconds() const { return iterations == 0 ? 0 : total / iterations; }

    /// MB/s, for so many bytes an iteration.
    void setBytes(double bytes) { state.SetBytesProcessed(static_cast<long>(bytes * iterations)); }

    /// The time of the iterations as a multiple of that of their yardsticks, under a name.
    void setRatio(const char* name) { state.counters[name] = total / yardsticks; }

    /// The time of an iteration as a multiple of another one, under a name.
    void setRatio(const char* name, double otherSeconds) { state.counters[name] = seconds() / otherSeconds; }

private:
    benchmark::State& state;
    double total = 0;
    double yardsticks = 0;
    int iterations = 0;
};

} // namespace tolvik
