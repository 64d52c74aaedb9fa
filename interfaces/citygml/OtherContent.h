#pragma once

#include "BindingExport.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace gml {
class AbstractFeatureType;
}

namespace citygml {

namespace binding {
class ContentPlace;
}

/// A piece of a document that no class has a member for: an element or attribute that the schemas do not
/// know, text between elements, or a text that is no value of its type. It can be read and edited.
///
/// It tells of the place where the content stands, and reads and writes the document each time. It is valid
/// as long as the object that holds the content; copies tell of the same place.
class TOLVIK_BINDING_EXPORT OtherContent
{
public:
    /// Made by otherContentOf().
    /// @{
    OtherContent(std::string name, std::string namespaceUri, std::shared_ptr<binding::ContentPlace> place,
                 std::vector<OtherContent> children);
    /// @}

    /// The qualified name as the document writes it, with an `@` in front of that of an attribute; `text()`
    /// for a text between the elements of the feature, and for one of several between those of an element.
    const std::string& name() const { return label; }
    /// Namespace of the name; empty where it has none.
    const std::string& namespaceUri() const { return uri; }
    /// Whether there is a text to read and edit. An element that has only elements in it has none.
    bool hasText() const { return place != nullptr; }
    /// The value of an attribute, or the text of an element, as it stands. Empty where there is none.
    std::string text() const;
    /// Replaces the text in the document. A text that has become a value of its type counts as one when the
    /// document is read again; a literal does so at once.
    ///
    /// \param text in UTF-8
    /// \return false, with nothing changed, for a text with a character that XML cannot hold, where there is
    /// no text, and where the content is gone.
    bool setText(const std::string& text) const;
    /// Attributes and elements in it: the attributes first, then what no class knows, then the elements that
    /// have classes, in the order of the schema.
    const std::vector<OtherContent>& children() const { return below; }

private:
    std::string label;
    std::string uri;
    std::shared_ptr<binding::ContentPlace> place;
    std::vector<OtherContent> below;
};

/// What a document says about a feature, and about the objects inside it, that no class has a member for.
/// Objects that lead to such content stand around it. Comments and processing instructions are no content.
///
/// It is found anew with each call, in a time that grows with the number of objects in the feature.
///
/// \param isApart tells of a feature inside whether it has its own content to itself, so that it is left out
TOLVIK_BINDING_EXPORT std::vector<OtherContent>
otherContentOf(gml::AbstractFeatureType& feature,
               const std::function<bool(gml::AbstractFeatureType& inner)>& isApart);

} // namespace citygml
