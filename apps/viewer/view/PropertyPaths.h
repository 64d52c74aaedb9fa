#pragma once

#include <QSet>
#include <QStringList>
#include <typeindex>
#include <unordered_map>

namespace tolvik {
class CityGMLModel;
}

namespace tolvik::viewer {

/// Collects the paths of the properties with a value that features of a model have, as apps::propertyAt()
/// takes them, each once. Of each type the first features are looked at, as those of one type mostly have the
/// same.
class PropertyPaths
{
public:
    /// Looks at the next feature. It does not matter where a row is none any more.
    void look(const CityGMLModel& model, int row);

    /// What has been found, in alphabetical order.
    QStringList sorted() const;

private:
    std::unordered_map<std::type_index, int> seen;
    QSet<QString> paths;
};

} // namespace tolvik::viewer
