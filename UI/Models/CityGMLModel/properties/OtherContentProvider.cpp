#include "UI/Models/CityGMLModel/properties/OtherContentProvider.h"

#include "citygml/OtherContent.h"
#include "framework/CoreProperty.h"
#include "UI/Models/CityGMLModel/CityGMLModel.h"

#include <QStringList>
#include <utility>

namespace tolvik {

namespace {

/// A text of the document that no attribute of a schema object holds.
class OtherContentProperty : public CoreProperty
{
public:
    OtherContentProperty(const QString& label, citygml::OtherContent content)
        : CoreProperty(label, QVariant()), content(std::move(content))
    {
    }

    QVariant value() override { return QString::fromStdString(content.text()); }

    void setValue(const QVariant& value) override
    {
        const std::string text = value.toString().toStdString();
        // Half of a pair of surrogates has no form in UTF-8.
        if (QString::fromStdString(text) == value.toString()) {
            content.setText(text);
        }
    }

    QVariant defaultValue() const override { return QString(QLatin1String("")); }
    bool editable() const override { return true; }

private:
    const citygml::OtherContent content;
};

void addContent(const std::vector<citygml::OtherContent>& contents, CoreProperty& parent)
{
    for (const citygml::OtherContent& content : contents) {
        const QString label = QString::fromStdString(content.name());
        CoreProperty* const property = content.hasText() ? new OtherContentProperty(label, content)
                                                         : new CoreProperty(label, QVariant());
        parent.addProperty(property);
        addContent(content.children(), *property);
    }
}

} // namespace

OtherContentProvider::OtherContentProvider() = default;
OtherContentProvider::~OtherContentProvider() = default;

void OtherContentProvider::addProperties(const QModelIndex& index, CoreProperty& root)
{
    const QString label = QStringLiteral("Other content");
    const auto* const model = qobject_cast<const CityGMLModel*>(index.model());
    gml::AbstractFeatureType* const feature = model != nullptr ? model->getFeature(index) : nullptr;
    if (feature == nullptr || root.getProperty(label, false) != nullptr) {
        return;
    }
    const auto contents = citygml::otherContentOf(
        *feature, [model](gml::AbstractFeatureType& inner) { return model->getRow(&inner) >= 0; });
    if (!contents.empty()) {
        addContent(contents, *root.getOrCreateProperty(label));
    }
}

} // namespace tolvik
