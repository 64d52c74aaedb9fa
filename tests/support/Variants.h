#pragma once

#include <QByteArray>
#include <QVector>

namespace testsupport {

/// A document that says what another one does, in other bytes.
struct Variant
{
    const char* name;
    QByteArray xml;

    /// The document in UTF-8.
    QByteArray text() const;
    /// Another such text in the encoding of the document. What the encoding does not have is written as a
    /// reference.
    QByteArray encoded(const QByteArray& text) const;
};

/// Variants of a document in UTF-8 without CDATA sections: other line ends, quotes, references, prefixes,
/// encodings, and more.
QVector<Variant> variantsOf(const QByteArray& document);

} // namespace testsupport
