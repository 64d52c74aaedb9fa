#pragma once

#include "app/AppearanceType.hxx"
#include "support/CityReference.h"

#include <QtTest>
#include <random>
#include <set>

namespace testsupport {

/// A document under random operations, each of which is done to the model and to the reference.
class RandomCity
{
public:
    explicit RandomCity(unsigned seed) : random(seed) {}
    virtual ~RandomCity() = default;

    /// Does one operation, and gives its name.
    QString step();

    tolvik::CityGMLModel model{nullptr, nullptr};
    Reference reference;

protected:
    static constexpr std::size_t mostFeatures = 60;

    /// Adds an operation, which is drawn as often as its weight says.
    template <class Run>
    void add(const char* name, int weight, void (Run::*run)())
    {
        operations.push_back({name, weight, [this, run] { (static_cast<Run*>(this)->*run)(); }});
    }

    /// Adds those that need the list alone.
    void addListOperations();

    int below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(random); }
    bool chance() { return below(2) == 0; }

    QString newName() { return chance() ? QString("name %1").arg(below(1000)) : QString(); }

    Item* anyRow();

    std::vector<Item*> someRows();

    Item* anyNode();

    QModelIndex inList(const Item* item, int column = 0) const;
    QList<QModelIndex> inList(const std::vector<Item*>& items) const;

    void bindFeatures();

    void loadText(const QByteArray& text);

    virtual void loadDocument();

    void loadMalformed();

    void loadMissing();

    void reload();

    void addFeature(Item* item);

    void addNew();

    void addAgain();

    /// Adds those without a row in one operation, among others that are to be left out.
    void addAllAgain();

    /// The features of the document that have no row.
    std::vector<Item*> withoutRow() const;

    /// Takes away the row of a feature.
    virtual void remove(Item* item);

    void removeRow();

    template <class Members, class Held>
    static void eraseMember(Members& members, const gml::AbstractFeatureType* feature, Held held)
    {
        const auto found = std::find_if(members.begin(), members.end(), [&](auto& member) {
            return held(member).present() && &held(member).get() == feature;
        });
        QVERIFY(found != members.end());
        members.erase(found);
    }

    virtual void removeBranch();

    void rename(Item* item, QAbstractItemModel& in, const QModelIndex& index);

    void renameInList();

    void show(const std::vector<Item*>& items, bool visible);

    void hideOne();

    void showOne();

    void hideSome();

    void showSome();

    void hideAll();

    void showAll();

    void disable();

    void enable();

    /// What differs between the list and the reference; empty if nothing does.
    QString listDifference() const;

private:
    struct Operation
    {
        const char* name;
        int weight;
        std::function<void()> run;
    };

    std::mt19937 random;
    std::vector<Operation> operations;
};

} // namespace testsupport
