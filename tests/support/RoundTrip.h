#pragma once

#include "citygml/CityGMLFeaturesFillVisitor.h"
#include "citygml/CityGmlUtils.h"
#include "citygml/CityModel.h"
#include "core/CityModelType.hxx"
#include "gml/CodeType.hxx"

#include <log4cplus/appender.h>
#include <log4cplus/logger.h>
#include <log4cplus/spi/loggingevent.h>
#include <QByteArray>
#include <QFile>
#include <QString>
#include <QStringList>

#include <memory>
#include <sstream>

/// Help for tests that read documents and write them again.
namespace roundtrip {

using Document = std::unique_ptr<core::CityModelType>;

inline Document read(const QByteArray& xml)
{
    std::istringstream stream(xml.toStdString());
    return Document(core::CityModel(stream, 0x400).release());
}

/// The text of a save.
inline QByteArray write(const core::CityModelType& document)
{
    xsd::cxx::xml::dom::namespace_infomap<char> map;
    for (const tolvik::NamespacesMap& entry : tolvik::CityGmlUtils::getNamespaces()) {
        map[entry.prefix].name = entry.name;
        map[entry.prefix].schema = entry.schemaLocation;
    }
    std::ostringstream stream;
    core::CityModel(stream, document, map);
    return QByteArray::fromStdString(stream.str());
}

inline QString printed(const xsd::cxx::tree::exception<char>& error)
{
    std::ostringstream text;
    text << error;
    return QString::fromStdString(text.str());
}

/// What reading reports; empty if it succeeds.
inline QString errorOf(const QByteArray& xml)
{
    try {
        read(xml);
    } catch (const xsd::cxx::tree::exception<char>& error) {
        return printed(error);
    }
    return QString();
}

/// Type, identifier and first name of each feature, in the order of the walk.
inline QStringList listOf(core::CityModelType& document)
{
    tolvik::CityGMLFeaturesFillVisitor visitor;
    document.accept(&visitor);
    QStringList result;
    for (const gml::AbstractFeatureType* feature : visitor.getModelFeatures()) {
        QString line = QString::fromStdString(feature->typeLabel);
        if (feature->id().present()) {
            line += " #" + QString::fromStdString(*feature->id());
        }
        if (!feature->name().empty()) {
            line += " '" + QString::fromStdString(feature->name().front()) + '\'';
        }
        result << line;
    }
    return result;
}

inline QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Keeps what the reader logs while it lives, one line an event: the level, a blank and the message.
class ReaderLog
{
public:
    explicit ReaderLog(log4cplus::LogLevel level)
        : m_lines(new Lines), m_logger(log4cplus::Logger::getInstance("tolvik.citygml.DocumentReader")),
          m_level(m_logger.getLogLevel())
    {
        m_logger.setLogLevel(level);
        m_logger.addAppender(m_lines);
    }
    ~ReaderLog()
    {
        m_logger.removeAppender(m_lines);
        m_logger.setLogLevel(m_level);
    }
    ReaderLog(const ReaderLog&) = delete;
    ReaderLog& operator=(const ReaderLog&) = delete;

    QStringList take()
    {
        QStringList result;
        result.swap(static_cast<Lines&>(*m_lines).messages);
        return result;
    }

private:
    struct Lines : log4cplus::Appender
    {
        ~Lines() override { destructorImpl(); }
        void close() override {}
        void append(const log4cplus::spi::InternalLoggingEvent& event) override
        {
            messages.append(QString::fromStdString(
                log4cplus::getLogLevelManager().toString(event.getLogLevel()) + ' ' + event.getMessage()));
        }

        QStringList messages;
    };

    log4cplus::SharedAppenderPtr m_lines;
    log4cplus::Logger m_logger;
    log4cplus::LogLevel m_level;
};

} // namespace roundtrip
