#include "support/Symbols.h"

#include "support/Processes.h"
#include "support/TestPaths.h"

#include <cstdlib>
#include <cxxabi.h>
#include <memory>

namespace testsupport {

QStringList exportedSymbols(const QString& name)
{
    const ProcessResult nm = run("nm", {"-D", "--defined-only", library(name)});
    QStringList symbols;
    if (nm.code == 0) {
        for (const QByteArray& line : nm.out.split('\n')) {
            if (!line.isEmpty()) {
                symbols.append(QString::fromLatin1(line.mid(line.lastIndexOf(' ') + 1)));
            }
        }
    }
    return symbols;
}

QString demangled(const char* symbol)
{
    int status = 0;
    const std::unique_ptr<char, void (*)(void*)> text(abi::__cxa_demangle(symbol, nullptr, nullptr, &status),
                                                      &std::free);
    return QString::fromLatin1(status == 0 ? text.get() : symbol).remove("slim::");
}

} // namespace testsupport
