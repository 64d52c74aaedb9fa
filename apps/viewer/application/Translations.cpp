#include "apps/viewer/application/Translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

// In a static library the resources come only where something asks for them, and not from within a namespace.
static void initializeResources()
{
    Q_INIT_RESOURCE(translations);
}

namespace tolvik::viewer {

namespace {

// The library has one function for two classes, of which lupdate knows neither.
[[maybe_unused]] constexpr const char* textsOfTwoModels[] = {
    QT_TRANSLATE_NOOP("tolvik::CityGMLModel", "Name"),
    QT_TRANSLATE_NOOP("tolvik::CityGMLModel", "Type"),
    QT_TRANSLATE_NOOP("tolvik::CityGMLModel", "unknown"),
    QT_TRANSLATE_NOOP("tolvik::CityGMLProxyModel", "Name"),
    QT_TRANSLATE_NOOP("tolvik::CityGMLProxyModel", "Type"),
    QT_TRANSLATE_NOOP("tolvik::CityGMLProxyModel", "unknown"),
};

} // namespace

void installTranslations(const QLocale& locale)
{
    initializeResources();
    QCoreApplication* const application = QCoreApplication::instance();
    const auto install = [&](const QString& name, const QString& folder) {
        auto* const translator = new QTranslator(application);
        if (translator->load(locale, name, QStringLiteral("_"), folder)) {
            QCoreApplication::installTranslator(translator);
            return true;
        }
        delete translator;
        return false;
    };
    install(QStringLiteral("qtbase"), QLibraryInfo::location(QLibraryInfo::TranslationsPath));
    if (!install(QStringLiteral("tolvik"), QStringLiteral(":/translations"))) {
        // English has translations too: the forms of singular and plural.
        auto* const english = new QTranslator(application);
        if (english->load(QStringLiteral(":/translations/tolvik_en.qm"))) {
            QCoreApplication::installTranslator(english);
        }
    }
}

} // namespace tolvik::viewer
