#pragma once

#include "apps/viewer/document/SlicedEdit.h"
#include "apps/viewer/edits/FeatureAddress.h"
#include "citygml/Member.h"

#include <map>
#include <memory>
#include <QCoreApplication>
#include <QString>
#include <unordered_set>
#include <utility>
#include <vector>

namespace tolvik::viewer {

class Document;

/// Takes features out of the document, each with the property element that holds it and with everything
/// inside, as one step of the history. Undoing it puts the same objects back at their places; their rows come
/// behind the others then.
///
/// One feature at a time is looked at, and then one row at a time goes, from the end of the document on.
class FeatureRemoval : public SlicedEdit
{
    Q_DECLARE_TR_FUNCTIONS(tolvik::viewer::FeatureRemoval)

public:
    using Features = std::vector<gml::AbstractFeatureType*>;

    /// A removal that is yet to be done, for EditRunner.
    /// \param features those that stand in another one of them go with it; none may be null
    static std::unique_ptr<FeatureRemoval> prepare(Document& document, const Features& features);

    /// Removes the features at once.
    /// \param[out] refusal why it cannot be done, with nothing changed; empty where it is done
    /// \return the step for the history, whose first redo() does nothing; null where nothing is removed
    static std::unique_ptr<FeatureRemoval> make(Document& document, const Features& features,
                                                QString& refusal);

    /// Registers the kind with RecordedEdit.
    static void addMaker();

    int size() const override;
    int effort() const override;
    QString perform(int number) override;
    int changes() const override { return static_cast<int>(all.size() + rows); }
    void turn(int change) override;
    int stepsBack(int /*turned*/) const override { return changes(); }
    QString kind() const override;
    QJsonObject record() const override;

protected:
    void endWalk() override;

private:
    /// One feature, and where it stood: in which member of which feature.
    struct Removed
    {
        FeatureAddress feature;
        FeatureAddress owner;
        std::string member;
        std::size_t position = 0;
        citygml::MemberState content; ///< while it is out of the document
        bool isOut = false;
    };
    /// A row that is to go.
    struct Row
    {
        gml::AbstractFeatureType* feature; ///< null where there is none any more
        std::size_t removed;               ///< with which of the features
        bool isLast;                       ///< whether that can leave the document then
    };

    FeatureRemoval(Document& document, Features features);
    QString find(std::size_t number);
    bool isLastToGo(const citygml::Member& entry);
    void locate(std::size_t number);
    std::size_t collectRows(gml::AbstractFeatureType* feature, std::size_t number);
    void removeNext();
    void take(Removed& removed);
    void putBack(Removed& removed);
    void addNextRows();
    Features featuresWithoutRow();
    FeatureLocator& locator();

    Document& document;
    Features features; ///< until they are removed for the first time
    std::vector<Removed> all;
    std::size_t rows = 0; ///< number of rows that go
    const int mostRows;   ///< at most so many
    bool isGoingBack = false;

    /// What one walk over the features knows of them.
    /// @{
    std::unordered_set<const gml::AbstractFeatureType*> chosen;
    /// How many entries go of each list that must not become empty.
    std::map<std::pair<const xml_schema::type*, std::string>, std::size_t> leaving;
    std::unique_ptr<FeatureLocator> located;
    std::vector<Row> going;
    Features coming;
    bool areComingKnown = false;
    /// @}
};

} // namespace tolvik::viewer
