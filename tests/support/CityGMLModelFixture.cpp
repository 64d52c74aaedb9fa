#include "support/CityGMLModelFixture.h"

#include "support/Documents.h"

#include <sstream>

namespace testsupport {

const QStringList resetSignals{"modelAboutToBeReset", "modelReset"};

QByteArray cityModel(const QByteArray& members)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
           "<CityModel xmlns=\"http://www.opengis.net/citygml/2.0\" "
           "xmlns:gml=\"http://www.opengis.net/gml\"\n"
           "    xmlns:bldg=\"http://www.opengis.net/citygml/building/2.0\">\n" +
           members + "</CityModel>\n";
}

QByteArray building(const QByteArray& id, const QByteArray& content)
{
    return "<cityObjectMember>" + buildingText(content, id) + "</cityObjectMember>\n";
}

QByteArray namedBuilding(const QByteArray& id, const QByteArray& name)
{
    return building(id, "<gml:name>" + name + "</gml:name>");
}

QByteArray town(int count)
{
    QByteArray members;
    for (int i = 1; i <= count; ++i) {
        const QByteArray name = 'b' + QByteArray::number(i);
        members += namedBuilding(name, name);
    }
    return cityModel(members);
}

OpenModel::OpenModel()
    : CityGMLModel(nullptr, nullptr), tester(this, QAbstractItemModelTester::FailureReportingMode::Fatal)
{
}

void OpenModel::loadText(const QByteArray& xml)
{
    std::istringstream stream(xml.toStdString());
    load(stream);
}

QStringList OpenModel::names() const
{
    QStringList result;
    for (int row = 0; row < rowCount(); ++row) {
        result.append(data(index(row, 0)).toString());
    }
    return result;
}

QString OpenModel::states() const
{
    QString result;
    for (int row = 0; row < rowCount(); ++row) {
        const QChar letter = isVisible(index(row, 0)) ? 'v' : 'h';
        result.append(isDisabled(getFeature(row)) ? letter.toUpper() : letter);
    }
    return result;
}

} // namespace testsupport
