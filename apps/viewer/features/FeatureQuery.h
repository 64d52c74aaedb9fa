#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>

namespace tolvik {
class CityGMLModel;
class CoreProperty;
} // namespace tolvik

namespace tolvik::viewer {

/// What a user looks for: terms with blanks between them, all of which a feature must meet.
///
/// - `word` or `"several words"`: the name, the identifier or the type has it.
/// - `name:word`, `id:word`, `type:word`: that one has it.
/// - `label=value`, `label!=value`, `label<value`, `label<=value`, `label>value`, `label>=value`: an
/// attribute
///   whose label has that in it compares so, as a number where both are numbers.
/// - `label:word`: such an attribute has the word in its value.
///
/// Capital and small letters are the same.
class FeatureQuery
{
public:
    FeatureQuery() = default;
    explicit FeatureQuery(const QString& text);

    /// Whether there is no term, so that every feature meets it.
    bool isEmpty() const { return terms.isEmpty(); }

    /// Whether the feature of a row meets all terms.
    bool matches(const CityGMLModel& model, int row) const;

private:
    enum class Comparison { Contains, Equal, Unequal, Less, NotGreater, Greater, NotLess };
    struct Term
    {
        QString label; // empty for a word that stands alone
        Comparison comparison = Comparison::Contains;
        QString value;
        double number = 0.0;
        bool isNumber = false;
    };

    static QStringList split(const QString& text);
    static Term termOf(const QString& text);
    static bool compares(const Term& term, const QVariant& value);
    static bool hasProperty(const Term& term, CoreProperty& parent);
    static bool meets(const Term& term, const CityGMLModel& model, int row);

    QVector<Term> terms;
};

} // namespace tolvik::viewer
