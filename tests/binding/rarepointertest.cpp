// Pointers that mostly own nothing, and what schema objects hold in them.

#include "citygml/RarePointer.h"
#include "support/TestClass.h"
#include "xml-schema.hxx"

#include <memory>
#include <QtTest>
#include <string>
#include <thread>
#include <utility>
#include <vector>

using namespace testsupport;
using citygml::RarePointer;

namespace {

/// Counts how many of it there are.
struct Counted
{
    Counted() { ++count; }
    Counted(const Counted&) = delete;
    Counted& operator=(const Counted&) = delete;
    ~Counted() { --count; }

    static inline int count = 0;
};

} // namespace

class RarePointerTest : public QObject
{
    Q_OBJECT

private slots:
    void objectsAreSmall();
    void anObjectIsDeletedOnce();
    void anObjectChangesItsPointer();
    void aPointerAtTheAddressOfAFormerOneIsEmpty();
    void pointersOfSeveralThreads();
    void textsOfAnyTypeAreCopied();
};

void RarePointerTest::objectsAreSmall()
{
    QCOMPARE(sizeof(RarePointer<Counted>), std::size_t(1));
    // Its class, its container, what was kept with it, and numbers.
    QCOMPARE(sizeof(xml_schema::type), 5 * sizeof(void*));
}

void RarePointerTest::anObjectIsDeletedOnce()
{
    {
        RarePointer<Counted> pointer(new Counted);
        QCOMPARE(Counted::count, 1);
        Counted* const second = new Counted;
        pointer.reset(second);
        QCOMPARE(Counted::count, 1);
        pointer.reset(second);
        QCOMPARE(Counted::count, 1);
        QCOMPARE(pointer.get(), second);
    }
    QCOMPARE(Counted::count, 0);

    RarePointer<Counted> pointer(new Counted);
    const std::unique_ptr<Counted> released(pointer.release());
    QVERIFY(pointer.get() == nullptr);
    pointer.reset();
    QCOMPARE(Counted::count, 1);
}

void RarePointerTest::anObjectChangesItsPointer()
{
    auto* const object = new Counted;
    RarePointer<Counted> first(object);
    RarePointer<Counted> second(std::move(first));
    QCOMPARE(second.get(), object);
    RarePointer<Counted> third;
    third = second;
    // NOLINTNEXTLINE(clang-analyzer-cplusplus.Move): what is left in a pointer is tested
    QVERIFY(second.get() == nullptr);
    QCOMPARE(third.get(), object);
    third = RarePointer<Counted>(new Counted);
    QVERIFY(third.get() != nullptr);
    QCOMPARE(Counted::count, 1);
}

void RarePointerTest::aPointerAtTheAddressOfAFormerOneIsEmpty()
{
    alignas(RarePointer<Counted>) unsigned char place[sizeof(RarePointer<Counted>)];
    auto* pointer = new (place) RarePointer<Counted>(new Counted);
    pointer->~RarePointer();
    pointer = new (place) RarePointer<Counted>;
    QVERIFY(pointer->get() == nullptr);
    auto* const object = new Counted;
    pointer->reset(object);
    QCOMPARE(pointer->get(), object);
    pointer->~RarePointer();
    QCOMPARE(Counted::count, 0);
}

void RarePointerTest::pointersOfSeveralThreads()
{
    int wrong[4] = {};
    std::vector<std::thread> threads;
    for (int& mine : wrong) {
        threads.emplace_back([&mine] {
            std::vector<RarePointer<int>> pointers(100);
            for (int i = 0; i < 100; ++i) {
                pointers[i].reset(new int(i));
            }
            for (int i = 0; i < 100; i += 2) {
                pointers[i].reset();
            }
            for (int i = 0; i < 100; ++i) {
                const bool right = i % 2 == 0 ? pointers[i].get() == nullptr : *pointers[i] == i;
                mine += right ? 0 : 1;
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    for (const int count : wrong) {
        QCOMPARE(count, 0);
    }
}

void RarePointerTest::textsOfAnyTypeAreCopied()
{
    const xml_schema::simple_type text(std::string("Town"));
    std::unique_ptr<xml_schema::simple_type> copy(new xml_schema::simple_type(text));
    QCOMPARE(copy->text_content(), std::string("Town"));
    copy->text_content("Village");
    QCOMPARE(text.text_content(), std::string("Town"));
    QVERIFY(!(*copy == text));
    *copy = text;
    QVERIFY(*copy == text);
    copy.reset();
    QCOMPARE(text.text_content(), std::string("Town"));
}

TEST_CLASS(RarePointerTest, Core)

#include "rarepointertest.moc"
