#include "scene/Triangulator.h"

#include "gml/AbstractFeatureType.hxx"
#include "scene/Vectors.h"
#include "support/Documents.h"
#include "support/Files.h"
#include "support/TestClass.h"

#include <QtTest>

using namespace testsupport;
using namespace tolvik::scene;
using citygml::GeometryPiece;
using citygml::Position;
using citygml::PositionRun;

namespace {

double areaOfRing(const std::vector<Position>& positions, const PositionRun& run)
{
    Position sum = {};
    for (std::size_t i = run.begin; i < run.end; ++i) {
        const std::size_t next = i + 1 < run.end ? i + 1 : run.begin;
        const Position part = cross(difference(positions[i], positions[run.begin]),
                                    difference(positions[next], positions[run.begin]));
        for (std::size_t axis = 0; axis < 3; ++axis) {
            sum[axis] += part[axis] / 2;
        }
    }
    return length(sum);
}

/// The area of a surface, from its rings.
double areaOfRings(const std::vector<Position>& positions, const std::vector<PositionRun>& runs)
{
    double area = areaOfRing(positions, runs.front());
    for (std::size_t i = 1; i < runs.size(); ++i) {
        area -= areaOfRing(positions, runs[i]);
    }
    return area;
}

double areaOfTriangles(const Triangulator& triangulator, const std::vector<Position>& positions)
{
    const auto corner = [&](std::size_t i) {
        const std::uint32_t index = triangulator.triangles()[i];
        return index < positions.size() ? positions[index]
                                        : triangulator.crossings()[index - positions.size()].position;
    };
    double area = 0;
    for (std::size_t i = 0; i + 2 < triangulator.triangles().size(); i += 3) {
        area += length(cross(difference(corner(i + 1), corner(i)), difference(corner(i + 2), corner(i)))) / 2;
    }
    return area;
}

std::vector<PositionRun> runsOf(std::initializer_list<std::size_t> ends)
{
    std::vector<PositionRun> runs;
    std::size_t begin = 0;
    for (const std::size_t end : ends) {
        runs.push_back({begin, end, nullptr});
        begin = end;
    }
    return runs;
}

} // namespace

class TriangulatorTest : public QObject
{
    Q_OBJECT

private slots:
    void simpleSurfacesKeepTheirArea_data();
    void simpleSurfacesKeepTheirArea();
    void surfacesWithoutAreaHaveNoTriangles_data();
    void surfacesWithoutAreaHaveNoTriangles();
    void ringsThatCrossThemselvesGetCorners();
    void allSurfacesOfDocumentsKeepTheirArea_data();
    void allSurfacesOfDocumentsKeepTheirArea();
};

TEST_CLASS(TriangulatorTest, None)

Q_DECLARE_METATYPE(std::vector<Position>)
Q_DECLARE_METATYPE(std::vector<PositionRun>)

void TriangulatorTest::simpleSurfacesKeepTheirArea_data()
{
    QTest::addColumn<std::vector<Position>>("positions");
    QTest::addColumn<std::vector<PositionRun>>("runs");
    QTest::addColumn<double>("area");
    QTest::addColumn<int>("triangles");
    using Positions = std::vector<Position>;
    const double x = 458000;
    const double y = 5437000;

    QTest::newRow("triangle") << Positions{{0, 0, 0}, {2, 0, 0}, {0, 2, 0}, {0, 0, 0}} << runsOf({4}) << 2.0
                              << 1;
    QTest::newRow("square") << Positions{{0, 0, 1}, {2, 0, 1}, {2, 2, 1}, {0, 2, 1}, {0, 0, 1}} << runsOf({5})
                            << 4.0 << 2;
    QTest::newRow("upright and far away")
        << Positions{{x, y, 0}, {x + 0.1, y, 0}, {x + 0.1, y, 0.2}, {x, y, 0.2}, {x, y, 0}} << runsOf({5})
        << 0.02 << 2;
    QTest::newRow("arrow") << Positions{{0, 0, 0}, {2, 1, 0}, {0, 2, 0}, {0.5, 1, 0}, {0, 0, 0}}
                           << runsOf({5}) << 1.5 << 2;
    QTest::newRow("hole") << Positions{{0, 0, 0}, {3, 0, 0}, {3, 3, 0}, {0, 3, 0}, {0, 0, 0},
                                       {1, 1, 0}, {1, 2, 0}, {2, 2, 0}, {2, 1, 0}, {1, 1, 0}}
                          << runsOf({5, 10}) << 8.0 << 8;
    QTest::newRow("hole that runs like the outer ring")
        << Positions{{0, 0, 0}, {3, 0, 0}, {3, 3, 0}, {0, 3, 0}, {0, 0, 0},
                     {1, 1, 0}, {2, 1, 0}, {2, 2, 0}, {1, 2, 0}, {1, 1, 0}}
        << runsOf({5, 10}) << 8.0 << 8;
    QTest::newRow("hole without an area")
        << Positions{{0, 0, 0}, {3, 0, 0}, {3, 3, 0}, {0, 3, 0}, {0, 0, 0}, {1, 1, 0}, {1, 1, 0}}
        << runsOf({5, 7}) << 9.0 << 2;
}

