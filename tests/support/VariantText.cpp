#include "support/VariantText.h"

#include <QDateTime>
#include <QStringList>

namespace testsupport {

namespace {

QString listText(const QVariant& list, QString (*textOf)(const QVariant&))
{
    QStringList entries;
    for (const QVariant& entry : list.toList()) {
        entries.append(textOf(entry));
    }
    return '[' + entries.join(", ") + ']';
}

} // namespace

QString plainText(const QVariant& value)
{
    if (value.userType() == QMetaType::QVariantList) {
        return listText(value, plainText);
    }
    return value.userType() == QMetaType::QDateTime ? value.toDateTime().toString(Qt::ISODate)
                                                    : value.toString();
}

QString typedText(const QVariant& value)
{
    if (!value.isValid()) {
        return "invalid";
    }
    if (value.userType() == QMetaType::QVariantList) {
        return listText(value, typedText);
    }
    return QString::fromLatin1(value.typeName()) + ' ' + value.toString();
}

} // namespace testsupport
