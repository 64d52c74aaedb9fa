#include "apps/common/DocumentReading.h"
#include "apps/common/DocumentSaving.h"
#include "apps/viewer/document/Document.h"
#include "apps/viewer/properties/PropertyPanel.h"
#include "apps/viewer/properties/ValueEditors.h"
#include "apps/viewer/properties/ValueRoles.h"
#include "apps/viewer/table/AttributeTable.h"
#include "support/Documents.h"
#include "support/Files.h"
#include "support/PanelFixture.h"
#include "support/Sessions.h"
#include "support/TestClass.h"
#include "support/XmlTree.h"
#include "viewer/OpenedWindow.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDockWidget>
#include <QLineEdit>
#include <QRandomGenerator>
#include <QTableView>
#include <QtTest>

using namespace testsupport;
using namespace tolvik;
using namespace tolvik::viewer;

namespace {

constexpr int actionsOfSession = 30;

/// A user who does anything in the panels of a window.
class User
{
public:
    User(OpenedWindow& opened, quint32 seed)
        : opened(opened), random(seed), panel(*opened.window->findChild<PropertyPanel*>()),
          table(*opened.window->findChild<AttributeTable*>())
    {
        opened.window->findChild<QDockWidget*>("tableDock")->raise();
        opened.button("showAbsent")->setChecked(true);
    }

    void act()
    {
        switch (random.bounded(9)) {
        case 0:
            selectSome(1);
            opened.action("removeFeature")->trigger();
            break;
        case 1:
            editTable();
            break;
        case 2:
            opened.action(random.bounded(3) == 0 ? "redo" : "undo")->trigger();
            break;
        case 3:
            selectSome(2 + random.bounded(4));
            editProperty();
            break;
        case 4:
            selectSome(1);
            addSomething();
            break;
        case 5:
            selectSome(1 + random.bounded(2));
            takeAway();
            break;
        default:
            selectSome(1);
            editProperty();
        }
        QCoreApplication::processEvents();
    }

    void undoAll()
    {
        while (opened.document().undoStack().canUndo()) {
            opened.action("undo")->trigger();
        }
    }

private:
    void selectSome(int count)
    {
        const CityGMLModel& model = opened.document().model();
        QItemSelection rows;
        for (; count > 0; --count) {
            const QModelIndex index = model.index(random.bounded(model.rowCount()), 0);
            rows.merge(QItemSelection(index, index.siblingAtColumn(1)), QItemSelectionModel::Select);
        }
        opened.document().selection().select(rows, QItemSelectionModel::ClearAndSelect);
        QTRY_VERIFY(panel.isComplete());
    }

    void editProperty()
    {
        QTreeView& view = *opened.view("propertyTree");
        const QModelIndex cell =
            anyCell(view, [](const QModelIndex& each) { return (each.flags() & Qt::ItemIsEditable) != 0; });
        if (cell.isValid()) {
            enter(view, cell);
        }
    }

    void editTable()
    {
        auto* const types = opened.window->findChild<QComboBox*>("tableType");
        types->setCurrentIndex(random.bounded(types->count()));
        auto& view = *table.findChild<QTableView*>("attributeTable");
        const int rows = view.model()->rowCount();
        const int columns = view.model()->columnCount();
        if (rows > 0 && columns > 0) {
            enter(view, view.model()->index(random.bounded(rows), random.bounded(columns)));
        }
    }

    /// Opens the editor of a cell, gives it a value and presses Enter, and Escape where that is refused.
    void enter(QAbstractItemView& view, const QModelIndex& cell)
    {
        const QVariant offered = cell.data(OfferedRole);
        const QVariantList choices = cell.data(ChoicesRole).toList();
        if (kindOf(offered, choices) == ValueKind::Truth) {
            view.setFocus();
            view.setCurrentIndex(cell);
            QTest::keyClick(&view, Qt::Key_Space);
            return;
        }
        QWidget* editor = openEditor(view, cell);
        if (editor == nullptr) {
            return;
        }
        dynamic_cast<ValueEditor&>(*editor).setValue(anyValue(offered, choices));
        QTest::keyClick(editor, Qt::Key_Return, Qt::ControlModifier);
        editor = editorIn(view);
        if (editor != nullptr) {
            QTest::keyClick(editor, Qt::Key_Escape);
        }
    }

    void addSomething()
    {
        const QString number = QString::number(random.bounded(100));
        const QStringList types{"Text", "Whole number", "Number", "Link", "Measure", "Set of attributes"};
        switch (random.bounded(3)) {
        case 0:
            answer({{"type", types[random.bounded(types.size())]}, {"name", "n" + number}, {"value", number}},
                   [this] { panel.addAttribute(); });
            break;
        case 1:
            answer({{"", number}}, [this] { panel.addEntry("function"); });
            break;
        default:
            answer({{"", "Name & " + number}}, [this] { panel.addEntry("name"); });
        }
    }

    void takeAway()
    {
        QTreeView& view = *opened.view("propertyTree");
        const QModelIndex cell =
            anyCell(view, [](const QModelIndex& each) { return !each.data(AbsentRole).toBool(); });
        view.setCurrentIndex(cell);
        if (random.bounded(2) == 0) {
            answer({{"", "renamed"}}, [this] { panel.renameCurrent(); });
        } else {
            panel.removeCurrent();
        }
    }

