#pragma once

#include "apps/viewer/document/RecordedEdit.h"
#include "apps/viewer/edits/FeatureAddress.h"
#include "citygml/Member.h"

#include <memory>
#include <QCoreApplication>
#include <QString>
#include <vector>

namespace tolvik::viewer {

class Document;

/// Takes features out of the document, each with the property element that holds it and with everything
/// inside, as one step of the history. Undoing it puts the same objects back at their places; their rows come
/// behind the others then.
class FeatureRemoval : public RecordedEdit
{
    Q_DECLARE_TR_FUNCTIONS(tolvik::viewer::FeatureRemoval)

public:
    using Features = std::vector<gml::AbstractFeatureType*>;

    /// Removes the features. Those that stand in another one of them go with it.
    /// \param[out] refusal why it cannot be done, with nothing changed; empty where it is done
    /// \return the step for the history, whose first redo() does nothing; null where nothing is removed
    static std::unique_ptr<FeatureRemoval> make(Document& document, const Features& features,
                                                QString& refusal);

    /// Registers the kind with RecordedEdit.
    static void addMaker();

    void redo() override;
    void undo() override;
    QString kind() const override;
    QJsonObject record() const override;

private:
    /// One feature, and where it stood: in which member of which feature.
    struct Removed
    {
        FeatureAddress feature;
        FeatureAddress owner;
        std::string member;
        std::size_t position = 0;
        citygml::MemberState content;
    };

    explicit FeatureRemoval(Document& document) : document(document) {}
    QString findAll(const Features& features);
    void removeAll();
    void take(Removed& removed);
    void putBack(Removed& removed);
    void addRows();

    Document& document;
    std::vector<Removed> all;
    bool isDone = true;
};

} // namespace tolvik::viewer
