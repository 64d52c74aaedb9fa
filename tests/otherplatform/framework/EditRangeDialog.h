#pragma once

#include <QDialog>
#include <QVector>

namespace tolvik {

class EditRangeDialog : public QDialog
{
    Q_OBJECT

public:
    explicit EditRangeDialog(const QVector<double>& /*ranges*/, QWidget* parent = nullptr) : QDialog(parent)
    {
    }
    virtual QVector<double> getRanges() { return {}; }
};

} // namespace tolvik
