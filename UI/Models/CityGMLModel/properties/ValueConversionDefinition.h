#pragma once

// How the conversions are made; included where they are instantiated.

#include "citygml/Findings.h"
#include "UI/Models/CityGMLModel/properties/SchemaValues.h"
#include "UI/Models/CityGMLModel/properties/ValueConversion.h"

#include <QString>

#include <string>
#include <type_traits>

namespace tolvik {

/// How values of one type convert: `show` to a variant, `read` from one, and `start` for the default. Each
/// kind of values has a specialization.
template <typename T, typename = void>
struct Conversion;

inline QVariant textVariant(const std::string& text)
{
    return QVariant(QString::fromStdString(text));
}

template <typename T>
struct Conversion<schema::optional<T>>
{
    static QVariant show(const schema::optional<T>& value)
    {
        return value.present() ? Conversion<T>::show(value.get()) : QVariant();
    }
    static schema::optional<T> read(const QVariant& value, const schema::uri& uom)
    {
        return schema::optional<T>(Conversion<T>::read(value, uom));
    }
    static QVariant start() { return Conversion<T>::start(); }
};

/// What an editor shows of an object or a number; nothing of an object whose text is no value of its type.
template <typename T>
QVariant shown(const T& value)
{
    if constexpr (std::is_base_of_v<xml_schema::type, T>) {
        if (citygml::isSetAside(value)) {
            return QVariant();
        }
    }
    return Conversion<T>::show(value);
}

template <typename T>
QVariant shown(const schema::optional<T>& value)
{
    if constexpr (std::is_base_of_v<xml_schema::type, T>) {
        if (value.present() && citygml::isSetAside(value.get())) {
            return QVariant();
        }
    }
    return Conversion<schema::optional<T>>::show(value);
}

template <typename T>
QVariant toQVariant(const T& value)
{
    return shown(value);
}

template <typename T>
T fromQVariant(const QVariant& value, const xml_schema::uri& uom)
{
    return Conversion<T>::read(value, uom);
}

template <typename T>
QVariant defaultValue()
{
    return Conversion<T>::start();
}

template <typename T>
void assignQVariant(T& target, const QVariant& value, const xml_schema::uri& uom)
{
    target = Conversion<T>::read(value, uom);
    if constexpr (std::is_base_of_v<xml_schema::type, T>) {
        citygml::setGiven(target);
    }
}

} // namespace tolvik

/// Instantiates the conversions of the type that the arguments name.
#define TOLVIK_INSTANTIATE_CONVERSION(...)                                                                   \
    template CITYGMLMODEL_EXPORT QVariant toQVariant<__VA_ARGS__>(const __VA_ARGS__&);                       \
    template CITYGMLMODEL_EXPORT __VA_ARGS__ fromQVariant<__VA_ARGS__>(const QVariant&,                      \
                                                                       const xml_schema::uri&);              \
    template CITYGMLMODEL_EXPORT QVariant defaultValue<__VA_ARGS__>();                                       \
    template void assignQVariant<__VA_ARGS__>(__VA_ARGS__&, const QVariant&, const xml_schema::uri&)
