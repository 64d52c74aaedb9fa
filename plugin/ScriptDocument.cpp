#include "plugin/ScriptDocument.h"

#include "citygml/CityModel.h"

#include <exception>
#include <fstream>
#include <QDir>
#include <QFile>
#include <sstream>

namespace tolvik {

ScriptDocument::ScriptDocument(ModelInterface* plugin, QObject* parent)
    : QObject(parent), model(plugin, nullptr)
{
    list.setSourceModel(&model);
    treeModel.setSourceModel(&model);
}

/// Ends an operation, with the reason if it has failed.
bool ScriptDocument::end(const QString& error)
{
    if (reason != error) {
        reason = error;
        emit errorChanged();
    }
    return error.isEmpty();
}

bool ScriptDocument::load(const QString& path)
{
    std::ifstream stream(QFile::encodeName(path).constData(), std::ios::binary);
    if (!stream) {
        return end(tr("%1 cannot be opened").arg(QDir::toNativeSeparators(path)));
    }
    try {
        model.load(core::CityModel(stream, xsd::cxx::tree::flags::dont_validate));
    } catch (const xsd::cxx::tree::exception<char>& error) {
        std::ostringstream text;
        text << error;
        return end(QString::fromStdString(text.str()));
    }
    model.setFileName(path);
    return end(QString());
}

bool ScriptDocument::saveAs(const QString& path)
{
    try {
        model.saveAs(path, false);
    } catch (const std::exception& error) {
        return end(QString::fromLocal8Bit(error.what()));
    }
    return end(QString());
}

} // namespace tolvik
