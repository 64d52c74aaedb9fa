#pragma once

#include "support/Features.h"
#include "support/LogRecorder.h"
#include "UI/Models/CityGMLModel/CityGMLModel.h"

#include <QAbstractItemModelTester>
#include <QByteArray>
#include <QStringList>

namespace testsupport {

/// A document with the given members, whose elements need no prefix.
QByteArray cityModel(const QByteArray& members);

/// A member of such a document: a building, with an identifier if it is not empty, and the given content.
QByteArray building(const QByteArray& id, const QByteArray& content = QByteArray());

/// The same with a name.
QByteArray namedBuilding(const QByteArray& id, const QByteArray& name);

/// A document whose rows are its root and buildings with the identifiers and names "b1" to "b<count>".
QByteArray town(int count);

/// The signals of a reset, as a SignalRecorder writes them.
extern const QStringList resetSignals;

/// The model without a plug-in, watched by the item model tester, with its protected operations open.
class OpenModel : public tolvik::CityGMLModel
{
public:
    OpenModel();

    using CityGMLModel::clearModel;
    using CityGMLModel::createFeatureID;
    using CityGMLModel::doSave;
    using CityGMLModel::featureExists;
    using CityGMLModel::getFeatureID;
    using CityGMLModel::reallyDoHide;
    using CityGMLModel::reallyDoHideAll;
    using CityGMLModel::reallyDoShow;
    using CityGMLModel::reallyDoShowAll;
    using CityGMLModel::showAlls;

    void loadText(const QByteArray& xml);

    /// The names in column 0, in the order of the rows.
    QStringList names() const;

    /// A letter for each row: v visible, h hidden; upper case for a disabled row.
    QString states() const;

private:
    QAbstractItemModelTester tester;
};

} // namespace testsupport
