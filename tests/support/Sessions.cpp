#include "support/Sessions.h"

#include "support/Files.h"
#include "support/TestPaths.h"

#include <algorithm>
#include <QFileInfo>
#include <QtTest>

namespace testsupport {

void addSessionRows(int quick, int extended)
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("seed");
    const int sessions = qEnvironmentVariableIsSet("TOLVIK_LONG_RUNS") ? extended : quick;
    for (const QString& path : documentsBelow(examples())) {
        for (int seed = 1; seed <= sessions; ++seed) {
            QTest::addRow("%s %d", qPrintable(QFileInfo(path).fileName()), seed) << path << seed;
        }
    }
}

QString differenceOf(const QByteArray& now, const QByteArray& wanted)
{
    const auto found = std::mismatch(now.begin(), now.end(), wanted.begin(), wanted.end());
    const int from = std::max<int>(0, static_cast<int>(found.first - now.begin()) - 80);
    return now.mid(from, 300) + "\n-- wanted --\n" + wanted.mid(from, 300);
}

} // namespace testsupport