    template <class Condition>
    QModelIndex anyCell(const QTreeView& view, Condition condition)
    {
        QVector<QModelIndex> cells;
        for (QModelIndex each = view.model()->index(0, 0); each.isValid(); each = view.indexBelow(each)) {
            if (condition(each.siblingAtColumn(1))) {
                cells.append(each.siblingAtColumn(1));
            }
        }
        return cells.isEmpty() ? QModelIndex() : cells[random.bounded(cells.size())];
    }

    /// \param ask opens a dialog, or not
    template <class Ask>
    static void answer(const QMap<QString, QString>& fields, Ask ask)
    {
        QTimer::singleShot(0, qApp, [fields] {
            QWidget* const dialog = QApplication::activeModalWidget();
            if (dialog == nullptr) {
                return;
            }
            for (auto field = fields.begin(); field != fields.end(); ++field) {
                if (auto* const choice = dialog->findChild<QComboBox*>(field.key())) {
                    choice->setCurrentText(field.value());
                } else {
                    dialog->findChild<QLineEdit*>(field.key())->setText(field.value());
                }
            }
            QTest::keyClick(dialog, Qt::Key_Return);
        });
        ask();
        QCoreApplication::processEvents();
    }

    QVariant anyValue(const QVariant& offered, const QVariantList& choices)
    {
        const int number = random.bounded(3000);
        switch (kindOf(offered, choices)) {
        case ValueKind::Choice:
            return choices[random.bounded(choices.size())];
        case ValueKind::Whole:
            return number;
        case ValueKind::Real:
            return number / 8.0;
        case ValueKind::Date:
            return QDate(1950, 1, 1).addDays(number);
        case ValueKind::DateTime:
            return QDateTime(QDate(1950, 1, 1).addDays(number), QTime(1, 2, 3));
        case ValueKind::List: {
            QVariantList entries = offered.toList();
            if (!entries.isEmpty() && number % 2 == 0) {
                entries.removeAt(number % entries.size());
            } else if (!entries.isEmpty()) {
                entries.append(entries.first());
            }
            return entries;
        }
        default:
            return QString("<%1> & \"text\"").arg(number);
        }
    }

    OpenedWindow& opened;
    QRandomGenerator random;
    PropertyPanel& panel;
    AttributeTable& table;
};

/// What a document says, as all of it is written anew.
QByteArray meaningOf(const QString& path)
{
    apps::DocumentReading reading(path);
    reading.read();
    return reading.document() != nullptr ? testsupport::write(*reading.document()) : reading.error().toUtf8();
}

/// Writes the document of a window beside its file.
/// \return path of the new file
QString write(OpenedWindow& opened, apps::DocumentSaving::Form form)
{
    const QString path = opened.path("written.gml");
    apps::DocumentSaving saving(opened.document().model(), opened.document().source());
    const bool isWritten = saving.save(path, form);
    opened.document().model().setFileName(opened.file());
    return isWritten ? path : QString();
}

/// Takes the comments out of a tree.
void takeComments(XmlNode& node, QStringList& comments)
{
    for (int i = node.children.size() - 1; i >= 0; --i) {
        if (node.children[i].kind == XmlNode::Comment) {
            comments.append(node.children.takeAt(i).text);
        } else {
            takeComments(node.children[i], comments);
        }
    }
}

/// What two documents say differently. Beside what was removed a comment may stand before the next element or
/// behind it.
QStringList differencesOf(const QByteArray& a, const QByteArray& b)
{
    XmlNode left = XmlNode::parse(a);
    XmlNode right = XmlNode::parse(b);
    QStringList leftComments;
    QStringList rightComments;
    takeComments(left, leftComments);
    takeComments(right, rightComments);
    leftComments.sort();
    rightComments.sort();
    QStringList differences = XmlNode::differences(left, right);
    if (leftComments != rightComments) {
        differences += leftComments + QStringList("-- comments of the other --") + rightComments;
    }
    return differences;
}

} // namespace

/// Long sessions at random in the panels of a window, and what a save writes after them.
class WindowSessionsTest : public QObject
{
    Q_OBJECT

private slots:
    void anythingThatIsUndoneLeavesTheBytes_data() { addSessionRows(1, 40); }

    void anythingThatIsUndoneLeavesTheBytes()
    {
        QFETCH(QString, path);
        QFETCH(int, seed);
        OpenedWindow opened(path);
        const QByteArray before = contentOf(opened.file());
        User user(opened, static_cast<quint32>(seed));
        for (int i = 0; i < actionsOfSession; ++i) {
            user.act();
        }
        QVERIFY(opened.document().undoStack().count() > 3);

        // What a save changes says the same as what is written anew.
        const QByteArray saved = meaningOf(write(opened, apps::DocumentSaving::Form::Changes));
        const QByteArray wanted = meaningOf(write(opened, apps::DocumentSaving::Form::Plain));
        const QStringList differences = differencesOf(saved, wanted);
        QVERIFY2(differences.isEmpty(), qPrintable(differences.join('\n')));

        user.undoAll();
        opened.action("save")->trigger();
        QVERIFY(!opened.document().isModified());
        const QByteArray now = contentOf(opened.file());
        QVERIFY2(now == before, qPrintable(differenceOf(now, before)));
    }
};

TEST_CLASS(WindowSessionsTest, Widgets)
#include "windowsessionstest.moc"
