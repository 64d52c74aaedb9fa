#include "apps/common/PropertyText.h"

#include "apps/common/EditedValues.h"
#include "apps/common/MemberText.h"
#include "framework/CoreProperty.h"
#include "UI/Models/CityGMLModel/properties/BoundProperty.h"

#include <algorithm>
#include <QCoreApplication>
#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <typeinfo>

namespace tolvik::apps {

namespace {

struct Refusal
{
    Q_DECLARE_TR_FUNCTIONS(tolvik::apps::PropertyText)
};

/// The entries of a list: those of a JSON array, or the text as the only one. An entry is a text, a number or
/// a truth value.
/// \param fits becomes false if one is something else
QVariantList listFromText(const QString& text, bool& fits)
{
    const QJsonDocument document = QJsonDocument::fromJson(text.toUtf8());
    if (!document.isArray()) {
        return {text};
    }
    const QJsonArray array = document.array();
    fits = std::none_of(array.begin(), array.end(), [](const QJsonValue& entry) {
        return entry.isNull() || entry.isArray() || entry.isObject();
    });
    return array.toVariantList();
}

/// A text as a value of the kind that the property has. Invalid if it is none.
QVariant valueFromText(const QString& text, const QVariant& example)
{
    bool fits = true;
    QVariant value;
    switch (static_cast<QMetaType::Type>(example.userType())) {
    case QMetaType::Double:
        value = text.toDouble(&fits);
        break;
    case QMetaType::Int:
    case QMetaType::LongLong:
        value = text.toLongLong(&fits);
        break;
    case QMetaType::ULongLong:
        value = text.toULongLong(&fits);
        break;
    case QMetaType::Bool:
        fits = text == QLatin1String("true") || text == QLatin1String("false");
        value = text == QLatin1String("true");
        break;
    // Qt reads no further than a date goes, so that it is compared with the whole text.
    case QMetaType::QDate:
        value = QDate::fromString(text, Qt::ISODate);
        fits = value.toDate().isValid() && value.toDate().toString(Qt::ISODate) == text;
        break;
    case QMetaType::QDateTime:
        value = QDateTime::fromString(text, Qt::ISODate);
        fits = value.toDateTime().isValid() && value.toDateTime().toString(Qt::ISODate) == text;
        break;
    case QMetaType::QVariantList:
        value = listFromText(text, fits);
        break;
    default:
        value = text;
    }
    return fits ? value : QVariant();
}

/// \throws EditError if the value is or has a text that no XML document can hold
void verifyCharacters(const QString& property, const QVariant& value)
{
    if (const auto character = characterOutsideXml(value)) {
        const QString code = QString::number(*character, 16).toUpper();
        throw EditError(Refusal::tr("%1 cannot hold the character U+%2, as XML has no such character")
                            .arg(property, code.rightJustified(4, '0')));
    }
}

/// Sets a property, and leaves what stands with its value where that can be: a property by itself would leave
/// nothing of it.
void setLeavingTheRest(CoreProperty& property, const QVariant& value)
{
    auto* const bound = dynamic_cast<BoundProperty*>(&property);
    if (bound != nullptr) {
        citygml::Member member = bound->member();
        const QVariant former = editedValueOf(property);
        if (setKept(member, former, value) && isSame(property.value(), value)) {
            return;
        }
    }
    property.setValue(value);
}

} // namespace

void setFromText(CoreProperty& property, const QString& text)
{
    if (typeid(property) == typeid(CoreProperty)) {
        throw EditError(Refusal::tr("%1 cannot be edited").arg(property.name()));
    }
    verifyCharacters(property.name(), text);
    const QVariant current = property.value();
    const QVariantList literals = property.potentialValues();
    const QVariant value = literals.isEmpty()
                               ? valueFromText(text, current.isValid() ? current : property.defaultValue())
                               : QVariant(text);
    // A list of numbers is one text of the document. It has a unit, or it is absent, where a list of texts
    // would have no property.
    const bool isOneText = property.unit() != nullptr || current.toList().isEmpty();
    if (!value.isValid() || (!literals.isEmpty() && !literals.contains(value)) ||
        (value.userType() == QMetaType::QVariantList && isOneText && !areWords(value.toList()))) {
        throw EditError(Refusal::tr("%1 cannot be \"%2\"").arg(property.name(), text));
    }
    verifyCharacters(property.name(), value);
    setLeavingTheRest(property, value);
    if (!isSame(property.value(), value)) {
        throw EditError(Refusal::tr("%1 cannot be set to \"%2\"").arg(property.name(), text));
    }
}

} // namespace tolvik::apps
