#include "fondo/Referenced.h"
#include "fondo/ClassType.h"
#include "fondo/RefPtr.h"
#include "fondo/String.h"
#include "support/TestClass.h"

#include <QtTest>

using namespace testsupport;

using Fondo::ClassType;
using Fondo::Referenced;
using Fondo::RefPtr;

namespace {

class Counted : public Referenced
{
public:
    explicit Counted(int* deaths) : deaths(deaths) {}
    Counted(const Counted&) = default;
    Counted& operator=(const Counted&) = default;
    ~Counted() override { ++*deaths; }

    static const ClassType& classType()
    {
        static const ClassType record("Counted", &Referenced::classType());
        return record;
    }
    const ClassType& getType() const override { return classType(); }

    RefPtr<Counted> next;

private:
    int* deaths;
};

class Derived : public Counted
{
public:
    using Counted::Counted;

    static const ClassType& classType()
    {
        static const ClassType record("Derived", &Counted::classType());
        return record;
    }
    const ClassType& getType() const override { return classType(); }
};

} // namespace

class ReferencedTest : public QObject
{
    Q_OBJECT

private slots:
    void countStartsAtZeroAndLastReferenceDeletes()
    {
        int deathsOnTheStack = 0;
        const Counted fresh(&deathsOnTheStack);
        QCOMPARE(fresh.referenceCount(), 0);

        int deaths = 0;
        {
            const RefPtr<Counted> first = new Counted(&deaths);
            QCOMPARE(first->referenceCount(), 1);
            {
                // NOLINTNEXTLINE(performance-unnecessary-copy-initialization): the copy is what is counted
                const RefPtr<Counted> second(first);
                QCOMPARE(second->referenceCount(), 2);
            }
            QCOMPARE(first->referenceCount(), 1);
            QCOMPARE(deaths, 0);
        }
        QCOMPARE(deaths, 1);
    }

    void unrefWithoutPointer()
    {
        int deaths = 0;
        const auto* const object = new Counted(&deaths);
        object->ref();
        object->ref();
        object->unref();
        QCOMPARE(deaths, 0);
        object->unref();
        QCOMPARE(deaths, 1);
    }

    void assignmentOfTheSameValueChangesNothing()
    {
        int deaths = 0;
        auto* const object = new Counted(&deaths);
        RefPtr<Counted> pointer = object;
        pointer = object;
        const RefPtr<Counted>& same = pointer;
        pointer = same;
        RefPtr<Counted>& moved = pointer;
        pointer = std::move(moved);
        QCOMPARE(pointer.get(), object);
        QCOMPARE(object->referenceCount(), 1);
        QCOMPARE(deaths, 0);
    }

    void assignmentReleasesTheOldValue()
    {
        int deaths = 0;
        RefPtr<Counted> pointer = new Counted(&deaths);
        pointer = new Counted(&deaths);
        QCOMPARE(deaths, 1);
        pointer = nullptr;
        QCOMPARE(deaths, 2);
        QVERIFY(!pointer);
        QVERIFY(pointer == nullptr);
    }

    void movingTakesTheReferenceAlong()
    {
        int deaths = 0;
        RefPtr<Counted> from = new Counted(&deaths);
        RefPtr<Counted> to = std::move(from);
        QCOMPARE(to->referenceCount(), 1);
        from = new Counted(&deaths);
        from = std::move(to);
        QCOMPARE(deaths, 1);
        QCOMPARE(from->referenceCount(), 1);
    }

    void movingBetweenTwoPointersToOneObject()
    {
        int deaths = 0;
        RefPtr<Counted> a = new Counted(&deaths);
        RefPtr<Counted> b = a;
        a = std::move(b);
        QCOMPARE(a->referenceCount(), 1);
        QCOMPARE(deaths, 0);
    }

    void oldValueMayOwnTheNewOne()
    {
        int deaths = 0;
        RefPtr<Counted> list = new Counted(&deaths);
        list->next = new Counted(&deaths);
        list = list->next;
        QCOMPARE(deaths, 1);
        QCOMPARE(list->referenceCount(), 1);
    }

