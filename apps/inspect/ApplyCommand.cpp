#include "ApplyCommand.h"

#include "apps/tables/TableError.h"
#include "apps/tables/TableImport.h"
#include "apps/tables/TableReading.h"
#include "framework/OperationStatus.h"
#include "OutputFiles.h"
#include "UI/Models/CityGMLModel/CityGMLModel.h"

#include <log4cplus/ndc.h>
#include <memory>
#include <ostream>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QSaveFile>

namespace tolvik::inspect {
namespace {

/// Brings tables into documents: all are checked first, and then each is saved once.
class Application
{
public:
    Application(const ApplyOptions& options, const TableDocuments& documents, tables::TableImport& values)
        : options(options), documents(documents), values(values)
    {
        if (options.outDir.isEmpty()) {
            outputs += options.out;
            return;
        }
        try {
            outputs = outputsIn(options.outDir, documents.files);
        } catch (const std::invalid_argument& error) {
            throw TableUsageError(error.what());
        }
    }

    int run()
    {
        if (!options.outDir.isEmpty() && !QDir().mkpath(options.outDir)) {
            tell(options.outDir + QStringLiteral(" could not be made"));
            return 1;
        }
        check();
        tellProblems();
        if (code != 0 && !options.skipBad && !values.problems().isEmpty()) {
            tell(QStringLiteral("nothing was written"));
            return code;
        }
        for (int i = 0; i < documents.files.size(); ++i) {
            write(documents.files[i], outputs[i]);
        }
        return code;
    }

private:
    void tell(const QString& text) { *documents.err << "tolvik-inspect: " << text.toStdString() << '\n'; }

    void tellProblems()
    {
        for (const tables::ImportProblem& problem : values.problems()) {
            tell(problem.text());
            code = 1;
        }
    }

    /// Sets the values in each document without saving it. The document of a single one stays, to be saved.
    void check()
    {
        OperationStatus status(QCoreApplication::translate("tolvik::inspect", "Documents"),
                               documents.files.size(), true);
        for (const QString& file : documents.files) {
            model.reset();
            model = load(file);
            changes.insert(file, model != nullptr ? values.apply(*model, file) : -1);
            code = model == nullptr ? 1 : code;
            status.addStep(1);
        }
        values.finish();
        if (documents.files.size() > 1) {
            model.reset();
        }
    }

    std::unique_ptr<CityGMLModel> load(const QString& file)
    {
        // What the log says of one of several documents tells of which.
        const log4cplus::NDCContextCreator context(documents.files.size() > 1 ? file.toStdString() + ": "
                                                                              : "");
        auto loaded = std::make_unique<CityGMLModel>(nullptr, nullptr);
        return documents.load(*loaded, file) ? std::move(loaded) : nullptr;
    }

    void write(const QString& file, const QString& output)
    {
        const qint64 expected = changes.value(file);
        if (expected < 0) {
            return;
        }
        if (expected == 0 && !options.isPlain && QFileInfo(file).isFile()) {
            copy(file, output);
            return;
        }
        if (model == nullptr || documents.files.size() > 1) {
            model = load(file);
            if (model == nullptr) {
                code = 1;
                return;
            }
            values.apply(*model, file);
        }
        if (!documents.save(*model, output)) {
            code = 1;
        }
        model.reset();
    }

    /// A document without changes keeps its bytes.
    void copy(const QString& file, const QString& output)
    {
        if (QFileInfo(file).canonicalFilePath() == QFileInfo(output).canonicalFilePath()) {
            return;
        }
        QFile source(file);
        QSaveFile target(output);
        bool done = source.open(QIODevice::ReadOnly) && target.open(QIODevice::WriteOnly);
        while (done && !source.atEnd()) {
            const QByteArray block = source.read(1 << 20);
            done = !block.isEmpty() && target.write(block) == block.size();
        }
        if (!done || !target.commit()) {
            tell(QStringLiteral("%1 could not be written").arg(output));
            code = 1;
        }
    }

    const ApplyOptions& options;
    const TableDocuments& documents;
    tables::TableImport& values;
    QStringList outputs;
    QHash<QString, qint64> changes; // by file; -1 for one that could not be loaded
    std::unique_ptr<CityGMLModel> model;
    int code = 0;
};

} // namespace

int runApply(const ApplyOptions& options, const TableDocuments& documents)
{
    if (options.outDir.isEmpty() == options.out.isEmpty()) {
        throw TableUsageError("one of --out and --out-dir is needed");
    }
    if (!options.out.isEmpty() && documents.files.size() != 1) {
        throw TableUsageError("--out is for one document; several need --out-dir");
    }
    try {
        QStringList remarks;
        tables::EditSource source;
        source.path = options.table;
        source.query = options.sql;
        if (!options.idColumn.isEmpty()) {
            source.idColumn = options.idColumn;
        }
        tables::ImportOptions wanted;
        wanted.absentWord = options.absent;
        wanted.create = options.create;
        tables::TableImport values(tables::readTables(source, remarks), wanted, documents.files);
        for (const QString& remark : qAsConst(remarks)) {
            *documents.err << "tolvik-inspect: " << remark.toStdString() << '\n';
        }
        return Application(options, documents, values).run();
    } catch (const tables::TableError& error) {
        *documents.err << "tolvik-inspect: " << error.what() << '\n';
        return 1;
    }
}

} // namespace tolvik::inspect
