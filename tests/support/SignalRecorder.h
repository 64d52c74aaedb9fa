#pragma once

#include <QAbstractItemModel>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>
#include <type_traits>

namespace testsupport {

/// Writes down every signal of an item model as a line of text, in the order in which they are sent, so that
/// a test compares order and arguments at once. Further signals, of the model or of other objects, join the
/// same list.
/// \code
/// SignalRecorder recorder(&model);
/// recorder.watch(&model, QOverload<const QModelIndex&>::of(&Model::visibilityChanged), "visibilityChanged");
/// model.hide(model.index(2, 0));
/// QCOMPARE(recorder.take(), QStringList({"dataChanged 2:0 2:0 []", "visibilityChanged 2:0"}));
/// \endcode
/// An index is written as the rows from the top level down to it and its column, `0/3/1:0`, and `-` if it is
/// invalid; a list in brackets; a pointer as `set` or `null`. A line is written while the signal is sent, so
/// an index stands in it as it was at that moment.
class SignalRecorder : public QObject
{
public:
    explicit SignalRecorder(const QAbstractItemModel* model)
    {
        using M = QAbstractItemModel;
        watch(model, &M::dataChanged, "dataChanged");
        watch(model, &M::headerDataChanged, "headerDataChanged");
        watchRows(model, &M::rowsAboutToBeInserted, "rowsAboutToBeInserted");
        watchRows(model, &M::rowsInserted, "rowsInserted");
        watchRows(model, &M::rowsAboutToBeRemoved, "rowsAboutToBeRemoved");
        watchRows(model, &M::rowsRemoved, "rowsRemoved");
        watchMove(model, &M::rowsAboutToBeMoved, "rowsAboutToBeMoved");
        watchMove(model, &M::rowsMoved, "rowsMoved");
        watchRows(model, &M::columnsAboutToBeInserted, "columnsAboutToBeInserted");
        watchRows(model, &M::columnsInserted, "columnsInserted");
        watchRows(model, &M::columnsAboutToBeRemoved, "columnsAboutToBeRemoved");
        watchRows(model, &M::columnsRemoved, "columnsRemoved");
        watchMove(model, &M::columnsAboutToBeMoved, "columnsAboutToBeMoved");
        watchMove(model, &M::columnsMoved, "columnsMoved");
        connect(model, &M::modelAboutToBeReset, this, [this] { add("modelAboutToBeReset"); });
        connect(model, &M::modelReset, this, [this] { add("modelReset"); });
        connect(model, &M::layoutAboutToBeChanged, this, [this] { add("layoutAboutToBeChanged"); });
        connect(model, &M::layoutChanged, this, [this] { add("layoutChanged"); });
    }

    /// Records one more signal under the given name.
    template <class Sender, class Class, class... Args>
    void watch(const Sender* sender, void (Class::*signal)(Args...), const QString& name)
    {
        connect(sender, signal, this, [this, name](Args... args) {
            QStringList parts{name};
            (parts.append(text(args)), ...);
            add(parts.join(' '));
        });
    }

    /// Writes a line of the test's own between those of the signals.
    void add(const QString& line) { recorded.append(line); }

    const QStringList& lines() const { return recorded; }

    void clear() { recorded.clear(); }

    /// The lines so far; the recorder goes on with none.
    QStringList take()
    {
        QStringList result;
        result.swap(recorded);
        return result;
    }

    static QString text(const QModelIndex& index)
    {
        if (!index.isValid()) {
            return QStringLiteral("-");
        }
        QString path = QString::number(index.row());
        for (QModelIndex up = index.parent(); up.isValid(); up = up.parent()) {
            path.prepend(QString::number(up.row()) + '/');
        }
        return path + ':' + QString::number(index.column());
    }

    template <class T>
    static QString text(const T& value)
    {
        if constexpr (std::is_pointer_v<T>) {
            return value == nullptr ? QStringLiteral("null") : QStringLiteral("set");
        } else if constexpr (std::is_enum_v<T>) {
            return QString::number(static_cast<int>(value));
        } else {
            return QVariant(value).toString();
        }
    }

    template <class T>
    static QString text(const QList<T>& values)
    {
        return listText(values);
    }

    template <class T>
    static QString text(const QVector<T>& values)
    {
        return listText(values);
    }

private:
    template <class List>
    static QString listText(const List& values)
    {
        QStringList parts;
        for (const auto& value : values) {
            parts.append(text(value));
        }
        return '[' + parts.join(' ') + ']';
    }

    template <class Signal>
    void watchRows(const QAbstractItemModel* model, Signal signal, const QString& name)
    {
        connect(model, signal, this, [this, name](const QModelIndex& parent, int first, int last) {
            add(QStringLiteral("%1 %2 %3 %4").arg(name, text(parent)).arg(first).arg(last));
        });
    }

    template <class Signal>
    void watchMove(const QAbstractItemModel* model, Signal signal, const QString& name)
    {
        connect(
            model, signal, this,
            [this, name](const QModelIndex& parent, int first, int last, const QModelIndex& target, int row) {
                add(QStringLiteral("%1 %2 %3 %4 %5 %6")
                        .arg(name, text(parent))
                        .arg(first)
                        .arg(last)
                        .arg(text(target))
                        .arg(row));
            });
    }

    QStringList recorded;
};

} // namespace testsupport
