#include "LoadDocument.h"

#include "apps/common/DocumentReading.h"

#include <ostream>

namespace tolvik::inspect {

bool loadDocument(CityGMLModel& model, const QString& file, std::ostream& err, apps::SourceFile* source)
{
    apps::DocumentReading reading(file);
    reading.readShown();
    if (reading.document() == nullptr) {
        tellNotLoaded(file, reading.error(), err);
        return false;
    }
    reading.handOver(model);
    if (source != nullptr) {
        *source = reading.source();
    }
    return true;
}

void tellNotLoaded(const QString& file, const QString& reason, std::ostream& err)
{
    const std::string name = file == QLatin1String("-") ? "standard input" : file.toStdString();
    err << "tolvik-inspect: " << name << " could not be loaded: " << reason.toStdString() << '\n';
}

} // namespace tolvik::inspect
