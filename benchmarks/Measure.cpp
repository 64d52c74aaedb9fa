#include "Measure.h"

#include <ctime>
#include <fstream>
#include <malloc.h>
#include <sys/resource.h>
#include <unistd.h>

namespace tolvik {

namespace {

double residentBytes()
{
    std::ifstream stream("/proc/self/statm");
    double size = 0;
    double resident = 0;
    stream >> size >> resident;
    return resident * static_cast<double>(sysconf(_SC_PAGESIZE));
}

} // namespace

double processorSeconds()
{
    timespec time;
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

double allocatedBytes()
{
    const struct mallinfo2 info = mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd);
}

MemoryPeak::MemoryPeak()
{
    malloc_trim(0);
    std::ofstream("/proc/self/clear_refs") << 5; // forgets the former peak
    before = residentBytes();
}

double MemoryPeak::bytes() const
{
    rusage usage;
    getrusage(RUSAGE_SELF, &usage);
    return static_cast<double>(usage.ru_maxrss) * 1024 - before;
}

} // namespace tolvik
