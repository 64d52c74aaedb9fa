#pragma once

#include "bldg/BuildingType.hxx"
#include "core/CityModelType.hxx"
#include "gml/CodeType.hxx"
#include "gml/FeaturePropertyType.hxx"
#include "UI/Models/CityGMLModel/CityGMLModel.h"

#include <log4cplus/appender.h>
#include <log4cplus/initializer.h>
#include <log4cplus/logger.h>
#include <log4cplus/spi/loggingevent.h>
#include <QAbstractItemModelTester>
#include <QByteArray>
#include <QFile>
#include <QStringList>
#include <sstream>

/// A document with the given members.
inline QByteArray cityModel(const QByteArray& members)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
           "<CityModel xmlns=\"http://www.opengis.net/citygml/2.0\" "
           "xmlns:gml=\"http://www.opengis.net/gml\"\n"
           "    xmlns:bldg=\"http://www.opengis.net/citygml/building/2.0\">\n" +
           members + "</CityModel>\n";
}

/// A member of a document: a building, with an identifier if it is not empty, and the given content.
inline QByteArray building(const QByteArray& id, const QByteArray& content = QByteArray())
{
    const QByteArray attribute = id.isEmpty() ? QByteArray() : " gml:id=\"" + id + '"';
    return "<cityObjectMember><bldg:Building" + attribute + '>' + content +
           "</bldg:Building></cityObjectMember>\n";
}

/// The same with a name.
inline QByteArray namedBuilding(const QByteArray& id, const QByteArray& name)
{
    return building(id, "<gml:name>" + name + "</gml:name>");
}

/// A document whose rows are its root and buildings with the identifiers and names "b1" to "b<count>".
inline QByteArray town(int count)
{
    QByteArray members;
    for (int i = 1; i <= count; ++i) {
        const QByteArray name = 'b' + QByteArray::number(i);
        members += namedBuilding(name, name);
    }
    return cityModel(members);
}

/// Puts a copy of the feature into the document, behind its other members.
/// \return the copy
inline gml::AbstractFeatureType* addMember(core::CityModelType& document,
                                           const gml::AbstractFeatureType& feature)
{
    document.featureMember().push_back(gml::FeaturePropertyType());
    gml::FeaturePropertyType& member = document.featureMember().back();
    member._Feature(feature);
    return &member._Feature().get();
}

inline bldg::BuildingType makeBuilding(const std::string& id)
{
    bldg::BuildingType result;
    result.id(gml::AbstractGMLType::id_type(id));
    return result;
}

inline bool writeFile(const QString& path, const QByteArray& content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

inline QByteArray readFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The model without a plug-in, watched by the item model tester, with its protected operations open.
class OpenModel : public tolvik::CityGMLModel
{
public:
    OpenModel()
        : CityGMLModel(nullptr, nullptr), tester(this, QAbstractItemModelTester::FailureReportingMode::Fatal)
    {
    }

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

    void loadText(const QByteArray& xml)
    {
        std::istringstream stream(xml.toStdString());
        load(stream);
    }

    /// The names in column 0, in the order of the rows.
    QStringList names() const
    {
        QStringList result;
        for (int row = 0; row < rowCount(); ++row) {
            result.append(data(index(row, 0)).toString());
        }
        return result;
    }

    /// A letter for each row: v visible, h hidden; upper case for a disabled row.
    QString states() const
    {
        QString result;
        for (int row = 0; row < rowCount(); ++row) {
            const QChar letter = isVisible(index(row, 0)) ? 'v' : 'h';
            result.append(isDisabled(getFeature(row)) ? letter.toUpper() : letter);
        }
        return result;
    }

private:
    QAbstractItemModelTester tester;
};

/// Keeps the log of the document model while it lives, one line an event: the level, a blank and the message.
class LogCapture
{
public:
    LogCapture()
        : appender(new Lines), logger(log4cplus::Logger::getInstance("tolvik.UI.Models.CityGMLModel"))
    {
        logger.addAppender(appender);
    }
    ~LogCapture() { logger.removeAppender(appender); }
    LogCapture(const LogCapture&) = delete;
    LogCapture& operator=(const LogCapture&) = delete;

    QStringList take()
    {
        QStringList result;
        result.swap(lines().messages);
        return result;
    }

    /// The source that the last event was logged from.
    QString file() { return lines().file; }

private:
    struct Lines : log4cplus::Appender
    {
        ~Lines() override { destructorImpl(); }
        void close() override {}
        void append(const log4cplus::spi::InternalLoggingEvent& event) override
        {
            messages.append(QString::number(event.getLogLevel()) + ' ' +
                            QString::fromStdString(event.getMessage()));
            file = QString::fromStdString(event.getFile());
        }

        QStringList messages;
        QString file;
    };

    Lines& lines() { return static_cast<Lines&>(*appender); }

    log4cplus::SharedAppenderPtr appender;
    log4cplus::Logger logger;
};
