#include "LoadDocument.h"

#include "OpenDocument.h"
#include "UI/Models/CityGMLModel/CityGMLModel.h"

#include <cstdio>
#include <ostream>
#include <QFile>
#include <QFileInfo>
#include <QUrl>

namespace tolvik::inspect {
namespace {

/// A pipe has no path that could be opened a second time, so it is read as a device.
void loadFromDevice(CityGMLModel& model, const QString& file)
{
    QFile device(file);
    const bool open = file == QLatin1String("-") ? device.open(stdin, QIODevice::ReadOnly)
                                                 : device.open(QIODevice::ReadOnly);
    if (open) {
        model.load(&device, QUrl::fromLocalFile(file));
    }
}

} // namespace

bool loadDocument(CityGMLModel& model, const QString& file, std::ostream& err)
{
    const QFileInfo info(file);
    const bool standardInput = file == QLatin1String("-");
    // The model says nothing at all of a file that it cannot open.
    const QString reason = obstacle(file);
    if (!reason.isEmpty()) {
        err << "tolvik-inspect: " << file.toStdString() << " could not be loaded: " << reason.toStdString()
            << '\n';
        return false;
    }
    if (standardInput || !info.isFile()) {
        loadFromDevice(model, file);
    } else {
        model.load(file);
    }
    if (model.cityGML() == nullptr) {
        err << "tolvik-inspect: " << (standardInput ? std::string("standard input") : file.toStdString())
            << " could not be loaded\n";
        return false;
    }
    return true;
}

} // namespace tolvik::inspect
