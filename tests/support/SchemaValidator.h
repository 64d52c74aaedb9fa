#pragma once

#include <memory>
#include <QByteArray>
#include <QString>

namespace testsupport {

/// Validates documents against the schema files with a validator that knows nothing of the binding.
class SchemaValidator
{
public:
    /// \param directory of the schema files; throws std::runtime_error where they are not sound
    explicit SchemaValidator(const QString& directory);
    ~SchemaValidator();

    /// \return the first error with its line; empty for a valid document
    QString validate(const QByteArray& document);

private:
    struct Parts;

    std::unique_ptr<Parts> parts;
};

} // namespace testsupport
