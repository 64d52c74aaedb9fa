#pragma once

#include <benchmark/benchmark.h>

namespace tolvik {

/// Processor seconds of this process so far, all threads together. Unlike time by the clock they hardly
/// depend on what else the machine does, and so ratios between measurements of one run mean something.
double processorSeconds();

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

/// One benchmark that times by processorSeconds() and is registered with UseManualTime().
class Measure
{
public:
    explicit Measure(benchmark::State& state) : state(state) {}

    /// Runs \a work as one iteration.
    /// \return its processor seconds
    template <class Work>
    double iteration(Work work)
    {
        const double start = processorSeconds();
        work();
        const double taken = processorSeconds() - start;
        state.SetIterationTime(taken);
        total += taken;
        ++iterations;
        return taken;
    }

    /// Mean of the iterations so far, 0 before the first.
    double seconds() const { return iterations == 0 ? 0 : total / iterations; }

    /// MB/s, for so many bytes an iteration.
    void setBytes(double bytes) { state.SetBytesProcessed(static_cast<long>(bytes * iterations)); }

    /// The time of an iteration as a multiple of another one, under a name.
    void setRatio(const char* name, double otherSeconds) { state.counters[name] = seconds() / otherSeconds; }

private:
    benchmark::State& state;
    double total = 0;
    int iterations = 0;
};

} // namespace tolvik
