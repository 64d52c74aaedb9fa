#include "apps/viewer/features/FeatureQuery.h"

#include "apps/viewer/features/FeatureTexts.h"
#include "framework/CoreProperty.h"
#include "UI/Models/CityGMLModel/CityGMLModel.h"

#include <algorithm>
#include <array>
#include <QRegularExpression>

namespace tolvik::viewer {

namespace {

bool has(const QString& text, const QString& word)
{
    return text.contains(word, Qt::CaseInsensitive);
}

} // namespace

FeatureQuery::FeatureQuery(const QString& text)
{
    const QStringList words = split(text);
    for (const QString& each : words) {
        terms.append(termOf(each));
    }
}

/// At the blanks that do not stand within quotation marks.
QStringList FeatureQuery::split(const QString& text)
{
    QStringList words;
    QString word;
    bool isQuoted = false;
    for (const QChar c : text) {
        if (c == QLatin1Char('"')) {
            isQuoted = !isQuoted;
        } else if (c.isSpace() && !isQuoted) {
            words.append(word);
            word.clear();
        } else {
            word += c;
        }
    }
    words.append(word);
    words.removeAll(QString());
    return words;
}

FeatureQuery::Term FeatureQuery::termOf(const QString& text)
{
    static const QRegularExpression form(QStringLiteral("^([^:=<>!]+)(:|=|!=|<=|>=|<|>)(.+)$"));
    static const std::array<std::pair<const char*, Comparison>, 7> signs{{{":", Comparison::Contains},
                                                                          {"=", Comparison::Equal},
                                                                          {"!=", Comparison::Unequal},
                                                                          {"<=", Comparison::NotGreater},
                                                                          {">=", Comparison::NotLess},
                                                                          {"<", Comparison::Less},
                                                                          {">", Comparison::Greater}}};
    Term term;
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch()) {
        term.value = text;
        return term;
    }
    term.label = match.captured(1);
    term.value = match.captured(3);
    const auto sign = std::find_if(signs.begin(), signs.end(), [&](const auto& each) {
        return match.captured(2) == QLatin1String(each.first);
    });
    term.comparison = sign->second;
    term.number = QString(term.value).replace(QLatin1Char(','), QLatin1Char('.')).toDouble(&term.isNumber);
    return term;
}

bool FeatureQuery::compares(const Term& term, const QVariant& value)
{
    if (value.userType() == QMetaType::QVariantList) {
        const QVariantList entries = value.toList();
        return std::any_of(entries.begin(), entries.end(),
                           [&](const QVariant& entry) { return compares(term, entry); });
    }
    if (term.comparison == Comparison::Contains) {
        return has(value.toString(), term.value);
    }
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    int order = 0;
    if (isNumber && term.isNumber) {
        order = number < term.number ? -1 : (number > term.number ? 1 : 0);
    } else {
        order = value.toString().compare(term.value, Qt::CaseInsensitive);
    }
    switch (term.comparison) {
    case Comparison::Equal:
        return order == 0;
    case Comparison::Unequal:
        return order != 0;
    case Comparison::Less:
        return order < 0;
    case Comparison::NotGreater:
        return order <= 0;
    case Comparison::Greater:
        return order > 0;
    default:
        return order >= 0;
    }
}

bool FeatureQuery::hasProperty(const Term& term, CoreProperty& parent)
{
    return std::any_of(parent.properties().begin(), parent.properties().end(),
                       [&](const Fondo::RefPtr<CoreProperty>& each) {
                           if (has(each->name(), term.label)) {
                               const QVariant value = each->value();
                               if (value.isValid() && compares(term, value)) {
                                   return true;
                               }
                           }
                           return hasProperty(term, *each);
                       });
}

bool FeatureQuery::meets(const Term& term, const CityGMLModel& model, int row)
{
    const gml::AbstractFeatureType& feature = *model.getFeature(row);
    if (term.label.isEmpty()) {
        return has(nameOf(feature), term.value) || has(idOf(feature), term.value) ||
               has(typeOf(feature), term.value);
    }
    if (term.label.compare(QLatin1String("name"), Qt::CaseInsensitive) == 0) {
        return compares(term, nameOf(feature));
    }
    if (term.label.compare(QLatin1String("id"), Qt::CaseInsensitive) == 0) {
        return compares(term, idOf(feature));
    }
    if (term.label.compare(QLatin1String("type"), Qt::CaseInsensitive) == 0) {
        return compares(term, typeOf(feature));
    }
    CoreProperty* const properties = model.getProperty(model.index(row, 0));
    return properties != nullptr && hasProperty(term, *properties);
}

bool FeatureQuery::matches(const CityGMLModel& model, int row) const
{
    return std::all_of(terms.begin(), terms.end(), [&](const Term& term) { return meets(term, model, row); });
}

} // namespace tolvik::viewer
