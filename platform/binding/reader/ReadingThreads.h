#pragma once

#include <cstddef>

namespace citygml {
namespace binding {

/// Number of bytes of a document that a thread reads at a time, at least.
///
/// \return what the environment variable `TOLVIK_PIECE_SIZE` says, so that small documents can be read with
/// several threads, too; else what suits large ones
std::size_t pieceSize();

} // namespace binding
} // namespace citygml
