#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>

namespace testsupport {

/// What a value type of the tables means for a property.
struct ValueType
{
    explicit ValueType(const QString& name);

    /// `optional`, `sequence` or empty.
    QString form;
    QString base;

    bool isEnumeration() const;
    bool isMeasure() const;
    bool isNumber() const { return isMeasure() || base == "double" || base == "core::doubleBetween0and1"; }
    bool isText() const;
    bool isNullableList() const;

    /// A present value, from the text that stands in the document.
    QVariant fromText(const QString& text) const;

    /// The value of the member, which may be absent.
    QVariant fromTexts(const QStringList& texts) const;

    /// What the property offers for an absent value; a moment stands for the current one.
    QVariant defaultValue() const;
};

} // namespace testsupport