void TriangulatorTest::simpleSurfacesKeepTheirArea()
{
    QFETCH(std::vector<Position>, positions);
    QFETCH(std::vector<PositionRun>, runs);
    QFETCH(double, area);
    QFETCH(int, triangles);
    Triangulator triangulator;
    QVERIFY(triangulator.triangulate(positions, runs));
    QVERIFY2(qAbs(areaOfTriangles(triangulator, positions) - area) < 1e-6,
             qPrintable(QString::number(areaOfTriangles(triangulator, positions))));
    QCOMPARE(triangulator.triangles().size(), std::size_t(3) * static_cast<std::size_t>(triangles));
}

void TriangulatorTest::surfacesWithoutAreaHaveNoTriangles_data()
{
    QTest::addColumn<std::vector<Position>>("positions");
    using Positions = std::vector<Position>;
    QTest::newRow("line") << Positions{{0, 0, 0}, {1, 0, 0}, {2, 0, 0}, {0, 0, 0}};
    QTest::newRow("point") << Positions{{1, 1, 1}, {1, 1, 1}, {1, 1, 1}, {1, 1, 1}};
    QTest::newRow("two points") << Positions{{0, 0, 0}, {1, 0, 0}, {0, 0, 0}};
    QTest::newRow("no numbers") << Positions{{qQNaN(), 0, 0}, {1, qInf(), 0}, {0, 1, qQNaN()}};
}

void TriangulatorTest::surfacesWithoutAreaHaveNoTriangles()
{
    QFETCH(std::vector<Position>, positions);
    Triangulator triangulator;
    QVERIFY(!triangulator.triangulate(positions, runsOf({positions.size()})));
    QVERIFY(triangulator.triangles().empty());
}

void TriangulatorTest::ringsThatCrossThemselvesGetCorners()
{
    const std::vector<Position> hourglass = {{0, 0, 0}, {2, 3, 0}, {2, 0, 0}, {0, 2, 0}, {0, 0, 0}};
    Triangulator triangulator;
    QVERIFY(triangulator.triangulate(hourglass, runsOf({5})));
    QCOMPARE(triangulator.crossings().size(), std::size_t(1));
    float sum = 0;
    for (const float weight : triangulator.crossings().front().weights) {
        sum += weight;
    }
    QVERIFY(qAbs(sum - 1) < 1e-5F);
}

void TriangulatorTest::allSurfacesOfDocumentsKeepTheirArea_data()
{
    addPathRows(exampleAndSharedDocuments());
}

void TriangulatorTest::allSurfacesOfDocumentsKeepTheirArea()
{
    QFETCH(QString, path);
    const Document document = read(contentOf(path));
    Triangulator triangulator;
    int wrong = 0;
    for (const gml::AbstractFeatureType* feature : featuresOf(*document)) {
        citygml::walkGeometry(*feature, [&](const GeometryPiece& piece) {
            if (piece.kind == GeometryPiece::Kind::Surface &&
                triangulator.triangulate(piece.positions, piece.runs)) {
                const double area = areaOfRings(piece.positions, piece.runs);
                const double ofTriangles = areaOfTriangles(triangulator, piece.positions);
                wrong += qAbs(ofTriangles - area) > 0.01 * area ? 1 : 0;
            }
        });
    }
    QCOMPARE(wrong, 0);
}

#include "triangulatortest.moc"
