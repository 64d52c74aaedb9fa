#pragma once

#include "apps/viewer/document/RecordedEdit.h"
#include "apps/viewer/edits/EditedMember.h"
#include "apps/viewer/edits/FeatureAddress.h"

#include <memory>
#include <QCoreApplication>
#include <QVariant>
#include <vector>

namespace tolvik::viewer {

class Document;

/// One edit of one member of any number of features, as a step of the history. It keeps what the members said
/// before and after, and the addresses of the features, and so outlives the objects of the document.
class PropertyEdit : public RecordedEdit
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
        RemoveAttribute  ///< the generic attribute of the property leaves the document
    };

    /// Does the edit.
    /// \param features those that have the member; none may be null
    /// \param[out] refusal why it cannot be done, with nothing changed; empty where it is done
    /// \return the step for the history, whose first redo() does nothing; null where nothing has changed
    static std::unique_ptr<PropertyEdit> make(Document& document, const Features& features, Action action,
                                              const MemberPlace& place, const QVariant& value,
                                              QString& refusal);

    /// Registers the kind with RecordedEdit.
    static void addMaker();

    void redo() override;
    void undo() override;
    QString kind() const override;
    QJsonObject record() const override;

private:
    struct Change
    {
        FeatureAddress feature;
        MemberPlace place;
        CapturedState other; ///< what the member said before the edit, or after it when it is undone
    };

    PropertyEdit(Document& document, Action action, const MemberPlace& place, const QVariant& value);
    QString perform(const Features& features);
    void swapStates();
    void swapMembers();
    void announce() const;
    MemberPlace editedPlace() const;
    bool isAlreadyDone(const EditedMember& member) const;
    bool hasValue(const EditedMember& member) const;
    QString performOn(gml::AbstractFeatureType& feature, EditedMember& member) const;
    QString setValue(EditedMember& member) const;
    QString makeAbsent(EditedMember& member) const;
    QString changeAttribute(gml::AbstractFeatureType& feature) const;
    void nameEdit(const Features& features);

    Document& document;
    const Action action;
    const MemberPlace place;
    const QVariant value;
    std::vector<Change> changes;
    bool isDone = true;
};

} // namespace tolvik::viewer
