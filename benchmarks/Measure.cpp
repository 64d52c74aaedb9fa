#include "Measure.h"

#include <chrono>
#include <fstream>
#include <gperftools/malloc_extension.h>
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

double elapsedSeconds()
{
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration<double>(now).count();
}

double allocatedBytes()
{
    std::size_t bytes = 0;
    MallocExtension::instance()->GetNumericProperty("generic.current_allocated_bytes", &bytes);
    return static_cast<double>(bytes);
}

MemoryPeak::MemoryPeak()
{
    MallocExtension::instance()->ReleaseFreeMemory();
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
