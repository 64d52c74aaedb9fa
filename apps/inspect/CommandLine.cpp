#include "CommandLine.h"

#include "CheckCommand.h"
#include "DocumentFiles.h"
#include "EachDocument.h"
#include "LoadDocument.h"
#include "OutputFiles.h"
#include "PictureCommand.h"
#include "PropertiesCommand.h"
#include "RepairCommand.h"
#include "RowsCommand.h"
#include "SaveDocument.h"
#include "SetCommand.h"
#include "TableModule.h"
#include "TerminalProgress.h"
#include "TreeCommand.h"
#include "UI/Models/CityGMLModel/CityGMLModel.h"

#include <algorithm>
#include <exception>
#include <functional>
#include <iostream>
#include <log4cplus/consoleappender.h>
#include <log4cplus/initializer.h>
#include <log4cplus/layout.h>
#include <log4cplus/logger.h>
#include <log4cplus/ndc.h>
#include <map>
#include <memory>
#include <mutex>
#include <QCommandLineParser>
#include <QDir>
#include <stdexcept>
#include <string>

namespace tolvik::inspect {
namespace {

constexpr int failure = 1;
constexpr int wrongUsage = 2;

const char usage[] =
    R"(Usage: tolvik-inspect COMMAND FILE [ARGUMENTS]

FILE is a CityGML 2.0 document; `-` reads one from standard input.

  rows FILE... [--json]
                         list the features: number, type, gml:id and name, with tabs between them
  tree FILE... [--json] [--all]
                         show the features as a tree; --all keeps appearances
  properties FILE... (--id ID | --row N | --every) [--absent] [--json]
                         show the attributes of the features, and as "Other content" what else
                         the document says of them; --absent adds the attributes that they
                         could have and have not
  set FILE --id ID PATH VALUE OUT [--plain]
                         set one attribute and save as OUT. PATH is made of the labels that
                         `properties` shows, with `/` between them; `[2]` behind a label
                         takes the second of equal ones
  save FILE OUT [--plain]
                         load FILE and save it as OUT
  check FILE... [--json]
                         tell all that is wrong, in lines of FILE:LINE:COLUMN: PATH: REASON or, in
                         JSON, one object a line
  repair FILE OUT [--plain]
                         save FILE as OUT with a free name for each gml:id that stands twice, with
                         elements in the order of the schema, as CityGML 2.0; what was done is told,
                         and FILE stays as it is
  picture FILE OUT.png [--lod N] [--colour-by PATH] [--size WxH]
                         draw the features; --lod takes one level of detail, 0 to 4, in place of the
                         highest of each; --colour-by takes a PATH as `set` does, and a colour for
                         each value; no display is needed
  table FILE... --out TARGET [--format FORMAT] [--type TYPE,...] [--columns PATH,...]
        [--columns-from FILE] [--all] [--geometry] [--3d] [--append]
                         write the attributes as tables: a table a type of features, a row a
                         feature. TARGET is a file *.gpkg or *.xlsx, a database PG:..., a folder for
                         a file a table, or with one --type a file *.csv, *.geojson, *.geojsonl or
                         *.fgb. A column is a PATH as `set` takes it, or gen:NAME for a generic
                         attribute; --columns-from keeps the columns in a file, and uses those of
                         one that is there; without --out it writes such a file alone. Maps get a
                         geometry, a CSV with --geometry; --3d takes the surfaces with their heights.
                         --all adds "Other content"; --append adds rows to tables of a database
  columns OUT FILE...    join such files of the parts of a city to one for the whole
  apply TABLE FILE... (--out OUT | --out-dir DIR) [--id-column COLUMN] [--sql QUERY] [--create]
        [--absent WORD] [--skip-bad] [--plain]
                         set attributes from a table that GDAL reads, with a row a feature and columns
                         as `table` writes them: gml:id, or COLUMN, names the feature, and `file` its
                         document. Empty cells leave an attribute alone, and WORD removes it. --create
                         makes generic attributes of columns that a feature has not, with the unit of
                         "NAME [unit]". Where a cell cannot be set nothing is written, or with
                         --skip-bad all others are
  --help                 show this text
  --version              show the version

OUT has the bytes of FILE but for what is changed. With --plain it is written anew, with the line ends,
prefixes and spellings of this program.

`set`, `save`, `repair` and `picture` take several documents with --out-dir DIR in place of OUT,
and write each under its own name into DIR; the command of `set` is then
set PATH VALUE FILE... --id ID --out-dir DIR.

With --files-from LIST each line of the file LIST, or of standard input for `-`, is one more FILE.
With --recursive a FILE may be a directory: it stands for the *.gml, *.xml and *.citygml in it and
below. With several files each output names its file, in a line in front or, in JSON, as `file`; one
that cannot be loaded is told, and the others are shown.

Output is UTF-8. Exit code: 0 done; 1 a document could not be loaded or saved, has no such
feature or attribute, or the attribute refused the value, or `check` found something; 2 wrong usage.
An argument that begins with `-` and is no option stands behind a `--`.
)";

/// The command line makes no sense; what() says why.
struct UsageError : std::runtime_error
{
    using std::runtime_error::runtime_error;
};

/// The arguments behind a command: the named positional ones and nothing besides the options.
class Arguments
{
public:
    /// \param names   the last may end in `...`, for one or more documents, which documents() answers
    /// \param options what may be given; those that take a value end in `=`
    Arguments(const QStringList& given, const QStringList& names, const QStringList& options)
        : positionalNames(names)
    {
        for (const QString& option : options) {
            const bool takesValue = option.endsWith('=');
            parser.addOption(takesValue ? QCommandLineOption(option.chopped(1), QString(), option)
                                        : QCommandLineOption(option));
        }
        if (names.last().endsWith(QLatin1String("..."))) {
            parser.addOption(QCommandLineOption("recursive"));
            parser.addOption(QCommandLineOption("files-from", QString(), "files-from="));
        }
        // The first argument is taken for the program's name.
        if (!parser.parse(given)) {
            throw UsageError(parser.errorText().toStdString());
        }
        const int count = parser.positionalArguments().size();
        const int needed = names.size() - (isListed() ? 1 : 0);
        if (count < needed) {
            throw UsageError(QStringLiteral("%1 is missing").arg(names.at(count)).toStdString());
        }
        if (count > names.size() && !names.last().endsWith(QLatin1String("..."))) {
            throw UsageError(QStringLiteral("too much: %1")
                                 .arg(parser.positionalArguments().at(names.size()))
                                 .toStdString());
        }
    }

