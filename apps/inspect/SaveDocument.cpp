#include "SaveDocument.h"

#include <QString>

#include <ostream>

namespace tolvik::inspect {

bool saveDocument(apps::DocumentSaving& saving, const QString& output, apps::DocumentSaving::Form form,
                  std::ostream& err)
{
    const bool isSaved = saving.save(output, form);
    if (!isSaved) {
        err << "tolvik-inspect: " << output.toStdString()
            << " could not be saved: " << saving.error().toStdString() << '\n';
    } else if (!saving.note().isEmpty()) {
        err << "tolvik-inspect: " << output.toStdString()
            << " was written anew: " << saving.note().toStdString() << '\n';
    }
    return isSaved;
}

} // namespace tolvik::inspect
