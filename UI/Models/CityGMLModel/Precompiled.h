#pragma once

// What almost every unit of the library reads: Qt and the base of the schema binding. The schema classes stay
// out, so that a change of a schema does not build this anew.
#include "xml-schema.hxx"

#include <map>
#include <memory>
#include <QAbstractListModel>
#include <QList>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>
#include <string>
#include <vector>
