#include "apps/common/SourceFile.h"

#include <QFile>

#include <sys/stat.h>
#include <tuple>

namespace tolvik::apps {

SourceFile::SourceFile(const QString& path) : name(path)
{
    struct ::stat status = {};
    if (::stat(QFile::encodeName(path).constData(), &status) == 0 && S_ISREG(status.st_mode)) {
        device = status.st_dev;
        node = status.st_ino;
        size = status.st_size;
        seconds = status.st_mtim.tv_sec;
        nanoseconds = status.st_mtim.tv_nsec;
    }
}

bool SourceFile::isUnchanged() const
{
    const SourceFile now(name);
    const auto marks = [](const SourceFile& file) {
        return std::tie(file.device, file.node, file.size, file.seconds, file.nanoseconds);
    };
    return isFile() && marks(now) == marks(*this);
}

} // namespace tolvik::apps
