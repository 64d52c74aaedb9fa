#pragma once

#include <deque>
#include <QAbstractTableModel>
#include <QDateTime>
#include <QString>

namespace tolvik::viewer {

/// What the program and the library have logged, the newest last.
class LogModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Time, Level, Text, ColumnCount };
    /// Levels of the logger, as numbers: the higher, the worse. For Qt::UserRole.
    enum Severity { Information = 20000, Warning = 30000, Error = 40000 };

    explicit LogModel(QObject* parent = nullptr);
    ~LogModel() override;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

    /// The entry as a line, with tabs between time, level and text.
    QString line(int row) const;

public slots:
    /// \param level as Severity, or between
    void add(int level, const QString& text);
    void clear();

private:
    struct Entry
    {
        QDateTime time;
        int level;
        QString text;
    };
    QString levelName(int level) const;

    std::deque<Entry> entries;
};

} // namespace tolvik::viewer
