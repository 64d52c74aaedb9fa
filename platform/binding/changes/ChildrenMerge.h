#pragma once

#include "core/CityModelType.hxx"
#include "platform/binding/changes/OutlineMerge.h"
#include "platform/binding/reader/RootChild.h"
#include "platform/binding/writer/DocumentWriter.h"
#include "platform/binding/writer/ElementWriter.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace citygml {
namespace binding {

/// A child of the root that was edited.
struct EditedChild
{
    /// White space in front of it.
    std::string_view gap;
    /// Those of its element.
    std::string_view bytes;
    /// As it was read from these, and as it is now.
    const xml_schema::type* was;
    ChildObject is;
    /// How its bytes have to change, places counted from its first one; nothing where that cannot be told
    /// from the child alone.
    std::optional<std::vector<ByteEdit>> edits;
};

/// Finds out how children of the root have to change, apart from the rest of the document. Any number of
/// threads may ask.
class ChildrenMerge
{
public:
    /// \param head the bytes of the document up to the end of the root's start tag
    /// \param mark begins texts that no document has
    ChildrenMerge(std::string head, RootContext context, const core::CityModelType& document,
                  const NamespaceMap& prefixes, std::string mark)
        : head(std::move(head)), context(std::move(context)), document(document), prefixes(prefixes),
          mark(std::move(mark))
    {
    }

    const RootContext& rootContext() const { return context; }
    /// Finds the edits of children that follow each other.
    ///
    /// \return those that the head needs for these, such as declarations
    std::vector<ByteEdit> run(std::vector<EditedChild>& children) const;

private:
    class Extract;
    using Children = std::vector<EditedChild*>;

    void run(const Children& children, std::vector<ByteEdit>& ofHead) const;

    const std::string head;
    const RootContext context;
    const core::CityModelType& document;
    const NamespaceMap& prefixes;
    const std::string mark;
};

} // namespace binding
} // namespace citygml
