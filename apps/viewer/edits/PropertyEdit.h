#pragma once

#include "apps/viewer/document/SlicedEdit.h"
#include "apps/viewer/edits/EditedMember.h"
#include "apps/viewer/edits/FeatureAddress.h"

#include <memory>
#include <optional>
#include <QCoreApplication>
#include <QVariant>
#include <vector>

namespace gen {
class AbstractGenericAttributeType;
}

namespace tolvik::viewer {

class Document;

/// One edit of one member of any number of features, as a step of the history. It keeps what the members said
/// before and after, and the addresses of the features, and so outlives the objects of the document.
class PropertyEdit : public SlicedEdit
{
    Q_DECLARE_TR_FUNCTIONS(tolvik::viewer::PropertyEdit)

public:
    using Features = std::vector<gml::AbstractFeatureType*>;

    /// What is done.
    enum Action {
        SetValue,        ///< `value` is what the property gets
        MakeAbsent,      ///< the property's element or attribute leaves the document
        AddEntry,        ///< `value` is a text for the end of a list
        AddAttribute,    ///< `value` is a list: type, name and value of a generic attribute
        RenameAttribute, ///< `value` is the new name of the generic attribute of the property
        RemoveAttribute, ///< the generic attribute of the property leaves the document
        SetMeasure,      ///< `value` is a list: the number that an absent measure gets, and its unit
        SetUnit          ///< `value` is the unit that a measure gets; the number stays to the letter
    };

    /// An edit that is yet to be done, for EditRunner.
    /// \param features those that have the member; none may be null
    static std::unique_ptr<PropertyEdit> prepare(Document& document, const Features& features, Action action,
                                                 const MemberPlace& place, const QVariant& value);

    /// Does the edit at once.
    /// \param[out] refusal why it cannot be done, with nothing changed; empty where it is done
    /// \return the step for the history, whose first redo() does nothing; null where nothing has changed
    static std::unique_ptr<PropertyEdit> make(Document& document, const Features& features, Action action,
                                              const MemberPlace& place, const QVariant& value,
                                              QString& refusal);

    /// Registers the kind with RecordedEdit.
    static void addMaker();

    int size() const override { return static_cast<int>(features.size()); }
    QString perform(int number) override;
    int changes() const override { return static_cast<int>(changed.size()); }
    void turn(int change) override;
    QString kind() const override;
    QJsonObject record() const override;

protected:
    void endWalk() override;

private:
    struct Change
    {
        FeatureAddress feature;
        MemberPlace place;
        CapturedState other; ///< what the member said before the edit, or after it when it is undone
        /// Of an attribute that comes or goes its place among the others, and whether it is out of the
        /// document, in `other`. The others stay the objects that they are, with the features in them.
        /// @{
        std::optional<std::size_t> entry;
        bool isOut = false;
        /// @}
    };

    PropertyEdit(Document& document, Features features, Action action, const MemberPlace& place,
                 const QVariant& value);
    FeatureLocator& locator();
    void announce(gml::AbstractFeatureType& feature) const;
    MemberPlace editedPlace() const;
    bool isAlreadyDone(const EditedMember& member) const;
    bool hasValue(const EditedMember& member) const;
    QString performOn(gml::AbstractFeatureType& feature, EditedMember& member) const;
    QString setValue(EditedMember& member) const;
    QString refusalOfCharacters() const;
    QString setMeasure(EditedMember& member) const;
    QString setUnit(const EditedMember& member) const;
    QString makeAbsent(EditedMember& member) const;
    bool isOfEntry() const { return action == AddAttribute || action == RemoveAttribute; }
    QString performOnEntry(gml::AbstractFeatureType& feature, citygml::Member& attributes);
    QString takeAttributeOf(gml::AbstractFeatureType& feature, Change& change) const;
    QString addAttributeTo(citygml::Member& attributes) const;
    gen::AbstractGenericAttributeType* attributeOf(gml::AbstractFeatureType& feature) const;
    QString renameAttributeOf(gml::AbstractFeatureType& feature) const;
    void nameEdit();

    Document& document;
    const Action action;
    const MemberPlace place;
    const QVariant value;
    Features features; ///< until the edit is done for the first time
    std::vector<Change> changed;
    std::unique_ptr<FeatureLocator> located; ///< for one walk over the features
};

} // namespace tolvik::viewer