    QString at(const QString& name) const
    {
        return parser.positionalArguments().at(positionalNames.indexOf(name));
    }
    /// The documents that the last name stands for.
    DocumentFiles documents() const
    {
        return DocumentFiles(parser.positionalArguments().mid(positionalNames.size() - 1),
                             isListed() ? parser.value("files-from") : QString(), parser.isSet("recursive"),
                             std::cerr);
    }
    bool has(const QString& option) const { return parser.isSet(option); }
    QString value(const QString& option) const { return parser.value(option); }

private:
    bool isListed() const
    {
        return positionalNames.last().endsWith(QLatin1String("...")) && parser.isSet("files-from");
    }

    QCommandLineParser parser;
    QStringList positionalNames;
};

/// Prints each of the documents that the arguments name.
int list(const Arguments& arguments, const char* key,
         const std::function<int(CityGMLModel& model, const QString& file)>& print)
{
    const DocumentFiles files = arguments.documents();
    return printEach(files, {arguments.has("json"), key, print}, std::cout, std::cerr);
}

int rows(const QStringList& given)
{
    const Arguments arguments(given, {"FILE..."}, {"json"});
    const bool json = arguments.has("json");
    return list(arguments, "rows",
                [&](CityGMLModel& model, const QString&) { return runRows(model, json, std::cout); });
}

int tree(const QStringList& given)
{
    const Arguments arguments(given, {"FILE..."}, {"json", "all"});
    const bool json = arguments.has("json");
    const bool all = arguments.has("all");
    return list(arguments, "tree",
                [&](CityGMLModel& model, const QString&) { return runTree(model, json, all, std::cout); });
}

PropertiesOptions propertiesOptions(const Arguments& arguments)
{
    if (arguments.has("id") + arguments.has("row") + arguments.has("every") != 1) {
        throw UsageError("one of --id, --row and --every is needed");
    }
    PropertiesOptions options;
    if (arguments.has("id")) {
        options.id = arguments.value("id").toStdString();
    }
    if (arguments.has("row")) {
        bool isNumber = false;
        options.row = arguments.value("row").toInt(&isNumber);
        if (!isNumber) {
            throw UsageError("not the number of a row: " + arguments.value("row").toStdString());
        }
    }
    options.every = arguments.has("every");
    options.absent = arguments.has("absent");
    options.json = arguments.has("json");
    return options;
}

int properties(const QStringList& given)
{
    const Arguments arguments(given, {"FILE..."}, {"id=", "row=", "every", "absent", "json"});
    const PropertiesOptions options = propertiesOptions(arguments);
    return list(arguments, "properties", [&](CityGMLModel& model, const QString& file) {
        return runProperties(model, file, options, std::cout, std::cerr);
    });
}

apps::DocumentSaving::Form formOf(const Arguments& arguments)
{
    return arguments.has("plain") ? apps::DocumentSaving::Form::Plain : apps::DocumentSaving::Form::Changes;
}

/// How a command that writes documents is called.
struct Writing
{
    QStringList one;     ///< names of its arguments, with FILE and OUT
    QStringList several; ///< the same with --out-dir, where FILE... comes last
    QStringList options;
    QString ending; ///< of what is written, with the dot; empty for that of the document
    /// Writes one document.
    /// \return the program's exit code for it
    std::function<int(const Arguments& arguments, const QString& file, const QString& output)> write;
};

/// \throws UsageError where the documents cannot all go into the folder
QStringList outputsOf(const DocumentFiles& files, const QString& folder, const QString& ending)
{
    try {
        return outputsIn(folder, files.paths(), ending);
    } catch (const std::invalid_argument& error) {
        throw UsageError(error.what());
    }
}

/// Writes the document that the arguments name, or each of several into a folder.
int write(const QStringList& given, const Writing& writing)
{
    const bool areSeveral = std::any_of(given.begin(), given.end(), [](const QString& argument) {
        return argument.section('=', 0, 0) == QLatin1String("--out-dir");
    });
    const Arguments arguments(given, areSeveral ? writing.several : writing.one,
                              writing.options + QStringList{"out-dir="});
    if (!areSeveral) {
        return writing.write(arguments, arguments.at("FILE"), arguments.at("OUT"));
    }
    const QString folder = arguments.value("out-dir");
    const DocumentFiles files = arguments.documents();
    const QStringList outputs = outputsOf(files, folder, writing.ending);
    if (!QDir().mkpath(folder)) {
        throw std::runtime_error(folder.toStdString() + " could not be made");
    }
    int code = files.areComplete() ? 0 : failure;
    for (int i = 0; i < outputs.size(); ++i) {
        // What the log says of one of several documents tells of which.
        const log4cplus::NDCContextCreator context(files.paths()[i].toStdString() + ": ");
        code = std::max(code, writing.write(arguments, files.paths()[i], outputs[i]));
    }
    return code;
}

int set(const QStringList& given)
{
    return write(given, {{"FILE", "PATH", "VALUE", "OUT"},
                         {"PATH", "VALUE", "FILE..."},
                         {"id=", "plain"},
                         QString(),
                         [](const Arguments& arguments, const QString& file, const QString& output) {
                             if (!arguments.has("id")) {
                                 throw UsageError("--id is missing");
                             }
                             const SetOptions options{arguments.value("id").toStdString(),
                                                      arguments.at("PATH"),
                                                      arguments.at("VALUE"),
                                                      output,
                                                      formOf(arguments),
                                                      arguments.has("out-dir") ? file : QString()};
                             CityGMLModel model(nullptr, nullptr);
                             apps::SourceFile source;
                             return loadDocument(model, file, std::cerr, &source)
                                        ? runSet(model, source, options, std::cerr)
                                        : failure;
                         }});
}

int save(const QStringList& given)
{
    return write(given, {{"FILE", "OUT"},
                         {"FILE..."},
                         {"plain"},
                         QString(),
                         [](const Arguments& arguments, const QString& file, const QString& output) {
                             CityGMLModel model(nullptr, nullptr);
                             apps::SourceFile source;
                             if (!loadDocument(model, file, std::cerr, &source)) {
                                 return failure;
                             }
                             apps::DocumentSaving saving(model, source);
                             return saveDocument(saving, output, formOf(arguments), std::cerr) ? 0 : failure;
                         }});
}

int check(const QStringList& given)
{
    const Arguments arguments(given, {"FILE..."}, {"json"});
    const DocumentFiles files = arguments.documents();
    return runCheck(files, arguments.has("json"), std::cout, std::cerr);
}

int repair(const QStringList& given)
{
    return write(given, {{"FILE", "OUT"},
                         {"FILE..."},
                         {"plain"},
                         QString(),
                         [](const Arguments& arguments, const QString& file, const QString& output) {
                             return runRepair(file, output, formOf(arguments), std::cout, std::cerr);
                         }});
}

PictureOptions pictureOptions(const Arguments& arguments, const QString& output)
{
    PictureOptions options;
    options.output = output;
    options.colourBy = arguments.value("colour-by");
    if (arguments.has("lod")) {
        bool isNumber = false;
        options.lod = arguments.value("lod").toInt(&isNumber);
        if (!isNumber || *options.lod < 0 || *options.lod > 4) {
            throw UsageError("not a level of detail: " + arguments.value("lod").toStdString());
        }
    }
    if (arguments.has("size")) {
        const QStringList sides = arguments.value("size").split('x');
        options.size = QSize(sides.value(0).toInt(), sides.value(1).toInt());
        if (sides.size() != 2 || options.size.isEmpty()) {
            throw UsageError("not a size: " + arguments.value("size").toStdString());
        }
    }
    return options;
}

int picture(const QStringList& given)
{
    return write(given, {{"FILE", "OUT"},
                         {"FILE..."},
                         {"lod=", "colour-by=", "size="},
                         ".png",
                         [](const Arguments& arguments, const QString& file, const QString& output) {
                             const PictureOptions options = pictureOptions(arguments, output);
                             CityGMLModel model(nullptr, nullptr);
                             return loadDocument(model, file, std::cerr)
                                        ? runPicture(model, options, std::cerr)
                                        : failure;
                         }});
}

/// What the documents were read from that several threads may read.
class Sources
{
public:
    bool load(CityGMLModel& model, const QString& file)
    {
        apps::SourceFile source;
        const bool isLoaded = loadDocument(model, file, std::cerr, &source);
        const std::lock_guard<std::mutex> lock(mutex);
        sources[&model] = source;
        return isLoaded;
    }
    bool save(CityGMLModel& model, const QString& output, apps::DocumentSaving::Form form)
    {
        std::unique_lock<std::mutex> lock(mutex);
        apps::DocumentSaving saving(model, sources[&model]);
        lock.unlock();
        return saveDocument(saving, output, form, std::cerr);
    }

private:
    std::mutex mutex;
    std::map<const CityGMLModel*, apps::SourceFile> sources;
};

TableDocuments tableDocuments(const DocumentFiles& files,
                              apps::DocumentSaving::Form form = apps::DocumentSaving::Form::Changes)
{
    const auto sources = std::make_shared<Sources>();
    return {files.paths(),
            [sources](CityGMLModel& model, const QString& file) { return sources->load(model, file); },
            [sources, form](CityGMLModel& model, const QString& output) {
                return sources->save(model, output, form);
            },
            &std::cerr};
}

/// The entries of an option that may be given several times, or once with commas.
QStringList listOf(const QString& value)
{
    return value.split(',', Qt::SkipEmptyParts);
}

/// Runs a command of the module, and tells with its code that files are missing, too.
template <class Command>
int codeOf(const DocumentFiles& files, Command command)
{
    try {
        const int code = command();
        return files.areComplete() ? code : failure;
    } catch (const TableUsageError& error) {
        throw UsageError(error.what());
    }
}

int table(const QStringList& given)
{
    const Arguments arguments(
        given, {"FILE..."},
        {"out=", "format=", "type=", "columns=", "columns-from=", "all", "geometry", "3d", "append"});
    if (!arguments.has("out") && !arguments.has("columns-from")) {
        throw UsageError("--out is missing");
    }
    TableOptions options;
    options.types = listOf(arguments.value("type"));
    options.columns = listOf(arguments.value("columns"));
    options.columnsFrom = arguments.value("columns-from");
    options.out = arguments.value("out");
    options.format = arguments.value("format");
    options.all = arguments.has("all");
    options.geometry = arguments.has("geometry");
    options.hasHeights = arguments.has("3d");
    options.append = arguments.has("append");
    const DocumentFiles files = arguments.documents();
    return codeOf(files, [&] { return TableModule::load().writeTables(options, tableDocuments(files)); });
}

int columns(const QStringList& given)
{
    const Arguments arguments(given, {"OUT", "FILE..."}, {});
    const DocumentFiles files = arguments.documents();
    return TableModule::load().joinColumns(arguments.at("OUT"), tableDocuments(files));
}

int apply(const QStringList& given)
{
    const Arguments arguments(
        given, {"TABLE", "FILE..."},
        {"out=", "out-dir=", "id-column=", "sql=", "absent=", "create", "skip-bad", "plain"});
    ApplyOptions options;
    options.table = arguments.at("TABLE");
    options.sql = arguments.value("sql");
    options.idColumn = arguments.value("id-column");
    options.out = arguments.value("out");
    options.outDir = arguments.value("out-dir");
    options.absent = arguments.value("absent");
    options.create = arguments.has("create");
    options.skipBad = arguments.has("skip-bad");
    options.isPlain = arguments.has("plain");
    const DocumentFiles files = arguments.documents();
    return codeOf(files, [&] {
        return TableModule::load().applyTables(options, tableDocuments(files, formOf(arguments)));
    });
}

struct Command
{
    const char* name;
    int (*run)(const QStringList& arguments);
};

const Command commands[] = {
    {"rows", rows},   {"tree", tree},   {"properties", properties}, {"save", save},
    {"set", set},     {"check", check}, {"repair", repair},         {"picture", picture},
    {"table", table}, {"apply", apply}, {"columns", columns},
};

int run(const QStringList& arguments)
{
    const QString name = arguments.value(0);
    if (name == QLatin1String("--help") || name == QLatin1String("-h")) {
        std::cout << usage;
        return 0;
    }
    if (name == QLatin1String("--version")) {
        std::cout << "tolvik-inspect " << TOLVIK_VERSION << '\n';
        return 0;
    }
    for (const Command& command : commands) {
        if (name == QLatin1String(command.name)) {
            return command.run(arguments);
        }
    }
    throw UsageError(name.isEmpty() ? "a command is missing" : "no such command: " + name.toStdString());
}

/// Sends the log to standard error for as long as it lives.
class ErrorLog
{
public:
    ErrorLog() : appender(new log4cplus::ConsoleAppender(true, true))
    {
        appender->setLayout(std::make_unique<log4cplus::PatternLayout>("%p %c: %x%m%n"));
        log4cplus::Logger::getRoot().addAppender(appender);
        log4cplus::Logger::getRoot().setLogLevel(log4cplus::INFO_LOG_LEVEL);
    }
    ~ErrorLog() { log4cplus::Logger::getRoot().removeAppender(appender); }
    ErrorLog(const ErrorLog&) = delete;
    ErrorLog& operator=(const ErrorLog&) = delete;

private:
    log4cplus::SharedAppenderPtr appender;
};

} // namespace

int runCommandLine(const QStringList& arguments)
{
    const log4cplus::Initializer logging;
    const ErrorLog log;
    const TerminalProgress progress;
    try {
        const int code = run(arguments);
        if (!std::cout.flush()) {
            std::cerr << "tolvik-inspect: the output could not be written\n";
            return failure;
        }
        return code;
    } catch (const UsageError& error) {
        std::cerr << "tolvik-inspect: " << error.what() << "\nTry `tolvik-inspect --help`.\n";
        return wrongUsage;
    } catch (const std::exception& error) {
        std::cerr << "tolvik-inspect: " << error.what() << '\n';
        return failure;
    }
}

} // namespace tolvik::inspect
