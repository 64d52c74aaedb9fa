#pragma once

#include <Qt>

namespace tolvik::viewer {

/// What the models of the panels tell of a value besides its text, for the delegate and the filter.
enum ValueRole {
    ValueRole = Qt::UserRole, ///< the value itself; invalid where there is none or where features differ
    OfferedRole,              ///< what an editor starts from
    ChoicesRole,              ///< the literals to choose from, a list
    AbsentRole,               ///< whether the document has no such attribute
    DifferingRole,            ///< whether the features have different values
    SuggestionsRole           ///< texts that are entered often, a list; any other text can be entered too
};

} // namespace tolvik::viewer
