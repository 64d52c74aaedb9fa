#include "support/TestPaths.h"

namespace testsupport {

QString dataFile(const QString& name)
{
    return QStringLiteral(TOLVIK_TEST_DATA "/") + name;
}

QString examples()
{
    return QStringLiteral(TOLVIK_EXAMPLES);
}

QString schemas()
{
    return QStringLiteral(TOLVIK_SCHEMAS);
}

QString generatedCode()
{
    return QStringLiteral(TOLVIK_GENERATED);
}

QString sharedDocuments()
{
    return QStringLiteral(TOLVIK_SHARED "/data");
}

QString library(const QString& name)
{
    return QStringLiteral(TOLVIK_LIBRARIES "/lib%1.so").arg(name);
}

QString program(const QString& name)
{
    return QStringLiteral(TOLVIK_PROGRAMS "/") + name;
}

} // namespace testsupport