    void pointerToDerivedConverts()
    {
        int deaths = 0;
        const RefPtr<Derived> derived = new Derived(&deaths);
        const RefPtr<Counted> base = derived;
        QVERIFY(base == derived);
        QVERIFY(base == derived.get());
        QCOMPARE(base->referenceCount(), 2);
        RefPtr<Referenced> root;
        QVERIFY(root != base);
        root = base;
        QCOMPARE(base->referenceCount(), 3);
    }

    void copyOfAnObjectHasNoReferences()
    {
        int deaths = 0;
        const RefPtr<Counted> original = new Counted(&deaths);
        // NOLINTNEXTLINE(performance-unnecessary-copy-initialization): the copy is what is counted
        const RefPtr<Counted> second = original;
        QCOMPARE(second->referenceCount(), 2);
        const RefPtr<Counted> copy = new Counted(*original);
        QCOMPARE(copy->referenceCount(), 1);
        *copy = *original;
        QCOMPARE(copy->referenceCount(), 1);
        QCOMPARE(original->referenceCount(), 2);
    }

    void typeRecords()
    {
        int deaths = 0;
        const RefPtr<Referenced> derived = new Derived(&deaths);
        QCOMPARE(derived->type(), std::string("Derived"));
        QVERIFY(&derived->getType() == &Derived::classType());
        QVERIFY(derived->isOfType(Derived::classType()));
        QVERIFY(derived->isOfType(Counted::classType()));
        QVERIFY(derived->isOfType(Referenced::classType()));
        const RefPtr<Referenced> base = new Counted(&deaths);
        QVERIFY(!base->isOfType(Derived::classType()));
        const ClassType namesake("Counted", &Referenced::classType());
        QVERIFY(!base->isOfType(namesake));
    }

    void stringKeepsUtf8()
    {
        const std::string utf8 = "Stra\xC3\x9F"
                                 "e \xE2\x82\xAC \xF0\x9F\x8F\xA0";
        const std::wstring wide = L"Stra\u00DFe \u20AC \U0001F3E0";
        QCOMPARE(std::wstring(Fondo::String::fromUTF8(utf8)), wide);
        QCOMPARE(std::wstring(Fondo::String(utf8)), wide);
        QCOMPARE(Fondo::String(wide).toUTF8(), utf8);
        QVERIFY(Fondo::String().empty());
        Fondo::String text;
        text = Fondo::String(std::string("WallSurface"));
        QVERIFY(text == Fondo::String(std::wstring(L"WallSurface")));
        QVERIFY(text != Fondo::String());
    }

    void stringKeepsZeroCharacters()
    {
        const std::string text("a\0b", 3);
        QCOMPARE(std::wstring(Fondo::String(text)), std::wstring(L"a\0b", 3));
    }

    void illFormedUtf8_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("text");
        const QString r(QChar(0xFFFD));
        QTest::newRow("stray continuation") << QByteArray("a\x80z") << "a" + r + "z";
        QTest::newRow("cut at the end") << QByteArray("a\xE2\x82") << "a" + r;
        QTest::newRow("cut in the middle") << QByteArray("\xE2\x82z") << r + "z";
        QTest::newRow("overlong") << QByteArray("\xC0\xAF") << r + r;
        QTest::newRow("overlong of three") << QByteArray("\xE0\x80\xAF") << r + r + r;
        QTest::newRow("surrogate") << QByteArray("\xED\xA0\x80") << r + r + r;
        QTest::newRow("too high") << QByteArray("\xF4\x90\x80\x80") << r + r + r + r;
        QTest::newRow("no lead") << QByteArray("\xFF") << r;
        QTest::newRow("highest") << QByteArray("\xF4\x8F\xBF\xBF") << QString::fromUcs4(U"\U0010FFFF");
        QTest::newRow("Latin-1") << QByteArray("M\xFCller") << "M" + r + "ller";
    }

    void illFormedUtf8()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, text);
        const auto string = Fondo::String::fromUTF8(bytes.toStdString());
        QCOMPARE(QString::fromStdWString(string), text);
        QCOMPARE(QByteArray::fromStdString(string.toUTF8()), bytes);
    }

    void wideTextThatIsNoCodePoint()
    {
        const std::wstring surrogate{L'a', static_cast<wchar_t>(0xD800), L'b'};
        QCOMPARE(Fondo::String(surrogate).toUTF8(), std::string("a\xEF\xBF\xBD"
                                                                "b"));
    }
};

TEST_CLASS(ReferencedTest, Core)
#include "referencedtest.moc"
