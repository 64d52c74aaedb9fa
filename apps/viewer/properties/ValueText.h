#pragma once

#include <optional>
#include <QCoreApplication>
#include <QLocale>
#include <QString>
#include <QVariant>

namespace tolvik::viewer {

/// What can be entered for a property, and so which editor it gets.
enum class ValueKind {
    None,     ///< nothing: a group
    Choice,   ///< one of the literals of an enumeration
    Truth,    ///< true or false
    Whole,    ///< a whole number
    Real,     ///< a number
    Date,     ///< a day
    DateTime, ///< a day and a time, to the second
    Text,     ///< any text
    Link,     ///< the address of something
    List      ///< several numbers or texts
};

/// \param value of a property, or what it offers where it has none
/// \param choices the property's potential values
ValueKind kindOf(const QVariant& value, const QVariantList& choices);

/// Values as people read and write them: with the decimal sign of a locale, without separators of groups, and
/// with as many digits as the number has.
class ValueText
{
    Q_DECLARE_TR_FUNCTIONS(tolvik::viewer::ValueText)

public:
    explicit ValueText(const QLocale& locale = QLocale()) : locale(locale) {}

    /// The text of a value of any kind; empty for an invalid one.
    QString textOf(const QVariant& value) const;

    /// The same for a cell: of a long list the first entries, and their number.
    QString previewOf(const QVariant& value) const;

    /// A text as a value. A number may have the decimal sign of the locale or a point.
    /// \param like a value of the type that is wanted
    /// \param[out] reason why there is none, for people
    std::optional<QVariant> valueOf(const QString& text, const QVariant& like, QString& reason) const;

    /// How a day is written. The year has all its digits.
    QString dateFormat() const;
    /// The same with the time, to the second.
    QString dateTimeFormat() const;

private:
    QString textOfReal(double value) const;
    std::optional<double> realOf(const QString& text) const;

    QLocale locale;
};

} // namespace tolvik::viewer
